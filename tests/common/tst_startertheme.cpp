#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusSvgImage>

#include <QDomDocument>
#include <QSvgRenderer>
#include <QtTest>
#include <QtWidgets>

#include <cmath>

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return qMax(one, other) / qMin(one, other);
}

QColor themeColor(const QString &key)
{
    return CusColorConfig::instance()->getColor(key, QColor());
}

QString sheet()
{
    QFile file(QStringLiteral(":/Resource/vellum.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QImage picture(const QByteArray &svg, const QColor &ground)
{
    QSvgRenderer renderer(svg);
    QImage image(48, 48, QImage::Format_ARGB32);
    image.fill(ground);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, 48, 48));
    return image;
}

} // namespace

class TestStarterTheme : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void schemesHaveTheSameColors();
    void textStandsOutFromItsGround();
    void iconStandsOnTheGridAndTakesTheTint_data();
    void iconStandsOnTheGridAndTakesTheTint();
    void sheetNamesOnlyIconsThatExistAndStartsWithTypeOrId();
    void buttonStatesDiffer();
    void fieldsAndButtonsTakeTheSheet();
};

void TestStarterTheme::initTestCase()
{
    qApp->setStyleSheet(sheet());
}

void TestStarterTheme::schemesHaveTheSameColors()
{
    const QJsonObject starter = CusColorConfig::instance()->config();
    QFile file(QFINDTESTDATA("../../gallery/harbour.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject harbour = QJsonDocument::fromJson(file.readAll()).object();
    // A key that is misspelt in the file would never be read.
    QFile list(QFINDTESTDATA("colorkeys.txt"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QStringList known = QString::fromLatin1(list.readAll()).split(QLatin1Char('\n'));
    known.removeLast();
    known << QStringLiteral("commonColors") << QStringLiteral("CusColorChoosePane_ColorArray");
    known.sort();
    const QStringList keys = starter.keys();
    QCOMPARE(keys, known);
    QCOMPARE(harbour.keys(), keys);
    for (const QJsonObject &scheme : {starter, harbour}) {
        for (const QString &key : keys) {
            const QStringList colors = scheme.value(key).toVariant().toStringList();
            QCOMPARE(key == QStringLiteral("commonColors"), colors.size() == 10);
            QVERIFY(!colors.isEmpty());
            for (const QString &color : colors)
                QVERIFY2(QColor(color).isValid(), qPrintable(key));
        }
    }
}

void TestStarterTheme::textStandsOutFromItsGround()
{
    const auto check = [](const char *fronts, const char *grounds, double least = 4.5) {
        const QStringList frontKeys = QString::fromLatin1(fronts).split(QLatin1Char(' '));
        const QStringList groundKeys = QString::fromLatin1(grounds).split(QLatin1Char(' '));
        for (const QString &front : frontKeys) {
            for (const QString &ground : groundKeys)
                QVERIFY2(contrast(themeColor(front), themeColor(ground)) >= least,
                         qPrintable(front + QStringLiteral(" on ") + ground));
        }
    };
    check("mainTextColor",
          "bakcgroundColor dialogBackgroundColor dialogHeaderColor bubbleColor mainColor "
          "danger2Color CusPushButtonNum_SmallBGColor CusCalendarWidget_SelDateColor");
    check("subTextColor", "bakcgroundColor dialogBackgroundColor dialogHeaderColor");
    check("CusLinkLabel_LinkColor CusLinkLabel_LinkHoverColor CusLinkLabel_LinkPressedColor "
          "CusCalendarWidget_OtherMounthColor",
          "dialogBackgroundColor");
    check("ToolTipLabel_TipTextColor", "ToolTipLabel_TipBGroundColor");
    check("highlightColor successColor warningColor danger1Color", "dialogBackgroundColor", 3.0);
}

void TestStarterTheme::iconStandsOnTheGridAndTakesTheTint_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("text");
    QSet<int> places; // of the colour: 1 a style block, 2 attributes, 3 both
    QDirIterator icons(QStringLiteral(":/Resource/icons"));
    while (icons.hasNext()) {
        QFile file(icons.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        places.insert((text.contains("<style>") ? 1 : 0) + (text.contains(" fill=\"") ? 2 : 0));
        QTest::addRow("%s", qPrintable(icons.fileName())) << file.fileName() << text;
    }
    QVERIFY(places.contains(QSet<int>{1, 2, 3}));
}

void TestStarterTheme::iconStandsOnTheGridAndTakesTheTint()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, text);
    QDomDocument document;
    QVERIFY(document.setContent(text));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("viewBox")),
             QStringLiteral("0 0 24 24"));

    const CusSvgImage image(path);
    const auto inkOf = [](const QByteArray &svg, const QColor &ground) {
        return TestKit::inkExtent(picture(svg, ground), ground);
    };
    const QRect ink = inkOf(image.getFillColorByteArray(QColor()), Qt::transparent);
    QVERIFY2(ink.width() >= 12 || ink.height() >= 12, "hardly anything is drawn");
    QVERIFY2(QRect(1, 1, 46, 46).contains(ink), "the drawing touches the edge of the grid");
    // The second tint finds what the first one wrote.
    for (const QColor &tint : {QColor(Qt::red), QColor(Qt::green)}) {
        const QByteArray tinted = image.getFillColorByteArray(tint);
        QCOMPARE(inkOf(tinted, Qt::transparent), ink);
        QCOMPARE(inkOf(tinted, tint), QRect()); // nothing stands out from a ground of the tint
    }
    // Overlapping parts would be seen through each other.
    const QByteArray half = image.getFillColorByteArray(QColor(255, 0, 0, 128));
    const QImage alpha = picture(half, Qt::transparent).convertToFormat(QImage::Format_Alpha8);
    const int strongest = *std::max_element(alpha.bits(), alpha.bits() + alpha.sizeInBytes());
    QVERIFY2(qAbs(strongest - 128) <= 2, QByteArray::number(strongest).constData());
}

