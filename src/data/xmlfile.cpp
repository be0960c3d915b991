#include "data/xmlfile.h"

#include "data/cusdomdocument.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QResource>

namespace {

constexpr qint64 kMaxFileSize = qint64(64) * 1024 * 1024;

enum class Walk
{
    Descend,
    Skip,
    Stop
};

/// Calls \a visit for the elements from \a root on, depth first in document order. No recursion: a
/// walk must not need more stack than the parser did.
template <typename Visit>
void walkElements(const QDomElement &root, const Visit &visit)
{
    QDomElement element = root;
    while (!element.isNull()) {
        const Walk step = visit(element);
        if (step == Walk::Stop)
            return;
        QDomElement next;
        if (step == Walk::Descend)
            next = element.firstChildElement();
        while (next.isNull() && element != root) {
            next = element.nextSiblingElement();
            if (next.isNull())
                element = element.parentNode().toElement();
        }
        element = next;
    }
}

bool hasAnyAttribute(const QDomElement &element, const QStringList &names)
{
    return std::any_of(names.cbegin(), names.cend(),
                       [&element](const QString &name) { return element.hasAttribute(name); });
}

/// The bytes of a resource, without the file engines that QFile asks on the way: a sheet that sets
/// a button's icon reads it at each polish. Null for all that isn't a plain resource with content.
QByteArray resourceBytes(const QString &file)
{
    if (!file.startsWith(QLatin1String(":/")))
        return {};
    const QResource resource(file);
    if (!resource.isValid() || resource.size() <= 0)
        return {};
    if (resource.compressionAlgorithm() != QResource::NoCompression)
        return resource.uncompressedData();
    // A copy, since the resource may be unregistered before the bytes are parsed.
    return QByteArray(reinterpret_cast<const char *>(resource.data()), int(resource.size()));
}

/// The bytes of a file, empty for one above the size limit, and whether there is such a file.
bool readBytes(const QString &file, QByteArray &bytes)
{
    bytes = resourceBytes(file);
    if (bytes.isEmpty()) {
        // Opening a pipe or a device would wait for its other end.
        QFile source(file);
        if (!QFileInfo(source).isFile() || !source.open(QIODevice::ReadOnly))
            return false;
        // A file that gives no size, as some made up by the system do, is read to its end.
        const qint64 size = source.size() > 0 ? source.size() : kMaxFileSize + 1;
        bytes = source.read(qMin(size, kMaxFileSize + 1));
    }
    if (bytes.size() > kMaxFileSize)
        bytes.clear();
    return true;
}

} // namespace

struct XmlFile::Private
{
    std::shared_ptr<CusDomDocument> document;

    QDomElement root() const
    {
        return document ? document->document().documentElement() : QDomElement();
    }
};

XmlFile::XmlFile()
    : d(std::make_shared<Private>())
{
}

XmlFile::XmlFile(const QString &file)
    : XmlFile()
{
    readFile(file);
}

XmlFile::~XmlFile() = default;
XmlFile::XmlFile(const XmlFile &other) = default;
XmlFile &XmlFile::operator=(const XmlFile &other) = default;

void XmlFile::readFile(const QString &file)
{
    QByteArray bytes;
    if (readBytes(file, bytes))
        d->document = std::make_shared<CusDomDocument>(bytes);
}

QString XmlFile::getElementValue(const QString &tag)
{
    QString value;
    walkElements(d->root(), [&](const QDomElement &element) {
        if (element.tagName() != tag)
            return Walk::Descend;
        value = element.firstChild().nodeValue();
        return value.isEmpty() ? Walk::Skip : Walk::Stop;
    });
    return value;
}

void XmlFile::setElementValue(const QString &tag, const QString &value)
{
    walkElements(d->root(), [&](const QDomElement &element) {
        if (element.tagName() == tag)
            element.firstChild().setNodeValue(value);
        return Walk::Descend;
    });
}

QString XmlFile::getEleAttributeValue(const QString &tag, const QString &attribute)
{
    QString value;
    walkElements(d->root(), [&](const QDomElement &element) {
        if (element.tagName() != tag || !element.hasAttribute(attribute))
            return Walk::Descend;
        value = element.attribute(attribute);
        return value.isEmpty() ? Walk::Skip : Walk::Stop;
    });
    return value;
}

QStringList XmlFile::getEleAttributeValue(const QSet<QString> &tags, const QStringList &attributes)
{
    QStringList values;
    walkElements(d->root(), [&](const QDomElement &element) {
        if (!tags.contains(element.tagName()) || !hasAnyAttribute(element, attributes))
            return Walk::Descend;
        for (const QString &attribute : attributes)
            values.append(element.attribute(attribute));
        return Walk::Stop;
    });
    return values;
}

void XmlFile::setEleAttributeValue(const QString &tag, const QString &attribute,
                                   const QString &value)
{
    setEleAttributeValue(QSet<QString>{tag}, attribute, value);
}

void XmlFile::setEleAttributeValue(const QSet<QString> &tags, const QString &attribute,
                                   const QString &value)
{
    walkElements(d->root(), [&](QDomElement &element) {
        if (tags.contains(element.tagName()))
            element.setAttribute(attribute, value);
        return Walk::Descend;
    });
}

void XmlFile::removeAttributeValue(const QSet<QString> &tags, const QStringList &attributes)
{
    walkElements(d->root(), [&](QDomElement &element) {
        if (tags.contains(element.tagName())) {
            for (const QString &attribute : attributes)
                element.removeAttribute(attribute);
        }
        return Walk::Descend;
    });
}

QByteArray XmlFile::toByteArray() const
{
    return d->document ? d->document->document().toByteArray(1) : QByteArray();
}
