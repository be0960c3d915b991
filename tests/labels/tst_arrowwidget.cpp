#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AngleWidgte>
#include <Vellum/CusColorConfig>

#include <QJsonObject>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

class TestArrowWidget : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawsAndPlacesTheArrowOnItsEdge_data();
    void drawsAndPlacesTheArrowOnItsEdge();
    void limitsKeepTheTipOnItsPoint();
    void sizeLimitsReachTheCentre();
    void centreIsReplaced();
    void hostileMeasuresAreHarmless();
    void textFrameFitsItsText();
};

namespace {

void dress(ArrowWidget *frame)
{
    frame->setBorderColor(Qt::red);
    frame->setBGColor(Qt::blue);
    frame->setBorderWidth(2);
    frame->resize(120, 80);
}

} // namespace

void TestArrowWidget::initTestCase()
{
    CusColorConfig::instance()->setConfig({});
}

void TestArrowWidget::drawsAndPlacesTheArrowOnItsEdge_data()
{
    QTest::addColumn<ArrowWidget::ArrowType>("type");
    QTest::addColumn<QRect>("body");
    QTest::addColumn<QPoint>("inArrow");
    QTest::addColumn<QPoint>("besideArrow");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("bottom") << ArrowWidget::Arrow_Bottom << QRect(0, 0, 120, 60) << QPoint(60, 72)
                            << QPoint(20, 72) << QPoint(440, 420);
    QTest::newRow("top") << ArrowWidget::Arrow_Top << QRect(0, 20, 120, 60) << QPoint(60, 8)
                         << QPoint(20, 8) << QPoint(440, 500);
    QTest::newRow("left") << ArrowWidget::Arrow_Left << QRect(20, 0, 100, 80) << QPoint(8, 40)
                          << QPoint(8, 4) << QPoint(500, 460);
    QTest::newRow("right") << ArrowWidget::Arrow_Right << QRect(0, 0, 100, 80) << QPoint(112, 40)
                           << QPoint(112, 4) << QPoint(380, 460);
}

void TestArrowWidget::drawsAndPlacesTheArrowOnItsEdge()
{
    QFETCH(ArrowWidget::ArrowType, type);
    QFETCH(QRect, body);
    QFETCH(QPoint, inArrow);
    QFETCH(QPoint, besideArrow);
    ArrowWidget frame(type);
    dress(&frame);
    frame.setAngleHeight(20);
    QImage image = TestKit::renderAt(&frame, 2);
    QCOMPARE(image.pixelColor(besideArrow * 2), TestKit::unpainted);
    QCOMPARE(image.pixelColor(QPoint(body.left(), body.top() + 10) * 2), QColor(Qt::red));
    // No line of the border runs between body and arrow.
    for (QPoint p = body.center(); p != inArrow;) {
        p += QPoint(qBound(-1, inArrow.x() - p.x(), 1), qBound(-1, inArrow.y() - p.y(), 1));
        QCOMPARE(image.pixelColor(p * 2), QColor(Qt::blue));
    }
    QCOMPARE(frame.rect().marginsRemoved(frame.layout()->contentsMargins()), body);

    frame.setBorderWidth(0);
    image = TestKit::renderAt(&frame);
    QCOMPARE(TestKit::countOf(image, Qt::red, 40), 0);
    QCOMPARE(image.pixelColor(body.left(), body.top() + 10), QColor(Qt::blue));

    frame.moveByAngleVertexPos(QPoint(500, 500));
    QTEST(frame.pos(), "corner");
    frame.moveByCenterPoint(QPoint(500, 500));
    QCOMPARE(frame.pos(), QPoint(440, 460));
}

void TestArrowWidget::limitsKeepTheTipOnItsPoint()
{
    ArrowWidget frame(ArrowWidget::Arrow_Top);
    dress(&frame);
    const auto left = [&frame](int begin, int end) {
        frame.moveByBeginEndPoint(QPoint(500, 500), QPoint(begin, 0), QPoint(end, 0));
        const QImage strip = TestKit::renderAt(&frame).copy(0, 0, 120, 6);
        const int tip = frame.x() + TestKit::inkExtent(strip).center().x();
        return qAbs(tip - 500) <= 1 ? frame.x() : -1;
    };
    QCOMPARE(left(100, 900), 440);
    QCOMPARE(left(470, 900), 470);
    QCOMPARE(left(100, 540), 420);
    // Where both can't be kept, the end comes first.
    QCOMPARE(left(470, 570), 450);
    QCOMPARE(left(0, 0), 440);
}

