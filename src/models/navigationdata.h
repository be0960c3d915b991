#pragma once

#include <QHash>
#include <QMetaType>
#include <QString>

/// The row of a navigation list.
struct NavigationData
{
    int iconKey = 0;           ///< CusItemDataRole::RoleNaviFlag, key into the view's icons
    int naviNumber = 1;        ///< the caller's
    bool naviSelected = false; ///< the caller's
    QString groupText;         ///< CusItemDataRole::RoleIconObjName
    QString naviText;          ///< text shown
    QString naviTip;           ///< the caller's
    int naviKind = 1; ///< CusItemDataRole::RoleCanClick: 1 and 3 are items with icon and text, 2 is
                      ///< a separator line
};
Q_DECLARE_METATYPE(NavigationData)

inline bool operator==(const NavigationData &left, const NavigationData &right)
{
    return left.iconKey == right.iconKey && left.naviNumber == right.naviNumber
        && left.naviSelected == right.naviSelected && left.groupText == right.groupText
        && left.naviText == right.naviText && left.naviTip == right.naviTip
        && left.naviKind == right.naviKind;
}

inline bool operator!=(const NavigationData &left, const NavigationData &right)
{
    return !(left == right);
}

inline uint qHash(const NavigationData &data, uint seed = 0)
{
    return qHash(data.naviText, seed) * 31 + qHash(data.naviNumber, seed);
}
