#pragma once

#include "vellum_export.h"

#include <QFrame>

#include <memory>

/// A rounded frame with an arrow on one edge, around one widget in its centre.
///
/// Colours start from the theme keys "ArrowWidget_BorderColor" and "ArrowWidget_BackgroundColor".
/// The frame and its centre widget carry the dynamic property "trans", by which a style sheet keeps
/// their own backgrounds transparent. Measures are in pixels; negative ones count as 0. GUI thread
/// only.
class VELLUM_EXPORT ArrowWidget : public QFrame
{
    Q_OBJECT

public:
    /// The edge that carries the arrow.
    enum ArrowType : int
    {
        Arrow_Bottom = 0,
        Arrow_Top = 1,
        Arrow_Left = 2,
        Arrow_Right = 3
    };
    Q_ENUM(ArrowType)

    explicit ArrowWidget(ArrowType arrowType, QWidget *parent = nullptr);
    ~ArrowWidget() override;

    /// Puts \a widget into the frame, which owns it from now on; the former one is hidden and
    /// deleted once control is back in the event loop, so a handler of its own may replace it. The
    /// widget that is inside already stays. Null empties the frame; the frame itself or one of its
    /// ancestors changes nothing.
    void addCenterWidget(QWidget *widget);
    /// Fixes the frame at the size that leaves \a size for the centre widget.
    void setCenterWidgetSize(const QSize &size);
    /// Limits the whole frame, arrow included, and with it the centre widget.
    void setFrameSize(const QSize &minimum, const QSize &maximum);

    void setArrowType(ArrowType arrowType);
    ArrowType arrowType() const;
    /// How far the arrow stands out of the frame; 8 by default. Its base is 2.7 times as wide.
    void setAngleHeight(int height);
    int angleHeight() const;

    void setBGColor(const QColor &color);
    /// An invalid colour leaves the border out.
    void setBorderColor(const QColor &color);
    /// 4 by default.
    void setBorderRadius(int radius);
    /// 1 by default; 0 leaves the border out.
    void setBorderWidth(int width);

    /// Moves the upper left corner. Hides both of QWidget's forms.
    void move(const QPoint &pos);
    /// Moves the frame so that the arrow's tip, in the middle of its edge, lands on \a pos.
    void moveByAngleVertexPos(const QPoint &pos);
    /// As moveByAngleVertexPos(), but keeps the frame's left edge at or right of \a begin and its
    /// right edge at or left of \a end, which comes first; the tip stays on \a vertex meanwhile. No
    /// limits if both are (0, 0).
    void moveByBeginEndPoint(const QPoint &vertex, const QPoint &begin, const QPoint &end);
    /// Moves the frame so that its centre, arrow included, lands on \a pos.
    void moveByCenterPoint(const QPoint &pos);

    /// For subclasses that hold translated texts; does nothing here.
    virtual void resetWidgetUiLanguage();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Shape;
    Shape shape(int inset) const;
    QMargins arrowMargins() const;
    QSize arrowExtent() const;
    QPoint cornerFor(const QPoint &vertex) const;
    void passSizeLimits();
    void setVertexOffset(const QPoint &offset);
    void drawShape(QPainter *painter, const QColor &color, int inset) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
