#include "support/guardedtest.h"
#include "support/qobjectcounter.h"
#include "support/render.h"
#include "support/textrecorder.h"

#include <Vellum/CusSvgPushButton>
#include <Vellum/CusUiCommonFun>

#include <QMetaProperty>
#include <QPainter>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using Button = CusSvgPushButton;

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QSize kButtonSize(100, 60);
const QColor kInk(Qt::blue);

/// The stacked layers, as the names of their properties go.
struct LayerNames
{
    const char *normalImage;
    const char *colorPrefix;
};
const QMap<QString, LayerNames> kLayers{
    {QStringLiteral("background"), {"svgBGImage", "svgBG"}},
    {QStringLiteral("border"), {"svgBorderImage", "svg"}},
    {QStringLiteral("icon"), {"svgIconImage", "svgIcon"}},
};
const QMap<QString, QColor> kStateColors{
    {QStringLiteral("Normal"), Qt::gray},   {QStringLiteral("Hover"), Qt::yellow},
    {QStringLiteral("Pressed"), Qt::red},   {QStringLiteral("Checked"), Qt::green},
    {QStringLiteral("Selected"), Qt::cyan}, {QStringLiteral("Disable"), Qt::darkBlue},
};

QImage stamp(Button *button, QStyle::State state, Button::DrawStype type = Button::DrawStype_Widget,
             const QString &text = QString(), const QPoint &at = QPoint())
{
    QImage image(kButtonSize + QSize(at.x(), at.y()), QImage::Format_ARGB32_Premultiplied);
    image.fill(TestKit::unpainted);
    QPainter painter(&image);
    painter.setPen(kInk);
    QStyleOptionButton option;
    option.rect = QRect(at, kButtonSize);
    option.state = state;
    option.text = text;
    option.fontMetrics = QFontMetrics(painter.font());
    button->paintSvgBtn(&painter, option, nullptr, type);
    return image;
}

QColor middle(const QImage &image)
{
    return image.pixelColor(image.rect().center());
}

constexpr QStyle::State kEnabled = QStyle::State_Enabled;

} // namespace

class TestCusSvgPushButton : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyHasAValueOfItsOwn();
    void showsTheLookOfTheWinningState_data();
    void showsTheLookOfTheWinningState();
    void statesWithoutAPictureOfTheirOwnShowTheNormalOne();
    void nothingIsReadAfterAStatesFirstPaint();
    void newNormalPictureReachesTheStatesThatRecolourIt();
    void placesIconAndBackground_data();
    void placesIconAndBackground();
    void textAndIconStandSideBySide();
    void textThatDoesNotFitIsShortened();
    void adjustSizeFixesTheSize_data();
    void adjustSizeFixesTheSize();
    void anyNumbersAreSafe_data();
    void anyNumbersAreSafe();
    void paintsAsAPushButtonWhenSvgPaintingIsOff();
    void followsTheStyleSheet();
    void mayDieInItsOwnSignals();
    void tellsWhenTheCursorComesAndGoes();

private:
    /// A new file with one square of \a color, \a size units wide in a view of 16.
    QString square(const QString &color = QStringLiteral("#808080"), int size = 16);
    void fillLayer(Button *button, const QString &layer);

    QTemporaryDir m_folder;
    int m_files = 0;
};

QString TestCusSvgPushButton::square(const QString &color, int size)
{
    QFile file(m_folder.filePath(QStringLiteral("%1.svg").arg(++m_files)));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("can't write the test's picture");
    file.write(QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
                              "<rect width=\"%1\" height=\"%1\" fill=\"%2\"/></svg>")
                   .arg(size)
                   .arg(color)
                   .toUtf8());
    return file.fileName();
}

