#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AngleWidgte>
#include <Vellum/CusColorConfig>

#include <QtTest>
#include <QtWidgets>

class TestArrowWidget : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawsAndPlacesTheArrowOnItsEdge_data();
    void drawsAndPlacesTheArrowOnItsEdge();
    void limitsKeepTheTipOnItsPoint();
    void centreIsLimitedAndReplaced();
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
    QTest::addColumn<QPolygon>("outer");
    QTest::addColumn<QPolygon>("inner");
    QTest::addColumn<QPoint>("corner");
    const auto triangle = [](QPoint tip, QPoint from, QPoint to) {
        return QPolygon({tip, from, to});
    };
    QTest::newRow("bottom") << ArrowWidget::Arrow_Bottom << QRect(0, 0, 120, 60)
                            << triangle({60, 80}, {33, 58}, {87, 58})
                            << triangle({60, 78}, {35, 58}, {85, 58}) << QPoint(440, 420);
    QTest::newRow("top") << ArrowWidget::Arrow_Top << QRect(0, 20, 120, 60)
                         << triangle({60, 0}, {33, 22}, {87, 22})
                         << triangle({60, 2}, {35, 22}, {85, 22}) << QPoint(440, 500);
    QTest::newRow("left") << ArrowWidget::Arrow_Left << QRect(20, 0, 100, 80)
                          << triangle({0, 40}, {22, 13}, {22, 67})
                          << triangle({2, 40}, {22, 15}, {22, 65}) << QPoint(500, 460);
    QTest::newRow("right") << ArrowWidget::Arrow_Right << QRect(0, 0, 100, 80)
                           << triangle({120, 40}, {98, 13}, {98, 67})
                           << triangle({118, 40}, {98, 15}, {98, 65}) << QPoint(380, 460);
}

void TestArrowWidget::drawsAndPlacesTheArrowOnItsEdge()
{
    QFETCH(ArrowWidget::ArrowType, type);
    QFETCH(QRect, body);
    QFETCH(QPolygon, outer);
    QFETCH(QPolygon, inner);
    ArrowWidget frame(type);
    dress(&frame);
    frame.setAngleHeight(20);
    const auto expected = [&](const QVector<QPair<QPolygon, QColor>> &layers) {
        QImage image = TestKit::renderAt(&frame);
        image.fill(TestKit::unpainted);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        for (const auto &[arrow, color] : layers) {
            const int inset = arrow == inner ? 2 : 0;
            painter.setBrush(color);
            painter.drawPolygon(arrow);
            painter.drawRoundedRect(body.adjusted(inset, inset, -inset, -inset), 4, 4);
        }
        return image;
    };
    QCOMPARE(TestKit::renderAt(&frame), expected({{outer, Qt::red}, {inner, Qt::blue}}));
    QCOMPARE(frame.rect().marginsRemoved(frame.layout()->contentsMargins()), body);
    frame.setBorderColor(QColor());
    QCOMPARE(TestKit::renderAt(&frame), expected({{outer, Qt::blue}}));
    frame.setBorderColor(Qt::red);
    frame.setBorderWidth(0);
    QCOMPARE(TestKit::countOf(TestKit::renderAt(&frame), Qt::red, 40), 0);

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

void TestArrowWidget::centreIsLimitedAndReplaced()
{
    QWidget page;
    auto *frame = new ArrowWidget(ArrowWidget::Arrow_Left, &page);
    const QPointer<QPushButton> first = new QPushButton;
    frame->setFrameSize(QSize(100, 50), QSize(200, 150));
    for (QWidget *centre : QWidgetList{first, first, frame, &page})
        frame->addCenterWidget(centre);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(first->parentWidget(), frame);
    QCOMPARE(first->minimumSize(), QSize(92, 50));
    QCOMPARE(first->maximumSize(), QSize(192, 150));
    frame->setArrowType(ArrowWidget::Arrow_Top);
    QCOMPARE(first->minimumSize(), QSize(100, 42));
    frame->setAngleHeight(20);
    frame->setCenterWidgetSize(QSize(60, 30));
    QCOMPARE(frame->maximumSize(), QSize(60, 50));
    frame->setFrameSize(QSize(60, 20), QSize(60, 50));
    QCOMPARE(first->minimumSize(), QSize(60, 30)); // no height is left, so none is passed on

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
    const QString text = QStringLiteral("Motion in zone 3");
    tip.setLabelPadding(10, 20, 1, 2);
    tip.setShowText(text);
    QVERIFY(tip.isWindow() && tip.isVisible());
    const QSize ink = tip.label()->fontMetrics().boundingRect(text).size();
    const QSize fitting = ink + QSize(30 + tip.angleHeight(), 3);
    QCOMPARE(tip.size(), fitting);
    tip.addCenterWidget(new QWidget);
    tip.setShowText(text + text);
    QCOMPARE(tip.size(), fitting);
}

QTEST_MAIN(TestArrowWidget)
#include "tst_arrowwidget.moc"
