#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"

#include <Vellum/CusClickTipButton>
#include <Vellum/CusColorConfig>
#include <Vellum/CusPushButtonNum>
#include <Vellum/CusRotateBtn>
#include <Vellum/CusSvgAction>
#include <Vellum/CusSvgPushButton>
#include <Vellum/DelayButton>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

constexpr int kNever = 60000;

void waitFor(int milliseconds)
{
    bool done = false;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, [&] { done = true; });
    QTRY_VERIFY(done);
}

} // namespace

class TestDerivedButtons : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // There is no colour file here, which is told once.
        CusColorConfig::instance()->setConfig({});
    }

    void badgeHasItsShapeAndText()
    {
        using N = CusPushButtonNum;
        const int huge = std::numeric_limits<int>::max();
        const QSize plain(20, 20);
        const struct
        {
            N::SmallAreaType type;
            QSize size;
            bool middlePainted, cornerPainted;
        } rows[] = {
            {N::AREA_TYPE_CIRCLE, plain, true, false},
            {N::AREA_TYPE_RECT, plain, true, true},
            {N::AREA_TYPE_ANGLE, plain, false, false},
            {N::SmallAreaType(-7), plain, false, false},
            {N::AREA_TYPE_RECT, {0, 0}, false, false},
            {N::AREA_TYPE_CIRCLE, {-20, -20}, false, false},
            {N::AREA_TYPE_RECT, {huge, 20}, true, true},
            {N::AREA_TYPE_CIRCLE, {huge, huge}, false, false},
        };
        for (const auto &row : rows) {
            N button;
            button.resize(80, 60);
            button.setStyleSheet(QStringLiteral("* { background: #ffffff; border: none }"));
            button.setSmallBGColor(Qt::red);
            button.setTextColor(Qt::blue);
            button.setSmallPos(QPoint(40, 10));
            button.setSmallSize(row.size);
            button.setSmallAreaType(row.type);
            button.setShowText(QStringLiteral("12"));
            QCOMPARE(TestKit::inkExtent(TestKit::renderAt(&button), Qt::white), QRect());
            button.setSmallVisible(true);
            const QImage image = TestKit::renderAt(&button);
            QCOMPARE(image.pixelColor(50, 20) == QColor(Qt::red), row.middlePainted);
            QCOMPARE(image.pixelColor(41, 11) == QColor(Qt::red), row.cornerPainted);

            button.setShowTextVisible(true);
            // From sizes that can be drawn to some that can't.
            for (int points : {0, 9, 30, -1, huge}) {
                button.setFontSize(points);
                const auto draw = [&](QPaintDevice *device) { button.render(device); };
                const QStringList texts = TestKit::drawnTexts(draw, Qt::blue);
                if (row.size == plain && points == 9)
                    QCOMPARE(texts, QStringList{QStringLiteral("12")});
            }
        }
    }

    void rotationTurnsTheButtonAboutItsMiddle()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
                   "<rect width=\"8\" height=\"16\" fill=\"#ff0000\"/></svg>");
        file.close();
        CusRotateBtn button;
        button.resize(40, 40);
        button.setStyleSheet(QStringLiteral("* { background: transparent; border: none }"));
        button.setSvgBGImage(file.fileName());
        const auto ink = [&](int angle) {
            button.setAngle(angle);
            return TestKit::extentOf(TestKit::renderAt(&button), Qt::red);
        };
        QCOMPARE(ink(0), QRect(12, 12, 8, 16));
        QCOMPARE(ink(90), QRect(12, 12, 16, 8));
        QCOMPARE(ink(-180), QRect(20, 12, 8, 16));
        button.setEnablePaintSvgBtn(false);
        QCOMPARE(ink(0), QRect());
    }

    void pressStartsARunButNeverRestartsOne()
    {
        CusRotateBtn button;
        // A run begins by setting the angle to 0.
        const auto pressRuns = [&] {
            button.setAngle(45);
            QTest::mousePress(&button, Qt::LeftButton);
            return button.getAngle() == 0;
        };
        button.setEnableClickRotate(false);
        QVERIFY(!pressRuns());
        // The longest run overflows nothing.
        button.setRotateCount(std::numeric_limits<int>::max());
        button.startRotate();
        QCOMPARE(button.getAngle(), 0);
        QTRY_VERIFY(button.getAngle() > 0);
        button.stopRotate();
        button.setEnableClickRotate(true);
        using Run = QPair<int, int>;
        for (const auto &[count, interval] :
             {Run(3, 0), Run(3, -1000), Run(0, 1000), Run(-1, kNever), Run(-9, kNever)}) {
            button.stopRotate();
            button.setRotateCount(count);
            button.setRotateInterval(interval);
            QCOMPARE(pressRuns(), interval == kNever);
        }
        // The last run is still under way.
        QVERIFY(!pressRuns());
        button.startRotate();
        QCOMPARE(button.getAngle(), 0);
    }

    void hiddenRotationPaintsNothing()
    {
        QWidget window;
        CusRotateBtn button(&window);
        button.setRotateCount(-1);
        button.setRotateInterval(100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        PaintCounter shownPaints(&button);
        button.startRotate();
        QTRY_VERIFY(shownPaints.count() > 2);
        button.hide();
        QCoreApplication::processEvents();
        PaintCounter paints(&button);
        PaintCounter windowPaints(&window);
        QSignalSpy angles(&button, &CusRotateBtn::signalAngleChanged);
        QTRY_VERIFY(angles.count() > 3);
        QCOMPARE(paints.count() + windowPaints.count(), 0);
    }

    void tapEndsAfterTheDelayAndLongPressAtOnce()
    {
        DelayButton button;
        QSignalSpy released(&button, &DelayButton::signalDelayReleased);
        button.setPressedTime(kNever);
        for (int time : {5, 0, -5})
            button.setDelayTime(time);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(released.count(), 0);
        QTRY_COMPARE(released.count(), 1);

        // A second press cancels what is due for the first.
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::mousePress(&button, Qt::LeftButton);
        waitFor(30);
        QCOMPARE(released.count(), 1);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QTRY_COMPARE(released.count(), 2);

        button.setDelayTime(kNever);
        for (int time : {1, 0, -1})
            button.setPressedTime(time);
        QTest::mousePress(&button, Qt::LeftButton);
        waitFor(30);
        QCOMPARE(released.count(), 2);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(released.count(), 3);
    }

    void clickAsksForTheTip()
    {
        struct : CusClickTipButton
        {
            QVector<QPoint> tips;

            bool event(QEvent *event) override
            {
                if (event->type() == QEvent::ToolTip)
                    tips.append(static_cast<QHelpEvent *>(event)->pos());
                return CusClickTipButton::event(event);
            }
        } button;
        QCOMPARE(button.objectName(), QStringLiteral("CusClickTipButton"));
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(7, 9));
        QVERIFY(button.tips.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(button.tips, QVector<QPoint>{QPoint(7, 9)});
    }

    void buttonsMayDieInTheirOwnSignals()
    {
        for (bool onPress : {true, false}) {
            const QVector<QPushButton *> buttons{new CusSvgPushButton, new CusClickTipButton,
                                                 new CusRotateBtn, new DelayButton};
            for (const QPointer<QPushButton> button : buttons) {
                const auto die = [&] { delete button; };
                if (onPress)
                    connect(button, &QPushButton::pressed, this, die);
                else
                    connect(button, &QPushButton::clicked, this, die);
                QTest::mousePress(button.data(), Qt::LeftButton);
                if (button)
                    QTest::mouseRelease(button.data(), Qt::LeftButton);
                QVERIFY(!button);
            }
        }

        // A run tells of its first angle within the press, and of the later ones from the event
        // loop.
        for (int angle : {45, 0}) {
            QPointer<CusRotateBtn> turned = new CusRotateBtn;
            turned->setAngle(angle);
            connect(turned, &CusRotateBtn::signalAngleChanged, this, [&] { delete turned; });
            QTest::mousePress(turned.data(), Qt::LeftButton);
            QTRY_VERIFY(!turned);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }

        QPointer<DelayButton> delayed = new DelayButton;
        connect(delayed, &DelayButton::signalDelayReleased, this, [&] { delete delayed; });
        delayed->setDelayTime(1);
        QTest::mouseClick(delayed.data(), Qt::LeftButton);
        QTRY_VERIFY(!delayed);
    }

    void actionOwnsAButtonThatTheSheetFindsByName()
    {
        qApp->setStyleSheet(QStringLiteral("#first { qproperty-svgIconImage: url(first.svg) }"
                                           "#second { qproperty-svgIconImage: url(second.svg) }"));
        QWidget parent;
        auto *action =
            new CusSvgAction(QStringLiteral("first"), QStringLiteral("Play back"), &parent);
        const QPointer<CusSvgPushButton> button = action->getSvgActionBtn();
        QVERIFY(button->isHidden() && !button->parent());
        button->ensurePolished();
        QCOMPARE(button->iconImage(), QStringLiteral("first.svg"));
        action->setSvgActionObjName(QStringLiteral("second"));
        QCOMPARE(button->iconImage(), QStringLiteral("second.svg"));
        delete action;
        QVERIFY(!button);

        CusSvgAction robbed(QStringLiteral("first"), QString(), nullptr);
        delete robbed.getSvgActionBtn();
        robbed.setSvgActionObjName(QStringLiteral("second"));
        QVERIFY(!robbed.getSvgActionBtn());
        qApp->setStyleSheet({});
    }
};

QTEST_MAIN(TestDerivedButtons)
#include "tst_derivedbuttons.moc"