void TestCusSvgPushButton::fillLayer(Button *button, const QString &layer)
{
    const LayerNames names = kLayers.value(layer);
    button->setProperty(names.normalImage, square());
    for (auto it = kStateColors.begin(); it != kStateColors.end(); ++it) {
        if (layer != QLatin1String("icon") || it.key() != QLatin1String("Selected"))
            button->setProperty(
                QByteArray(names.colorPrefix + it.key().toLatin1() + "Color").constData(),
                it.value());
    }
}

void TestCusSvgPushButton::everyPropertyHasAValueOfItsOwn()
{
    Button button;
    const QMetaObject &meta = Button::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 45);
    QCOMPARE(button.iconSize(), QSize(16, 16));
    QCOMPARE(button.property("svgBGHeight").toInt(), 16);
    QCOMPARE(button.getSvgTxtSpace(), 6);
    QCOMPARE(button.getBtnFlow(), Button::Flow_Center);
    QCOMPARE(button.getTxtPos(), Button::Txt_Pos_Right);

    QMap<int, QVariant> written;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty one = meta.property(i);
        QVariant value(i);
        if (one.userType() == QMetaType::QString)
            value = QStringLiteral("%1.svg").arg(i);
        else if (one.userType() == QMetaType::QColor)
            value = QColor(i, 1, 2);
        else if (one.isEnumType())
            value = int(Button::Txt_Pos_Top);
        QVERIFY(one.write(&button, value));
        written.insert(i, value);
    }
    for (auto it = written.constBegin(); it != written.constEnd(); ++it) {
        const QMetaProperty one = meta.property(it.key());
        QVariant value = one.read(&button);
        QVERIFY2(value.convert(int(it->type())) && value == *it, one.name());
    }
    QCOMPARE(button.iconImage(), button.getSvgIconImage());
    QCOMPARE(button.iconColor(), button.getSvgIconNormalColor());
}

void TestCusSvgPushButton::showsTheLookOfTheWinningState_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("asWidget");
    QTest::addColumn<QString>("asStamp");
    const QStyle::State over = QStyle::State_MouseOver, sunken = QStyle::State_Sunken,
                        on = QStyle::State_On, picked = QStyle::State_Selected;
    const auto row = [](const char *name, QStyle::State state, const char *widget,
                        const char *inCell) {
        QTest::newRow(name) << state << QString::fromLatin1(widget) << QString::fromLatin1(inCell);
    };
    row("at rest", kEnabled, "Normal", "Normal");
    row("hovered", kEnabled | over, "Hover", "Hover");
    row("pressed under the cursor", kEnabled | over | sunken, "Pressed", "Pressed");
    row("checked", kEnabled | on, "Checked", "Checked");
    row("checked and hovered", kEnabled | on | over, "Checked", "Hover");
    row("checked and pressed", kEnabled | on | sunken, "Checked", "Pressed");
    row("selected", kEnabled | picked, "Selected", "Selected");
    row("selected and checked", kEnabled | picked | on, "Selected", "Checked");
    row("all but enabled", on | over | sunken | picked, "Disable", "Disable");
}

void TestCusSvgPushButton::showsTheLookOfTheWinningState()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, asWidget);
    QFETCH(QString, asStamp);
    for (auto it = kLayers.begin(); it != kLayers.end(); ++it) {
        Button button;
        fillLayer(&button, it.key());
        // The icon has no selected look.
        const auto expected = [&](const QString &name) {
            const bool none =
                it.key() == QLatin1String("icon") && name == QLatin1String("Selected");
            return kStateColors.value(none ? QStringLiteral("Normal") : name);
        };
        QCOMPARE(middle(stamp(&button, state)), expected(asWidget));
        QCOMPARE(middle(stamp(&button, state, Button::DrawStype_Delegate)), expected(asStamp));
    }
}

