#pragma once

#include <QObject>

class QTextEdit;

namespace vellum {

/// Keeps the text of one QTextEdit, its parent, to the length in the edit's dynamic property.
class TextLengthLimit : public QObject
{
    Q_OBJECT

public:
    /// Sets the limit of \a edit, whose one TextLengthLimit is made with the first call.
    static void set(QTextEdit *edit, int maxLength);

private Q_SLOTS:
    void cutText();

private:
    explicit TextLengthLimit(QTextEdit *edit);

    QTextEdit *const m_edit;
};

} // namespace vellum
