#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"

#include <Vellum/RollLabel>

#include <QTimer>
#include <QtTest>

namespace {

const QString kText = QStringLiteral("Storage server 3 is nearly full");

/// What a stock label of the same size and margin draws for \a text.
QImage pictureOf(const QLabel &label, const QString &text)
{
    QLabel stock(text);
    stock.setMargin(label.margin());
    stock.setFrameStyle(label.frameStyle());
    stock.setIndent(0);
    stock.setAlignment(label.alignment());
    stock.resize(label.size());
    return TestKit::renderAt(&stock);
}

} // namespace

class TestRollLabel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void rollsRoundAndRound();
    void asksForNoRepaintInVain();
    void manualRollingIsStartedAndStopped();
};

void TestRollLabel::rollsRoundAndRound()
{
    RollLabel label(kText);
    label.setMargin(4);
    label.setFrameStyle(QFrame::Box);
    label.resize(120, 36);
    label.show();
    for (int tick = 1; tick <= 2 * (kText.size() + 4); ++tick) {
        label.onUpdate();
        const int position = tick % (kText.size() + 4);
        QCOMPARE(TestKit::renderAt(&label),
                 pictureOf(label, (kText + QStringLiteral("    ")).mid(position) + kText));
    }
}

void TestRollLabel::asksForNoRepaintInVain()
{
    RollLabel label(kText);
    label.resize(120, 36);
    const PaintCounter paints(&label);
    const auto paintsOfATick = [&] {
        QCoreApplication::processEvents();
        const int before = paints.count();
        label.onUpdate();
        QCoreApplication::processEvents();
        return paints.count() - before;
    };
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QCOMPARE(paintsOfATick(), 1);
    label.hide();
    QCOMPARE(paintsOfATick(), 0);
    label.show();
    label.setText(QStringLiteral("ok"));
    QCOMPARE(paintsOfATick(), 0);
}

void TestRollLabel::manualRollingIsStartedAndStopped()
{
    RollLabel label(kText);
    const auto *timer = label.findChild<QTimer *>();
    label.resize(120, 36);
    label.show();
    QCOMPARE(timer->interval(), 200);
    label.stopRoll();
    QVERIFY(timer->isActive());
    label.onUpdate();
    label.setRollType(RollLabel::Roll_Manual);
    QVERIFY(!timer->isActive());
    QCOMPARE(TestKit::renderAt(&label), pictureOf(label, kText));
    label.startRoll();
    QVERIFY(timer->isActive());
    label.onUpdate();
    label.stopRoll();
    QVERIFY(!timer->isActive());
    QCOMPARE(TestKit::renderAt(&label), pictureOf(label, kText));
}

QTEST_MAIN(TestRollLabel)
#include "tst_rolllabel.moc"
