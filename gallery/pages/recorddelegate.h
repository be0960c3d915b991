#pragma once

#include <Vellum/TipStyleDelegate>

#include <QHash>

#include <memory>

class CusSvgPushButton;

/// A cell with a record button at its right: the example of docs/writing-a-delegate.md.
class RecordDelegate : public TipStyleDelegate
{
    Q_OBJECT

public:
    explicit RecordDelegate(QObject *parent = nullptr);
    ~RecordDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void clearPaintCusRectInfo() override;
    void dealIndexPressedStyleState(QStyleOptionViewItem *option,
                                    const QModelIndex &index) const override;

Q_SIGNALS:
    void recordClicked(QModelIndex index);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const std::unique_ptr<CusSvgPushButton> m_button;
    mutable QHash<QModelIndex, QRect> m_buttonRects;
};
