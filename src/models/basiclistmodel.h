#pragma once

#include "models/recordtypes.h"
#include "models/rowindex.h"
#include "models/safesort.h"

#include <QAbstractListModel>
#include <QList>
#include <QPointer>

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

/// A flat list whose rows are shown or filtered out. A concrete model derives from an instantiation
/// and supplies data(); T needs operator==, which is the identity of a row.
///
/// Changes are told by a full reset (updateModel()), never by row notifications: views, delegates
/// and the search rely on it and restore selection and current row by themselves. Rows that are
/// added unique are found by qHash(T), if there is one that agrees with operator==, else by a scan
/// of the list for each. All on the GUI thread. Callbacks and slots may call the model again or
/// delete it.
template <typename T>
class BasicListModel : public QAbstractListModel
{
public:
    using RowOrder = std::function<bool(const T &, const T &)>;
    /// From all rows, those to show and those filtered out.
    using RowFilter = std::function<void(const QList<T> &, QList<T> &, QList<T> &)>;

    explicit BasicListModel(QObject *parent = nullptr);

    /// The number of shown rows, whatever the parent.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Selectable, checkable and enabled, for the invalid index, too.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// False if the range passes the end. With \a count above 1 every second row of the range goes
    /// and the rest stays: each removal shifts the rows behind it. Callers remove one row a call.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    /// Removes the first equal shown row. It stays among all rows, so the next filter may bring it
    /// back.
    virtual void deleteListModelData(const T &row);
    /// Resets the views.
    virtual void updateModel();
    /// Does nothing; for derived models.
    virtual void updateModelByChanged();

    /// Adds to the shown and to all rows; with \a unique only where no equal row is.
    void addListModelData(const T &row, bool unique);
    /// The same for each of \a rows, with one sort and one reset.
    void addListModelData(const QList<T> &rows, bool unique);
    /// Adds to the shown and to all rows, without a sort.
    void addShowModelData(const T &row);
    /// Adds to the rows filtered out and to all rows.
    void addFilterModelData(const T &row);
    /// Inserts among the shown rows, out of range at their end; all rows stay as they are.
    void insertListModelData(const T &data, int row);
    /// Overwrites the shown row that equals one of \a rows, without a reset; adds one that none
    /// equals, with a sort and a reset for each.
    void insertListModelDataWithUpdate(const QList<T> &rows);
    /// Empties all lists; resets only if \a update is true.
    void clearListModelData(bool update);
    /// Shows \a rows, which are all rows from now on.
    void setListModelData(const QList<T> &rows);
    /// Shows \a rows; all rows stay as they are.
    void setShowModelData(const QList<T> &rows);
    /// Replaces the rows filtered out, without a reset.
    void setFilteredData(const QList<T> &rows);
    /// Replaces all rows and shows none: the result of a search will come.
    void setSearchThreadModelData(const QList<T> &rows);
    /// Lets \a filter share all rows out. An empty one does nothing. The rows filtered out are
    /// replaced after the reset.
    void fiterModelData(const RowFilter &filter);
    /// Sorts the shown rows by the callback of setSortCallback(), without a reset; the order of
    /// equal rows is not defined. An order that contradicts itself gives some order.
    void sortData();
    /// From the next change on.
    void setSortCallback(const RowOrder &order);

    /// The shown row at \a index; false, and \a row untouched, without one.
    bool getIndexData(const QModelIndex &index, T &row) const;
    /// Overwrites the shown row and emits dataChanged(); false without one.
    bool setIndexData(const QModelIndex &index, const T &row);
    /// Overwrites the first equal shown row, which changes only what equality leaves out. No
    /// signal.
    void updateListModelData(const T &row);
    /// Overwrites the shown row at \a index, if there is one. No signal.
    void updateListModelData(const QModelIndex &index, const T &row);
    /// \a count shown rows from \a start on, as QList::mid() takes them.
    QList<T> getRangeData(int start, int count) const;
    QList<T> getAllModelShowData() const;
    QList<T> getAllModelDataContainFilter() const;
    int getShowModelDataCount() const;
    int getAllModeDataCount() const;

protected:
    QList<T> showData;     ///< what rowCount() and data() see
    QList<T> filteredData; ///< hidden by the last filter
    QList<T> allData;      ///< every row, before filtering
    RowOrder sortCallback;

private:
    bool holds(const QModelIndex &index) const;
    static void addUnique(QList<T> &list, const QList<T> &rows, const std::vector<uint> &hashes);
    void sortAndUpdate();
    int insertNewRows(const QList<T> &rows, int next);
    bool sortShown();
    bool moveLastIntoOrder();
    template <typename Ask>
    bool askOrder(const Ask &ask);

    bool m_sorting = false;
    unsigned m_orders = 0; // how often another order was set
};

template <typename T>
BasicListModel<T>::BasicListModel(QObject *parent)
    : QAbstractListModel(parent)
{
    vellum::registerRecordTypes();
}

template <typename T>
int BasicListModel<T>::rowCount(const QModelIndex &) const
{
    return showData.size();
}

template <typename T>
Qt::ItemFlags BasicListModel<T>::flags(const QModelIndex &) const
{
    return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
}

