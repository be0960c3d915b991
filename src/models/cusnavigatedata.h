#pragma once

#include "models/listnode.h"

#include <QHash>
#include <QMetaType>
#include <QString>

/// An entry of the navigation lists and the navigation tree. Order and equality are those of
/// naviId, so that a record with nothing but the identity finds its entry.
struct CusNavigateData
{
    QString naviId;        ///< identity
    QString naviText;      ///< source text, shown through tr()
    int naviOrder = 0;     ///< place among siblings
    QString naviExtra;     ///< the caller's second text
    QString iconObjName;   ///< object name of the button that supplies the icon
    bool canClick = true;  ///< the entry can be clicked and may be selected
    bool naviFlag = false; ///< CusItemDataRole::RoleNaviFlag
};
Q_DECLARE_METATYPE(CusNavigateData)
Q_DECLARE_METATYPE(ListNode<CusNavigateData>)

inline bool operator<(const CusNavigateData &left, const CusNavigateData &right)
{
    return left.naviId < right.naviId;
}

inline bool operator==(const CusNavigateData &left, const CusNavigateData &right)
{
    return left.naviId == right.naviId;
}

inline bool operator!=(const CusNavigateData &left, const CusNavigateData &right)
{
    return !(left == right);
}

inline uint qHash(const CusNavigateData &data, uint seed = 0)
{
    return qHash(data.naviId, seed);
}
