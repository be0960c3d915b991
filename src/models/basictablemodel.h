#pragma once

#include "models/recordtypes.h"
#include "models/safesort.h"

#include <QAbstractTableModel>
#include <QList>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

/// A flat list of records that a table shows, whose rows can be moved in blocks. A concrete model
/// derives from an instantiation and supplies data(); T needs operator==.
///
/// Every change ends in a full reset (updateModel()). Rows of a set to be moved may be given in any
/// order, more than once and scattered; those that don't exist are left out, the others become one
/// block and keep their order in the table. A target that doesn't exist or belongs to the set, and
/// a set that stands at its target already, change nothing: then there is no reset, and the answer
/// is false.
template <typename T>
class BasicTableModel : public QAbstractTableModel
{
public:
    explicit BasicTableModel(QObject *parent = nullptr)
        : QAbstractTableModel(parent)
    {
        vellum::registerRecordTypes();
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : reportedRows;
    }

    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : reportedColumns;
    }

    /// Removes the first record equal to \a record, with \a allEqual all of them.
    virtual void deleteTableModelData(const T &record, bool allEqual);
    /// Moves \a rows to before the row \a target, the number of rows meaning the end; this is where
    /// a drop between two rows goes.
    virtual bool moveTableRows(const QList<int> &rows, int target);
    /// Resets the views.
    virtual void updateModel();
    /// Moves \a rows directly below the row \a target.
    virtual bool moveTableRowsBelow(const QList<int> &rows, int target);
    /// Moves \a rows directly above the row \a target.
    virtual bool moveTableRowsAbove(const QList<int> &rows, int target);
    /// Moves \a rows, ascending and each an existing row, to before the row \a target, which may be
    /// one of them, or to the end. The other moves come down to this one.
    virtual bool moveSortedTableRows(const QList<int> &rows, int target);

protected:
    QList<T> tableData;
    int reportedRows = 1; ///< answers rowCount(); not tied to tableData, as a cell may be a record
    int reportedColumns = 1;

private:
    QList<int> sortedRows(const QList<int> &rows) const;
    bool moveBeside(const QList<int> &rows, int target, int offset);
};

template <typename T>
void BasicTableModel<T>::deleteTableModelData(const T &record, bool allEqual)
{
    if (allEqual)
        tableData.removeAll(record);
    else
        tableData.removeOne(record);
    updateModel();
}

template <typename T>
bool BasicTableModel<T>::moveTableRows(const QList<int> &rows, int target)
{
    return target == tableData.size() ? moveSortedTableRows(sortedRows(rows), target)
                                      : moveBeside(rows, target, 0);
}

template <typename T>
void BasicTableModel<T>::updateModel()
{
    beginResetModel();
    endResetModel();
}

template <typename T>
bool BasicTableModel<T>::moveTableRowsBelow(const QList<int> &rows, int target)
{
    return moveBeside(rows, target, 1);
}

template <typename T>
bool BasicTableModel<T>::moveTableRowsAbove(const QList<int> &rows, int target)
{
    return moveBeside(rows, target, 0);
}

template <typename T>
bool BasicTableModel<T>::moveSortedTableRows(const QList<int> &rows, int target)
{
    const int size = tableData.size();
    const bool ascending =
        std::adjacent_find(rows.constBegin(), rows.constEnd(), std::greater_equal<int>())
        == rows.constEnd();
    if (rows.isEmpty() || !ascending || rows.first() < 0 || rows.last() >= size || target < 0
        || target > size)
        return false;
    std::vector<int> order(static_cast<size_t>(size));
    std::iota(order.begin(), order.end(), 0);
    const auto moves = [&rows](int row) {
        return std::binary_search(rows.constBegin(), rows.constEnd(), row);
    };
    const auto stays = [&moves](int row) { return !moves(row); };
    std::stable_partition(order.begin(), order.begin() + target, stays);
    std::stable_partition(order.begin() + target, order.end(), moves);
    if (std::is_sorted(order.begin(), order.end()))
        return false;
    vellum::applyOrder(tableData, std::move(order));
    updateModel();
    return true;
}

template <typename T>
QList<int> BasicTableModel<T>::sortedRows(const QList<int> &rows) const
{
    QList<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const auto first = std::lower_bound(sorted.begin(), sorted.end(), 0);
    const auto end = std::lower_bound(first, sorted.end(), tableData.size());
    return sorted.mid(int(first - sorted.begin()), int(end - first));
}

template <typename T>
bool BasicTableModel<T>::moveBeside(const QList<int> &rows, int target, int offset)
{
    if (target < 0 || target >= tableData.size() || rows.contains(target))
        return false;
    return moveSortedTableRows(sortedRows(rows), target + offset);
}
