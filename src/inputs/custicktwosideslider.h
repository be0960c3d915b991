#pragma once

#include "inputs/cusslider.h"

/// A slider whose centre is drawn in the middle whatever its value, so that the halves have scales
/// of their own.
///
/// A press of the left button on the groove takes the handle there, and the handle can be dragged
/// on. setValue() is never held back. It is the same in a right-to-left layout. The value label is
/// placed by changes of the value only.
class VELLUM_EXPORT CusTickTwoSideSlider : public CusSlider
{
    Q_OBJECT

public:
    explicit CusTickTwoSideSlider(QWidget *parent = nullptr);
    explicit CusTickTwoSideSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CusTickTwoSideSlider() override;

    /// The value in the middle. Below 1 it means half the range, which is stored at the next use.
    /// While it is outside the range or on one of its ends, only the groove is drawn.
    void setCenterVal(int value);

    /// Of the bar from the centre to the handle, #429EF6 at first; an invalid colour is ignored.
    void setUsedGrooveBrushColor(const QColor &color);
    QColor getUsedGrooveBrushColor() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int center();
    QRect handleRect();
    bool goTo(const QPoint &pos);
    void drawCenterLenTwoSide();

    struct Private;
    const std::unique_ptr<Private> d;
};
