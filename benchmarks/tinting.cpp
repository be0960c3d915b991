#include "benchmarks.h"

#include <Vellum/CusSvgImage>
#include <Vellum/SvgImageInfo>

#include <QFile>
#include <QSvgRenderer>
#include <QTemporaryDir>

namespace {

/// Five shapes, as most icons of a set have.
const QByteArray &iconBytes()
{
    static const QByteArray bytes =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\" "
        "viewBox=\"0 0 16 16\">"
        "<path fill=\"#a0a7b4\" d=\"M2 3h8a1 1 0 0 1 1 1v8a1 1 0 0 1-1 1H2a1 1 0 0 1-1-1V4a1 1 0 "
        "0 1 1-1z\"/>"
        "<path fill=\"#a0a7b4\" d=\"M12 6.5l3-2v7l-3-2z\"/>"
        "<circle fill=\"#a0a7b4\" cx=\"6\" cy=\"8\" r=\"2.5\"/>"
        "<rect fill=\"#a0a7b4\" x=\"3\" y=\"4\" width=\"2\" height=\"1\"/>"
        "<polygon fill=\"#a0a7b4\" points=\"7,4 9,4 9,5 7,5\"/>"
        "</svg>\n";
    return bytes;
}

/// A folder of \a count icon files, written once.
class IconFolder
{
public:
    explicit IconFolder(int count)
    {
        for (int i = 0; i < count; ++i) {
            QFile file(fileName(i));
            if (!file.open(QIODevice::WriteOnly) || file.write(iconBytes()) != iconBytes().size())
                qFatal("can't write the icons");
        }
    }

    QString fileName(int index) const
    {
        return m_folder.filePath(QStringLiteral("%1.svg").arg(index));
    }

private:
    QTemporaryDir m_folder;
};

const IconFolder &icons()
{
    static const IconFolder folder(10000);
    return folder;
}

void rendererFromFile(benchmark::State &state)
{
    const QString file = icons().fileName(0);
    for (auto _ : state) {
        const QSvgRenderer renderer(file);
        benchmark::DoNotOptimize(renderer.isValid());
    }
}

void firstState(benchmark::State &state)
{
    const QString file = icons().fileName(0);
    for (auto _ : state) {
        CusSvgImage image(file);
        SvgImageInfo info;
        info.setSvgColor(QColor(0x42, 0x9e, 0xf6));
        info.init(&image);
        if (!info.render()->isValid())
            state.SkipWithError("no renderer");
    }
}

void furtherState(benchmark::State &state)
{
    CusSvgImage image(icons().fileName(0));
    int shade = 0;
    for (auto _ : state) {
        SvgImageInfo info;
        info.setSvgColor(QColor(++shade & 255, 0x9e, 0xf6));
        info.init(&image);
        if (!info.render()->isValid())
            state.SkipWithError("no renderer");
    }
}

void tintFiles(benchmark::State &state)
{
    const QColor color(0x42, 0x9e, 0xf6);
    const IconFolder &folder = icons();
    for (auto _ : state) {
        for (int i = 0; i < int(state.range(0)); ++i) {
            const CusSvgImage image(folder.fileName(i));
            benchmark::DoNotOptimize(image.getFillColorByteArray(color).size());
        }
    }
}

const BenchmarkPair first{"first renderer of a state from a file", 4.2, firstState,
                          rendererFromFile};
const BenchmarkPair further{"further renderer of a state", 3.1, furtherState, rendererFromFile};
const BenchmarkGrowth growth{"tinting icon files", 1.05, {1000, 10000}, tintFiles};

} // namespace
