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

/// What dragging rows to before \a target gives.
Rows dragged(const Rows &before, const Rows &moved, int target)
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
    /// With sets that are scattered, out of order, doubled, empty or partly not there, and targets
    /// in the set or not there.
    void movesBlocksAsADragWould()
    {
        constexpr int size = 12;
        std::mt19937 random(11);
        Table table(size);
        const QAbstractItemModelTester tester(
            &table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (int step = 0; step < 3000; ++step) {
            Rows rows;
            for (int i = int(random() % 5); i > 0; --i)
                rows += int(random() % (size + 4)) - 2;
            const int target = int(random() % (size + 4)) - 2;
            const unsigned kind = random() % 3;
            const bool atEnd = kind == 0 && target == size;
            const bool possible = atEnd || (target >= 0 && target < size && !rows.contains(target));
            const Rows before = table.keys();
            const Rows after =
                possible ? dragged(before, rows, kind == 1 ? target + 1 : target) : before;
            const QSignalSpy resets(&table, &QAbstractItemModel::modelReset);
            QCOMPARE(kind == 0       ? table.moveTableRows(rows, target)
                         : kind == 1 ? table.moveTableRowsBelow(rows, target)
                                     : table.moveTableRowsAbove(rows, target),
                     after != before);
            QCOMPARE(table.keys(), after);
            QCOMPARE(resets.count(), int(after != before));
        }
    }

    void takesASortedBlockOnly()
    {
        Table table(5);
        for (const Rows &bad : {Rows{2, 1}, Rows{1, 1}, Rows{-1}, Rows{5}, Rows{}})
            QVERIFY(!table.moveSortedTableRows(bad, 4));
        QVERIFY(!table.moveSortedTableRows({1}, INT_MIN));
        QVERIFY(table.moveSortedTableRows({0, 2, 3}, 2)); // the target may be one of them
        QCOMPARE(table.keys(), Rows({1, 0, 2, 3, 4}));
    }

    void deletesOneRecordOrAllThatEqualIt()
    {
        Table table(3);
        table.append({1, {}});
        table.append({1, {}});
        table.deleteTableModelData({1, {}}, false);
        QCOMPARE(table.keys(), Rows({0, 2, 1, 1}));
        table.deleteTableModelData({1, {}}, true);
        QCOMPARE(table.keys(), Rows({0, 2}));
    }
};

QTEST_GUILESS_MAIN(TestBasicTableModel)
#include "tst_basictablemodel.moc"
