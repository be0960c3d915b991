#pragma once

#include "vellum_export.h"

#include <QByteArray>

#include <memory>

class QDomDocument;

/// Holds one QDomDocument and builds it from the file's bytes when it is first asked for, so that
/// reading a file costs no more than its bytes.
///
/// Bytes that are not well-formed XML give an empty document, and so do bytes that would exhaust
/// the stack, the memory or the patience of a reader: elements nested deeper than 256, more than
/// 256 attributes on one element, more than 2^20 elements, a document type of more than 8 KiB or
/// with entities that hold markup or other entities, very long texts full of references, and
/// encodings that are not a superset of ASCII (UTF-16 and UTF-32 with a byte order
/// mark are fine). One object belongs to one thread.
class VELLUM_EXPORT CusDomDocument
{
public:
    explicit CusDomDocument(const QByteArray &bytes = QByteArray());
    ~CusDomDocument();

    /// The document, parsed at the first call. It stays owned by this object.
    QDomDocument &document();

private:
    Q_DISABLE_COPY(CusDomDocument)

    struct Private;
    const std::unique_ptr<Private> d;
};
