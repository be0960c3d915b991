#include "benchmarks.h"

#include <Vellum/CusLineEdit>
#include <Vellum/CusSlider>
#include <Vellum/CusSpinBox>

#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int kInputs = 1000;

template <typename Slider>
class Horizontal : public Slider
{
public:
    explicit Horizontal(QWidget *parent)
        : Slider(Qt::Horizontal, parent)
    {
    }
};

/// Creates, polishes and deletes 1,000 inputs, as a client does that builds its forms anew.
template <typename Input>
void createPolishDelete(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < kInputs; ++i)
            (new Input(&window))->ensurePolished();
    }
}

const BenchmarkPair lineEdits{"create, polish and delete 1,000 line edits", 1.5,
                              createPolishDelete<CusLineEdit>, createPolishDelete<QLineEdit>};
const BenchmarkPair sliders{"create, polish and delete 1,000 sliders", 1.5,
                            createPolishDelete<Horizontal<CusSlider>>,
                            createPolishDelete<Horizontal<QSlider>>};
const BenchmarkPair spinBoxes{"create, polish and delete 1,000 spin boxes", 1.5,
                              createPolishDelete<CusSpinBox>, createPolishDelete<QSpinBox>};

} // namespace
