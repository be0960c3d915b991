#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AngleTiPWidget>
#include <Vellum/CusColorConfig>

#include <QtTest>
#include <QtWidgets>

class TestAngleTiPWidget : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void hangsAtTheUpperRightCornerOfItsTarget();
    void goesWithItsTarget_data();
    void goesWithItsTarget();
    void staysWhileTheCursorRestsOnIt();
    void hidingTakesOneAtATimeOrAll();

private:
    AngleTiPWidget *show(const QString &text = QStringLiteral("Please input 0~100"));

    QScopedPointer<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
};

void TestAngleTiPWidget::initTestCase()
{
    CusColorConfig::instance()->setConfig(
        {{QStringLiteral("AngleTiPWidget_AngleColor"), QStringLiteral("#0000ff")}});
}

void TestAngleTiPWidget::init()
{
    GuardedTest::init();
    QCursor::setPos(0, 0);
    m_window.reset(new QWidget);
    m_window->setGeometry(200, 200, 300, 200);
    m_edit = new QLineEdit(m_window.data());
    m_edit->setGeometry(20, 100, 200, 30);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
}

AngleTiPWidget *TestAngleTiPWidget::show(const QString &text)
{
    AngleTiPWidget::showAngleTipText(m_edit, text, ArrowWidget::Arrow_Right);
    return m_edit->findChildren<AngleTiPWidget *>().constLast();
}

void TestAngleTiPWidget::hangsAtTheUpperRightCornerOfItsTarget()
{
    AngleTiPWidget *tip = show();
    QTRY_COMPARE(tip->geometry().bottomRight(), m_edit->mapToGlobal(QPoint(200, 7)));
    QVERIFY(tip->height() >= 40);
    const QImage image = TestKit::renderAt(tip);
    const QPoint br = tip->rect().bottomRight();
    QCOMPARE(image.pixelColor(br - QPoint(28, 9)), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(br - QPoint(34, 2)), TestKit::unpainted);
    tip->setTipRightBottomPoint(QPoint(0, 0));
    QCOMPARE(TestKit::countOf(TestKit::renderAt(tip), Qt::blue), 0);

    const auto *label = tip->findChild<QLabel *>(QStringLiteral("label_angleTip"));
    const int natural = label->fontMetrics().boundingRect(label->text()).width();
    QVERIFY(label->minimumWidth() >= natural + 20 && label->width() < natural + 40);
    tip->setShowText(QString(100, QLatin1Char('w')).replace(50, 1, QLatin1Char(' ')));
    QCOMPARE(label->minimumWidth(), 500);
}

void TestAngleTiPWidget::goesWithItsTarget_data()
{
    QTest::addColumn<int>("change");
    int change = 0;
    for (const char *name : {"resized", "its window is hidden", "its window loses activation",
                             "moved, noticed when painted", "deleted", "deleted, not the parent"})
        QTest::newRow(name) << change++;
}

void TestAngleTiPWidget::goesWithItsTarget()
{
    QFETCH(int, change);
    const QPointer<AngleTiPWidget> tip = show();
    QVERIFY(tip->isVisible());
    if (change == 0) {
        m_edit->resize(180, 30);
    } else if (change == 1) {
        m_window->hide();
    } else if (change == 2) {
        QEvent deactivate(QEvent::WindowDeactivate);
        QApplication::sendEvent(m_edit, &deactivate);
    } else if (change == 3) {
        m_edit->move(30, 110);
        m_edit->repaint();
    } else {
        if (change == 5)
            tip->setParent(m_window.data(), tip->windowFlags());
        delete m_edit;
    }
    QTRY_VERIFY(!tip);
}

void TestAngleTiPWidget::staysWhileTheCursorRestsOnIt()
{
    const QPointer<AngleTiPWidget> tip = show();
    auto *timer = tip->findChild<QTimer *>();
    QCOMPARE(timer->interval(), 3000);
    QTRY_COMPARE(tip->geometry().right(), m_edit->mapToGlobal(QPoint(200, 0)).x());
    QCursor::setPos(tip->mapToGlobal(QPoint(5, 5)));
    timer->start(0);
    QTRY_COMPARE(timer->interval(), 3000);
    QVERIFY(tip->isVisible());
    QVERIFY(timer->isActive());
    QCursor::setPos(0, 0);
    timer->start(0);
    QTRY_VERIFY(!tip);
}

void TestAngleTiPWidget::hidingTakesOneAtATimeOrAll()
{
    const QPointer<AngleTiPWidget> first = show();
    const QPointer<AngleTiPWidget> second = show();
    AngleTiPWidget::hideAngleTip(nullptr);
    AngleTiPWidget::hideAngleTip(m_window.data());
    QVERIFY(!first->isVisible());
    QVERIFY(second->isVisible());
    AngleTiPWidget::hideAngleTip(m_edit);
    QVERIFY(!second->isVisible());
    QTRY_VERIFY(!first && !second);

    AngleTiPWidget *deleted = show();
    const QPointer<AngleTiPWidget> third = show();
    AngleTiPWidget::showAngleTipText(nullptr, QStringLiteral("x"), ArrowWidget::Arrow_Left);
    delete deleted;
    AngleTiPWidget::hideAllAngleTip();
    QVERIFY(!third->isVisible());
    QTRY_VERIFY(!third);
}

QTEST_MAIN(TestAngleTiPWidget)
#include "tst_angletipwidget.moc"
