#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusSvgImage>

#include <QApplication>
#include <QDirIterator>
#include <QDomDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QtTest>

#include <cmath>

namespace {

const char *const kKeys =
    "mainColor successColor warningColor danger1Color danger2Color highlightColor bakcgroundColor "
    "negativeBarBackgroundColor dialogHeaderColor dialogBackgroundColor bubbleColor mainTextColor "
    "subTextColor AngleTiPWidget_AngleColor ArrowWidget_BackgroundColor ArrowWidget_BorderColor "
    "CalenderMouthYearDelegate_PointColor ComboboxDelegate_separatorColor "
    "CusCalendarWidget_BrushColor CusCalendarWidget_CurDataPointColor "
    "CusCalendarWidget_CurDayColor CusCalendarWidget_CurMounthColor "
    "CusCalendarWidget_HoverDateColor CusCalendarWidget_HoverWeekColor "
    "CusCalendarWidget_OtherMounthColor CusCalendarWidget_PressedDateBorderColor "
    "CusCalendarWidget_PressedDateColor CusCalendarWidget_SelDateColor "
    "CusCalendarWidget_SpecailColor CusChartViewTip_ShadowBrushInnerColor "
    "CusChartViewTip_ShadowBrushOuterColor CusColorChoosePane_CurColor "
    "CusComboBox_PopupBorderColor CusFlatProgressbar_BoarderColor "
    "CusFlatProgressbar_DefaultUsedBgColor CusFlatProgressbar_UnUsedBgColor "
    "CusFlatProgressbar_UsedBgColor CusLinkLabel_LinkColor CusLinkLabel_LinkHoverColor "
    "CusLinkLabel_LinkPressedColor CusListContainerDelegate_HoverColor "
    "CusListContainerDelegate_PressColor CusLoadingCircleFun_1_BGColor "
    "CusLoadingCircleFun_1_GradColor CusPtzRingPane_BGColor "
    "CusPtzRingPane_CenterRingColorHovered CusPtzRingPane_CenterRingColorNormal "
    "CusPtzRingPane_CenterRingColorPressed CusPtzRingPane_InnerColor CusPushButtonNum_SmallBGColor "
    "DownloadFrame_PictureNullColor DragDropColor HorHeaderView_StrechColor "
    "ScrollListViewDelegate_MainValColor ScrollSelectListView_LineColor TableComFun_HoverColor "
    "TableComFun_StrechColor ToolTipLabel_TipBGroundColor ToolTipLabel_TipBordderColor "
    "ToolTipLabel_TipTextColor TrafficDetectionChart_AxisLabelColor "
    "TrafficDetectionChart_BackgroundInLiveView TrafficDetectionChart_ImageFillColor "
    "TrafficDetectionChart_LineColor";

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

QImage picture(const QByteArray &svg)
{
    QSvgRenderer renderer(svg);
    QImage image(48, 48, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, 48, 48));
    return image;
}

/// The pixels of at least half opacity that don't have \a color, and all of them.
QPair<int, int> strangers(const QImage &image, const QColor &color)
{
    QPair<int, int> counts(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 64)
                continue;
            counts.first +=
                qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) > 16;
            ++counts.second;
        }
    }
    return counts;
}

} // namespace

class TestStarterTheme : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKeyIsAColor();
    void textStandsOutFromItsGround_data();
    void textStandsOutFromItsGround();
    void iconStandsOnTheGridAndTakesTheTint_data();
    void iconStandsOnTheGridAndTakesTheTint();
    void iconsKeepTheirColorInAllThreePlaces();
    void sheetNamesOnlyIconsThatExist();
    void rulesStartWithTypeOrId();
    void buttonStatesDiffer_data();
    void buttonStatesDiffer();
    void invalidFieldHasADangerBorder();
    void fixedSizeOfAButtonIsKept();
};

void TestStarterTheme::initTestCase()
{
    qApp->setStyleSheet(sheet());
}

