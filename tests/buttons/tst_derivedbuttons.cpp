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

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>
#include <QtTest>

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
    void initTestCase();
    void badgeHasItsShapeAndText_data();
    void badgeHasItsShapeAndText();
    void rotationTurnsTheButtonAboutItsMiddle();
    void pressStartsARunButNeverRestartsOne();
    void nothingToRun();
    void hiddenRotationPaintsNothing();
    void tapEndsAfterTheDelay();
    void longPressEndsWithTheRelease();
    void secondPressCancelsTheFirstTap();
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
    QTest::addColumn<int>("paintedPlaces"); // of middle and corner
    const int huge = std::numeric_limits<int>::max();
    QTest::newRow("circle") << CusPushButtonNum::AREA_TYPE_CIRCLE << QSize(20, 20) << 1;
    QTest::newRow("rectangle") << CusPushButtonNum::AREA_TYPE_RECT << QSize(20, 20) << 2;
    QTest::newRow("angle") << CusPushButtonNum::AREA_TYPE_ANGLE << QSize(20, 20) << 0;
    QTest::newRow("no size") << CusPushButtonNum::AREA_TYPE_RECT << QSize(0, 0) << 0;
    QTest::newRow("negative") << CusPushButtonNum::AREA_TYPE_CIRCLE << QSize(-20, -20) << 0;
    QTest::newRow("huge") << CusPushButtonNum::AREA_TYPE_RECT << QSize(huge, 20) << 2;
}

void TestDerivedButtons::badgeHasItsShapeAndText()
{
    QFETCH(CusPushButtonNum::SmallAreaType, type);
    QFETCH(QSize, size);
    QFETCH(int, paintedPlaces);
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
    const QImage image = TestKit::renderAt(&button);
    const QColor corner = image.pixelColor(41, 11);
    QCOMPARE(int(image.pixelColor(50, 20) == QColor(Qt::red)) + int(corner == QColor(Qt::red)),
             paintedPlaces);
    button.setShowTextVisible(true);
    if (size == QSize(20, 20))
        QVERIFY(TestKit::countOf(TestKit::renderAt(&button), Qt::blue, 60) > 4);
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
    button.setDelayTime(1);
    button.setDelayTime(0);
    button.setDelayTime(-5);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(released.count(), 0);
    QTRY_COMPARE(released.count(), 1);
    waitFor(5);
    QCOMPARE(released.count(), 1);
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

void TestDerivedButtons::secondPressCancelsTheFirstTap()
{
    DelayButton button;
    QSignalSpy released(&button, &DelayButton::signalDelayReleased);
    button.setPressedTime(kNever);
    button.setDelayTime(5);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mousePress(&button, Qt::LeftButton);
    waitFor(30);
    QCOMPARE(released.count(), 0);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QTRY_COMPARE(released.count(), 1);
}

void TestDerivedButtons::clickAsksForTheTip()
{
    CusClickTipButton button;
    QCOMPARE(button.objectName(), QStringLiteral("CusClickTipButton"));
    button.setToolTip(QStringLiteral("The camera's name"));
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(QToolTip::text(), QString());
    QTRY_COMPARE(QToolTip::text(), button.toolTip());
    QToolTip::hideText();
}

void TestDerivedButtons::buttonsMayDieInTheirOwnSignals()
{
    const QVector<QPushButton *> buttons{new CusClickTipButton, new CusRotateBtn, new DelayButton};
    for (const QPointer<QPushButton> button : buttons) {
        connect(button, &QPushButton::released, this, [&] { delete button; });
        QTest::mouseClick(button.data(), Qt::LeftButton);
        QVERIFY(!button);
    }
    QPointer<DelayButton> pressed = new DelayButton;
    connect(pressed, &QPushButton::pressed, this, [&] { delete pressed; });
    QTest::mousePress(pressed.data(), Qt::LeftButton);
    QVERIFY(!pressed);

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