void TestCusSvgPushButton::statesWithoutAPictureOfTheirOwnShowTheNormalOne()
{
    const QString missing = m_folder.filePath(QStringLiteral("missing.svg"));
    Button button;
    button.setSvgBGImage(square(QStringLiteral("#00ff00")));
    button.setSvgBGPressedImage(missing);
    button.setSvgBGCheckedImage(square(QStringLiteral("#ff0000")));
    QCOMPARE(middle(stamp(&button, kEnabled | QStyle::State_MouseOver)), QColor(Qt::green));
    QCOMPARE(middle(stamp(&button, kEnabled | QStyle::State_Sunken)), QColor(Qt::green));
    QCOMPARE(middle(stamp(&button, kEnabled | QStyle::State_On)), QColor(Qt::red));

    button.setSvgBGImage(missing);
    QCOMPARE(TestKit::inkExtent(stamp(&button, kEnabled)), QRect());
    QCOMPARE(middle(stamp(&button, kEnabled | QStyle::State_On)), QColor(Qt::red));
}

void TestCusSvgPushButton::nothingIsReadAfterAStatesFirstPaint()
{
    Button button;
    const QString file = square();
    const QString own = square(QStringLiteral("#123456"));
    const QVector<QStyle::State> states{kEnabled, kEnabled | QStyle::State_MouseOver,
                                        kEnabled | QStyle::State_On, QStyle::State_None};
    const QObjectCounter renderers(QSvgRenderer::staticMetaObject);
    fillLayer(&button, QStringLiteral("background"));
    button.setSvgBGImage(file);
    button.setSvgBGCheckedImage(own);
    button.setSvgHoverImage(QStringLiteral("missing.svg"));
    QVector<QColor> looks;
    for (QStyle::State state : states)
        looks.append(middle(stamp(&button, state)));
    QCOMPARE(renderers.alive(), states.size() + 1);
    QVERIFY(QFile::remove(file) && QFile::remove(own));
    const int built = renderers.constructedOfAnyClass();

    button.setSvgBGNormalColor(button.getSvgBGNormalColor());
    button.setSvgBGCheckedImage(own);
    for (int i = 0; i < states.size(); ++i)
        QCOMPARE(middle(stamp(&button, states.at(i))), looks.at(i));
    QCOMPARE(renderers.constructedOfAnyClass(), built);
}

void TestCusSvgPushButton::newNormalPictureReachesTheStatesThatRecolourIt()
{
    Button button;
    fillLayer(&button, QStringLiteral("background"));
    const QStyle::State hover = kEnabled | QStyle::State_MouseOver;
    const QStyle::State selected = kEnabled | QStyle::State_Selected;
    const QRect all = TestKit::inkExtent(stamp(&button, hover));
    QCOMPARE(all.size(), QSize(16, 16));
    stamp(&button, selected);

    button.setSvgBGImage(square(QStringLiteral("#808080"), 8));
    const QImage hovered = stamp(&button, hover);
    QCOMPARE(TestKit::inkExtent(hovered), QRect(all.topLeft(), QSize(8, 8)));
    QCOMPARE(hovered.pixelColor(all.topLeft()), kStateColors.value(QStringLiteral("Hover")));
    QCOMPARE(TestKit::inkExtent(stamp(&button, selected)), all);
}

void TestCusSvgPushButton::placesIconAndBackground_data()
{
    QTest::addColumn<Button::BtnFlow>("flow");
    QTest::addColumn<QPoint>("iconInRow");
    QTest::addColumn<QPoint>("iconInColumn");
    QTest::addColumn<QPoint>("background");
    // The button lies at 10, 20. Centred across its axis an icon doesn't follow that offset.
    const auto row = [](const char *name, Button::BtnFlow flow, QPoint inRow, QPoint inColumn,
                        QPoint background) {
        QTest::newRow(name) << flow << inRow << inColumn << background;
    };
    row("left", Button::Flow_Left, {13, 19}, {13, 43}, {13, 45});
    row("right", Button::Flow_Right, {89, 19}, {89, 43}, {89, 45});
    row("top", Button::Flow_Top, {51, 24}, {38, 24}, {52, 24});
    row("bottom", Button::Flow_Bottom, {51, 62}, {38, 62}, {52, 62});
    row("centre", Button::Flow_Center, {51, 19}, {38, 43}, {52, 45});
}

