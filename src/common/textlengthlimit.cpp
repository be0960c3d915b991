#include "common/textlengthlimit.h"

#include <QPointer>
#include <QTextCursor>
#include <QTextEdit>
#include <QVariant>

namespace {

constexpr char kMaxLengthProperty[] = "__inner_prop_textEdit_maxLen";

} // namespace

namespace vellum {

TextLengthLimit::TextLengthLimit(QTextEdit *edit)
    : QObject(edit)
    , m_edit(edit)
{
}

void TextLengthLimit::set(QTextEdit *edit, int maxLength)
{
    edit->setProperty(kMaxLengthProperty, maxLength);
    auto *limit = edit->findChild<TextLengthLimit *>(QString(), Qt::FindDirectChildrenOnly);
    if (!limit)
        limit = new TextLengthLimit(edit);
    connect(edit, &QTextEdit::textChanged, limit, &TextLengthLimit::cutText, Qt::UniqueConnection);
}

void TextLengthLimit::cutText()
{
    bool valid = false;
    const int maxLength = m_edit->property(kMaxLengthProperty).toInt(&valid);
    const QString text = m_edit->toPlainText();
    // Without the test for a negative limit the text would be set again for ever.
    if (!valid || maxLength < 0 || text.size() <= maxLength)
        return;
    const int position = m_edit->textCursor().position();
    const QPointer<QTextEdit> edit = m_edit;
    m_edit->setPlainText(text.left(maxLength));
    if (!edit)
        return;
    // Setting the text moves the cursor to its start, where the next key would be typed.
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(qMin(position, edit->toPlainText().size()));
    edit->setTextCursor(cursor);
}

} // namespace vellum
