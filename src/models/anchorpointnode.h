#pragma once

#include <QHash>
#include <QMetaType>
#include <QString>

/// One entry of an anchor list: a place in a long page that a click jumps to.
struct AnchorPointNode
{
    int anchorId = 0;
    QString anchorText; ///< source text, shown through tr()
};
Q_DECLARE_METATYPE(AnchorPointNode)

inline bool operator==(const AnchorPointNode &left, const AnchorPointNode &right)
{
    return left.anchorId == right.anchorId && left.anchorText == right.anchorText;
}

inline bool operator!=(const AnchorPointNode &left, const AnchorPointNode &right)
{
    return !(left == right);
}

inline uint qHash(const AnchorPointNode &node, uint seed = 0)
{
    return qHash(node.anchorText, seed) * 31 + qHash(node.anchorId, seed);
}