void TestCusSvgPushButton::placesIconAndBackground()
{
    QFETCH(Button::BtnFlow, flow);
    QFETCH(QPoint, iconInRow);
    QFETCH(QPoint, iconInColumn);
    QFETCH(QPoint, background);
    const QPoint at(10, 20);
    const QSize size(16, 10);
    Button button;
    button.setBtnFlow(flow);
    button.setLeftMargin(3);
    button.setRightMargin(5);
    button.setTopMargin(4);
    button.setBottomMargin(8);
    const auto painted = [&] {
        return TestKit::inkExtent(stamp(&button, kEnabled, Button::DrawStype_Widget, {}, at));
    };
    button.setIcon(square(), size, Qt::red);
    QCOMPARE(painted(), QRect(iconInRow, size));
    button.setTxtPos(Button::Txt_Pos_Bottom);
    QCOMPARE(painted(), QRect(iconInColumn, size));

    button.setIconImage({});
    button.setSvgBGImage(square());
    button.setSvgBGWidth(size.width());
    button.setSvgBGHeight(size.height());
    QCOMPARE(painted(), QRect(background, size));
}

void TestCusSvgPushButton::textAndIconStandSideBySide()
{
    const QString text = QStringLiteral("HH");
    const QSize icon(12, 12);
    Button button;
    button.setSvgTxtSpace(4);
    button.setIcon(square(), icon, Qt::red);
    const QSize bounds =
        CusUiCommonFun::textBoundingRectUi(text, QFontMetrics(QGuiApplication::font()), &button)
            .size();
    const int left = (kButtonSize.width() - bounds.width() - 4 - 12) / 2;
    const int top = (kButtonSize.height() - bounds.height() - 4 - 12) / 2;
    const QPoint textInColumn((kButtonSize.width() - bounds.width()) / 2, top);
    const QPoint textInRow(left, (kButtonSize.height() - bounds.height()) / 2);
    const QMap<Button::BtnTxtPos, QPair<QPoint, QPoint>> places{
        {Button::Txt_Pos_Left, {{left + bounds.width() + 4, 24}, textInRow}},
        {Button::Txt_Pos_Right, {{left, 24}, textInRow + QPoint(16, 0)}},
        {Button::Txt_Pos_Top, {{44, top + bounds.height() + 4}, textInColumn}},
        {Button::Txt_Pos_Bottom, {{44, top}, textInColumn + QPoint(0, 16)}},
    };
    for (auto it = places.begin(); it != places.end(); ++it) {
        button.setTxtPos(it.key());
        const QImage image = stamp(&button, kEnabled, Button::DrawStype_Widget, text);
        QCOMPARE(TestKit::extentOf(image, Qt::red), QRect(it->first, icon));
        const QRect letters = TestKit::extentOf(image, kInk, 100);
        QVERIFY(!letters.isEmpty() && QRect(it->second, bounds).contains(letters));
    }
}

