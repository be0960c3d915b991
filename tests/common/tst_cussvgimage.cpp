#include "support/guardedtest.h"
#include "support/qobjectcounter.h"
#include "support/render.h"

#include <Vellum/CSSItem>
#include <Vellum/CusSvgImage>
#include <Vellum/SvgImageInfo>

#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class TestCusSvgImage : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tintGoesWhereTheFileKeepsItsColor_data();
    void tintGoesWhereTheFileKeepsItsColor();
    void opacityHasOneDecimalAndGoesAgain();
    void tintsFollowEachOther();
    void loadResetsEverything();
    void paintsTheTintIntoTheWholeRectangle();
    void renderersAreKept();
    void pixmap();
    void infoTakesTheRightSource();
    void infoKeepsItsRenderer();
    void paintsWhatIsOnlyUnusual_data();
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

void TestCusSvgImage::tintGoesWhereTheFileKeepsItsColor_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("absent");
    const auto row = [](const char *name, const char *body, const char *present,
                        const char *absent = "") {
        const auto list = [](const char *texts) {
            return QString::fromLatin1(texts).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        };
        QTest::newRow(name) << QByteArray(body) << list(present) << list(absent);
    };
    row("attributes, also none", "<path fill='none'/><circle/><ellipse/><polygon/><g fill='none'/>",
        "<path fill=\"#ff0000\"/>|<circle fill=\"#ff0000\"/>|<ellipse fill=\"#ff0000\"/>|"
        "<polygon fill=\"#ff0000\"/>|<g fill=\"none\"/>");
    row("what is not a shape's fill stays",
        "<text fill='blue'/><path style='fill:blue' stroke='lime'/>",
        "<text fill=\"blue\"/>|style=\"fill:blue\"|stroke=\"lime\"|fill=\"#ff0000\"");
    row("style block alone: both", "<style>.a{fill:#fff;}</style><path class='a'/>",
        "..a{fill:#ff0000;}|fill=\"#ff0000\"");
    row("style block and attributes: block only",
        "<style>.a{fill:#fff;}</style><path fill='#fff'/>", "..a{fill:#ff0000;}|fill=\"#fff\"",
        "fill=\"#ff0000\"");
    row("block with fill and opacity stays",
        "<style>.a{fill:#fff;}.b{opacity:.5;}</style><path fill='#fff'/>",
        ".a{fill:#fff;}.b{opacity:.5;}|fill=\"#ff0000\"");
    row("block: none, colons, lost and doubled properties",
        "<style>.a{fill:none;} b { stroke : url(x:y) ; }.c{fill:blue}.d{x:1;x:2;:3;y:;}</style>",
        "..a{fill:none;}.b{fill:#ff0000;stroke:url(xy);}..c{fill:#ff0000;}..d{fill:#ff0000;x:2;}");
    row("every style element is replaced",
        "<style>.a{fill:blue;}</style><style>.b{fill:blue;}</style>", "..a{fill:#ff0000;}",
        "blue|.b");
    row("unbalanced block stays", "<style>.a{fill:blue;</style><path/>",
        ".a{fill:blue;|fill=\"#ff0000\"", "..a");
    row("line feed behind the last rule: block stays", "<style>.a{fill:blue;}\n</style><path/>",
        ".a{fill:blue;}|fill=\"#ff0000\"", "..a");
    row("rule without a name: block stays", "<style> {fill:blue;}</style><path/>",
        " {fill:blue;}|fill=\"#ff0000\"");
}

void TestCusSvgImage::tintGoesWhereTheFileKeepsItsColor()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);
    const CusSvgImage image(svg(body));
    const QString text = QString::fromUtf8(image.getFillColorByteArray(Qt::red));
    for (const QString &part : present + absent)
        QVERIFY2(text.contains(part) == present.contains(part), qPrintable(part + text));
}

