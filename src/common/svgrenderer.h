#pragma once

#include <QByteArray>
#include <QSvgRenderer>

#include <memory>

namespace vellum {

/// A renderer of \a svg; not a valid one if that is empty or no SVG. Its animations move on with
/// each repaint only: nobody listens to their timer, which would run as long as the renderer lives.
inline std::unique_ptr<QSvgRenderer> makeSvgRenderer(const QByteArray &svg)
{
    auto renderer = std::make_unique<QSvgRenderer>();
    renderer->setFramesPerSecond(0);
    if (!svg.isEmpty())
        renderer->load(svg);
    return renderer;
}

} // namespace vellum