void TestStarterTheme::everyKeyIsAColor()
{
    const CusColorConfig *config = CusColorConfig::instance();
    const QStringList keys = QString::fromLatin1(kKeys).split(QLatin1Char(' '));
    QSet<QString> unknown;
    for (auto it = config->config().begin(); it != config->config().end(); ++it)
        unknown.insert(it.key());
    for (const QString &key : keys) {
        QVERIFY2(themeColor(key).isValid(), qPrintable(key));
        unknown.remove(key);
    }
    QCOMPARE(config->commonColors().size(), 10);
    const QString listKey = QStringLiteral("CusColorChoosePane_ColorArray");
    const QStringList offered = config->getColorList(listKey);
    QVERIFY(!offered.isEmpty());
    QVERIFY(std::all_of(offered.begin(), offered.end(),
                        [](const QString &name) { return QColor(name).isValid(); }));
    // Any other key is a misspelling, which no control would read.
    QCOMPARE(unknown, (QSet<QString>{QStringLiteral("commonColors"), listKey}));
}

void TestStarterTheme::textStandsOutFromItsGround_data()
{
    QTest::addColumn<QString>("front");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    const auto row = [](const char *front, const char *ground, double least = 4.5) {
        QTest::addRow("%s on %s", front, ground)
            << QString::fromLatin1(front) << QString::fromLatin1(ground) << least;
    };
    for (const char *ground : {"bakcgroundColor", "dialogBackgroundColor", "dialogHeaderColor",
                               "bubbleColor", "mainColor", "danger2Color"})
        row("mainTextColor", ground);
    for (const char *ground : {"bakcgroundColor", "dialogBackgroundColor", "dialogHeaderColor"})
        row("subTextColor", ground);
    for (const char *front :
         {"CusLinkLabel_LinkColor", "CusLinkLabel_LinkHoverColor", "CusLinkLabel_LinkPressedColor",
          "CusCalendarWidget_OtherMounthColor"})
        row(front, "dialogBackgroundColor");
    row("ToolTipLabel_TipTextColor", "ToolTipLabel_TipBGroundColor");
    row("mainTextColor", "CusPushButtonNum_SmallBGColor");
    row("mainTextColor", "CusCalendarWidget_SelDateColor");
    for (const char *front : {"highlightColor", "successColor", "warningColor", "danger1Color"})
        row(front, "dialogBackgroundColor", 3.0);
}

void TestStarterTheme::textStandsOutFromItsGround()
{
    QFETCH(QString, front);
    QFETCH(QString, ground);
    QFETCH(double, least);
    QVERIFY(contrast(themeColor(front), themeColor(ground)) >= least);
}

void TestStarterTheme::iconStandsOnTheGridAndTakesTheTint_data()
{
    QTest::addColumn<QString>("file");
    QDirIterator icons(QStringLiteral(":/Resource/icons"));
    int count = 0;
    while (icons.hasNext()) {
        const QString file = icons.next();
        QTest::addRow("%s", qPrintable(icons.fileName())) << file;
        ++count;
    }
    QVERIFY(count > 30);
}

void TestStarterTheme::iconStandsOnTheGridAndTakesTheTint()
{
    QFETCH(QString, file);
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&source));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("viewBox")),
             QStringLiteral("0 0 24 24"));

    const CusSvgImage image(file);
    const QImage authored = picture(image.getFillColorByteArray(QColor()));
    const QRect ink = TestKit::inkExtent(authored, Qt::transparent);
    QVERIFY2(ink.width() >= 12 || ink.height() >= 12, "hardly anything is drawn");
    QVERIFY2(QRect(1, 1, 46, 46).contains(ink), "the drawing touches the edge of the grid");
    // The second tint finds what the first one wrote.
    for (const QColor &tint : {QColor(Qt::red), QColor(Qt::green)}) {
        const QImage tinted = picture(image.getFillColorByteArray(tint));
        const QPair<int, int> counts = strangers(tinted, tint);
        QVERIFY(counts.second > 0);
        QCOMPARE(counts.first, 0);
        QCOMPARE(TestKit::inkExtent(tinted, Qt::transparent), ink);
    }
    // Overlapping parts would be seen through each other.
    const QImage half = picture(image.getFillColorByteArray(QColor(255, 0, 0, 128)));
    int strongest = 0;
    for (int y = 0; y < half.height(); ++y) {
        for (int x = 0; x < half.width(); ++x)
            strongest = qMax(strongest, qAlpha(half.pixel(x, y)));
    }
    QVERIFY2(qAbs(strongest - 128) <= 2, QByteArray::number(strongest).constData());
}

