#pragma once

#include "vellum_export.h"

#include <QObject>

#include <memory>

class QMouseEvent;
class QPoint;

/// The arithmetic of a drag: a widget forwards its mouse events and asks how far the drag went.
///
/// Positions are those of the events, in the widget's pixels. A distance beyond int's range counts
/// as int's limit. The getters leave their arguments untouched when they return false.
class VELLUM_EXPORT CusMousePressedMove : public QObject
{
    Q_OBJECT

public:
    explicit CusMousePressedMove(QObject *parent = nullptr);
    ~CusMousePressedMove() override;

    /// The button that starts a drag, the left one at first; several may be joined by a bitwise or.
    void setPressedBtn(Qt::MouseButton button);

    /// Forgets the last drag, and starts one if the event's button is the drag's. Null does
    /// nothing.
    void mousePressEvent(QMouseEvent *event);
    /// Takes a step while a drag runs. Null does nothing.
    void mouseMoveEvent(QMouseEvent *event);
    /// Ends the drag, whichever button was released, and keeps its total. Null does nothing.
    void mouseReleaseEvent(QMouseEvent *event);

    /// The distance from the drag's start to the last position; false without a running drag.
    bool getCurMovedXY(int &x, int &y) const;
    /// The last step, 0 before the first; false without a running drag.
    bool getMovedDxDy(int &dx, int &dy) const;
    /// The total of the drag that ended last, 0 since the last press; always true.
    bool getMovedXY(int &x, int &y) const;
    /// Where the running drag began; false without one.
    bool getStartMovedPoint(QPoint &point) const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
