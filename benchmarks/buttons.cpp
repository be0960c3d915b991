#include "benchmarks.h"

#include <Vellum/CusSvgPushButton>

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int kGridSide = 10;
constexpr QSize kButtonSize(60, 28);
constexpr QSize kIconSize(16, 16);

const QByteArray kIcon =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\">"
    "<rect x=\"2\" y=\"7\" width=\"14\" height=\"10\" rx=\"2\" fill=\"#ffffff\"/>"
    "<path d=\"M17 11L22 8V16L17 13Z\" fill=\"#ffffff\"/>"
    "<circle cx=\"6\" cy=\"12\" r=\"2\" fill=\"#808080\"/>"
    "<polygon points=\"9,10 13,10 13,14 9,14\" fill=\"#808080\"/>"
    "<line x1=\"4\" y1=\"20\" x2=\"14\" y2=\"20\" stroke=\"#ffffff\" fill=\"#ffffff\"/></svg>";

/// The icon's file. The first call also adds the rules that give both kinds of button the same
/// base, and one of them an image, where most clients keep theirs: in the resources.
QString iconFile()
{
    static const QTemporaryDir folder;
    static const QString name = [] {
        const QString path = folder.filePath(QStringLiteral("camera.svg"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(kIcon) != kIcon.size())
            qFatal("can't write the icon");
        qApp->setStyleSheet(
            qApp->styleSheet()
            + QStringLiteral("QPushButton#benchmark_button {"
                             " background: #323C4E; border: 1px solid #606C80;"
                             " border-radius: 4px; padding: 0px 4px }"
                             "CusSvgPushButton#benchmark_polished {"
                             " qproperty-svgIconImage: url(:/Resource/icons/camera.svg) }"));
        return path;
    }();
    return name;
}

std::unique_ptr<QPushButton> stockButton()
{
    auto button = std::make_unique<QPushButton>();
    button->setIcon(QIcon(iconFile()));
    button->setIconSize(kIconSize);
    return button;
}

std::unique_ptr<QPushButton> svgButton()
{
    auto button = std::make_unique<CusSvgPushButton>();
    button->setIcon(iconFile(), kIconSize, Qt::white);
    return button;
}

/// Paints a window with 100 buttons that \a create made.
void repaint(benchmark::State &state, std::unique_ptr<QPushButton> (*create)())
{
    QWidget window;
    for (int i = 0; i < kGridSide * kGridSide; ++i) {
        QPushButton *button = create().release();
        button->setParent(&window);
        button->setObjectName(QStringLiteral("benchmark_button"));
        button->setGeometry(
            QRect(QPoint(i % kGridSide * kButtonSize.width(), i / kGridSide * kButtonSize.height()),
                  kButtonSize));
    }
    window.resize(kGridSide * kButtonSize);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
    window.render(&image);
    for (auto _ : state)
        window.render(&image);
}

const BenchmarkPair repaintOf100{"repaint of 100 buttons with a 16 px icon", 1.5,
                                 [](benchmark::State &state) { repaint(state, svgButton); },
                                 [](benchmark::State &state) { repaint(state, stockButton); }};

/// A button at rest and a painter to draw it with, the same for both sides.
struct Canvas
{
    Canvas()
        : image(kButtonSize, QImage::Format_ARGB32_Premultiplied)
        , painter(&image)
    {
        iconFile();
        button.setObjectName(QStringLiteral("benchmark_button"));
        button.ensurePolished();
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        option.initFrom(&button);
        option.rect = QRect(QPoint(), kButtonSize);
    }

    CusSvgPushButton button;
    QImage image;
    QPainter painter;
    QStyleOptionButton option;
};

void paintThreeLayers(benchmark::State &state)
{
    Canvas canvas;
    canvas.button.setSvgBGImage(iconFile());
    canvas.button.setSvgBorderImage(iconFile());
    canvas.button.setSvgIconImage(iconFile());
    for (auto _ : state) {
        canvas.button.paintSvgBtn(&canvas.painter, canvas.option, canvas.button.style(),
                                  CusSvgPushButton::DrawStype_Widget);
    }
}

void paintThreeRenderers(benchmark::State &state)
{
    Canvas canvas;
    QSvgRenderer background(iconFile());
    QSvgRenderer border(iconFile());
    QSvgRenderer icon(iconFile());
    QRect centred(QPoint(), kIconSize);
    centred.moveCenter(canvas.option.rect.center());
    for (auto _ : state) {
        canvas.button.style()->drawControl(QStyle::CE_PushButton, &canvas.option, &canvas.painter,
                                           &canvas.button);
        background.render(&canvas.painter, centred);
        border.render(&canvas.painter, canvas.option.rect);
        icon.render(&canvas.painter, centred);
    }
}

const BenchmarkPair threeLayers{"paint of a button with three layers, against bare renderers", 1.1,
                                paintThreeLayers, paintThreeRenderers};

template <typename Button>
void polishAgain(benchmark::State &state)
{
    iconFile();
    Button button;
    button.setObjectName(QStringLiteral("benchmark_polished"));
    button.ensurePolished();
    for (auto _ : state)
        button.setStyle(QApplication::style());
}

const BenchmarkPair polished{"re-polish of a button whose sheet sets one image", 1.25,
                             polishAgain<CusSvgPushButton>, polishAgain<QPushButton>};

template <typename Button>
void createAndDelete(benchmark::State &state)
{
    iconFile();
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < 500; ++i)
            (new Button(&window))->ensurePolished();
    }
}

const BenchmarkPair lifeCycle{"create, polish and delete 500 buttons", 1.15,
                              createAndDelete<CusSvgPushButton>, createAndDelete<QPushButton>};

} // namespace