void TestCusSvgPushButton::textThatDoesNotFitIsShortened()
{
    const QString text = QStringLiteral("Recording of the north gate");
    Button button;
    button.setIcon(square(), QSize(16, 16), Qt::red);
    const auto drawnText = [&](const QSize &size) {
        TextRecorder recorder;
        QPainter painter(&recorder);
        QStyleOptionButton option;
        option.rect = QRect(QPoint(), size);
        option.state = kEnabled;
        option.text = text;
        option.fontMetrics = QFontMetrics(painter.font());
        button.paintSvgBtn(&painter, option, nullptr, Button::DrawStype_Widget);
        return recorder.texts.join(QString());
    };
    const QString shortened = drawnText(kButtonSize);
    QVERIFY(shortened.endsWith(QChar(0x2026)) && text.startsWith(shortened.chopped(1)));
    QCOMPARE(drawnText(QSize(10, 60)), QString());
    QCOMPARE(
        TestKit::extentOf(stamp(&button, kEnabled, Button::DrawStype_Widget, text), Qt::red).size(),
        QSize(16, 16));
    button.setTxtPos(Button::Txt_Pos_Bottom);
    QCOMPARE(drawnText(QSize(100, 24)), text);
    // The text has the whole button, and the icon no place.
    button.setTxtPos(Button::Txt_Pos_Center);
    QCOMPARE(drawnText(kButtonSize), text);
    QCOMPARE(TestKit::countOf(stamp(&button, kEnabled), Qt::red), 0);
    // Margins that leave no room take text and icon away, and nothing else.
    button.setTxtPos(Button::Txt_Pos_Right);
    button.setSvgBGImage(square(QStringLiteral("#00ff00")));
    button.setLeftMargin(kButtonSize.width());
    QCOMPARE(drawnText(kButtonSize), QString());
    QCOMPARE(TestKit::inkExtent(stamp(&button, kEnabled)), QRect(42, 22, 16, 16));
    QCOMPARE(middle(stamp(&button, kEnabled)), QColor(Qt::green));
}

void TestCusSvgPushButton::adjustSizeFixesTheSize_data()
{
    QTest::addColumn<QSize>("icon");
    QTest::addColumn<Button::BtnTxtPos>("position");
    QTest::addColumn<int>("margin");
    QTest::addColumn<QSize>("expected");
    const QSize text = Button().fontMetrics().boundingRect(QStringLiteral("Recording")).size();
    const QSize icon(20, 40);
    const int w = text.width(), h = text.height();
    const auto row = [](const char *name, QSize iconSize, Button::BtnTxtPos position, int margin,
                        QSize expected) {
        QTest::newRow(name) << iconSize << position << margin << expected;
    };
    row("icon beside text", icon, Button::Txt_Pos_Right, 2, {w + 20 + 6 + 9, 40 + 9});
    row("icon above text", icon, Button::Txt_Pos_Bottom, 2, {w + 9, h + 40 + 6 + 9});
    row("no icon counts as -1", {}, Button::Txt_Pos_Left, 0, {w - 1 + 6 + 5, h + 5});
    row("no gap to an empty icon", {0, 0}, Button::Txt_Pos_Left, 0, {w + 5, h + 5});
}

void TestCusSvgPushButton::adjustSizeFixesTheSize()
{
    QFETCH(QSize, icon);
    QFETCH(Button::BtnTxtPos, position);
    QFETCH(int, margin);
    QFETCH(QSize, expected);
    Button button;
    button.setText(QStringLiteral("Recording"));
    button.setTxtPos(position);
    button.setLeftMargin(margin);
    button.setTopMargin(margin);
    button.setRightMargin(margin);
    button.setBottomMargin(margin);
    if (icon != QSize())
        button.setIcon(square(), icon, QColor());
    button.adjustSize();
    QCOMPARE(button.minimumSize(), expected);
    QCOMPARE(button.maximumSize(), expected);
}

void TestCusSvgPushButton::anyNumbersAreSafe_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -7;
}

void TestCusSvgPushButton::anyNumbersAreSafe()
{
    QFETCH(int, number);
    const QString text = QStringLiteral("Camera");
    const char *numbers[] = {"svgBGWidth",    "svgBGHeight",  "svgIconWidth",
                             "svgIconHeight", "leftMargin",   "rightMargin",
                             "topMargin",     "bottomMargin", "svgTxtSpace"};
    for (const char *name : numbers) {
        Button button;
        button.setSvgBGImage(square());
        button.setSvgIconImage(square());
        button.setSvgBorderImage(square(QStringLiteral("#ff0000"), 1));
        button.setProperty(name, number);
        for (int flow = Button::Flow_Left; flow <= Button::Flow_Center; ++flow) {
            for (int position = Button::Txt_Pos_Left; position <= Button::Txt_Pos_Bottom;
                 ++position) {
                button.setBtnFlow(Button::BtnFlow(flow));
                button.setTxtPos(Button::BtnTxtPos(position));
                stamp(&button, kEnabled, Button::DrawStype_Widget, text);
                button.adjustSize();
            }
        }
        button.setSvgBGImage({});
        button.setSvgIconImage({});
        QCOMPARE(stamp(&button, kEnabled).pixelColor(1, 1), QColor(Qt::red));
        button.paintSvgBtn(nullptr, QStyleOptionButton(), button.style(),
                           Button::DrawStype_Delegate);
    }
}

