#include "benchmarks.h"

#include <Vellum/CusSlider>

#include <QSlider>

namespace {

constexpr int kSliders = 1000;

template <typename Slider>
void createAndDelete(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < kSliders; ++i)
            (new Slider(Qt::Horizontal, &window))->ensurePolished();
    }
}

const BenchmarkPair lifeCycle{"create, polish and delete 1,000 sliders", 1.5,
                              createAndDelete<CusSlider>, createAndDelete<QSlider>};

} // namespace