void TestArrowWidget::sizeLimitsReachTheCentre()
{
    ArrowWidget frame(ArrowWidget::Arrow_Left);
    auto *centre = new QWidget;
    frame.addCenterWidget(centre);
    frame.setFrameSize(QSize(100, 50), QSize(200, 150));
    QCOMPARE(centre->minimumSize(), QSize(92, 50));
    QCOMPARE(centre->maximumSize(), QSize(192, 150));
    frame.setArrowType(ArrowWidget::Arrow_Top);
    QCOMPARE(centre->minimumSize(), QSize(100, 42));
    frame.setAngleHeight(20);
    frame.setCenterWidgetSize(QSize(60, 30));
    QCOMPARE(frame.maximumSize(), QSize(60, 50));
    frame.setFrameSize(QSize(60, 20), QSize(60, 50));
    QCOMPARE(centre->minimumSize(), QSize(60, 30));
}

void TestArrowWidget::centreIsReplaced()
{
    QWidget page;
    auto *frame = new ArrowWidget(ArrowWidget::Arrow_Top, &page);
    const QPointer<QPushButton> first = new QPushButton;
    frame->addCenterWidget(first);
    for (QWidget *kept : QWidgetList{first, frame, &page})
        frame->addCenterWidget(kept);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(first->parentWidget(), frame);
    QCOMPARE(frame->layout()->count(), 1);

    page.show();
    auto *second = new QLabel(first);
    connect(first.data(), &QPushButton::clicked, frame, [=] { frame->addCenterWidget(second); });
    first->click();
    QVERIFY(first->isHidden());
    QTRY_VERIFY(!first && second->isVisible());
    frame->addCenterWidget(nullptr);
    QCOMPARE(frame->layout()->count(), 0);
}

void TestArrowWidget::hostileMeasuresAreHarmless()
{
    ArrowWidget frame(ArrowWidget::Arrow_Right);
    dress(&frame);
    frame.addCenterWidget(new QWidget);
    frame.setAngleHeight(-30);
    QCOMPARE(frame.angleHeight(), 0);
    frame.setBorderRadius(-4);
    frame.setCenterWidgetSize(QSize(-5, -5));
    QCOMPARE(frame.maximumSize(), QSize(0, 0));
    frame.setFrameSize(QSize(40, 40), QSize(INT_MAX, INT_MAX));
    frame.moveByBeginEndPoint(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, 0), QPoint(INT_MIN, 0));
    frame.moveByCenterPoint(QPoint(INT_MIN, INT_MAX));
    frame.setBorderWidth(INT_MAX);
    frame.setAngleHeight(INT_MAX);
    QCOMPARE(TestKit::countOf(TestKit::renderAt(&frame), Qt::blue), 0);
}

void TestArrowWidget::textFrameFitsItsText()
{
    QWidget page;
    const AngleWidgte child(ArrowWidget::Arrow_Bottom, false, &page);
    QVERIFY(!child.isWindow());
    QCOMPARE(child.minimumSize(), QSize(265, 100));

    AngleWidgte tip(ArrowWidget::Arrow_Left, true, &page);
    QVERIFY(tip.isWindow());
    const QString text = QStringLiteral("Motion in zone 3");
    tip.setLabelPadding(10, 20, 1, 2);
    tip.setShowText(text);
    QVERIFY(tip.isVisible());
    const QSize ink = tip.label()->fontMetrics().boundingRect(text).size();
    const QSize fitting = ink + QSize(30 + tip.angleHeight(), 3);
    QCOMPARE(tip.size(), fitting);
    tip.addCenterWidget(new QWidget);
    QVERIFY(!tip.label());
    tip.setShowText(text + text);
    QCOMPARE(tip.size(), fitting);
}

QTEST_MAIN(TestArrowWidget)
#include "tst_arrowwidget.moc"
