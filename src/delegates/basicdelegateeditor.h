#pragma once

#include "vellum_export.h"

#include <QObject>

class QAbstractItemModel;
class QModelIndex;
class QStyleOptionViewItem;
class QWidget;

/// What a TipStyleDelegate makes its editors with: a line edit with the cell's text. Subclasses
/// offer other editors; one that is given a widget that it did not make does nothing with it. A
/// child of its delegate. GUI thread only.
class VELLUM_EXPORT BasicDelegateEditor : public QObject
{
    Q_OBJECT

public:
    explicit BasicDelegateEditor(QObject *parent = nullptr);
    ~BasicDelegateEditor() override;

    /// A new editor as child of \a parent, which owns it.
    virtual QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const;
    /// The shown text of \a index goes into \a editor.
    virtual void setEditorData(QWidget *editor, const QModelIndex &index) const;
    /// The editor's text goes to \a model, as Qt::EditRole of \a index.
    virtual void setModelData(QWidget *editor, QAbstractItemModel *model,
                              const QModelIndex &index) const;
    /// The editor takes the option's rectangle.
    virtual void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const;
};
