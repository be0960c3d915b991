#pragma once

#include "vellum_export.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// One node of the tree of a multi-select combo box.
///
/// Equality compares all fields, order only nodeId, as QVariant orders it: nodes with the same
/// nodeId are one key of a tree's map whatever their texts. That order ignores the case of strings,
/// takes points, sizes, lists and a client's own types for one and the same, and is no order at all
/// over numbers mixed with strings; so give all nodes of a tree ids of one simple type.
struct VELLUM_EXPORT MulListNode
{
    MulListNode() = default;
    MulListNode(const QVariant &id, const QString &nodeText, bool nodeFlag);

    QVariant nodeId;
    QString text;
    bool flag = false; ///< this is the "all" node
};
Q_DECLARE_METATYPE(MulListNode)

VELLUM_EXPORT bool operator==(const MulListNode &left, const MulListNode &right);
VELLUM_EXPORT bool operator<(const MulListNode &left, const MulListNode &right);

inline bool operator!=(const MulListNode &left, const MulListNode &right)
{
    return !(left == right);
}

/// One branch of what a multi-select combo box shows.
struct VELLUM_EXPORT TreeMulData
{
    TreeMulData() = default;
    TreeMulData(const MulListNode &branch, const QList<MulListNode> &leaves);

    MulListNode parent;
    QList<MulListNode> children;
};
Q_DECLARE_METATYPE(TreeMulData)
