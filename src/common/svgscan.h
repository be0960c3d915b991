#pragma once

class QByteArray;

namespace vellum {

/// Whether an SVG document can be given to QSvgRenderer without a crash or a stall. Refused are
/// references that form a cycle, nest deeper than 512 or draw much more than the file holds,
/// pictures and style sheets in other files, large pictures, dash patterns far too fine for their
/// image, properties spelt by escapes, and numbers of gradient stops, gradient links or style rules
/// at which the renderer's quadratic steps show. One linear pass; an ordinary icon needs only a
/// search for a few words.
///
/// Expects what isBoundedXml() accepted.
bool isRenderableSvg(const QByteArray &svg);

} // namespace vellum
