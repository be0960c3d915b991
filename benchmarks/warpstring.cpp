#include "benchmarks.h"

#include <Vellum/CusUiCommonFun>

#include <QApplication>
#include <QFontMetrics>

namespace {

constexpr int kWidth = 1820;

QString latinText(int size)
{
    static const QString words =
        QStringLiteral("The recording of camera 17, north gate, was stopped by the operator; "
                       "storage of the second disk is nearly full. Playback AVI 1920x1080. ");
    return words.repeated(size / words.size() + 1).left(size);
}

void wrap(benchmark::State &state, int size)
{
    const QFontMetrics metrics(QApplication::font());
    const QString text = latinText(size);
    bool wrapped = false;
    int lineCount = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(warpString(metrics, text, kWidth, &wrapped, &lineCount));
    if (!wrapped || lineCount < 2)
        state.SkipWithError("the text was not wrapped");
}

void measure(benchmark::State &state, int size)
{
    const QFontMetrics metrics(QApplication::font());
    const QString text = latinText(size);
    for (auto _ : state)
        benchmark::DoNotOptimize(metrics.horizontalAdvance(text));
}

const BenchmarkPair pair{"warpString, 4,000 Latin characters at 1,820 px", 12,
                         [](benchmark::State &state) { wrap(state, 4000); },
                         [](benchmark::State &state) { measure(state, 4000); }};

const BenchmarkGrowth growth{"warpString at 1,820 px, 10,000 to 1,000,000 characters",
                             1.1,
                             {10000, 100000, 1000000},
                             [](benchmark::State &state) { wrap(state, int(state.range(0))); }};

} // namespace
