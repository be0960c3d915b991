#pragma once

#include "delegates/tipstyledelegate.h"

#include <QList>
#include <QString>

/// A delegate of one line of text: what doesn't fit is elided, and the whole text is the tip of the
/// cell, wrapped where it is wider than the screen. The check indicator of the cell is not drawn.
/// enableMultiDelegate is on at first. GUI thread only.
class VELLUM_EXPORT LongTextTipDelegate : public TipStyleDelegate
{
    Q_OBJECT

public:
    explicit LongTextTipDelegate(QObject *parent = nullptr);
    ~LongTextTipDelegate() override;

    /// A text that was shown whole has no tip. A selected cell has the text colour of selected
    /// cells only under the cursor.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// True, as at first: the current cell shows no focus.
    void setEnableNoFocus(bool enable);
    bool getEnableNoFocus() const;
    /// With \a enable, the tips of the columns \a cols have a line for each part of the text
    /// between \a separator, ten at most, and then a line with the number of parts.
    void setLineBreakDisplay(const QList<int> &cols, const QString &separator, bool enable);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QString tipOf(const QString &text, int column, const QStyleOptionViewItem &option) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
