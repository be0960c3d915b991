#pragma once

#include "models/basiclistmodel.h"
#include "models/selectitembaseinfo.h"
#include "vellum_export.h"

#include <QStringList>

#include <functional>
#include <memory>

/// The model of a check list. Answers Qt::DisplayRole with the text, Qt::CheckStateRole with the
/// state and CusItemDataRole::RoleRecord with the whole SelectItemBaseInfo.
class VELLUM_EXPORT SelectItemListModel : public BasicListModel<SelectItemBaseInfo>
{
    Q_OBJECT

public:
    SelectItemListModel();
    explicit SelectItemListModel(QObject *parent);
    ~SelectItemListModel() override;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Those of QAbstractItemModel and, for the invalid index, too, selectable, checkable, and open
    /// to drag and drop.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Stores a Qt::CheckStateRole and calls the callback of registerDealWithCheckCb(). Always
    /// false, on success as well.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// The first row with \a text, the invalid index without one.
    QModelIndex findIndexByShowText(const QString &text) const;
    /// The rows that are Qt::Checked.
    QList<QModelIndex> getSelectedIndexs() const;
    /// Gives every row whose identity is in \a ids the state, checked or, for any other \a state,
    /// unchecked, and every other row the opposite. One reset at the end.
    void setSelectIndexs(const QStringList &ids, Qt::CheckState state);
    /// Called after setData() has stored a state.
    void registerDealWithCheckCb(const std::function<void()> &callback);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