void TestCusSvgImage::opacityHasOneDecimalAndGoesAgain()
{
    const CusSvgImage image(svg("<style>.a{x:1;}.b{opacity:none;}</style><path/>"));
    const CusSvgImage huge(svg("<style>.a{opacity:-nan;}</style><path opacity='1e30'/>"));
    QVERIFY(huge.getFillColorByteArray(Qt::red).contains("..a{fill:#ff0000;}"));
    const QMap<int, QByteArray> opacities = {{128, "0.5"}, {254, "1.0"}, {0, "0.0"}};
    for (auto it = opacities.cbegin(); it != opacities.cend(); ++it) {
        const QByteArray text = image.getFillColorByteArray(QColor(1, 2, 3, it.key()));
        QVERIFY(text.contains("<path fill=\"#010203\" opacity=\"" + it.value() + '"')
                || text.contains("opacity=\"" + it.value() + "\" fill=\"#010203\""));
        QVERIFY(text.contains("..b{fill:#010203;opacity:none;}"));
    }
    const CusSvgImage shapes(svg("<path opacity='0.3'/><rect fill='red'/>"));
    QCOMPARE(shapes.getFillColorByteArray(QColor(0, 0, 255, 128)).count("opacity=\"0.5\""), 2);
    QVERIFY(!shapes.getFillColorByteArray(Qt::blue).contains("opacity"));
}

