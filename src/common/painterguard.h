#pragma once

#include <QPainter>

namespace vellum {

/// Saves the painter's state and restores it at the end of the scope.
class PainterGuard
{
public:
    explicit PainterGuard(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterGuard() { m_painter->restore(); }

private:
    Q_DISABLE_COPY(PainterGuard)
    QPainter *m_painter;
};

} // namespace vellum
