#include "support/guardedtest.h"
#include "support/qobjectcounter.h"
#include "support/render.h"

#include <Vellum/CusSvgPushButton>
#include <Vellum/CusUiCommonFun>

#include <QSvgRenderer>
#include <QtTest>
#include <QtWidgets>

#include <limits>

using Button = CusSvgPushButton;

namespace {

constexpr QSize kButtonSize(100, 60);
const QColor kInk(Qt::blue);

/// How the names of a layer's properties begin.
struct Layer
{
    const char *images;
    const char *colors;
};
constexpr Layer kBackground{"svgBG", "svgBG"};
constexpr Layer kBorder{"svgBorder", "svg"};
constexpr Layer kIcon{"svgIcon", "svgIcon"};

const QMap<QByteArray, QColor> kLooks{
    {"Normal", Qt::gray},   {"Hover", Qt::yellow},  {"Pressed", Qt::red},
    {"Checked", Qt::green}, {"Selected", Qt::cyan}, {"Disable", Qt::darkBlue},
};

constexpr QStyle::State kEnabled = QStyle::State_Enabled;
constexpr QStyle::State kHovered = kEnabled | QStyle::State_MouseOver;
constexpr QStyle::State kChecked = kEnabled | QStyle::State_On;
constexpr QStyle::State kSelected = kEnabled | QStyle::State_Selected;

void paint(Button *button, QPaintDevice *device, const QRect &rect, QStyle::State state,
           const QString &text, Button::DrawStype type = Button::DrawStype_Widget)
{
    QPainter painter(device);
    painter.setPen(kInk);
    QStyleOptionButton option;
    option.rect = rect;
    option.state = state;
    option.text = text;
    option.fontMetrics = QFontMetrics(painter.font());
    button->paintSvgBtn(&painter, option, nullptr, type);
}

QImage stamp(Button *button, QStyle::State state, const QString &text = QString(),
             Button::DrawStype type = Button::DrawStype_Widget, const QPoint &at = QPoint())
{
    QImage image(kButtonSize + QSize(at.x(), at.y()), QImage::Format_ARGB32_Premultiplied);
    image.fill(TestKit::unpainted);
    paint(button, &image, QRect(at, kButtonSize), state, text, type);
    return image;
}

QColor middle(const QImage &image)
{
    return image.pixelColor(image.rect().center());
}

} // namespace

