#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusCheckBox>
#include <Vellum/CusPushButton>
#include <Vellum/CusRadioButton>
#include <Vellum/CusSvgPushButton>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

const QString kLong = QStringLiteral("Keep the recordings of alarms until they are exported");

/// The place of the indicator by the style, as a box of any class has it.
QRect indicatorOf(const QAbstractButton &button, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    return button.style()->subElementRect(element, &option, &button);
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
            "#btn_checkBoxChecked:hover, #btn_radioChecked:hover { background: #00ffff }"
            "#btn_checkBoxChecked:checked, #btn_radioChecked:checked { background: #000000 }"
            "#btn_checkBoxChecked:disabled, #btn_radioChecked:disabled { background: #008000 }"
            "CusSvgPushButton[alarm=\"true\"] { background: #800000 }"
            "#other { background: #ffffff }"));
    }

    void labelsThatDontFitAreElided_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("starts");
        for (const char *type : {"check", "radio", "push"}) {
            const QString name = QString::fromLatin1(type);
            QTest::addRow("%s, fits", type) << name << 900 << kLong << QStringList{kLong};
            QTest::addRow("%s, too long", type)
                << name << 160 << kLong << QStringList{QStringLiteral("Keep the")};
            QTest::addRow("%s, two lines", type)
                << name << 120 << QStringLiteral("Short\n") + kLong
                << QStringList{QStringLiteral("Short"), QStringLiteral("Keep")};
            QTest::addRow("%s, no room", type) << name << 0 << kLong << QStringList();
        }
    }
    void labelsThatDontFitAreElided()
    {
        QFETCH(QString, type);
        QFETCH(int, width);
        QFETCH(QString, text);
        QFETCH(QStringList, starts);
        std::unique_ptr<QAbstractButton> button;
        if (type == QLatin1String("check"))
            button = std::make_unique<CusCheckBox>();
        else if (type == QLatin1String("radio"))
            button = std::make_unique<CusRadioButton>();
        else
            button = std::make_unique<CusPushButton>();
        const bool fits = starts == QStringList{text};
        button->setText(text);
        button->resize(width, 40);
        const QStringList shown = textsOf(button.get());
        QCOMPARE(shown.size(), starts.size());
        for (int i = 0; i < starts.size(); ++i)
            QVERIFY2(shown.at(i).startsWith(starts.at(i)), qPrintable(shown.at(i)));
        if (width > 0)
            QCOMPARE(shown.last() == kLong, fits);
        if (width == 0)
            return;
        QCOMPARE(button->toolTip(), fits ? QString() : text);
        QCOMPARE(button->text(), text);

        // Only the text button takes its tip back.
        button->setText(QStringLiteral("Off"));
        textsOf(button.get());
        QCOMPARE(button->toolTip(), fits || type == QLatin1String("push") ? QString() : text);
    }

    void otherFixedWidthIsNotTheTexts()
    {
        CusPushButton button;
        button.setText(kLong);
        button.resize(button.fontMetrics().horizontalAdvance(kLong) + 60, 30);
        for (const auto &row : QVector<QPair<int, bool>>{
                 {0, true}, {50, true}, {200, false}, {std::numeric_limits<int>::min(), true}}) {
            button.setOtherFixedWidth(row.first);
            QCOMPARE(textsOf(&button) == QStringList{kLong}, row.second);
        }
        button.setOtherFixedWidth(std::numeric_limits<int>::max());
        button.grab();
        QCOMPARE(button.toolTip(), kLong);
    }

    void indicatorIsTheTwinOfTheState()
    {
        CusCheckBox box(QStringLiteral("Record"));
        CusRadioButton radio(QStringLiteral("Record"));
        radio.setAutoExclusive(false);
        const auto boxColor = [&] {
            const QRect rect = indicatorOf(box, QStyle::SE_CheckBoxIndicator);
            return TestKit::renderAt(&box).pixelColor(rect.center()).name();
        };
        const auto radioColor = [&] {
            const QRect rect = indicatorOf(radio, QStyle::SE_RadioButtonIndicator);
            return TestKit::renderAt(&radio).pixelColor(rect.center()).name();
        };
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            box.setLayoutDirection(direction);
            radio.setLayoutDirection(direction);
            for (QAbstractButton *button : QVector<QAbstractButton *>{&box, &radio}) {
                button->resize(200, 30);
                button->setChecked(false);
            }
            QCOMPARE(boxColor() + radioColor(), QStringLiteral("#ff0000#ff0000"));
            box.setChecked(true);
            radio.setChecked(true);
            QCOMPARE(boxColor() + radioColor(), QStringLiteral("#00ff00#00ff00"));
            box.setCheckState(Qt::PartiallyChecked);
            QCOMPARE(boxColor(), QStringLiteral("#ffff00"));
            box.setTristate(false);
        }
        box.setChecked(true);
        box.setEnabled(false);
        radio.setEnabled(false);
        QCOMPARE(boxColor() + radioColor(), QStringLiteral("#008000#008000"));
        box.setEnabled(true);
        radio.setEnabled(true);

        QVERIFY(!box.setProperty("alarm", true));
        QVERIFY(!radio.setProperty("alarm", true));
        QCOMPARE(boxColor() + radioColor(), QStringLiteral("#00ff00#00ff00"));
        box.setCheckBoxBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        radio.setRadioButtonBtnObjectName(QStringLiteral("plain"), QStringLiteral("other"));
        QCOMPARE(boxColor() + radioColor(), QStringLiteral("#800000#800000"));
        box.setProperty("alarm", false);
        QCOMPARE(boxColor() + radioColor(), QStringLiteral("#808080#800000"));
        box.setChecked(false);
        radio.setChecked(false);
        QCOMPARE(boxColor() + radioColor(), QStringLiteral("#ffffff#ffffff"));

        QVERIFY(box.setProperty("text", QStringLiteral("Other")));
        QCOMPARE(box.text(), QStringLiteral("Other"));
        box.setProperty(nullptr, 1);
        const int windows = QApplication::topLevelWidgets().size();
        box.setProperty("visible", true);
        radio.setProperty("visible", true);
        int visible = 0;
        for (const QWidget *widget : QApplication::topLevelWidgets())
            visible += widget->isVisible();
        QCOMPARE(visible, 2);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }

    void keyboardAndAccessibilityAreTheBases()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        CusCheckBox box(QStringLiteral("&Sound"));
        CusRadioButton first(QStringLiteral("First")), second(QStringLiteral("Second"));
        CusPushButton push;
        push.setText(QStringLiteral("Export"));
        const struct
        {
            QAbstractButton *button;
            QAccessible::Role role;
            QString name;
        } rows[] = {{&box, QAccessible::CheckBox, QStringLiteral("Sound")},
                    {&first, QAccessible::RadioButton, QStringLiteral("First")},
                    {&second, QAccessible::RadioButton, QStringLiteral("Second")},
                    {&push, QAccessible::Button, QStringLiteral("Export")}};
        for (const auto &row : rows) {
            layout->addWidget(row.button);
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(row.button);
            QCOMPARE(face->role(), row.role);
            QCOMPARE(face->text(QAccessible::Name), row.name);
            QCOMPARE(row.button->focusPolicy(), Qt::StrongFocus);
        }
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy clicks(&push, &QPushButton::clicked);
        QSignalSpy checked(&second, &CusRadioButton::checked);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(box.isChecked());
        QVERIFY(QAccessible::queryAccessibleInterface(&box)->state().checked);
        first.setChecked(true);
        first.setFocus();
        QTest::keyClick(&first, Qt::Key_Down);
        QVERIFY(second.isChecked());
        QVERIFY(second.hasFocus());
        QCOMPARE(checked.count(), 1);
        QTest::keyClick(&second, Qt::Key_Up);
        QCOMPARE(checked.count(), 1);
        QTest::keyClick(&push, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }

    void onlyTheIndicatorToggles_data()
    {
        QTest::addColumn<bool>("only");
        QTest::addColumn<bool>("wrap");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("toggles");
        QTest::addColumn<int>("labelClicks");
        const int left = Qt::LeftButton;
        const QPoint label(60, 20), indicator(8, 20), top(8, 6);
        QTest::newRow("label of a common box") << false << false << label << left << true << 0;
        QTest::newRow("label") << true << false << label << left << false << 1;
        QTest::newRow("indicator") << true << false << indicator << left << true << 0;
        QTest::newRow("other button")
            << true << false << label << int(Qt::RightButton) << false << 0;
        QTest::newRow("outside the box") << true << false << QPoint(500, 5) << left << false << 0;
        QTest::newRow("indicator at the first line") << true << true << top << left << true << 0;
        QTest::newRow("second line") << true << true << QPoint(60, 34) << left << false << 1;
        QTest::newRow("second line of a common box")
            << false << true << QPoint(60, 34) << left << true << 0;
    }
    void onlyTheIndicatorToggles()
    {
        QFETCH(bool, only);
        QFETCH(bool, wrap);
        QFETCH(QPoint, place);
        QFETCH(int, button);
        QFETCH(bool, toggles);
        QFETCH(int, labelClicks);
        CusCheckBox box(kLong);
        box.setCheckOnlyIndicator(only);
        box.setCheckLabelWordWrap(wrap);
        box.resize(120, 40);
        box.grab();
        QSignalSpy clicks(&box, &CusCheckBox::signalLabelClicked);
        QMouseEvent press(QEvent::MouseButtonPress, place, Qt::MouseButton(button),
                          Qt::MouseButton(button), Qt::NoModifier);
        QApplication::sendEvent(&box, &press);
        QCOMPARE(press.isAccepted(), toggles);
        QTest::mouseRelease(&box, Qt::MouseButton(button), Qt::NoModifier, place);
        QCOMPARE(box.isChecked(), toggles);
        QCOMPARE(clicks.count(), labelClicks);
    }

    void wrappedLabelGivesTheHeight()
    {
        QWidget window;
        auto *box = new CusCheckBox(kLong, &window);
        box->setChecked(true);
        box->setCheckLabelWordWrap(true);
        QCOMPARE(box->getCheckLabelHeight(), 0);
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
        const auto colorAfterMove = [box](const QPoint &place) {
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(box, &move);
            return TestKit::renderAt(box).pixelColor(8, 10).name();
        };
        const QString plain = QStringLiteral("#00ff00"), hovered = QStringLiteral("#00ffff");
        QCOMPARE(colorAfterMove(QPoint(40, line)), hovered);
        QCOMPARE(colorAfterMove(QPoint(8, box->height() - 2)), plain);
        QCOMPARE(colorAfterMove(QPoint(8, 10)), hovered);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(box, &leave);
        QCOMPARE(TestKit::renderAt(box).pixelColor(8, 10).name(), plain);

        box->setLayoutDirection(Qt::RightToLeft);
        const QImage mirrored = TestKit::renderAt(box);
        QCOMPARE(mirrored.pixelColor(box->width() - 8, 10).name(), plain);
        QVERIFY(TestKit::inkExtent(mirrored).right() >= box->width() - 16);
        QVERIFY(!textsOf(box).isEmpty());

        box->setText(QString());
        box->grab();
        QVERIFY(box->height() < 2 * line);
        box->setCheckLabelWordWrap(false);
        QCOMPARE(box->maximumHeight(), QWIDGETSIZE_MAX);
        box->setCheckLabelWordWrap(true);
        box->setText(QString(200000, QLatin1Char('\n')));
        box->grab();
        QCOMPARE(box->height(), box->getCheckLabelHeight());
    }

    void radioChecksInSilence()
    {
        CusRadioButton radio;
        QSignalSpy toggled(&radio, &QAbstractButton::toggled);
        QSignalSpy checked(&radio, &CusRadioButton::checked);
        radio.setAutoExclusive(false);
        for (bool blocked : {false, true}) {
            radio.blockSignals(blocked);
            for (bool on : {true, false}) {
                radio.setCheckedNoSignal(on);
                QCOMPARE(radio.isChecked(), on);
                QCOMPARE(radio.signalsBlocked(), blocked);
            }
        }
        QCOMPARE(toggled.count() + checked.count(), 0);
        radio.blockSignals(false);
        radio.setChecked(true);
        radio.setChecked(true);
        radio.setChecked(false);
        QCOMPARE(toggled.count(), 2);
        QCOMPARE(checked.count(), 1);
    }

    void longPressIsReportedOnce()
    {
        CusPushButton button;
        button.setCheckable(true);
        button.setChecked(true);
        QSignalSpy pressed(&button, &CusPushButton::signalBtnLongPressed);
        QCOMPARE(button.getLongPressInternal(), 300);
        button.setLongPressInternal(-5);
        QCOMPARE(button.getLongPressInternal(), 1);
        const auto wait = [] {
            bool done = false;
            QTimer::singleShot(30, Qt::PreciseTimer, qApp, [&] { done = true; });
            QTRY_VERIFY(done);
        };

        QTest::mousePress(&button, Qt::LeftButton);
        wait();
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pressed.count(), 0);
        button.setEnableLongPress(true);
        button.setChecked(true);
        QTest::mousePress(&button, Qt::LeftButton);
        QTRY_COMPARE(pressed.count(), 1);
        QCOMPARE(pressed.takeFirst().first().toBool(), true);
        wait();
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(button.isChecked(), false);
        QTest::keyPress(&button, Qt::Key_Space);
        QTRY_COMPARE(pressed.count(), 1);
        QTest::keyRelease(&button, Qt::Key_Space);
        QCOMPARE(pressed.takeFirst().first().toBool(), false);

        const QVector<std::function<void()>> ends{
            [&] { QTest::mouseRelease(&button, Qt::LeftButton); },
            [&] {
                QTest::mouseMove(&button, QPoint(-50, -50));
                button.setDown(false);
            },
            [&] { button.setEnableLongPress(false); },
            [&] { button.hide(); },
        };
        button.show();
        for (const auto &end : ends) {
            button.setEnableLongPress(true);
            QTest::mousePress(&button, Qt::LeftButton);
            end();
            wait();
            QTest::mouseRelease(&button, Qt::LeftButton);
        }
        QTest::mouseClick(&button, Qt::RightButton);
        wait();
        QCOMPARE(pressed.count(), 0);
    }

    void clientsMayDeleteInASignal()
    {
        QPointer<CusCheckBox> box = new CusCheckBox(kLong);
        box->resize(300, 30);
        box->setCheckOnlyIndicator(true);
        connect(box, &CusCheckBox::signalLabelClicked, [&] { delete box; });
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, QPoint(100, 15));
        QVERIFY(!box);

        for (bool longPress : {false, true}) {
            QPointer<CusPushButton> push = new CusPushButton;
            push->setEnableLongPress(true);
            push->setLongPressInternal(1);
            if (longPress)
                connect(push, &CusPushButton::signalBtnLongPressed, [&] { delete push; });
            else
                connect(push, &QPushButton::pressed, [&] { delete push; });
            QTest::mousePress(push, Qt::LeftButton);
            QTRY_VERIFY(!push);
        }
    }
};

QTEST_MAIN(TestCheckButtons)
#include "tst_checkbuttons.moc"
