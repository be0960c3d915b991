#pragma once

#include <QHash>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// The row of a check list.
struct SelectItemBaseInfo
{
    QString itemId;     ///< identity
    QString showText;   ///< text shown
    int checkState = 0; ///< a Qt::CheckState
    QVariant userData;  ///< the caller's; plays no part in equality
};
Q_DECLARE_METATYPE(SelectItemBaseInfo)

inline bool operator==(const SelectItemBaseInfo &left, const SelectItemBaseInfo &right)
{
    return left.checkState == right.checkState && left.itemId == right.itemId
        && left.showText == right.showText;
}

inline bool operator!=(const SelectItemBaseInfo &left, const SelectItemBaseInfo &right)
{
    return !(left == right);
}

inline uint qHash(const SelectItemBaseInfo &row, uint seed = 0)
{
    return qHash(row.itemId, seed) * 31 + qHash(row.showText, seed);
}