class TestCusSvgPushButton : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyHasAValueOfItsOwn()
    {
        Button button;
        const QMetaObject &meta = Button::staticMetaObject;
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 45);
        QCOMPARE(button.iconSize(), QSize(16, 16));
        QCOMPARE(button.getBtnFlow(), Button::Flow_Center);
        QCOMPARE(button.getTxtPos(), Button::Txt_Pos_Right);

        // Paths are written as colours' names.
        const auto valueOf = [](const QMetaProperty &one) -> QVariant {
            if (one.userType() == QMetaType::QString || one.userType() == QMetaType::QColor)
                return QColor(one.propertyIndex(), 1, 2).name();
            return one.isEnumType() ? int(Button::Txt_Pos_Top) : one.propertyIndex();
        };
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
            QVERIFY(meta.property(i).write(&button, valueOf(meta.property(i))));
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QVariant expected = valueOf(meta.property(i));
            QVariant value = meta.property(i).read(&button);
            QVERIFY2(value.convert(expected.userType()) && value == expected,
                     meta.property(i).name());
        }
        QCOMPARE(button.iconImage(), button.getSvgIconImage());
        QCOMPARE(button.iconColor(), button.getSvgIconNormalColor());
    }

    void showsTheLookOfTheWinningState()
    {
        constexpr QStyle::State over = QStyle::State_MouseOver, sunken = QStyle::State_Sunken;
        const struct
        {
            QStyle::State state;
            const char *asWidget, *asStamp;
        } rows[] = {
            {kEnabled, "Normal", "Normal"},
            {kHovered, "Hover", "Hover"},
            {kHovered | sunken, "Pressed", "Pressed"},
            {kChecked, "Checked", "Checked"},
            {kChecked | over, "Checked", "Hover"},
            {kChecked | sunken, "Checked", "Pressed"},
            {kSelected, "Selected", "Selected"},
            {kSelected | kChecked, "Selected", "Checked"},
            {(kHovered | sunken | kChecked | kSelected) & ~kEnabled, "Disable", "Disable"},
        };
        for (const Layer &layer : {kBackground, kBorder, kIcon}) {
            for (bool ownFiles : {false, true}) {
                Button button;
                fillLayer(&button, layer, ownFiles);
                const auto color = [&](const QByteArray &look) {
                    // The icon has no selected look.
                    const bool none = look == "Selected" && layer.images == kIcon.images;
                    return kLooks[none ? "Normal" : look];
                };
                for (const auto &row : rows) {
                    QCOMPARE(middle(stamp(&button, row.state)), color(row.asWidget));
                    const QImage inCell = stamp(&button, row.state, {}, Button::DrawStype_Delegate);
                    QCOMPARE(middle(inCell), color(row.asStamp));
                }
            }
        }
    }

    void statesWithoutAPictureShowTheNormalOne()
    {
        const QString missing = m_folder.filePath(QStringLiteral("missing.svg"));
        Button button;
        button.setSvgBGImage(square(Qt::green));
        button.setSvgBGPressedImage(missing);
        button.setSvgBGCheckedImage(square(Qt::red));
        QCOMPARE(middle(stamp(&button, kHovered)), QColor(Qt::green));
        QCOMPARE(middle(stamp(&button, kEnabled | QStyle::State_Sunken)), QColor(Qt::green));
        QCOMPARE(middle(stamp(&button, kChecked)), QColor(Qt::red));

        button.setSvgBGImage(missing);
        QCOMPARE(TestKit::inkExtent(stamp(&button, kEnabled)), QRect());
        QCOMPARE(middle(stamp(&button, kChecked)), QColor(Qt::red));
    }

    void nothingIsReadAfterAStatesFirstPaint()
    {
        Button button;
        const QString file = square();
        const QString own = square(Qt::darkRed);
        const QVector<QStyle::State> states{kEnabled, kHovered, kChecked, QStyle::State_None};
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

    void newNormalPictureReachesTheStatesThatRecolourIt()
    {
        Button button;
        fillLayer(&button, kBackground);
        const QRect all = TestKit::inkExtent(stamp(&button, kHovered));
        QCOMPARE(all.size(), QSize(16, 16));
        stamp(&button, kSelected);

        button.setSvgBGImage(square(Qt::gray, 8));
        const QImage hovered = stamp(&button, kHovered);
        QCOMPARE(TestKit::inkExtent(hovered), QRect(all.topLeft(), QSize(8, 8)));
        QCOMPARE(hovered.pixelColor(all.topLeft()), kLooks["Hover"]);
        QCOMPARE(TestKit::inkExtent(stamp(&button, kSelected)), all);
    }

    void placesIconAndBackground()
    {
        const struct
        {
            Button::BtnFlow flow;
            QPoint iconInRow, iconInColumn, background;
        } rows[] = {
            // The button lies at 10, 20. Centred across its axis an icon doesn't follow that
            // offset.
            {Button::Flow_Left, {13, 19}, {13, 43}, {13, 45}},
            {Button::Flow_Right, {89, 19}, {89, 43}, {89, 45}},
            {Button::Flow_Top, {51, 24}, {38, 24}, {52, 24}},
            {Button::Flow_Bottom, {51, 62}, {38, 62}, {52, 62}},
            {Button::Flow_Center, {51, 19}, {38, 43}, {52, 45}},
        };
        const QSize size(16, 10);
        const QString picture = square();
        Button button;
        button.setLeftMargin(3);
        button.setRightMargin(5);
        button.setTopMargin(4);
        button.setBottomMargin(8);
        button.setSvgBGWidth(size.width());
        button.setSvgBGHeight(size.height());
        for (const auto &row : rows) {
            button.setBtnFlow(row.flow);
            const auto painted = [&](Button::BtnTxtPos position) {
                button.setTxtPos(position);
                return TestKit::inkExtent(
                    stamp(&button, kEnabled, {}, Button::DrawStype_Widget, {10, 20}));
            };
            button.setSvgBGImage({});
            button.setIcon(picture, size, Qt::red);
            QCOMPARE(painted(Button::Txt_Pos_Right), QRect(row.iconInRow, size));
            QCOMPARE(painted(Button::Txt_Pos_Bottom), QRect(row.iconInColumn, size));
            button.setIconImage({});
            button.setSvgBGImage(picture);
            QCOMPARE(painted(Button::Txt_Pos_Bottom), QRect(row.background, size));
        }
    }

    void textAndIconStandSideBySide()
    {
        const QString text = QStringLiteral("HH");
        const QSize icon(12, 12);
        Button button;
        button.setSvgTxtSpace(4);
        button.setIcon(square(), icon, Qt::red);
        const QSize bounds =
            CusUiCommonFun::textBoundingRectUi(text, QFontMetrics(QGuiApplication::font()), &button)
                .size();
        const int w = bounds.width(), h = bounds.height();
        const QPoint inRow((100 - w - 4 - 12) / 2, (60 - h) / 2);
        const QPoint inColumn((100 - w) / 2, (60 - h - 4 - 12) / 2);
        const QMap<Button::BtnTxtPos, QPair<QPoint, QPoint>> places{
            {Button::Txt_Pos_Left, {{inRow.x() + w + 4, 24}, inRow}},
            {Button::Txt_Pos_Right, {{inRow.x(), 24}, inRow + QPoint(16, 0)}},
            {Button::Txt_Pos_Top, {{44, inColumn.y() + h + 4}, inColumn}},
            {Button::Txt_Pos_Bottom, {{44, inColumn.y()}, inColumn + QPoint(0, 16)}},
        };
        for (auto it = places.begin(); it != places.end(); ++it) {
            button.setTxtPos(it.key());
            const QImage image = stamp(&button, kEnabled, text);
            QCOMPARE(TestKit::extentOf(image, Qt::red), QRect(it->first, icon));
            const QRect letters = TestKit::extentOf(image, kInk, 100);
            QVERIFY(!letters.isEmpty() && QRect(it->second, bounds).contains(letters));
        }
    }

    void textThatDoesNotFitIsShortened()
    {
        const QString text = QStringLiteral("Recording of the north gate");
        Button button;
        button.setIcon(square(), QSize(16, 16), Qt::red);
        const auto drawnText = [&](const QSize &size = kButtonSize) {
            const auto draw = [&](QPaintDevice *device) {
                paint(&button, device, QRect(QPoint(), size), kEnabled, text);
            };
            return TestKit::drawnTexts(draw, kInk).join(QString());
        };
        QVERIFY(drawnText().endsWith(QChar(0x2026)) && text.startsWith(drawnText().chopped(1)));
        QCOMPARE(drawnText(QSize(10, 60)), QString());
        const QImage shortened = stamp(&button, kEnabled, text);
        QCOMPARE(TestKit::extentOf(shortened, Qt::red).size(), QSize(16, 16));
        button.setTxtPos(Button::Txt_Pos_Bottom);
        QCOMPARE(drawnText(QSize(100, 24)), text);
        // The text has the whole button, and the icon no place.
        button.setTxtPos(Button::Txt_Pos_Center);
        QCOMPARE(drawnText(), text);
        QCOMPARE(TestKit::countOf(stamp(&button, kEnabled), Qt::red), 0);

        // Where the margins leave no room, only the ground is drawn.
        button.setTxtPos(Button::Txt_Pos_Right);
        button.setLeftMargin(kButtonSize.width());
        button.setSvgBGImage(square(Qt::green));
        QCOMPARE(drawnText(), QString());
        const QImage ground = stamp(&button, kEnabled, text);
        QCOMPARE(TestKit::inkExtent(ground), QRect(42, 22, 16, 16));
        QCOMPARE(TestKit::extentOf(ground, Qt::green), QRect(42, 22, 16, 16));
    }

    void adjustSizeFixesTheSize()
    {
        const QString label = QStringLiteral("Recording");
        const QSize text = Button().fontMetrics().boundingRect(label).size();
        const int w = text.width(), h = text.height();
        const struct
        {
            QSize icon;
            Button::BtnTxtPos position;
            int margin;
            QSize expected;
        } rows[] = {
            {{20, 40}, Button::Txt_Pos_Right, 2, {w + 20 + 6 + 9, 40 + 9}},
            {{20, 40}, Button::Txt_Pos_Bottom, 2, {w + 9, h + 40 + 6 + 9}},
            // No icon counts as -1, and the gap stays; an icon of no size has no gap.
            {{}, Button::Txt_Pos_Left, 0, {w - 1 + 6 + 5, h + 5}},
            {{0, 0}, Button::Txt_Pos_Left, 0, {w + 5, h + 5}},
            {{20, 40}, Button::Txt_Pos_Left, std::numeric_limits<int>::min(), {0, 0}},
        };
        for (const auto &row : rows) {
            Button button;
            button.setText(label);
            button.setTxtPos(row.position);
            for (const char *side : {"leftMargin", "topMargin", "rightMargin", "bottomMargin"})
                QVERIFY(button.setProperty(side, row.margin));
            if (row.icon != QSize())
                button.setIcon(square(), row.icon, QColor());
            button.adjustSize();
            QCOMPARE(button.minimumSize(), row.expected);
            QCOMPARE(button.maximumSize(), row.expected);
        }
    }

    void anyNumbersAreSafe()
    {
        const int most = std::numeric_limits<int>::max();
        const QMetaObject &meta = Button::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty one = meta.property(i);
            if (one.userType() == QMetaType::QString || one.userType() == QMetaType::QColor)
                continue;
            for (int number : {-most - 1, -7, 0, 99, most}) {
                Button button;
                for (const Layer &layer : {kBackground, kBorder, kIcon})
                    fillLayer(&button, layer);
                for (int pair = 0; pair < 25; ++pair) {
                    button.setBtnFlow(Button::BtnFlow(pair / 5));
                    button.setTxtPos(Button::BtnTxtPos(pair % 5));
                    QVERIFY(one.write(&button, number));
                    stamp(&button, kEnabled, QStringLiteral("Camera"));
                    button.adjustSize();
                }
                button.setSvgBGImage({});
                button.setSvgIconImage({});
                QCOMPARE(middle(stamp(&button, kEnabled)), kLooks["Normal"]);
            }
        }
        Button button;
        QPainter idle;
        for (QPainter *painter : {static_cast<QPainter *>(nullptr), &idle})
            button.paintSvgBtn(painter, {}, button.style(), Button::DrawStype_Delegate);
    }

    void paintsAsAPushButtonWhenSvgPaintingIsOff()
    {
        QPixmap red(24, 24);
        red.fill(Qt::red);
        QPushButton plain;
        Button button;
        button.setSvgIconImage(square());
        for (QPushButton *one : {&plain, static_cast<QPushButton *>(&button)}) {
            one->resize(kButtonSize);
            one->setText(QStringLiteral("Camera"));
            one->setIcon(QIcon(red));
        }
        QCOMPARE(TestKit::countOf(TestKit::renderAt(&button), Qt::red), 0);
        button.setEnablePaintSvgBtn(false);
        for (const QSize &size : {QSize(16, 16), QSize(24, 24)}) {
            button.setIconSize(size);
            plain.setIconSize(size);
            QCOMPARE(TestKit::renderAt(&button), TestKit::renderAt(&plain));
        }
    }

    void tellsWhenTheCursorComesAndGoes()
    {
        Button button;
        QSignalSpy entered(&button, &Button::signalMouseEnter);
        QSignalSpy left(&button, &Button::signalMouseLeave);
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(&button, &enter);
        QCOMPARE(entered.count() * 10 + left.count(), 10);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &leave);
        QCOMPARE(entered.count() * 10 + left.count(), 11);
    }

    void followsTheStyleSheet()
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

private:
    /// A new file with one square of \a color, \a size units wide in a view of 16.
    QString square(const QColor &color = Qt::gray, int size = 16)
    {
        QFile file(m_folder.filePath(QStringLiteral("%1.svg").arg(++m_files)));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("can't write the test's picture");
        file.write(QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
                                  "<rect width=\"%1\" height=\"%1\" fill=\"%2\"/></svg>")
                       .arg(size)
                       .arg(color.name())
                       .toUtf8());
        return file.fileName();
    }

    /// Gives each state a look of its own, by a tint or by a file.
    void fillLayer(Button *button, const Layer &layer, bool ownFiles = false)
    {
        button->setProperty(QByteArray(layer.images).append("Image").constData(), square(Qt::gray));
        for (auto it = kLooks.begin(); it != kLooks.end(); ++it) {
            if (!ownFiles)
                button->setProperty(QByteArray(layer.colors + it.key() + "Color").constData(), *it);
            else if (it.key() != "Normal")
                button->setProperty(QByteArray(layer.images + it.key() + "Image").constData(),
                                    square(*it));
        }
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};

QTEST_MAIN(TestCusSvgPushButton)
#include "tst_cussvgpushbutton.moc"