void TestCusSvgPushButton::paintsAsAPushButtonWhenSvgPaintingIsOff()
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    const auto prepare = [&](QAbstractButton *button) {
        button->resize(kButtonSize);
        button->setText(QStringLiteral("Camera"));
        button->setIcon(QIcon(red));
        button->setIconSize(QSize(16, 16));
    };
    QPushButton plain;
    prepare(&plain);
    Button button;
    prepare(&button);
    button.setSvgIconImage(square());
    QCOMPARE(TestKit::countOf(TestKit::renderAt(&button), Qt::red), 0);

    button.setEnablePaintSvgBtn(false);
    QCOMPARE(TestKit::renderAt(&button), TestKit::renderAt(&plain));
    button.setIconSize(QSize(24, 24));
    plain.setIconSize(QSize(24, 24));
    QCOMPARE(static_cast<QAbstractButton &>(button).iconSize(), QSize(24, 24));
    QCOMPARE(TestKit::renderAt(&button), TestKit::renderAt(&plain));
}

void TestCusSvgPushButton::followsTheStyleSheet()
{
    Button button;
    button.resize(kButtonSize);
    button.setText(QStringLiteral("HHH"));
    button.setStyleSheet(
        QStringLiteral(
            "CusSvgPushButton { background: #202020; border: none; color: #00ff00;"
            " font: bold 20px; qproperty-svgIconImage: url(%1); qproperty-svgIconWidth: 9;"
            " qproperty-svgIconNormalColor: #ff0000; qproperty-txtPos: Txt_Pos_Left;"
            " qproperty-btnFlow: Flow_Right }"
            "CusSvgPushButton:disabled { color: #0000ff }")
            .arg(square()));
    button.ensurePolished();
    QCOMPARE(button.getTxtPos(), Button::Txt_Pos_Left);
    const QImage image = TestKit::renderAt(&button, 2.0);
    QCOMPARE(image.pixelColor(2, 2), QColor(0x20, 0x20, 0x20));
    QCOMPARE(TestKit::extentOf(image, Qt::red), QRect(182, 44, 18, 32));
    const QRect letters = TestKit::extentOf(image, Qt::green);
    QVERIFY2(letters.height() > 24, "the sheet's font has taken effect");
    button.setEnabled(false);
    QVERIFY(TestKit::countOf(TestKit::renderAt(&button), Qt::blue) > 10);
}

void TestCusSvgPushButton::mayDieInItsOwnSignals()
{
    QPointer<Button> pressed = new Button;
    connect(pressed, &QPushButton::pressed, this, [&] { delete pressed; });
    QTest::mousePress(pressed.data(), Qt::LeftButton);
    QVERIFY(!pressed);
    QPointer<Button> clicked = new Button;
    connect(clicked, &QPushButton::clicked, this, [&] { delete clicked; });
    QTest::mouseClick(clicked.data(), Qt::LeftButton);
    QVERIFY(!clicked);
}

void TestCusSvgPushButton::tellsWhenTheCursorComesAndGoes()
{
    Button button;
    QSignalSpy entered(&button, &Button::signalMouseEnter);
    QSignalSpy left(&button, &Button::signalMouseLeave);
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&button, &enter);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(left.count(), 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    QCOMPARE(left.count(), 1);
}

QTEST_MAIN(TestCusSvgPushButton)
#include "tst_cussvgpushbutton.moc"
