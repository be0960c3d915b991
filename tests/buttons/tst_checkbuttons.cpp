#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusCheckBox>
#include <Vellum/CusPushButton>
#include <Vellum/CusRadioButton>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

const QString kLong = QStringLiteral("Keep the recordings of alarms until they are exported");

/// What stands in the middle of a button's indicator.
QString indicatorColor(QAbstractButton *button)
{
    const int x = button->isRightToLeft() ? button->width() - 8 : 8;
    return TestKit::renderAt(button).pixelColor(x, button->height() / 2).name();
}

QStringList textsOf(QWidget *widget)
{
    return TestKit::drawnTexts([&](QPaintDevice *device) { widget->render(device); }, Qt::blue);
}

} // namespace

class TestCheckButtons : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qApp->setStyleSheet(QStringLiteral(
            "* { color: #0000ff }"
            "QCheckBox::indicator, QRadioButton::indicator { width: 16px; height: 16px }"
            "CusSvgPushButton { border: none; background: #808080 }"
            "#btn_checkBoxChecked, #btn_radioChecked { background: #00ff00 }"
            "#btn_checkBoxUnchecked, #btn_radioUnChecked { background: #ff0000 }"
            "#btn_checkBoxUnchecked:indeterminate { background: #ffff00 }"
            "#btn_checkBoxChecked:hover { background: #00ffff }"
            "#btn_checkBoxChecked:pressed, #btn_radioChecked:pressed { background: #ff00ff }"
            "#btn_checkBoxChecked:checked, #btn_radioChecked:checked { background: #000000 }"
            "#btn_checkBoxChecked:disabled, #btn_radioChecked:disabled { background: #008000 }"
            "CusSvgPushButton[alarm=\"true\"] { background: #800000 }"
            "#other { background: #ffffff }"));
    }

    void labelsThatDontFitAreElided()
    {
        CusCheckBox check;
        CusRadioButton radio;
        CusPushButton push;
        const QString text = QStringLiteral("Short\n") + kLong;
        for (QAbstractButton *button : QVector<QAbstractButton *>{&check, &radio, &push}) {
            button->setText(kLong);
            button->resize(900, 40);
            QCOMPARE(textsOf(button), QStringList{kLong});
            QCOMPARE(button->toolTip(), QString());
            button->setText(text);
            button->resize(160, 40);
            const QString shown = textsOf(button).value(1);
            QVERIFY(shown.endsWith(QChar(0x2026)) && kLong.startsWith(shown.chopped(1)));
            QCOMPARE(button->toolTip(), text);
            button->setText(QStringLiteral("Off"));
            button->grab();
            // Only the text button takes its tip back.
            QCOMPARE(button->toolTip().isEmpty(), button == &push);
            button->resize(0, 0);
            textsOf(button);
        }
        push.setText(kLong);
        push.resize(push.fontMetrics().horizontalAdvance(kLong) + 60, 30);
        for (const int width : {0, 50, 200, std::numeric_limits<int>::max()}) {
            push.setOtherFixedWidth(width);
            QCOMPARE(textsOf(&push) == QStringList{kLong}, width < 60);
        }
    }

    void indicatorIsTheTwinOfTheState()
    {
        CusCheckBox box(QStringLiteral("Record"));
        CusRadioButton radio(QStringLiteral("Record"));
        radio.setAutoExclusive(false);
        const auto colors = [&] { return indicatorColor(&box) + indicatorColor(&radio); };
        const auto check = [&](bool on) {
            box.setChecked(on);
            radio.setChecked(on);
        };
        for (Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            for (QAbstractButton *button : QVector<QAbstractButton *>{&box, &radio}) {
                button->setLayoutDirection(direction);
                button->resize(200, 30);
            }
            check(false);
            QCOMPARE(colors(), QStringLiteral("#ff0000#ff0000"));
            box.setCheckState(Qt::PartiallyChecked);
            QCOMPARE(indicatorColor(&box), QStringLiteral("#ffff00"));
            box.setTristate(false);
            check(true);
            QCOMPARE(colors(), QStringLiteral("#00ff00#00ff00"));
        }
        for (QAbstractButton *button : QVector<QAbstractButton *>{&box, &radio}) {
            QTest::mousePress(button, Qt::LeftButton, {}, QPoint(30, 15));
            QCOMPARE(indicatorColor(button), QStringLiteral("#ff00ff"));
            QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-9, -9));
            button->setEnabled(false);
            QCOMPARE(indicatorColor(button), QStringLiteral("#008000"));
            button->setEnabled(true);
        }

        QVERIFY(!box.setProperty("alarm", true) && !box.setProperty(nullptr, 1));
        box.setCheckBoxBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        radio.setRadioButtonBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        QCOMPARE(colors(), QStringLiteral("#800000#808080"));
        check(false);
        QCOMPARE(colors(), QStringLiteral("#ffffff#ffffff"));
        // The hidden buttons stay hidden.
        box.setProperty("visible", true);
        QCOMPARE(QGuiApplication::topLevelWindows().size(), 1);
    }

    void keyboardAndAccessibilityAreTheBases()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        CusCheckBox box(QStringLiteral("&Sound"));
        CusRadioButton first(QStringLiteral("Main")), second(QStringLiteral("Sub"));
        CusPushButton push;
        QVector<QAccessibleInterface *> faces;
        for (QAbstractButton *button : QVector<QAbstractButton *>{&box, &first, &second, &push}) {
            layout->addWidget(button);
            faces.append(QAccessible::queryAccessibleInterface(button));
        }
        QCOMPARE(faces.at(0)->role(), QAccessible::CheckBox);
        QCOMPARE(faces.at(1)->role(), QAccessible::RadioButton);
        QCOMPARE(faces.at(0)->text(QAccessible::Name), QStringLiteral("Sound"));
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy clicks(&push, &QPushButton::clicked);
        QSignalSpy checked(&second, &CusRadioButton::checked);
        first.setChecked(true);
        first.setFocus();
        QTest::keyClick(&box, Qt::Key_Space);
        QTest::keyClick(&first, Qt::Key_Down);
        QTest::keyClick(&second, Qt::Key_Up);
        QTest::keyClick(&push, Qt::Key_Space);
        QVERIFY(faces.at(0)->state().checked && first.isChecked() && first.hasFocus());
        QVERIFY(checked.count() == 1 && clicks.count() == 1);
    }

    void onlyTheIndicatorToggles()
    {
        const QPoint label(60, 20), drawn(8, 6), secondLine(60, 34), styles(8, 60);
        const struct
        {
            bool only, wrap, toggles;
            int labelClicks;
            QPoint place;
            Qt::MouseButton button = Qt::LeftButton;
        } rows[] = {
            {false, false, true, 0, label},     {false, false, false, 0, label, Qt::RightButton},
            {true, false, false, 1, label},     {true, false, false, 0, {500, 5}},
            {true, false, true, 0, {8, 20}},    {true, true, true, 0, drawn},
            {true, true, false, 1, secondLine}, {true, true, true, 0, styles},
            {false, true, true, 0, secondLine},
        };
        for (const auto &row : rows) {
            CusCheckBox box(kLong);
            box.setCheckOnlyIndicator(row.only);
            box.setCheckLabelWordWrap(row.wrap);
            box.resize(120, 40);
            box.grab();
            QSignalSpy clicks(&box, &CusCheckBox::signalLabelClicked);
            QMouseEvent press(QEvent::MouseButtonPress, row.place, row.button, row.button, {});
            QApplication::sendEvent(&box, &press);
            QTest::mouseRelease(&box, row.button, {}, row.place);
            QCOMPARE(press.isAccepted(), row.toggles);
            QCOMPARE(box.isChecked(), row.toggles);
            QCOMPARE(clicks.count(), row.labelClicks);
        }
        QPointer<CusCheckBox> box = new CusCheckBox(kLong);
        box->resize(300, 30);
        box->setCheckOnlyIndicator(true);
        connect(box, &CusCheckBox::signalLabelClicked, [&] { delete box; });
        QTest::mousePress(box, Qt::LeftButton, {}, QPoint(100, 15));
        QVERIFY(!box);
    }

    void wrappedLabelGivesTheHeight()
    {
        QWidget window;
        CusCheckBox box(kLong, &window);
        box.setChecked(true);
        box.setCheckLabelWordWrap(true);
        const int line = box.fontMetrics().lineSpacing();
        int lower = 0;
        for (int width : {600, 200, 100}) {
            box.resize(width, box.height());
            box.grab();
            QVERIFY(box.height() >= lower + line - 1);
            QCOMPARE(box.getCheckLabelHeight(), box.height());
            lower = box.height();
        }

        // Indicator and label light up together, and nothing else does.
        const auto hovered = [&](const QPoint &place) {
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(&box, &move);
            return TestKit::renderAt(&box).pixelColor(8, 10) == QColor(0x00ffff);
        };
        QVERIFY(hovered(QPoint(40, line)));
        QVERIFY(!hovered(QPoint(8, box.height() - 2)));
        QVERIFY(hovered(QPoint(8, 10)));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&box, &leave);
        box.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(TestKit::renderAt(&box).pixelColor(box.width() - 8, 10), QColor(0x00ff00));
        box.setCheckLabelWordWrap(false);
        QCOMPARE(box.maximumHeight(), QWIDGETSIZE_MAX);
    }

    void radioChecksInSilence()
    {
        CusRadioButton radio;
        QSignalSpy toggled(&radio, &QAbstractButton::toggled);
        radio.setCheckedNoSignal(true);
        QVERIFY(radio.isChecked() && !radio.signalsBlocked());
        QCOMPARE(toggled.count(), 0);
        radio.blockSignals(true);
        radio.setCheckedNoSignal(true);
        QVERIFY(radio.signalsBlocked());
    }

    void longPressIsReportedOnce()
    {
        CusPushButton button;
        button.setCheckable(true);
        button.setChecked(true);
        button.setEnableLongPress(true);
        button.setLongPressInternal(-5);
        button.show();
        QSignalSpy pressed(&button, &CusPushButton::signalBtnLongPressed);
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(pressed.wait() && !pressed.wait(20));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QTest::keyPress(&button, Qt::Key_Space);
        QVERIFY(pressed.wait());
        QTest::keyRelease(&button, Qt::Key_Space);
        QVERIFY(pressed.at(0).first().toBool() && !pressed.at(1).first().toBool());
        for (const bool hides : {false, true}) {
            QTest::mousePress(&button, Qt::LeftButton);
            hides ? button.hide() : QTest::mouseRelease(&button, Qt::LeftButton);
            QVERIFY(!pressed.wait(20));
        }
    }
};

QTEST_MAIN(TestCheckButtons)
#include "tst_checkbuttons.moc"
