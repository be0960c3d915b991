#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusEllipsisLabel>

#include <QtTest>

namespace {

const QString kPath = QStringLiteral("/recordings/2024/05/north-gate.mp4");

int advance(const QLabel &label)
{
    return label.fontMetrics().horizontalAdvance(label.text());
}

} // namespace

class TestCusEllipsisLabel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void settersTellChangesOnly();
    void growsAndShrinks();
    void elidesBeyondItsLimit();
};

void TestCusEllipsisLabel::settersTellChangesOnly()
{
    CusEllipsisLabel label;
    QCOMPARE(label.maxWidth(), 65535);
    const QSignalSpy widths(&label, &CusEllipsisLabel::maxWidthChanged);
    const QSignalSpy tips(&label, &CusEllipsisLabel::customToolTipChanged);
    for (int i = 0; i < 2; ++i) {
        label.setProperty("maxWidth", 80);
        label.setProperty("customToolTip", true);
    }
    QCOMPARE(widths, QList<QVariantList>{{80}});
    QCOMPARE(tips, QList<QVariantList>{{true}});
}

void TestCusEllipsisLabel::growsAndShrinks()
{
    QWidget window;
    window.resize(600, 60);
    CusEllipsisLabel label(&window);
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

void TestCusEllipsisLabel::elidesBeyondItsLimit()
{
    CusEllipsisLabel label;
    label.setText(kPath);
    label.set_maxWidth(advance(label));
    label.grab();
    QCOMPARE(label.toolTip(), kPath); // a text just as wide as the limit counts as too wide
    label.set_maxWidth(90);
    label.set_customToolTip(true);
    label.setToolTip(QStringLiteral("own"));
    label.grab();
    QCOMPARE(label.width(), 90);
    QCOMPARE(label.toolTip(), QStringLiteral("own"));

    QLabel stock(label.fontMetrics().elidedText(kPath, Qt::ElideRight, 90));
    stock.resize(label.size());
    QCOMPARE(TestKit::renderAt(&label, 2), TestKit::renderAt(&stock, 2));
}

QTEST_MAIN(TestCusEllipsisLabel)
#include "tst_cusellipsislabel.moc"
