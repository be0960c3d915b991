#pragma once

class QByteArray;

namespace vellum {

/// Whether the bytes of an SVG document can be given to QSvgRenderer, which follows references
/// without a limit.
bool isRenderableSvg(const QByteArray &svg);

} // namespace vellum