template <typename T>
bool BasicListModel<T>::removeRows(int row, int count, const QModelIndex &)
{
    const qint64 end = qint64(row) + count;
    if (end > showData.size())
        return false;
    // Rows keep moving up while they are removed, so from the first row on every second one goes,
    // one for each row of the range.
    const int first = qMax(row, 0);
    qint64 removals = end - first;
    int kept = first;
    for (int from = first; from < showData.size(); ++from) {
        if ((from - first) % 2 == 0 && removals-- > 0)
            continue;
        if (kept != from)
            showData.swapItemsAt(kept, from);
        ++kept;
    }
    showData.erase(showData.begin() + qMin(kept, showData.size()), showData.end());
    updateModel();
    return true;
}

template <typename T>
void BasicListModel<T>::deleteListModelData(const T &row)
{
    showData.removeOne(row);
    updateModel();
}

template <typename T>
void BasicListModel<T>::updateModel()
{
    beginResetModel();
    endResetModel();
}

template <typename T>
void BasicListModel<T>::updateModelByChanged()
{
}

template <typename T>
void BasicListModel<T>::addListModelData(const T &row, bool unique)
{
    // It may be one of ours.
    const T added = row; // NOLINT(performance-unnecessary-copy-initialization)
    if (!unique || !showData.contains(added))
        showData.append(added);
    if (!unique || !allData.contains(added))
        allData.append(added);
    sortAndUpdate();
}

template <typename T>
void BasicListModel<T>::addListModelData(const QList<T> &rows, bool unique)
{
    // The rows may be one of our lists.
    const QList<T> added = rows; // NOLINT(performance-unnecessary-copy-initialization)
    if (unique) {
        std::vector<uint> hashes;
        std::transform(added.begin(), added.end(), std::back_inserter(hashes),
                       vellum::RowIndex<T>::hashOf);
        addUnique(showData, added, hashes);
        addUnique(allData, added, hashes);
    } else {
        showData += added;
        allData += added;
    }
    sortAndUpdate();
}

template <typename T>
void BasicListModel<T>::addUnique(QList<T> &list, const QList<T> &rows,
                                  const std::vector<uint> &hashes)
{
    vellum::RowIndex<T> index(list, rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        const T &row = rows.at(i);
        if (index.find(row, hashes[size_t(i)]) >= 0)
            continue;
        list.append(row);
        index.appended(hashes[size_t(i)]);
    }
}

template <typename T>
void BasicListModel<T>::addShowModelData(const T &row)
{
    const T added = row; // NOLINT(performance-unnecessary-copy-initialization)
    showData.append(added);
    allData.append(added);
    updateModel();
}

template <typename T>
void BasicListModel<T>::addFilterModelData(const T &row)
{
    const T added = row; // NOLINT(performance-unnecessary-copy-initialization)
    filteredData.append(added);
    allData.append(added);
    updateModel();
}

template <typename T>
void BasicListModel<T>::insertListModelData(const T &data, int row)
{
    showData.insert(row >= 0 && row < showData.size() ? row : showData.size(), T(data));
    sortAndUpdate();
}

template <typename T>
void BasicListModel<T>::insertListModelDataWithUpdate(const QList<T> &rows)
{
    const QPointer<QAbstractItemModel> self(this);
    // The rows may be one of our lists, or change during a reset.
    const QList<T> incoming = rows; // NOLINT(performance-unnecessary-copy-initialization)
    int next = 0;
    while (self && next < incoming.size())
        next = insertNewRows(incoming, next);
}

/// Takes \a rows in from the place \a next on, until somebody changes lists or order meanwhile;
/// returns the place that comes after.
template <typename T>
int BasicListModel<T>::insertNewRows(const QList<T> &rows, int next)
{
    const QPointer<QAbstractItemModel> self(this);
    const unsigned orders = m_orders;
    const int left = rows.size() - next;
    // Under an order the shown rows move about, and only a list that they join at the end can be
    // indexed.
    QList<T> arrived = sortCallback ? showData : QList<T>();
    vellum::RowIndex<T> shown(sortCallback ? arrived : showData, left);
    vellum::RowIndex<T> all(allData, left);
    bool inOrder = false;
    std::optional<vellum::RowIndex<T>> places; // of the shown rows, until one moves
    for (; next < rows.size(); ++next) {
        const T &row = rows.at(next);
        const uint hash = vellum::RowIndex<T>::hashOf(row);
        int place = shown.find(row, hash);
        if (sortCallback && place >= 0) {
            if (!places)
                places.emplace(showData, 0);
            place = places->find(row, hash);
        }
        if (place >= 0) {
            showData[place] = row;
            inOrder = false;
            continue;
        }
        places.reset();
        showData.append(row);
        if (sortCallback)
            arrived.append(row);
        shown.appended(hash);
        if (all.find(row, hash) < 0) {
            allData.append(row);
            all.appended(hash);
        }
        const QList<T> allBefore = allData;
        const bool untouched = inOrder ? moveLastIntoOrder() : sortShown();
        if (!self)
            return next;
        inOrder = true;
        const QList<T> shownBefore = showData;
        updateModel();
        if (!self || !untouched || m_orders != orders || !showData.isSharedWith(shownBefore)
            || !allData.isSharedWith(allBefore))
            return next + 1;
    }
    return next;
}

