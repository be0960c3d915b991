#pragma once

class QByteArray;

namespace vellum {

/// Whether \a bytes can be given to a tree parser without fear: one linear pass that looks at the
/// markup only and checks the limits of CusDomDocument. It does not check well-formedness.
bool isBoundedXml(const QByteArray &bytes);

/// Whether a reader that trusts the XML declaration of \a bytes sees the ASCII characters in them
/// as they stand. Encodings that shift or recode ASCII can hide markup from a scan of the bytes.
bool hasAsciiEncoding(const QByteArray &bytes);

} // namespace vellum
