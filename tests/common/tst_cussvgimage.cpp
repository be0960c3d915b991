#include "support/guardedtest.h"
#include "support/qobjectcounter.h"
#include "support/render.h"

#include <Vellum/CSSItem>
#include <Vellum/CusSvgImage>
#include <Vellum/SvgImageInfo>

#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <QtTest>

#include <sys/stat.h>

class TestCusSvgImage : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tintGoesWhereTheFileKeepsItsColor();
    void tintsFollowEachOther();
    void loadResetsEverything();
    void paintsTheTintIntoTheWholeRectangle();
    void renderersAreKept();
    void animationRunsNoTimer();
    void pixmap();
    void infoTakesTheRightSource();
    void infoKeepsItsRenderer();
    void paintsWhatIsOnlyUnusual();

private:
    /// \a body inside an SVG element of 24 by 24 units.
    QString svg(const QByteArray &body, const QByteArray &before = QByteArray())
    {
        return write(before
                     + "<svg xmlns='http://www.w3.org/2000/svg' "
                       "xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 24 24'>"
                     + body + "</svg>");
    }
    QString write(const QByteArray &bytes)
    {
        QFile file(m_dir.filePath(QStringLiteral("%1.svg").arg(++m_files)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            ? file.fileName()
            : QString();
    }
    static QImage painted(const CusSvgImage &image)
    {
        QImage canvas(24, 24, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(TestKit::unpainted);
        QPainter painter(&canvas);
        image.paintSvgImage(&painter, canvas.rect());
        return canvas;
    }

    QTemporaryDir m_dir;
    QString m_square;
    int m_files = 0;
};

void TestCusSvgImage::initTestCase()
{
    m_square = svg("<rect width='24' height='24' fill='#00ff00'/>");
}

void TestCusSvgImage::tintGoesWhereTheFileKeepsItsColor()
{
    const auto check = [this](const char *body, const char *present, const char *absent = "") {
        const CusSvgImage image(svg(body));
        const QByteArray text = image.getFillColorByteArray(Qt::red);
        const QByteArrayList wanted = QByteArray(present).split('|');
        for (const QByteArray &part : wanted + QByteArray(absent).split('|'))
            QVERIFY2(part.isEmpty() || text.contains(part) == wanted.contains(part),
                     (part + " and " + text).constData());
    };
    // Attributes, also "none"; what is not a shape's fill stays.
    check("<path fill='none'/><circle/><ellipse/><polygon/><g fill='none'/>",
          "<path fill=\"#ff0000\"/>|<circle fill=\"#ff0000\"/>|<ellipse fill=\"#ff0000\"/>|"
          "<polygon fill=\"#ff0000\"/>|<g fill=\"none\"/>");
    check("<text fill='blue'/><path style='fill:blue' stroke='lime'/>",
          "<text fill=\"blue\"/>|style=\"fill:blue\"|stroke=\"lime\"|fill=\"#ff0000\"");
    // A style block is tinted, and the attributes with it only where there was no fill in them; a
    // block with fill and opacity stays.
    check("<style>.a{fill:#fff;}</style><path class='a'/>", "..a{fill:#ff0000;}|fill=\"#ff0000\"");
    check("<style>.a{fill:#fff;}</style><path fill='#fff'/>", "..a{fill:#ff0000;}|fill=\"#fff\"",
          "fill=\"#ff0000\"");
    check("<style>.a{fill:#fff;}.b{opacity:.5;}</style><path fill='#fff'/>",
          ".a{fill:#fff;}.b{opacity:.5;}|fill=\"#ff0000\"");
    // None, colons, lost and doubled properties.
    check("<style>.a{fill:none;} b { stroke : url(x:y) ; }.c{fill:blue}.d{x:1;x:2;:3;y:;}</style>",
          "..a{fill:none;}.b{fill:#ff0000;stroke:url(xy);}..c{fill:#ff0000;}"
          "..d{fill:#ff0000;x:2;}");
    check("<style>.a{fill:blue;}</style><style>.b{fill:blue;}</style>", "..a{fill:#ff0000;}",
          "blue|.b");
    // A block that isn't understood stays: unbalanced, text behind the last rule, no name.
    check("<style>.a{fill:blue;</style><path/>", ".a{fill:blue;|fill=\"#ff0000\"", "..a");
    check("<style>.a{fill:blue;}\n</style><path/>", ".a{fill:blue;}|fill=\"#ff0000\"", "..a");
    check("<style> {fill:blue;}</style><path/>", " {fill:blue;}|fill=\"#ff0000\"");
}

void TestCusSvgImage::tintsFollowEachOther()
{
    const CusSvgImage image(svg("<style>.a{x:1;}.b{opacity:none;}</style><path/>"));
    const CusSvgImage huge(svg("<style>.a{opacity:-nan;}</style><path opacity='1e30'/>"));
    QVERIFY(huge.getFillColorByteArray(Qt::red).contains("..a{fill:#ff0000;}"));
    const QMap<int, QByteArray> opacities = {{128, "0.5"}, {254, "1.0"}, {0, "0.0"}};
    for (auto it = opacities.cbegin(); it != opacities.cend(); ++it) {
        const QByteArray text = image.getFillColorByteArray(QColor(1, 2, 3, it.key()));
        QVERIFY(text.contains(" opacity=\"" + it.value() + '"'));
        QVERIFY(text.contains(" fill=\"#010203\""));
        QVERIFY(text.contains("..b{fill:#010203;opacity:none;}"));
    }
    const CusSvgImage shapes(svg("<path opacity='0.3'/><rect fill='red'/>"));
    QCOMPARE(shapes.getFillColorByteArray(QColor(0, 0, 255, 128)).count("opacity=\"0.5\""), 2);
    QVERIFY(!shapes.getFillColorByteArray(Qt::blue).contains("opacity"));

    const CusSvgImage dotted(svg("<style>.a{fill:white;}.b{fill:none;}</style><path/>"));
    dotted.getFillColorByteArray(QColor(255, 0, 0, 51));
    const QByteArray text = dotted.getFillColorByteArray(Qt::blue);
    // The dot is written anew each time, not piled up.
    QVERIFY(text.contains("<style>..a{fill:#0000ff;}..b{fill:none;}</style>"));
    QVERIFY(!text.contains("opacity"));
    QCOMPARE(dotted.getFillColorByteArray(Qt::blue), text);
    QVERIFY(dotted.getFillColorByteArray(QColor(300, 0, 0)).contains("..a{fill:#000000;}"));
    QCOMPARE(CusSvgImage(m_square).getFillColorByteArray(QColor(300, 0, 0)),
             CusSvgImage(m_square).getFillColorByteArray(QColor()));
}

void TestCusSvgImage::loadResetsEverything()
{
    QObject owner;
    CusSvgImage image(m_square, &owner);
    QVERIFY(!image.parent());
    image.setFillColor(Qt::red);
    QVERIFY(image.load(m_square));
    QVERIFY(image.getFillColorByteArray(QColor()).contains("#00ff00"));
    for (const QString &none : {QStringLiteral("absent.svg"), QString()}) {
        QVERIFY(image.load(none));
        QCOMPARE(image.svgFile(), none);
        QCOMPARE(image.getFillColorByteArray(Qt::red), QByteArray());
        QVERIFY(TestKit::inkExtent(painted(image)).isNull());
    }
}

void TestCusSvgImage::paintsTheTintIntoTheWholeRectangle()
{
    const QString file = svg("<rect width='24' height='24' fill='#00ff00'/>");
    CusSvgImage image(file);
    // What was read once is enough.
    QVERIFY(QFile::remove(file));
    QImage canvas(40, 10, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(TestKit::unpainted);
    QPainter painter(&canvas);
    image.setFillColor(Qt::red);
    image.paintSvgImage(nullptr, canvas.rect());
    for (const QRect &rect : {QRect(), QRect(5, 5, 0, 3), QRect(5, 5, -3, -3)})
        image.paintSvgImage(&painter, rect);
    QVERIFY(TestKit::inkExtent(canvas).isNull());
    image.paintSvgImage(&painter, QRect(5, 0, 30, 10));
    QCOMPARE(TestKit::extentOf(canvas, Qt::red), QRect(5, 0, 30, 10));
    painter.end();
    image.paintSvgImage(&painter, canvas.rect());
    QCOMPARE(TestKit::inkExtent(canvas), QRect(5, 0, 30, 10));
}

void TestCusSvgImage::renderersAreKept()
{
    CusSvgImage image(m_square);
    const QObjectCounter renderers(QSvgRenderer::staticMetaObject);
    painted(image);
    const int made = renderers.constructedOfAnyClass();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(TestKit::countOf(painted(image), Qt::green), 24 * 24);
    QCOMPARE(renderers.constructedOfAnyClass(), made);
    // The document is tinted for someone else; this picture stays until its own tint changes.
    image.getFillColorByteArray(Qt::red);
    image.setFillColor(Qt::red);
    QCOMPARE(TestKit::countOf(painted(image), Qt::green), 24 * 24);
    image.setFillColor(Qt::blue);
    QCOMPARE(TestKit::countOf(painted(image), Qt::blue), 24 * 24);
    QCOMPARE(renderers.alive(), 1);
}

void TestCusSvgImage::animationRunsNoTimer()
{
    CusSvgImage image(svg("<rect width='24' height='24'><animateTransform type='rotate' "
                          "attributeName='transform' from='0' to='0' dur='1s'/></rect>"));
    const QObjectCounter timers(QTimer::staticMetaObject);
    QVERIFY(!TestKit::inkExtent(painted(image)).isNull());
    QCOMPARE(timers.alive(), 0);
}

void TestCusSvgImage::pixmap()
{
    const QSize size(20, 10);
    const auto made = [size](const QString &file, const QColor &tint) {
        return CusSvgImage::svgToPixmap(file, size, tint).toImage();
    };
    const QRect all(QPoint(), size);
    QCOMPARE(TestKit::extentOf(made(m_square, QColor()), Qt::green), all);
    QCOMPARE(TestKit::extentOf(made(m_square, Qt::red), Qt::red), all);
    const QImage bad = made(write("no SVG"), Qt::red);
    QCOMPARE(bad.size(), size);
    QCOMPARE(bad.pixelColor(0, 0).alpha(), 0);
    QVERIFY(made(QStringLiteral("absent"), Qt::red).isNull());
    for (const QSize &empty : {QSize(0, 0), QSize(0, 5), QSize(-5, -5), QSize(40000, 1),
                               QSize(30000, 30000), QSize(INT_MAX, INT_MAX)})
        QVERIFY(CusSvgImage::svgToPixmap(m_square, empty, Qt::red).isNull());
}

void TestCusSvgImage::infoTakesTheRightSource()
{
    CusSvgImage same(m_square);
    CusSvgImage other(svg("<rect width='24' height='24' fill='#00ffff'/>"));
    CusSvgImage none;
    SvgImageInfo info;
    info.setSvgColor(Qt::red);
    info.init(nullptr);
    info.init(&none);
    QVERIFY(!info.render());
    info.init(&same);
    QVERIFY(info.render() && info.render()->isValid());
    QCOMPARE(TestKit::countOf(painted(same), Qt::red), 24 * 24);
    info.setSvgImage(m_square);
    info.init(&other);
    QVERIFY(info.render()->isValid());
    QCOMPARE(TestKit::countOf(painted(other), Qt::cyan), 24 * 24);
}

void TestCusSvgImage::infoKeepsItsRenderer()
{
    SvgImageInfo info;
    info.setSvgImage(QStringLiteral("absent.svg"));
    info.init(nullptr);
    QVERIFY(info.render() && !info.render()->isValid());
    info.setSvgImage(m_square);
    QVERIFY(!info.render());
    info.init(nullptr);
    const QPointer<QSvgRenderer> first = info.render();
    QVERIFY(first->isValid());
    info.setSvgImage(m_square);
    info.setSvgColor(QColor());
    info.init(nullptr);
    const SvgImageInfo copy = info;
    QCOMPARE(info.render(), first.data());
    info.setSvgColor(Qt::red);
    QVERIFY(!first && !copy.render());
    info.init(nullptr);
    info.clean();
    QVERIFY(!info.render());
    QVERIFY(info.svgColor() == Qt::red && info.svgImage() == m_square);
}

void TestCusSvgImage::paintsWhatIsOnlyUnusual()
{
    const QByteArray rect = "<rect width='24' height='24'/>";
    QByteArray laughs = "<rect id='u0' width='24' height='24'/>";
    QByteArray chain = laughs;
    for (int i = 1; i < 600; ++i) {
        const QByteArray id = QByteArray::number(i);
        const QByteArray use = "<use xlink:href='#u" + QByteArray::number(i - 1) + "'/>";
        chain += "<g id='u" + id + "'>" + use + "</g>";
        if (i < 20)
            laughs += "<g id='u" + id + "'>" + use.repeated(10) + "</g>";
    }
    const QByteArray pipe = QFile::encodeName(m_dir.filePath(QStringLiteral("pipe")));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    const auto image = [](const QByteArray &link) {
        return "<image width='24' height='24' xlink:href='" + link + "'/>";
    };
    // A PNG of one red pixel.
    const QByteArray small = "data:;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElE"
                             "QVR42mP4z8AAAAMBAQD3A0FDAAAAAElFTkSuQmCC";
    const QByteArray svg1 = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    const QByteArray dash = "<path stroke='red' style='stroke-dasharray:";
    const QByteArray lines = "M0 0" + QByteArray("l20 1l-20 -1").repeated(3000);
    const auto check = [](const char *name, bool paints, const QString &file) {
        CusSvgImage icon(file);
        icon.setFillColor(Qt::red);
        const QColor expected = paints ? QColor(Qt::red) : TestKit::unpainted;
        QVERIFY2(painted(icon).pixelColor(20, 4) == expected, name);
        QVERIFY2(TestKit::inkExtent(painted(icon)).isNull() != paints, name);
    };

    check("empty", false, write(QByteArray()));
    check("pipe", false, QFile::decodeName(pipe));
    check("use", true, svg("<rect id='a' width='24' height='24'/><use xlink:href='#a'/>"));
    check("equal ids", true,
          svg(rect.repeated(300).replace("<rect", "<rect id='a'") + "<g id='a'><g id='a'/></g>"));
    check("use of an ancestor", false, svg("<g id='a'>" + rect + "<use xlink:href='#a'/></g>"));
    check("uses that multiply", false, svg(laughs));
    check("chain of uses", false, svg(chain));
    // The tint drops the colon in "]]:>", and the section ends there.
    check("uses that a tint sets free", false,
          svg("<style><![CDATA[.a{fill:red;x:]]:>;} </style>" + laughs
              + "<style><![CDATA[{fill:none;}]]></style>"));
    check("picture inside", true, svg(image("\n " + small)));
    check("picture in a pipe", false, svg(image(pipe) + rect));
    check("SVG behind a picture", false, svg(image(small + "base64," + svg1.toBase64()) + rect));
    check("style sheet in a pipe", false,
          svg(rect, "<?xml-stylesheet type=\"text/css\" href=\"" + pipe + "\"?>"));
    check("gradient stops", false,
          svg("<linearGradient id='g'>" + QByteArray("<stop offset='0'/>").repeated(600)
              + "</linearGradient>" + rect));
    check("rules times elements", false,
          svg("<style>" + QByteArray(".a{fill:red;}").repeated(3000) + "</style>"
              + rect.repeated(3000)));
    check("dashes", true, svg(dash + "2,1' d='M0 0L9 9'/>" + rect + "<path d='" + lines + "'/>"));
    check("fine dashes", false, svg(dash + "0.001' d='" + lines + "'/>" + rect));
    check("escaped dashes", false,
          svg("<path style='stroke:red;stroke-dash\\000061rray:0.001' d='" + lines + "'/>" + rect));
    check("escaped font", true, svg("<g style=\"font-family:'\\5FAE\\8F6F'\">" + rect + "</g>"));
    check("dashes behind an element in a style", false,
          svg("<style><a/>path{stroke:red;stroke-dasharray:0.001;}</style><path d='" + lines + "'/>"
              + rect));
    check("nested groups", true,
          svg(QByteArray("<g>").repeated(250) + rect + QByteArray("</g>").repeated(250)));
}

QTEST_MAIN(TestCusSvgImage)
#include "tst_cussvgimage.moc"
