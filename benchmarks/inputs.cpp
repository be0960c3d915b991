#include "benchmarks.h"

#include <Vellum/CusLineEdit>

#include <QWidget>

namespace {

constexpr int kInputs = 1000;

/// Creates, polishes and deletes 1,000 inputs, as a client does that builds its forms anew.
template <typename Input>
void createPolishDelete(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < kInputs; ++i) {
            auto *input = new Input(&window);
            input->ensurePolished();
        }
    }
}

const BenchmarkPair lineEdits{"1,000 CusLineEdit: create, polish, delete", 1.5,
                              createPolishDelete<CusLineEdit>, createPolishDelete<QLineEdit>};

} // namespace