void TestCusSvgImage::tintsFollowEachOther()
{
    const CusSvgImage image(svg("<style>.a{fill:white;}.b{fill:none;}</style><path/>"));
    image.getFillColorByteArray(QColor(255, 0, 0, 51));
    const QByteArray text = image.getFillColorByteArray(Qt::blue);
    // The dot is written anew each time, not piled up.
    QVERIFY(text.contains("<style>..a{fill:#0000ff;}..b{fill:none;}</style>"));
    QVERIFY(!text.contains("opacity"));
    QCOMPARE(image.getFillColorByteArray(Qt::blue), text);
    QVERIFY(image.getFillColorByteArray(QColor(300, 0, 0)).contains("..a{fill:#000000;}"));
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
    CusSvgImage image(m_square);
    // What was read once is enough.
    QVERIFY(QFile::remove(m_square));
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
    initTestCase();
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

void TestCusSvgImage::pixmap()
{
    const QSize size(20, 10);
    const QString absent = QStringLiteral("absent");
    const QImage authored = CusSvgImage::svgToPixmap(m_square, size, QColor()).toImage();
    QCOMPARE(TestKit::extentOf(authored, Qt::green), QRect(QPoint(), size));
    const QImage tinted = CusSvgImage::svgToPixmap(m_square, size, Qt::red).toImage();
    QCOMPARE(TestKit::extentOf(tinted, Qt::red), QRect(QPoint(), size));
    const QImage bad = CusSvgImage::svgToPixmap(write("no SVG"), size, Qt::red).toImage();
    QCOMPARE(bad.size(), size);
    QCOMPARE(bad.pixelColor(0, 0).alpha(), 0);
    QVERIFY(CusSvgImage::svgToPixmap(absent, size, Qt::red).isNull());
    for (const QSize &empty : {QSize(0, 0), QSize(0, 5), QSize(), QSize(-5, -5), QSize(40000, 1),
                               QSize(30000, 30000), QSize(INT_MAX, INT_MAX)})
        QVERIFY(CusSvgImage::svgToPixmap(m_square, empty, Qt::red).isNull());
}

void TestCusSvgImage::infoTakesTheRightSource()
{
    CusSvgImage same(m_square);
    CusSvgImage other(svg("<rect width='24' height='24' fill='#00ffff'/>"));
    CusSvgImage none;
    SvgImageInfo info;
    info.init(&same);
    info.setSvgColor(Qt::red);
    info.init(nullptr);
    info.init(&none);
    QVERIFY(!info.render());
    info.init(&same);
    QVERIFY(info.render() && info.render()->isValid());
    QCOMPARE(TestKit::countOf(painted(same), Qt::red), 24 * 24);
    info.setSvgImage(m_square);
    for (CusSvgImage *image : {&same, &other}) {
        info.setSvgColor(image == &same ? Qt::blue : Qt::red);
        info.init(image);
        QVERIFY(info.render()->isValid());
    }
    QVERIFY(same.getFillColorByteArray(Qt::blue).contains("#0000ff"));
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
    QCOMPARE(info.svgColor(), QColor(Qt::red));
    QCOMPARE(info.svgImage(), m_square);
}

void TestCusSvgImage::paintsWhatIsOnlyUnusual_data()
{
    QTest::addColumn<bool>("paints");
    QTest::addColumn<QString>("file");
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
    QByteArray png;
    QBuffer buffer(&png);
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    picture.save(&buffer, "PNG");
    const auto image = [](const QByteArray &link) {
        return "<image width='24' height='24' xlink:href='" + link + "'/>";
    };
    const QByteArray small = "data:;base64," + png.toBase64();
    const QByteArray svg1 = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    const QByteArray dash = "<path stroke='red' style='stroke-dasharray:";
    const QByteArray lines = "M0 0" + QByteArray("l20 1l-20 -1").repeated(3000);
    const auto row = [](const char *name, bool paints, const QString &file) {
        QTest::newRow(name) << paints << file;
    };

    row("empty", false, write(QByteArray()));
    row("no SVG", false, write("<a><b/></a>"));
    row("pipe", false, QFile::decodeName(pipe));
    row("use", true, svg("<rect id='a' width='24' height='24'/><use xlink:href='#a'/>"));
    row("equal ids", true,
        svg(rect.repeated(300).replace("<rect", "<rect id='a'") + "<g id='a'><g id='a'/></g>"));
    row("use of an ancestor", false, svg("<g id='a'>" + rect + "<use xlink:href='#a'/></g>"));
    row("uses that multiply", false, svg(laughs));
    row("chain of uses", false, svg(chain));
    // The tint drops the colon in "]]:>", and the section ends there.
    row("uses that a tint sets free", false,
        svg("<style><![CDATA[.a{fill:red;x:]]:>;} </style>" + laughs
            + "<style><![CDATA[{fill:none;}]]></style>"));
    row("picture inside", true, svg(image("\n " + small)));
    row("picture in a pipe", false, svg(image(pipe) + rect));
    row("SVG behind a picture", false, svg(image(small + "base64," + svg1.toBase64()) + rect));
    row("style sheet in a pipe", false,
        svg(rect, "<?xml-stylesheet type=\"text/css\" href=\"" + pipe + "\"?>"));
    row("gradient stops", false,
        svg("<linearGradient id='g'>" + QByteArray("<stop offset='0'/>").repeated(600)
            + "</linearGradient>" + rect));
    row("rules times elements", false,
        svg("<style>" + QByteArray(".a{fill:red;}").repeated(3000) + "</style>"
            + rect.repeated(3000)));
    row("dashes", true, svg(dash + "2,1' d='M0 0L9 9'/>" + rect + "<path d='" + lines + "'/>"));
    row("fine dashes", false, svg(dash + "0.001' d='" + lines + "'/>" + rect));
    row("nested groups", true,
        svg(QByteArray("<g>").repeated(250) + rect + QByteArray("</g>").repeated(250)));
}

void TestCusSvgImage::paintsWhatIsOnlyUnusual()
{
    QFETCH(bool, paints);
    QFETCH(QString, file);
    CusSvgImage image(file);
    image.setFillColor(Qt::red);
    QCOMPARE(painted(image).pixelColor(20, 4), paints ? QColor(Qt::red) : TestKit::unpainted);
    QCOMPARE(TestKit::inkExtent(painted(image)).isNull(), !paints);
}

QTEST_MAIN(TestCusSvgImage)
#include "tst_cussvgimage.moc"
