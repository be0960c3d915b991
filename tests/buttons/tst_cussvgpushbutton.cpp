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

namespace {

constexpr QSize kButtonSize(100, 60);
const QColor kInk(Qt::blue);

/// How the names of a layer's properties begin.
struct Layer
{
    const char *normalImage;
    const char *images;
    const char *colors;
};
const Layer kBackground{"svgBGImage", "svgBG", "svgBG"};
const Layer kBorder{"svgBorderImage", "svgBorder", "svg"};
const Layer kIcon{"svgIconImage", "svgIcon", "svgIcon"};

enum Look
{
    Normal,
    Hover,
    Pressed,
    Checked,
    Selected,
    Disable
};
const char *const kLookNames[] = {"Normal", "Hover", "Pressed", "Checked", "Selected", "Disable"};
const QColor kLookColors[] = {Qt::gray, Qt::yellow, Qt::red, Qt::green, Qt::cyan, Qt::darkBlue};

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

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(Look)

class TestCusSvgPushButton : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyHasAValueOfItsOwn();
    void showsTheLookOfTheWinningState_data();
    void showsTheLookOfTheWinningState();
    void statesWithoutAPictureShowTheNormalOne();
    void nothingIsReadAfterAStatesFirstPaint();
    void newNormalPictureReachesTheStatesThatRecolourIt();
    void placesIconAndBackground_data();
    void placesIconAndBackground();
    void textAndIconStandSideBySide_data();
    void textAndIconStandSideBySide();
    void textThatDoesNotFitIsShortened();
    void adjustSizeFixesTheSize_data();
    void adjustSizeFixesTheSize();
    void anyNumbersAreSafe();
    void paintsAsAPushButtonWhenSvgPaintingIsOff();
    void followsTheStyleSheet();
    void tellsWhenTheCursorComesAndGoes();

private:
    /// A new file with one square of \a color, \a size units wide in a view of 16.
    QString square(const QString &color = QStringLiteral("#808080"), int size = 16);
    void fillLayer(Button *button, const Layer &layer, bool ownFiles = false);

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

/// Gives each state a look of its own, by a tint or by a file.
void TestCusSvgPushButton::fillLayer(Button *button, const Layer &layer, bool ownFiles)
{
    button->setProperty(layer.normalImage, square(kLookColors[Normal].name()));
    for (int look = Normal; look <= Disable; ++look) {
        const QByteArray name(kLookNames[look]);
        if (!ownFiles)
            button->setProperty(QByteArray(layer.colors + name + "Color").constData(),
                                kLookColors[look]);
        else if (look != Normal)
            button->setProperty(QByteArray(layer.images + name + "Image").constData(),
                                square(kLookColors[look].name()));
    }
}

void TestCusSvgPushButton::everyPropertyHasAValueOfItsOwn()
{
    Button button;
    const QMetaObject &meta = Button::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 45);
    QCOMPARE(button.iconSize(), QSize(16, 16));
    QCOMPARE(QSize(button.getSvgBGWidth(), button.getSvgBGHeight()), QSize(16, 16));
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
    QTest::addColumn<Look>("asWidget");
    QTest::addColumn<Look>("asStamp");
    const QStyle::State over = QStyle::State_MouseOver, sunken = QStyle::State_Sunken,
                        on = QStyle::State_On, picked = QStyle::State_Selected;
    QTest::newRow("normal") << kEnabled << Normal << Normal;
    QTest::newRow("hovered") << (kEnabled | over) << Hover << Hover;
    QTest::newRow("pressed under the cursor") << (kEnabled | over | sunken) << Pressed << Pressed;
    QTest::newRow("checked") << (kEnabled | on) << Checked << Checked;
    QTest::newRow("checked and hovered") << (kEnabled | on | over) << Checked << Hover;
    QTest::newRow("checked and pressed") << (kEnabled | on | sunken) << Checked << Pressed;
    QTest::newRow("selected") << (kEnabled | picked) << Selected << Selected;
    QTest::newRow("selected and checked") << (kEnabled | picked | on) << Selected << Checked;
    QTest::newRow("all but enabled") << (on | over | sunken | picked) << Disable << Disable;
}

void TestCusSvgPushButton::showsTheLookOfTheWinningState()
{
    QFETCH(QStyle::State, state);
    QFETCH(Look, asWidget);
    QFETCH(Look, asStamp);
    for (const Layer &layer : {kBackground, kBorder, kIcon}) {
        for (bool ownFiles : {false, true}) {
            Button button;
            fillLayer(&button, layer, ownFiles);
            // The icon has no selected look.
            const auto color = [&](Look look) {
                const bool none = look == Selected && layer.images == kIcon.images;
                return kLookColors[none ? Normal : look];
            };
            QCOMPARE(middle(stamp(&button, state)), color(asWidget));
            QCOMPARE(middle(stamp(&button, state, Button::DrawStype_Delegate)), color(asStamp));
        }
    }
}