void TestStarterTheme::sheetNamesOnlyIconsThatExistAndStartsWithTypeOrId()
{
    using Pattern = QRegularExpression;
    QString text = sheet();
    auto icons = Pattern(QStringLiteral("url\\(([^)]*)\\)")).globalMatch(text);
    QVERIFY(icons.hasNext());
    while (icons.hasNext()) {
        const QString file = icons.next().captured(1);
        QVERIFY2(QFile::exists(file), qPrintable(file));
    }
    text.remove(Pattern(QStringLiteral("(?s)/\\*.*?\\*/")));
    QVERIFY(!text.contains(Pattern(QStringLiteral("\\d\\s*pt\\b"))));
    text.remove(Pattern(QStringLiteral("\\{[^}]*\\}")));
    const auto other = Pattern(QStringLiteral("(^|[,\\n])\\s*[^\\s,A-Za-z#].*")).match(text);
    QVERIFY2(!other.hasMatch(), qPrintable(other.captured()));
}

void TestStarterTheme::buttonStatesDiffer()
{
    for (const char *look : {"plain", "primary", "danger"}) {
        QPushButton button;
        button.setProperty("look", QLatin1String(look));
        button.resize(100, 30);
        button.ensurePolished();
        const auto ground = [&button](QStyle::State state) {
            QStyleOptionButton option;
            option.initFrom(&button);
            option.state = state;
            QImage image(button.size(), QImage::Format_ARGB32);
            image.fill(TestKit::unpainted);
            QPainter painter(&image);
            button.style()->drawControl(QStyle::CE_PushButton, &option, &painter, &button);
            return image.pixelColor(50, 15);
        };
        const QColor normal = ground(QStyle::State_Enabled);
        const QColor hover = ground(QStyle::State_Enabled | QStyle::State_MouseOver);
        const QColor pressed = ground(QStyle::State_Enabled | QStyle::State_Sunken);
        const QColor disabled = ground(QStyle::State_None);
        QVERIFY2(luminance(hover) > luminance(normal), look);
        QVERIFY2(luminance(pressed) < luminance(normal), look);
        QVERIFY2(disabled != normal && disabled != pressed && disabled != hover, look);
        for (const QColor &color : {normal, hover, pressed})
            QVERIFY2(contrast(Qt::white, color) >= 4.5, look);
    }
}

void TestStarterTheme::fieldsAndButtonsTakeTheSheet()
{
    QLineEdit edit;
    edit.resize(100, 30);
    edit.setProperty("Invalid", true);
    QCOMPARE(TestKit::renderAt(&edit).pixelColor(50, 0),
             themeColor(QStringLiteral("danger1Color")));
    QPushButton button;
    button.ensurePolished();
    QCOMPARE(button.sizeHint().height(), 30);
    QPushButton small;
    small.setFixedSize(20, 20);
    small.ensurePolished();
    QCOMPARE(small.minimumSize(), QSize(20, 20)); // a size that the client fixed is kept
}

QTEST_MAIN(TestStarterTheme)
#include "tst_startertheme.moc"
