#include "benchmarks.h"

#include <Vellum/CusSpinBox>

#include <QSpinBox>
#include <QWidget>

namespace {

constexpr int kBoxes = 1000;

template <typename Box>
void createPolishDelete(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < kBoxes; ++i)
            (new Box(&window))->ensurePolished();
    }
}

const BenchmarkPair lifeCycle{"create, polish and delete 1,000 spin boxes", 1.5,
                              createPolishDelete<CusSpinBox>, createPolishDelete<QSpinBox>};

} // namespace
