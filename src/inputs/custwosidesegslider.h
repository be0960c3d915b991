#pragma once

#include "inputs/cusslider.h"

/// A slider from 0 to 100 with its centre at 50, which snaps to numbered segments left and right of
/// the centre.
///
/// Values that a drag, a key, the wheel or a client sets are moved to the end of the segment that
/// they lie in; values near the centre go back to it. It is the same in a right-to-left layout:
/// left is left. The value label is placed by changes of the value only.
class VELLUM_EXPORT CusTwoSideSegSlider : public CusSlider
{
    Q_OBJECT
    Q_PROPERTY(int leftSegment READ getLeftSegment WRITE setLeftSegment)
    Q_PROPERTY(int rightSegment READ getRightSegment WRITE setRightSegment)

public:
    explicit CusTwoSideSegSlider(QWidget *parent = nullptr);
    explicit CusTwoSideSegSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CusTwoSideSegSlider() override;

    /// How many segments a side has, 1 at first; below 1 is ignored. Until one of these was called
    /// each segment is a single value wide; then each half is divided evenly.
    void setLeftSegment(int count);
    int getLeftSegment() const;
    void setRightSegment(int count);
    int getRightSegment() const;

    /// Moves the handle to the end of segment \a segNum, 0 being the centre, without any signal.
    /// Numbers beyond the last segment end at the slider's end.
    void setToSegment(bool isLeft, int segNum);

    /// "#A0A7B4" at first; an invalid colour is ignored.
    void setDefaultGrooveBrushColor(const QColor &color);
    /// Of the bar from the centre to the handle, "#429EF6" at first; an invalid colour is ignored.
    void setUsedGrooveBrushColor(const QColor &color);
    QColor getUsedGrooveBrushColor() const;
    /// Of the line on the centre, white at first.
    void setCenterLineColor(const QColor &color);

    /// Hides QAbstractSlider::setMinimum(); always sets 0.
    void setMinimum(int minimum);
    /// Hides QAbstractSlider::setMaximum(); always sets 100.
    void setMaximum(int maximum);

Q_SIGNALS:
    /// The value reached another segment; the centre is segment 0 of the right side.
    void signalSegValChanged(bool isLeftSeg, int segNum);

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onSliderValChanged(int val);

private:
    int center() const;
    bool calLeftRightPerSegVal();
    void drawCenterLenTwoSide();

    struct Private;
    const std::unique_ptr<Private> d;
};
