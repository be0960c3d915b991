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
    QStyleOptionButton option;
    option.initFrom(button);
    const bool radio = qobject_cast<QRadioButton *>(button);
    const QRect rect = button->style()->subElementRect(
        radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button);
    return TestKit::renderAt(button).pixelColor(rect.center()).name();
}

QStringList textsOf(QWidget *widget)
{
    return TestKit::drawnTexts([&](QPaintDevice *device) { widget->render(device); }, Qt::blue);
}

void waitFor(int milliseconds)
{
    bool done = false;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, [&] { done = true; });
    QTRY_VERIFY(done);
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
        for (QAbstractButton *button : QVector<QAbstractButton *>{&check, &radio, &push}) {
            button->setText(kLong);
            button->resize(900, 40);
            QCOMPARE(textsOf(button), QStringList{kLong});
            QCOMPARE(button->toolTip(), QString());
            const QString text = QStringLiteral("Short\n") + kLong;
            button->setText(text);
            button->resize(160, 40);
            const QStringList shown = textsOf(button);
            QCOMPARE(shown.size(), 2);
            QVERIFY(shown.at(1).endsWith(QChar(0x2026))
                    && kLong.startsWith(shown.at(1).chopped(1)));
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
        const auto each = [&](const std::function<void(QAbstractButton *)> &change) {
            change(&box);
            change(&radio);
        };
        for (Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            each([&](QAbstractButton *button) {
                button->setLayoutDirection(direction);
                button->resize(200, 30);
                button->setChecked(false);
            });
            QCOMPARE(colors(), QStringLiteral("#ff0000#ff0000"));
            box.setCheckState(Qt::PartiallyChecked);
            QCOMPARE(indicatorColor(&box), QStringLiteral("#ffff00"));
            box.setTristate(false);
            each([](QAbstractButton *button) { button->setChecked(true); });
            QCOMPARE(colors(), QStringLiteral("#00ff00#00ff00"));
        }
        each([](QAbstractButton *button) {
            QTest::mousePress(button, Qt::LeftButton, {}, QPoint(30, 15));
        });
        QCOMPARE(colors(), QStringLiteral("#ff00ff#ff00ff"));
        each([](QAbstractButton *button) {
            QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(-9, -9));
            button->setEnabled(false);
        });
        QCOMPARE(colors(), QStringLiteral("#008000#008000"));
        each([](QAbstractButton *button) { button->setEnabled(true); });

        QVERIFY(!box.setProperty("alarm", true) && !box.setProperty(nullptr, 1));
        box.setCheckBoxBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        radio.setRadioButtonBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        QCOMPARE(colors(), QStringLiteral("#800000#808080"));
        box.setProperty("alarm", false);
        each([](QAbstractButton *button) { button->setChecked(false); });
        QCOMPARE(colors(), QStringLiteral("#ffffff#ffffff"));
        // The hidden buttons stay hidden.
        box.setProperty("visible", true);
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows)
            QCOMPARE(window->isVisible(), window == &box);
    }

    void keyboardAndAccessibilityAreTheBases()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        CusCheckBox box(QStringLiteral("&Sound"));
        CusRadioButton first(QStringLiteral("Main")), second(QStringLiteral("Sub"));
        CusPushButton push;
        for (QAbstractButton *button : QVector<QAbstractButton *>{&box, &first, &second, &push})
            layout->addWidget(button);
        const auto face = [](QWidget *widget) {
            return QAccessible::queryAccessibleInterface(widget);
        };
        QCOMPARE(face(&box)->role(), QAccessible::CheckBox);
        QCOMPARE(face(&first)->role(), QAccessible::RadioButton);
        QCOMPARE(face(&push)->role(), QAccessible::Button);
        QCOMPARE(face(&box)->text(QAccessible::Name), QStringLiteral("Sound"));
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy clicks(&push, &QPushButton::clicked);
        QSignalSpy checked(&second, &CusRadioButton::checked);
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(face(&box)->state().checked);
        first.setChecked(true);
        first.setFocus();
        QTest::keyClick(&first, Qt::Key_Down);
        QVERIFY(second.isChecked() && second.hasFocus());
        QTest::keyClick(&second, Qt::Key_Up);
        QCOMPARE(checked.count(), 1);
        QTest::keyClick(&push, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }

    void onlyTheIndicatorToggles()
    {
        const QPoint label(60, 20), firstLine(8, 6), secondLine(60, 34);
        const struct
        {
            bool only, wrap;
            QPoint place;
            Qt::MouseButton button;
            bool toggles;
            int labelClicks;
        } rows[] = {
            {false, false, label, Qt::LeftButton, true, 0},
            {false, false, label, Qt::RightButton, false, 0},
            {true, false, label, Qt::LeftButton, false, 1},
            {true, false, label, Qt::RightButton, false, 0},
            {true, false, QPoint(8, 20), Qt::LeftButton, true, 0},
            {true, false, QPoint(500, 5), Qt::LeftButton, false, 0},
            {true, true, firstLine, Qt::LeftButton, true, 0},
            {true, true, secondLine, Qt::LeftButton, false, 1},
            {false, true, secondLine, Qt::LeftButton, true, 0},
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
            QTest::mouseRelease(&box, row.button, Qt::NoModifier, row.place);
            QCOMPARE(press.isAccepted(), row.toggles);
            QCOMPARE(box.isChecked(), row.toggles);
            QCOMPARE(clicks.count(), row.labelClicks);
        }
    }

    void wrappedLabelGivesTheHeight()
    {
        QWidget window;
        auto *box = new CusCheckBox(kLong, &window);
        box->setChecked(true);
        box->setCheckLabelWordWrap(true);
        const int line = box->fontMetrics().lineSpacing();
        int lower = 0;
        for (int width : {600, 200, 100}) {
            box->resize(width, box->height());
            box->grab();
            QVERIFY2(box->height() >= lower + line - 1, qPrintable(QString::number(width)));
            QCOMPARE(box->getCheckLabelHeight(), box->height());
            lower = box->height();
        }
        QVERIFY(box->toolTip().isEmpty());

        // Indicator and label light up together, and nothing else does.
        const auto hovered = [&](const QPoint &place) {
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(box, &move);
            return TestKit::renderAt(box).pixelColor(8, 10) == QColor(0x00ffff);
        };
        QVERIFY(hovered(QPoint(40, line)));
        QVERIFY(!hovered(QPoint(8, box->height() - 2)));
        QVERIFY(hovered(QPoint(8, 10)));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(box, &leave);
        box->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(TestKit::renderAt(box).pixelColor(box->width() - 8, 10), QColor(0x00ff00));
        box->setCheckLabelWordWrap(false);
        QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
    }

    void radioChecksInSilence()
    {
        CusRadioButton radio;
        radio.setAutoExclusive(false);
        QSignalSpy toggled(&radio, &QAbstractButton::toggled);
        for (bool blocked : {true, false}) {
            radio.blockSignals(blocked);
            radio.setCheckedNoSignal(!radio.isChecked());
            QCOMPARE(radio.isChecked(), blocked);
            QCOMPARE(radio.signalsBlocked(), blocked);
        }
        QCOMPARE(toggled.count(), 0);
    }

    void longPressIsReportedOnce()
    {
        CusPushButton button;
        button.setCheckable(true);
        button.setChecked(true);
        button.setEnableLongPress(true);
        button.setLongPressInternal(-5);
        QCOMPARE(button.getLongPressInternal(), 1);
        QSignalSpy pressed(&button, &CusPushButton::signalBtnLongPressed);
        QTest::mousePress(&button, Qt::LeftButton);
        QTRY_COMPARE(pressed.count(), 1);
        waitFor(20);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QTest::keyPress(&button, Qt::Key_Space);
        QTRY_COMPARE(pressed.count(), 2);
        QTest::keyRelease(&button, Qt::Key_Space);
        QCOMPARE(pressed.at(0).first().toBool(), true);
        QCOMPARE(pressed.at(1).first().toBool(), false);

        button.show();
        for (const bool hides : {true, false}) {
            QTest::mousePress(&button, Qt::LeftButton);
            if (hides)
                button.hide();
            else
                QTest::mouseRelease(&button, Qt::LeftButton);
            waitFor(20);
        }
        QCOMPARE(pressed.count(), 2);
    }

    void clientsMayDeleteInASignal()
    {
        QPointer<CusCheckBox> box = new CusCheckBox(kLong);
        box->resize(300, 30);
        box->setCheckOnlyIndicator(true);
        connect(box, &CusCheckBox::signalLabelClicked, [&] { delete box; });
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, QPoint(100, 15));
        QVERIFY(!box);
    }
};

QTEST_MAIN(TestCheckButtons)
#include "tst_checkbuttons.moc"