void TestCusSvgPushButton::statesWithoutAPictureShowTheNormalOne()
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
    fillLayer(&button, kBackground);
    button.setSvgBGImage(file);
    button.setSvgBGCheckedImage(own);
    button.setSvgHoverImage(QStringLiteral("missing.svg"));
    QVector<QColor> looks;
    for (QStyle::State state : states)
        looks.append(middle(stamp(&button, state)));
    QCOMPARE(renderers.alive(), states.size() + 1);
    QVERIFY(QFile::remove(file) && QFile::remove(own));
    // As a new polish does: the sheet's values again.
    button.setSvgBGImage(file);
    button.setSvgBGNormalColor(button.getSvgBGNormalColor());
    button.setSvgBGCheckedImage(own);
    const int built = renderers.constructedOfAnyClass();
    for (int i = 0; i < states.size(); ++i)
        QCOMPARE(middle(stamp(&button, states.at(i))), looks.at(i));
    QCOMPARE(renderers.constructedOfAnyClass(), built);
}

void TestCusSvgPushButton::newNormalPictureReachesTheStatesThatRecolourIt()
{
    Button button;
    fillLayer(&button, kBackground);
    const QStyle::State hover = kEnabled | QStyle::State_MouseOver;
    const QStyle::State selected = kEnabled | QStyle::State_Selected;
    const QRect all = TestKit::inkExtent(stamp(&button, hover));
    QCOMPARE(all.size(), QSize(16, 16));
    stamp(&button, selected);

    button.setSvgBGImage(square(QStringLiteral("#808080"), 8));
    const QImage hovered = stamp(&button, hover);
    QCOMPARE(TestKit::inkExtent(hovered), QRect(all.topLeft(), QSize(8, 8)));
    QCOMPARE(hovered.pixelColor(all.topLeft()), kLookColors[Hover]);
    QCOMPARE(TestKit::inkExtent(stamp(&button, selected)), all);
}

void TestCusSvgPushButton::placesIconAndBackground_data()
{
    QTest::addColumn<Button::BtnFlow>("flow");
    QTest::addColumn<QPoint>("iconInRow");
    QTest::addColumn<QPoint>("iconInColumn");
    QTest::addColumn<QPoint>("background");
    // The button lies at 10, 20. Centred across its axis an icon doesn't follow that offset.
    QTest::newRow("left") << Button::Flow_Left << QPoint(13, 19) << QPoint(13, 43)
                          << QPoint(13, 45);
    QTest::newRow("right") << Button::Flow_Right << QPoint(89, 19) << QPoint(89, 43)
                           << QPoint(89, 45);
    QTest::newRow("top") << Button::Flow_Top << QPoint(51, 24) << QPoint(38, 24) << QPoint(52, 24);
    QTest::newRow("bottom") << Button::Flow_Bottom << QPoint(51, 62) << QPoint(38, 62)
                            << QPoint(52, 62);
    QTest::newRow("centre") << Button::Flow_Center << QPoint(51, 19) << QPoint(38, 43)
                            << QPoint(52, 45);
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
    for (Button::BtnTxtPos position : {Button::Txt_Pos_Left, Button::Txt_Pos_Right}) {
        button.setTxtPos(position);
        QCOMPARE(painted(), QRect(iconInRow, size));
    }
    for (Button::BtnTxtPos position : {Button::Txt_Pos_Top, Button::Txt_Pos_Bottom}) {
        button.setTxtPos(position);
        QCOMPARE(painted(), QRect(iconInColumn, size));
    }

    button.setIconImage({});
    button.setSvgBGImage(square());
    button.setSvgBGWidth(size.width());
    button.setSvgBGHeight(size.height());
    QCOMPARE(painted(), QRect(background, size));
}

void TestCusSvgPushButton::textAndIconStandSideBySide_data()
{
    QTest::addColumn<Button::BtnTxtPos>("position");
    const auto names = QMetaEnum::fromType<Button::BtnTxtPos>();
    for (Button::BtnTxtPos position :
         {Button::Txt_Pos_Left, Button::Txt_Pos_Right, Button::Txt_Pos_Top, Button::Txt_Pos_Bottom})
        QTest::newRow(names.valueToKey(position)) << position;
}

