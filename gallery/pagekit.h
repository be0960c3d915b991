#pragma once

#include <QString>
#include <QVector>

class QFrame;
class QLabel;
class QLayout;
class QVBoxLayout;
class QWidget;

/// The building blocks that every page of the gallery shares, so that thirty pages look as one.
/// They are styled by object name in gallery.qss.
namespace PageKit {

/// Gives \a page its title and an intro line and returns the column that its cards go into, in the
/// order that they are added. The column stretches at its end by itself.
QVBoxLayout *pageLayout(QWidget *page, const QString &title, const QString &intro);

/// A title above a group of cards.
QLabel *heading(const QString &text);

/// A panel with a title (none when empty) around \a content, which it takes over.
QFrame *card(const QString &title, QWidget *content);
QFrame *card(const QString &title, QLayout *content);

/// Cards of one width and one height beside each other, their contents at the top.
QLayout *beside(const QVector<QFrame *> &cards);

/// A small line in the second text colour: a state's name, a unit, a remark. It wraps.
QLabel *caption(const QString &text);

/// \a control with its caption below, both at the left; \a control is taken over.
QWidget *captioned(QWidget *control, const QString &text);

/// The widgets beside each other, bottom-aligned, 24 pixels apart, filled up with space at the
/// right.
QWidget *row(const QVector<QWidget *> &widgets, int spacing = 24);

/// The line on which a page shows the latest signal of its controls.
QLabel *signalLine(const QString &text = QString());

/// What \a window paints, as a label, so that a tip or a menu stands still on the page.
QLabel *pictureOf(QWidget *window);

} // namespace PageKit
