#include "support/guardedtest.h"

#include <Vellum/CusScrollHoverPane>

#include <QScrollArea>
#include <QtTest>

class TestCusScrollHoverPane : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void staysHiddenWhenTheAreaIsShown();
    void followsTheLowerEdge();
};

void TestCusScrollHoverPane::staysHiddenWhenTheAreaIsShown()
{
    QScrollArea area;
    const CusScrollHoverPane pane(&area, true);
    area.show();
    QVERIFY(!pane.isVisible());
}

void TestCusScrollHoverPane::followsTheLowerEdge()
{
    QScrollArea area;
    area.resize(300, 200);
    CusScrollHoverPane pane(&area, true);
    pane.resize(10, 40);
    area.show();
    pane.show();
    QCOMPARE(pane.geometry(), QRect(0, 160, 300, 40));
    area.resize(260, 300);
    QCOMPARE(pane.geometry(), QRect(0, 260, 260, 40));
}

QTEST_MAIN(TestCusScrollHoverPane)
#include "tst_cusscrollhoverpane.moc"
