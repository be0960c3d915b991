#include "support/guardedtest.h"

#include <Vellum/CusScrollArea>
#include <Vellum/CusScrollHoverPane>
#include <Vellum/CusTabBar>
#include <Vellum/CusTabWidget>
#include <Vellum/CusWidget>

#include <QtTest>
#include <QtWidgets>

class TestStylableBases : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTypeSelectorReachesOnlyTheClass();
    void overflowingTabsHaveNoArrowsAndNoWheel();
    void tabsFillTheBar();
    void theHoverPaneWaitsAtTheLowerEdge();
};

template <typename Cus, typename Plain, typename... Arguments>
static void compareStyles(Arguments... arguments)
{
    const QString selector = QString::fromLatin1(Cus::staticMetaObject.className());
    qApp->setStyleSheet(selector + QStringLiteral(" { qproperty-statusTip: \"styled\" }"));
    Cus styled(arguments...);
    Plain plain;
    styled.ensurePolished();
    plain.ensurePolished();
    qApp->setStyleSheet(QString());
    QCOMPARE(styled.statusTip(), QStringLiteral("styled"));
    QCOMPARE(plain.statusTip(), QString());
}

void TestStylableBases::aTypeSelectorReachesOnlyTheClass()
{
    QWidget *const none = nullptr;
    compareStyles<CusWidget, QWidget>();
    compareStyles<CusFrame, QFrame>(none, Qt::Tool);
    compareStyles<CusDialog, QDialog>(none);
    compareStyles<CusMainWindow, QMainWindow>();
    compareStyles<CusGroupBox, QGroupBox>(QStringLiteral("Cameras"));
    compareStyles<CusMenuBar, QMenuBar>();
    compareStyles<CusToolBar, QToolBar>(QStringLiteral("PTZ"), none);
    compareStyles<CusProgressBar, QProgressBar>();
    compareStyles<CusTabBar, QTabBar>(none);
    compareStyles<CusTabWidget, QTabWidget>();
    compareStyles<CusScrollArea, QScrollArea>();
}

void TestStylableBases::overflowingTabsHaveNoArrowsAndNoWheel()
{
    CusTabWidget tabs;
    for (int camera = 1; camera <= 20; ++camera)
        tabs.addTab(new QWidget, QStringLiteral("Camera %1").arg(camera));
    tabs.resize(200, 150);
    tabs.show();
    tabs.grab();
    tabs.resize(240, 150);
    tabs.grab();
    int shown = 0;
    const auto arrows = tabs.tabBar()->findChildren<QToolButton *>();
    for (const QToolButton *arrow : arrows)
        shown += arrow->isVisible() && arrow->size() == QSize(1, 1) ? 1 : 0;
    QCOMPARE(shown, 2); // the tabs do overflow: Qt would show both arrows
    QVERIFY(tabs.tabBar()->height() < 60);

    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    wheel.ignore();
    QCoreApplication::sendEvent(tabs.tabBar(), &wheel);
    QVERIFY(wheel.isAccepted());
    QCOMPARE(tabs.currentIndex(), 0);
}

void TestStylableBases::tabsFillTheBar()
{
    CusTabBar bar(nullptr);
    bar.resize(300, 0);
    bar.addTab(QStringLiteral("Live"));
    const int natural = bar.tabRect(0).height();
    QVERIFY(natural > 0 && natural < 60);
    bar.resize(300, 70);
    bar.setTabText(0, QStringLiteral("Playback"));
    QCOMPARE(bar.tabRect(0).height(), 70);
}

void TestStylableBases::theHoverPaneWaitsAtTheLowerEdge()
{
    CusScrollArea area;
    area.resize(300, 200);
    area.show();
    auto *const pane = area.findChild<CusScrollHoverPane *>();
    QVERIFY(pane && !pane->isVisible());
    pane->resize(10, 40);
    pane->show();
    QCOMPARE(pane->geometry(), QRect(0, 160, 300, 40));
    area.resize(260, 300);
    QCOMPARE(pane->geometry(), QRect(0, 260, 260, 40));
}

QTEST_MAIN(TestStylableBases)
#include "tst_stylablebases.moc"
