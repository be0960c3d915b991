#pragma once

#include <QSize>

/// A record with the size of its row, in pixels, for Qt::SizeHintRole; an invalid size leaves the
/// row to the view. Equal when the records are.
template <typename T>
struct ListNode : public T
{
    ListNode() = default;
    explicit ListNode(const T &record, const QSize &size = QSize())
        : T(record)
        , itemSize(size)
    {
    }

    QSize itemSize;
};
