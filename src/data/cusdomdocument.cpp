#include "data/cusdomdocument.h"

#include "data/xmlscan.h"

#include <QDomDocument>

struct CusDomDocument::Private
{
    QByteArray bytes;
    QDomDocument document;
    bool parsed = false;
};

CusDomDocument::CusDomDocument(const QByteArray &bytes)
    : d(std::make_unique<Private>())
{
    d->bytes = bytes;
}

CusDomDocument::~CusDomDocument() = default;

QDomDocument &CusDomDocument::document()
{
    if (!d->parsed) {
        d->parsed = true;
        // After an error Qt keeps what it has read so far; half a document is no document.
        if (!vellum::isBoundedXml(d->bytes) || !d->document.setContent(d->bytes))
            d->document = QDomDocument();
        d->bytes.clear();
    }
    return d->document;
}