template <typename T>
void BasicListModel<T>::clearListModelData(bool update)
{
    showData.clear();
    filteredData.clear();
    allData.clear();
    if (update)
        updateModel();
}

template <typename T>
void BasicListModel<T>::setListModelData(const QList<T> &rows)
{
    showData = rows;
    allData = showData;
    filteredData.clear();
    sortAndUpdate();
}

template <typename T>
void BasicListModel<T>::setShowModelData(const QList<T> &rows)
{
    showData = rows;
    sortAndUpdate();
}

template <typename T>
void BasicListModel<T>::setFilteredData(const QList<T> &rows)
{
    filteredData = rows;
}

template <typename T>
void BasicListModel<T>::setSearchThreadModelData(const QList<T> &rows)
{
    allData = rows;
    showData.clear();
    filteredData.clear();
    updateModel();
}

template <typename T>
void BasicListModel<T>::fiterModelData(const RowFilter &filter)
{
    if (!filter)
        return;
    const QPointer<QAbstractItemModel> self(this);
    const RowFilter share = filter;
    const QList<T> rows = allData;
    QList<T> shown;
    QList<T> hidden;
    share(rows, shown, hidden);
    if (!self)
        return;
    showData = shown;
    sortAndUpdate();
    if (self)
        filteredData = hidden;
}

template <typename T>
void BasicListModel<T>::sortData()
{
    sortShown();
}

template <typename T>
void BasicListModel<T>::setSortCallback(const RowOrder &order)
{
    sortCallback = order;
    ++m_orders;
}

template <typename T>
bool BasicListModel<T>::getIndexData(const QModelIndex &index, T &row) const
{
    if (!holds(index))
        return false;
    row = showData.at(index.row());
    return true;
}

template <typename T>
bool BasicListModel<T>::setIndexData(const QModelIndex &index, const T &row)
{
    if (!holds(index))
        return false;
    showData[index.row()] = T(row);
    Q_EMIT dataChanged(index, index);
    return true;
}

template <typename T>
void BasicListModel<T>::updateListModelData(const T &row)
{
    const int place = showData.indexOf(row);
    if (place >= 0)
        showData[place] = T(row);
}

template <typename T>
void BasicListModel<T>::updateListModelData(const QModelIndex &index, const T &row)
{
    if (holds(index))
        showData[index.row()] = T(row);
}

template <typename T>
QList<T> BasicListModel<T>::getRangeData(int start, int count) const
{
    return showData.mid(start, count);
}

template <typename T>
QList<T> BasicListModel<T>::getAllModelShowData() const
{
    return showData;
}

template <typename T>
QList<T> BasicListModel<T>::getAllModelDataContainFilter() const
{
    return allData;
}

template <typename T>
int BasicListModel<T>::getShowModelDataCount() const
{
    return showData.size();
}

template <typename T>
int BasicListModel<T>::getAllModeDataCount() const
{
    return allData.size();
}

template <typename T>
bool BasicListModel<T>::holds(const QModelIndex &index) const
{
    return index.isValid() && index.row() < showData.size();
}

template <typename T>
void BasicListModel<T>::sortAndUpdate()
{
    const QPointer<QAbstractItemModel> self(this);
    sortData();
    if (self)
        updateModel();
}

/// False if the callback changed the shown rows, which then stay as they are, or deleted the model.
template <typename T>
bool BasicListModel<T>::sortShown()
{
    std::vector<int> order;
    const bool untouched = askOrder([&order](const QList<T> &rows, const RowOrder &less) {
        order = vellum::sortedOrder(rows, less);
    });
    if (untouched && !order.empty())
        vellum::applyOrder(showData, std::move(order));
    return untouched;
}

/// Moves the last shown row to its place among the others, which are in order. As sortShown()
/// otherwise.
template <typename T>
bool BasicListModel<T>::moveLastIntoOrder()
{
    int place = showData.size() - 1;
    const bool untouched = askOrder([&place](const QList<T> &rows, const RowOrder &less) {
        const auto last = rows.constEnd() - 1;
        place = int(std::upper_bound(rows.constBegin(), last, *last, less) - rows.constBegin());
    });
    if (untouched)
        showData.move(showData.size() - 1, place);
    return untouched;
}

/// Calls \a ask with the shown rows and the order, if there is one to bring about; false if the
/// callback changed the rows meanwhile or deleted the model.
template <typename T>
template <typename Ask>
bool BasicListModel<T>::askOrder(const Ask &ask)
{
    // A sort inside the callback would call it for ever.
    if (!sortCallback || showData.size() < 2 || m_sorting)
        return true;
    const QPointer<QAbstractItemModel> self(this);
    const RowOrder less = sortCallback;
    const QList<T> rows = showData;
    m_sorting = true;
    ask(rows, less);
    if (!self)
        return false;
    m_sorting = false;
    return showData.isSharedWith(rows);
}
