#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"
#include "support/textrecorder.h"

#include <Vellum/CusClickTipButton>
#include <Vellum/CusColorConfig>
#include <Vellum/CusPushButtonNum>
#include <Vellum/CusRotateBtn>
#include <Vellum/CusSvgAction>
#include <Vellum/CusSvgPushButton>
#include <Vellum/DelayButton>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <limits>

namespace {

constexpr int kNever = 60000;

/// Keeps the places of the tool tips that a widget is asked for.
class TipRequests : public QObject
{
public:
    QVector<QPoint> places;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ToolTip)
            places.append(static_cast<QHelpEvent *>(event)->pos());
        return false;
    }
};

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
    void initTestCase();
    void badgeHasItsShapeAndText_data();
    void badgeHasItsShapeAndText();
    void changedBadgeIsRepainted();
    void rotationTurnsTheButtonAboutItsMiddle();
    void pressStartsARunButNeverRestartsOne();
    void nothingToRun();
    void hiddenRotationPaintsNothing();
    void tapEndsAfterTheDelay();
    void longPressEndsWithTheRelease();
    void clickAsksForTheTip();
    void buttonsMayDieInTheirOwnSignals();
    void actionOwnsAButtonThatTheSheetFindsByName();
};

void TestDerivedButtons::initTestCase()
{
    // There is no colour file here, which is told once.
    CusColorConfig::instance()->setConfig({});
}

void TestDerivedButtons::badgeHasItsShapeAndText_data()
{
    QTest::addColumn<CusPushButtonNum::SmallAreaType>("type");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("middlePainted");
    QTest::addColumn<bool>("cornerPainted");
    const QSize size(20, 20);
    QTest::newRow("circle") << CusPushButtonNum::AREA_TYPE_CIRCLE << size << true << false;
    QTest::newRow("rectangle") << CusPushButtonNum::AREA_TYPE_RECT << size << true << true;
    QTest::newRow("angle has no shape")
        << CusPushButtonNum::AREA_TYPE_ANGLE << size << false << false;
    QTest::newRow("empty size") << CusPushButtonNum::AREA_TYPE_RECT << QSize(0, 0) << false
                                << false;
    QTest::newRow("negative size")
        << CusPushButtonNum::AREA_TYPE_CIRCLE << QSize(-20, -20) << false << false;
    const int huge = std::numeric_limits<int>::max();
    QTest::newRow("huge rectangle")
        << CusPushButtonNum::AREA_TYPE_RECT << QSize(huge, 20) << true << true;
    QTest::newRow("huge circle") << CusPushButtonNum::AREA_TYPE_CIRCLE << QSize(huge, huge) << false
                                 << false;
    QTest::newRow("no such shape") << CusPushButtonNum::SmallAreaType(-7) << size << false << false;
}

void TestDerivedButtons::badgeHasItsShapeAndText()
{
    QFETCH(CusPushButtonNum::SmallAreaType, type);
    QFETCH(QSize, size);
    QFETCH(bool, middlePainted);
    QFETCH(bool, cornerPainted);
    CusPushButtonNum button;
    button.resize(80, 60);
    button.setStyleSheet(QStringLiteral("* { background: #ffffff; border: none }"));
    button.setSmallBGColor(Qt::red);
    button.setTextColor(Qt::blue);
    button.setSmallPos(QPoint(40, 10));
    button.setSmallSize(size);
    button.setSmallAreaType(type);
    button.setShowText(QStringLiteral("12"));
    button.setFontSize(0);
    QCOMPARE(TestKit::inkExtent(TestKit::renderAt(&button), Qt::white), QRect());

    button.setSmallVisible(true);
    QImage image = TestKit::renderAt(&button);
    QCOMPARE(image.pixelColor(50, 20) == QColor(Qt::red), middlePainted);
    QCOMPARE(image.pixelColor(41, 11) == QColor(Qt::red), cornerPainted);
    button.setShowTextVisible(true);
    if (size == QSize(20, 20)) {
        TextRecorder recorder;
        button.render(&recorder);
        QCOMPARE(recorder.texts.size(), 1);
        QCOMPARE(recorder.texts.constFirst().text, QStringLiteral("12"));
        QCOMPARE(recorder.texts.constFirst().color, QColor(Qt::blue));
    }
    // From a size that can be drawn to one that can't.
    for (int points : {30, -1, std::numeric_limits<int>::max()}) {
        button.setFontSize(points);
        TestKit::renderAt(&button);
    }
}

void TestDerivedButtons::changedBadgeIsRepainted()
{
    CusPushButtonNum button;
    button.setSmallVisible(true);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QCoreApplication::processEvents();
    PaintCounter paints(&button);
    button.setShowText(QStringLiteral("3"));
    QTRY_COMPARE(paints.count(), 1);
}