void TestCusSvgPushButton::textAndIconStandSideBySide()
{
    QFETCH(Button::BtnTxtPos, position);
    Button button;
    button.setTxtPos(position);
    button.setSvgTxtSpace(4);
    button.setIcon(square(), QSize(12, 12), Qt::red);
    const QString text = QStringLiteral("HH");
    const QRect bounds =
        CusUiCommonFun::textBoundingRectUi(text, QFontMetrics(QGuiApplication::font()), &button);

    const QImage image = stamp(&button, kEnabled, Button::DrawStype_Widget, text);
    const QRect icon = TestKit::extentOf(image, Qt::red);
    const QRect letters = TestKit::extentOf(image, kInk, 100);
    const bool inRow = position == Button::Txt_Pos_Left || position == Button::Txt_Pos_Right;
    const bool textFirst = position == Button::Txt_Pos_Left || position == Button::Txt_Pos_Top;
    const QSize spare = kButtonSize - QSize(12, 12);
    const int length = 4 + (inRow ? bounds.width() : bounds.height());
    const int start = ((inRow ? spare.width() : spare.height()) - length) / 2;
    const int along = textFirst ? start + length : start;
    const QPoint at = inRow ? QPoint(along, spare.height() / 2) : QPoint(spare.width() / 2, along);
    QCOMPARE(icon, QRect(at, QSize(12, 12)));
    if (textFirst)
        QVERIFY((inRow ? icon.left() - letters.right() : icon.top() - letters.bottom()) > 4);
    else
        QVERIFY((inRow ? letters.left() - icon.right() : letters.top() - icon.bottom()) > 4);
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
        return recorder.texts.isEmpty() ? QString() : recorder.texts.constFirst().text;
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

    // Where the margins leave no room, only the ground is drawn.
    button.setTxtPos(Button::Txt_Pos_Right);
    button.setLeftMargin(kButtonSize.width());
    button.setSvgBGImage(square(QStringLiteral("#00ff00")));
    QCOMPARE(drawnText(kButtonSize), QString());
    const QImage ground = stamp(&button, kEnabled, Button::DrawStype_Widget, text);
    QCOMPARE(TestKit::inkExtent(ground), TestKit::extentOf(ground, Qt::green));
    QCOMPARE(TestKit::inkExtent(ground), QRect(42, 22, 16, 16));
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
    const int smallest = std::numeric_limits<int>::min();
    QTest::newRow("icon beside text")
        << icon << Button::Txt_Pos_Right << 2 << QSize(w + 20 + 6 + 9, 40 + 9);
    QTest::newRow("icon above text")
        << icon << Button::Txt_Pos_Bottom << 2 << QSize(w + 9, h + 40 + 6 + 9);
    QTest::newRow("no icon counts as -1, and the gap stays")
        << QSize() << Button::Txt_Pos_Left << 0 << QSize(w - 1 + 6 + 5, h + 5);
    QTest::newRow("an icon of no size has no gap")
        << QSize(0, 0) << Button::Txt_Pos_Left << 0 << QSize(w + 5, h + 5);
    QTest::newRow("negative margins") << icon << Button::Txt_Pos_Left << smallest << QSize(0, 0);
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

void TestCusSvgPushButton::anyNumbersAreSafe()
{
    const QVector<int> anyNumbers{std::numeric_limits<int>::min(), -7, 0, 99,
                                  std::numeric_limits<int>::max()};
    const QMetaObject &meta = Button::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty one = meta.property(i);
        if (one.userType() == QMetaType::QString || one.userType() == QMetaType::QColor)
            continue;
        for (int number : anyNumbers) {
            Button button;
            fillLayer(&button, kBackground);
            fillLayer(&button, kIcon);
            button.setSvgBorderImage(square(QStringLiteral("#ff0000"), 1));
            for (int flow = Button::Flow_Left; flow <= Button::Flow_Center; ++flow) {
                for (int position = Button::Txt_Pos_Left; position <= Button::Txt_Pos_Bottom;
                     ++position) {
                    button.setBtnFlow(Button::BtnFlow(flow));
                    button.setTxtPos(Button::BtnTxtPos(position));
                    QVERIFY(one.write(&button, number));
                    stamp(&button, kEnabled, Button::DrawStype_Widget, QStringLiteral("Camera"));
                    button.adjustSize();
                }
            }
            button.setSvgBGImage({});
            button.setSvgIconImage({});
            QCOMPARE(stamp(&button, kEnabled).pixelColor(1, 1), QColor(Qt::red));
        }
    }
    Button button;
    QPainter idle;
    for (QPainter *painter : {static_cast<QPainter *>(nullptr), &idle})
        button.paintSvgBtn(painter, {}, button.style(), Button::DrawStype_Delegate);
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
