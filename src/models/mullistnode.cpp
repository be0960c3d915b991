#include "models/mullistnode.h"

MulListNode::MulListNode(const QVariant &id, const QString &nodeText, bool nodeFlag)
    : nodeId(id)
    , text(nodeText)
    , flag(nodeFlag)
{
}

bool operator==(const MulListNode &left, const MulListNode &right)
{
    return left.flag == right.flag && left.text == right.text && left.nodeId == right.nodeId;
}

bool operator<(const MulListNode &left, const MulListNode &right)
{
    // QVariant's order is deprecated, but it is the one that ids are keyed by.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return left.nodeId < right.nodeId;
    QT_WARNING_POP
}

TreeMulData::TreeMulData(const MulListNode &branch, const QList<MulListNode> &leaves)
    : parent(branch)
    , children(leaves)
{
}
