#include "support/guardedtest.h"

#include <Vellum/BasicTableModel>
#include <Vellum/KeyValueData>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <random>

namespace {

class Table : public BasicTableModel<KeyValueData>
{
public:
    explicit Table(int rows)
    {
        for (int i = 0; i < rows; ++i)
            tableData += KeyValueData{i, {}};
        reportedRows = rows;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole && index.row() < tableData.size()
            ? QVariant(tableData.at(index.row()).key)
            : QVariant();
    }
    QList<int> keys() const
    {
        QList<int> keys;
        for (const KeyValueData &record : tableData)
            keys += record.key;
        return keys;
    }
    void append(const KeyValueData &record) { tableData += record; }
};

using Rows = QList<int>;

/// What dragging rows to before \a target gives, taken out and put back one by one.
Rows dragged(const Rows &before, QSet<int> moved, int target)
{
    Rows above, block, below;
    for (int i = 0; i < before.size(); ++i)
        (moved.contains(i) ? block : i < target ? above : below) += before.at(i);
    return above + block + below;
}

} // namespace

class TestBasicTableModel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void movesRows_data()
    {
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<int>("target");
        QTest::addColumn<Rows>("before");
        QTest::addColumn<Rows>("below");
        const Rows same{0, 1, 2, 3, 4};
        QTest::newRow("up") << Rows{3, 4} << 1 << Rows{0, 3, 4, 1, 2} << Rows{0, 1, 3, 4, 2};
        QTest::newRow("down") << Rows{0, 1} << 3 << Rows{2, 0, 1, 3, 4} << Rows{2, 3, 0, 1, 4};
        QTest::newRow("scattered, in any order")
            << Rows{4, 0, 2, 0} << 3 << Rows{1, 0, 2, 4, 3} << Rows{1, 3, 0, 2, 4};
        QTest::newRow("in place") << Rows{1} << 2 << same << Rows{0, 2, 1, 3, 4};
        QTest::newRow("into itself") << Rows{1, 3} << 3 << same << same;
        QTest::newRow("to the end") << Rows{1} << 5 << Rows{0, 2, 3, 4, 1} << same;
        QTest::newRow("rows that aren't there") << Rows{-1, 9} << 0 << same << same;
        QTest::newRow("a target that isn't there") << Rows{1} << 6 << same << same;
        QTest::newRow("nothing") << Rows{} << 0 << same << same;
        QTest::newRow("negative target") << Rows{2} << INT_MIN << same << same;
    }

    void movesRows()
    {
        QFETCH(Rows, rows);
        QFETCH(int, target);
        QFETCH(Rows, before);
        QFETCH(Rows, below);
        Table moved(5);
        Table lowered(5);
        const QSignalSpy resets(&moved, &QAbstractItemModel::modelReset);
        const bool changed = before != Rows{0, 1, 2, 3, 4};
        QCOMPARE(moved.moveTableRows(rows, target), changed);
        QCOMPARE(resets.count(), int(changed));
        QCOMPARE(moved.keys(), before);
        lowered.moveTableRowsBelow(rows, target);
        QCOMPARE(lowered.keys(), below);
        Table raised(5);
        raised.moveTableRowsAbove(rows, target);
        QCOMPARE(raised.keys(), target == 5 ? Rows({0, 1, 2, 3, 4}) : before);
    }

    void sortedBlocksAgreeWithAPlainDrag()
    {
        std::mt19937 random(11);
        Table table(40);
        const QAbstractItemModelTester tester(
            &table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (int step = 0; step < 500; ++step) {
            Rows rows;
            for (int i = int(random() % 4); i < 40; i += 1 + int(random() % 12))
                rows += i;
            const int target = int(random() % 41);
            const Rows expected =
                dragged(table.keys(), QSet<int>(rows.begin(), rows.end()), target);
            const bool changes = expected != table.keys();
            QCOMPARE(table.moveSortedTableRows(rows, target), changes);
            QCOMPARE(table.keys(), expected);
        }
        QVERIFY(!table.moveSortedTableRows({3, 2}, 0));
        QVERIFY(!table.moveSortedTableRows({40}, 0));
    }

    void deletesOneRecordOrAllThatEqualIt()
    {
        Table table(3);
        for (int i = 0; i < 3; ++i)
            table.append({1, {}});
        table.deleteTableModelData({1, {}}, false);
        QCOMPARE(table.keys(), Rows({0, 2, 1, 1, 1}));
        table.deleteTableModelData({1, {}}, true);
        QCOMPARE(table.keys(), Rows({0, 2}));
    }
};

QTEST_GUILESS_MAIN(TestBasicTableModel)
#include "tst_basictablemodel.moc"
