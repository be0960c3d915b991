#include "models/selectitemlistmodel.h"

#include "models/cusitemdatarole.h"

#include <QSet>

struct SelectItemListModel::Private
{
    std::function<void()> checkCallback;
};

SelectItemListModel::SelectItemListModel()
    : SelectItemListModel(nullptr)
{
}

SelectItemListModel::SelectItemListModel(QObject *parent)
    : BasicListModel(parent)
    , d(std::make_unique<Private>())
{
}

SelectItemListModel::~SelectItemListModel() = default;

QVariant SelectItemListModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::CheckStateRole
        && role != CusItemDataRole::RoleRecord)
        return {};
    SelectItemBaseInfo row;
    const bool found = getIndexData(index, row);
    if (role == Qt::CheckStateRole)
        return row.checkState;
    if (!found)
        return {};
    return role == Qt::DisplayRole ? QVariant(row.showText) : QVariant::fromValue(row);
}

Qt::ItemFlags SelectItemListModel::flags(const QModelIndex &index) const
{
    // BasicListModel's flags would enable the invalid index, too.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QAbstractItemModel::flags(index) | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
        | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

bool SelectItemListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    SelectItemBaseInfo row;
    if (role != Qt::CheckStateRole || !getIndexData(index, row))
        return false;
    row.checkState = value.toInt();
    const QPointer<QObject> self(this);
    setIndexData(index, row);
    if (self) {
        const std::function<void()> callback = d->checkCallback;
        if (callback)
            callback();
    }
    return false;
}

QModelIndex SelectItemListModel::findIndexByShowText(const QString &text) const
{
    const auto found =
        std::find_if(showData.constBegin(), showData.constEnd(),
                     [&text](const SelectItemBaseInfo &row) { return row.showText == text; });
    return found == showData.constEnd() ? QModelIndex() : index(int(found - showData.constBegin()));
}

QList<QModelIndex> SelectItemListModel::getSelectedIndexs() const
{
    QList<QModelIndex> selected;
    for (int i = 0; i < showData.size(); ++i) {
        if (showData.at(i).checkState == Qt::Checked)
            selected.append(index(i));
    }
    return selected;
}

void SelectItemListModel::setSelectIndexs(const QStringList &ids, Qt::CheckState state)
{
    const QPointer<QObject> self(this);
    const QSet<QString> listed(ids.constBegin(), ids.constEnd());
    const bool check = state == Qt::Checked;
    for (int i = 0; self && i < showData.size(); ++i) {
        SelectItemBaseInfo row = showData.at(i);
        row.checkState = listed.contains(row.itemId) == check ? Qt::Checked : Qt::Unchecked;
        setIndexData(index(i), row);
    }
    if (self)
        updateModel();
}

void SelectItemListModel::registerDealWithCheckCb(const std::function<void()> &callback)
{
    d->checkCallback = callback;
}
