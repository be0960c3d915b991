#include "delegates/basicdelegateeditor.h"

#include "edits/cuslineedit.h"

#include <QAbstractItemModel>
#include <QStyleOptionViewItem>

BasicDelegateEditor::BasicDelegateEditor(QObject *parent)
    : QObject(parent)
{
}

BasicDelegateEditor::~BasicDelegateEditor() = default;

QWidget *BasicDelegateEditor::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    auto *edit = new CusLineEdit(parent);
    // A cell may hold a text of any length, and must not lose its end by being edited.
    edit->setStopTimer();
    return edit;
}

void BasicDelegateEditor::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *edit = qobject_cast<CusLineEdit *>(editor))
        edit->setText(index.data(Qt::DisplayRole).toString());
}

void BasicDelegateEditor::setModelData(QWidget *editor, QAbstractItemModel *model,
                                       const QModelIndex &index) const
{
    auto *edit = qobject_cast<CusLineEdit *>(editor);
    if (edit && model)
        model->setData(index, edit->text(), Qt::EditRole);
}

void BasicDelegateEditor::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    Q_UNUSED(index)
    if (editor)
        editor->setGeometry(option.rect);
}