void TestStarterTheme::iconsKeepTheirColorInAllThreePlaces()
{
    int styled = 0;
    int filled = 0;
    int both = 0;
    QDirIterator icons(QStringLiteral(":/Resource/icons"));
    while (icons.hasNext()) {
        QFile file(icons.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        const bool hasStyle = text.contains("<style>");
        const bool hasFill = text.contains(" fill=\"");
        styled += hasStyle && !hasFill ? 1 : 0;
        filled += hasFill && !hasStyle ? 1 : 0;
        both += hasFill && hasStyle ? 1 : 0;
    }
    QVERIFY(styled > 0);
    QVERIFY(filled > 0);
    QVERIFY(both > 0);
}

void TestStarterTheme::sheetNamesOnlyIconsThatExist()
{
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    auto matches = url.globalMatch(sheet());
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QString file = matches.next().captured(1);
        QVERIFY2(QFile::exists(file), qPrintable(file));
    }
}

void TestStarterTheme::rulesStartWithTypeOrId()
{
    QString text = sheet();
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                   QRegularExpression::DotMatchesEverythingOption));
    QVERIFY(!text.contains(QRegularExpression(QStringLiteral("\\d\\s*pt\\b"))));
    text.remove(QRegularExpression(QStringLiteral("\\{[^}]*\\}")));
    const QStringList selectors =
        text.split(QRegularExpression(QStringLiteral("[,\\n]")), Qt::SkipEmptyParts);
    for (const QString &selector : selectors) {
        const QChar first =
            selector.trimmed().isEmpty() ? QLatin1Char('Q') : selector.trimmed().at(0);
        QVERIFY2(first.isLetter() || first == QLatin1Char('#'), qPrintable(selector));
    }
}

void TestStarterTheme::buttonStatesDiffer_data()
{
    QTest::addColumn<QString>("variant");
    QTest::newRow("plain") << QString();
    QTest::newRow("primary") << QStringLiteral("button_primary");
    QTest::newRow("danger") << QStringLiteral("button_danger");
}

void TestStarterTheme::buttonStatesDiffer()
{
    QFETCH(QString, variant);
    QPushButton button;
    if (!variant.isEmpty())
        button.setProperty(qPrintable(variant), true);
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
    QVERIFY(luminance(hover) > luminance(normal));
    QVERIFY(luminance(pressed) < luminance(normal));
    QVERIFY(disabled != normal && disabled != pressed && disabled != hover);
    for (const QColor &color : {normal, hover, pressed})
        QVERIFY(contrast(Qt::white, color) >= 4.5);
}

void TestStarterTheme::invalidFieldHasADangerBorder()
{
    QLineEdit edit;
    edit.resize(100, 30);
    edit.setProperty("Invalid", true);
    const QImage image = TestKit::renderAt(&edit);
    QCOMPARE(image.pixelColor(50, 0), themeColor(QStringLiteral("danger1Color")));
}

void TestStarterTheme::fixedSizeOfAButtonIsKept()
{
    QPushButton button;
    QPushButton small;
    small.setFixedSize(20, 20);
    button.ensurePolished();
    small.ensurePolished();
    QCOMPARE(button.sizeHint().height(), 30);
    QCOMPARE(small.minimumSize(), QSize(20, 20));
}

QTEST_MAIN(TestStarterTheme)
#include "tst_startertheme.moc"
