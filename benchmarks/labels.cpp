#include "benchmarks.h"

#include <Vellum/CusLabel>

#include <QCoreApplication>
#include <QVBoxLayout>
#include <QWidget>

namespace {

constexpr int kLabels = 1000;

template <typename Label>
void buildAndShow(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        for (int i = 0; i < kLabels; ++i)
            layout->addWidget(new Label(QStringLiteral("Camera %1, north gate").arg(i), &window));
        window.resize(400, 4000);
        window.show();
        QCoreApplication::processEvents();
    }
}

void breakLines(benchmark::State &state)
{
    const QString text = QStringLiteral("Camera north gate, recording lost; ")
                             .repeated(int(state.range(0)) / 35 + 1)
                             .left(int(state.range(0)));
    CusLabel label;
    label.setLableType(CusLabel::LABEL_TYPE_LINE_BREAK);
    label.resize(4000, 100);
    for (auto _ : state)
        label.setText(text);
}

const BenchmarkPair show{"1,000 labels built, laid out and shown", 1.5, buildAndShow<CusLabel>,
                         buildAndShow<QLabel>};
const BenchmarkGrowth lines{"line breaks at 4,000 px", 1.1, {10000, 40000, 160000}, breakLines};

} // namespace