void TestDerivedButtons::rotationTurnsTheButtonAboutItsMiddle()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("half.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
               "<rect width=\"8\" height=\"16\" fill=\"#ff0000\"/></svg>");
    file.close();
    CusRotateBtn button;
    button.resize(40, 40);
    button.setStyleSheet(QStringLiteral("* { background: transparent; border: none }"));
    button.setSvgBGImage(file.fileName());
    const auto ink = [&] { return TestKit::extentOf(TestKit::renderAt(&button), Qt::red); };
    QCOMPARE(ink(), QRect(12, 12, 8, 16));
    button.setAngle(90);
    QCOMPARE(ink(), QRect(12, 12, 16, 8));
    button.setAngle(-180);
    QCOMPARE(ink(), QRect(20, 12, 8, 16));
    button.setEnablePaintSvgBtn(false);
    QCOMPARE(ink(), QRect());
}

void TestDerivedButtons::pressStartsARunButNeverRestartsOne()
{
    CusRotateBtn button;
    QSignalSpy angles(&button, &CusRotateBtn::signalAngleChanged);
    QCOMPARE(button.getRotateAngle(), 360);
    QCOMPARE(button.getRotateCount(), 3);
    QCOMPARE(button.getRotateInterval(), 1000);
    button.setEnableClickRotate(false);
    button.setAngle(45);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(button.getAngle(), 45);

    // A run begins by setting the angle to 0.
    button.startRotate();
    QCOMPARE(button.getAngle(), 0);
    QTRY_VERIFY(button.getAngle() > 0);
    QVERIFY(angles.count() > 2);
    button.stopRotate();
    button.setEnableClickRotate(true);
    button.setRotateInterval(kNever);
    button.setAngle(45);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(button.getAngle(), 0);
    button.setAngle(45);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(button.getAngle(), 45);
    button.startRotate();
    QCOMPARE(button.getAngle(), 0);
}

void TestDerivedButtons::nothingToRun()
{
    struct Run
    {
        int interval;
        int count;
        bool runs;
    };
    for (const Run &run : {Run{0, 3, false}, Run{-1000, 3, false}, Run{1000, 0, false},
                           Run{1000, -1, true}, Run{1000, -9, true}}) {
        CusRotateBtn button;
        button.setRotateInterval(run.interval);
        button.setRotateCount(run.count);
        button.setAngle(45);
        button.startRotate();
        QCOMPARE(button.getAngle() == 0, run.runs);
    }
}

void TestDerivedButtons::hiddenRotationPaintsNothing()
{
    QWidget window;
    CusRotateBtn button(&window);
    button.setRotateCount(-1);
    button.setRotateInterval(100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PaintCounter paints(&button);
    PaintCounter windowPaints(&window);
    button.startRotate();
    QTRY_VERIFY(paints.count() > 2);
    button.hide();
    QCoreApplication::processEvents();
    paints.reset();
    windowPaints.reset();
    QSignalSpy angles(&button, &CusRotateBtn::signalAngleChanged);
    QTRY_VERIFY(angles.count() > 3);
    QCOMPARE(paints.count() + windowPaints.count(), 0);
}

void TestDerivedButtons::tapEndsAfterTheDelay()
{
    DelayButton button;
    QSignalSpy released(&button, &DelayButton::signalDelayReleased);
    button.setPressedTime(kNever);
    button.setDelayTime(5);
    button.setDelayTime(0);
    button.setDelayTime(-5);
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
    waitFor(30);
    QCOMPARE(released.count(), 2);
}

void TestDerivedButtons::longPressEndsWithTheRelease()
{
    DelayButton button;
    QSignalSpy released(&button, &DelayButton::signalDelayReleased);
    button.setDelayTime(kNever);
    button.setPressedTime(1);
    button.setPressedTime(-1);
    QTest::mousePress(&button, Qt::LeftButton);
    waitFor(10);
    QCOMPARE(released.count(), 0);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(released.count(), 1);
}

void TestDerivedButtons::clickAsksForTheTip()
{
    CusClickTipButton button;
    QCOMPARE(button.objectName(), QStringLiteral("CusClickTipButton"));
    TipRequests tips;
    button.installEventFilter(&tips);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(7, 9));
    QVERIFY(tips.places.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(tips.places, QVector<QPoint>{QPoint(7, 9)});
}

void TestDerivedButtons::buttonsMayDieInTheirOwnSignals()
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

    // A run tells of its first angle within the press, and of the later ones from the event loop.
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

void TestDerivedButtons::actionOwnsAButtonThatTheSheetFindsByName()
{
    qApp->setStyleSheet(QStringLiteral("#first { qproperty-svgIconImage: url(first.svg) }"
                                       "#second { qproperty-svgIconImage: url(second.svg) }"));
    QWidget parent;
    auto *action = new CusSvgAction(QStringLiteral("first"), QStringLiteral("Play back"), &parent);
    const QPointer<CusSvgPushButton> button = action->getSvgActionBtn();
    QCOMPARE(action->text(), QStringLiteral("Play back"));
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

QTEST_MAIN(TestDerivedButtons)
#include "tst_derivedbuttons.moc"
