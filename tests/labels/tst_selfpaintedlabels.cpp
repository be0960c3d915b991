#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"

#include <Vellum/CusEllipsisLabel>
#include <Vellum/RollLabel>

#include <QTimer>
#include <QtTest>

namespace {

const QString kPath = QStringLiteral("/recordings/2024/05/north-gate.mp4");

int advance(const QLabel &label)
{
    return label.fontMetrics().horizontalAdvance(label.text());
}

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

/// CusEllipsisLabel and RollLabel, which draw their text themselves.
class TestSelfPaintedLabels : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void growsAndShrinks();
    void elidesBeyondItsLimit();
    void rollsRoundAndRound();
    void asksForNoRepaintInVain();
    void manualRollingIsStartedAndStopped();
};

void TestSelfPaintedLabels::growsAndShrinks()
{
    QWidget window;
    window.resize(600, 60);
    CusEllipsisLabel label(&window);
    QCOMPARE(label.maxWidth(), 65535);
    label.setToolTip(QStringLiteral("own"));
    window.show();
    for (const QString &text : {kPath, QString(), kPath + kPath, QStringLiteral("x")}) {
        label.setText(text);
        QTRY_COMPARE(label.width(), qMax(1, advance(label)));
        QCOMPARE(label.maximumWidth(), label.width());
    }
    QCOMPARE(label.toolTip(), QStringLiteral("own"));
    for (const int limit : {-40, 0, std::numeric_limits<int>::min()}) {
        label.set_maxWidth(limit);
        QTRY_COMPARE(label.maximumWidth(), 0);
        label.set_maxWidth(std::numeric_limits<int>::max());
        QTRY_COMPARE(label.width(), advance(label));
    }
}

void TestSelfPaintedLabels::elidesBeyondItsLimit()
{
    CusEllipsisLabel label;
    label.setText(kPath);
    label.set_maxWidth(advance(label));
    label.grab();
    QCOMPARE(label.toolTip(), kPath); // a text just as wide as the limit counts as too wide
    const QSignalSpy widths(&label, &CusEllipsisLabel::maxWidthChanged);
    const QSignalSpy tips(&label, &CusEllipsisLabel::customToolTipChanged);
    for (int i = 0; i < 2; ++i) {
        label.setProperty("maxWidth", 90);
        label.setProperty("customToolTip", true);
    }
    QCOMPARE(widths, QList<QVariantList>{{90}});
    QCOMPARE(tips, QList<QVariantList>{{true}});
    label.setToolTip(QStringLiteral("own"));
    label.grab();
    QCOMPARE(label.width(), 90);
    QCOMPARE(label.toolTip(), QStringLiteral("own"));

    const QString elided = label.fontMetrics().elidedText(kPath, Qt::ElideRight, 90);
    QCOMPARE(TestKit::renderAt(&label), pictureOf(label, elided));
}

void TestSelfPaintedLabels::rollsRoundAndRound()
{
    RollLabel label(kPath);
    label.setMargin(4);
    label.setFrameStyle(QFrame::Box);
    label.resize(120, 36);
    label.show();
    for (int tick = 1; tick <= kPath.size() + 5; ++tick) {
        label.onUpdate();
        const int position = tick % (kPath.size() + 4);
        QCOMPARE(TestKit::renderAt(&label),
                 pictureOf(label, (kPath + QStringLiteral("    ")).mid(position) + kPath));
    }
}

void TestSelfPaintedLabels::asksForNoRepaintInVain()
{
    RollLabel label(kPath);
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

void TestSelfPaintedLabels::manualRollingIsStartedAndStopped()
{
    RollLabel label(kPath);
    const auto *timer = label.findChild<QTimer *>();
    label.resize(120, 36);
    label.show();
    QCOMPARE(timer->interval(), 200);
    label.stopRoll();
    QVERIFY(timer->isActive());
    label.onUpdate();
    label.setRollType(RollLabel::Roll_Manual);
    QVERIFY(!timer->isActive());
    QCOMPARE(TestKit::renderAt(&label), pictureOf(label, kPath));
    label.startRoll();
    QVERIFY(timer->isActive());
    label.onUpdate();
    label.stopRoll();
    QVERIFY(!timer->isActive());
    QCOMPARE(TestKit::renderAt(&label), pictureOf(label, kPath));
}

QTEST_MAIN(TestSelfPaintedLabels)
#include "tst_selfpaintedlabels.moc"
