#pragma once

#include "vellum_export.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

/// An XML file whose elements are found and changed by tag name, wherever they stand.
///
/// Tags are compared by their full name, case-sensitively. Searches and changes walk the elements
/// from the root, depth first in document order. Without a document every search gives an empty
/// result and every change does nothing; so it is after a file that is not well-formed XML or that
/// exceeds the limits of CusDomDocument. Nothing is reported. The file is read at once and parsed
/// at the first search or change.
///
/// One object belongs to one thread. A copy shares the document with its original.
class VELLUM_EXPORT XmlFile
{
public:
    /// Without a document.
    XmlFile();
    explicit XmlFile(const QString &file);
    ~XmlFile();
    XmlFile(const XmlFile &other);
    XmlFile &operator=(const XmlFile &other);

    /// Takes the document from \a file. The previous document stays if \a file is missing, can't be
    /// opened or is not a regular file; a file of more than 64 MiB counts as malformed.
    void readFile(const QString &file);

    /// The text or CDATA that comes first inside an element \a tag. The first element for which it
    /// isn't empty wins; elements inside a match are not looked at.
    QString getElementValue(const QString &tag);
    /// Replaces the first text or CDATA of every element \a tag; an element without a child stays
    /// empty.
    void setElementValue(const QString &tag, const QString &value);

    /// The value of \a attribute at an element \a tag that has it. The first that isn't empty wins;
    /// elements inside a match are not looked at.
    QString getEleAttributeValue(const QString &tag, const QString &attribute);
    /// The values of \a attributes, in their order, at the first element with one of \a tags that
    /// has at least one of them; a missing one is an empty string. An empty list without a match.
    QStringList getEleAttributeValue(const QSet<QString> &tags, const QStringList &attributes);
    /// Sets \a attribute at every element \a tag.
    void setEleAttributeValue(const QString &tag, const QString &attribute, const QString &value);
    /// Sets \a attribute at every element with one of \a tags.
    void setEleAttributeValue(const QSet<QString> &tags, const QString &attribute,
                              const QString &value);
    /// Removes \a attributes from every element with one of \a tags.
    void removeAttributeValue(const QSet<QString> &tags, const QStringList &attributes);

    /// The document as UTF-8, indented by one blank a level; empty without a document.
    QByteArray toByteArray() const;

private:
    struct Private;
    std::shared_ptr<Private> d;
};
