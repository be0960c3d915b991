#pragma once

#include "vellum_export.h"

#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QToolBar>
#include <QWidget>

// Qt's widgets under a name of our own, and nothing more: a style sheet reaches them by a type
// selector (CusFrame { ... }) and leaves plain Qt widgets alone. The constructors are spelled out,
// without default arguments, so that further classes can add theirs beside them.

/// QWidget under a name of its own. As for every subclass of QWidget, a background from the style
/// sheet shows only with Qt::WA_StyledBackground.
class VELLUM_EXPORT CusWidget : public QWidget
{
    Q_OBJECT

public:
    CusWidget() = default;
    explicit CusWidget(QWidget *parent)
        : QWidget(parent)
    {
    }
    CusWidget(QWidget *parent, Qt::WindowFlags flags)
        : QWidget(parent, flags)
    {
    }

protected:
    CusWidget(QWidgetPrivate &dd, QWidget *parent, Qt::WindowFlags flags)
        : QWidget(dd, parent, flags)
    {
    }
};

/// QFrame under a name of its own.
class VELLUM_EXPORT CusFrame : public QFrame
{
    Q_OBJECT

public:
    CusFrame() = default;
    explicit CusFrame(QWidget *parent)
        : QFrame(parent)
    {
    }
    CusFrame(QWidget *parent, Qt::WindowFlags flags)
        : QFrame(parent, flags)
    {
    }

protected:
    explicit CusFrame(QFramePrivate &dd)
        : QFrame(dd)
    {
    }
    CusFrame(QFramePrivate &dd, QWidget *parent)
        : QFrame(dd, parent)
    {
    }
    CusFrame(QFramePrivate &dd, QWidget *parent, Qt::WindowFlags flags)
        : QFrame(dd, parent, flags)
    {
    }
};

/// QDialog under a name of its own.
class VELLUM_EXPORT CusDialog : public QDialog
{
    Q_OBJECT

public:
    CusDialog() = default;
    explicit CusDialog(QWidget *parent)
        : QDialog(parent)
    {
    }
    CusDialog(QWidget *parent, Qt::WindowFlags flags)
        : QDialog(parent, flags)
    {
    }

protected:
    CusDialog(QDialogPrivate &dd, QWidget *parent)
        : QDialog(dd, parent)
    {
    }
    CusDialog(QDialogPrivate &dd, QWidget *parent, Qt::WindowFlags flags)
        : QDialog(dd, parent, flags)
    {
    }
};

/// QMainWindow under a name of its own.
class VELLUM_EXPORT CusMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    CusMainWindow() = default;
    explicit CusMainWindow(QWidget *parent)
        : QMainWindow(parent)
    {
    }
    CusMainWindow(QWidget *parent, Qt::WindowFlags flags)
        : QMainWindow(parent, flags)
    {
    }
};

/// QGroupBox under a name of its own.
class VELLUM_EXPORT CusGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    CusGroupBox() = default;
    explicit CusGroupBox(QWidget *parent)
        : QGroupBox(parent)
    {
    }
    explicit CusGroupBox(const QString &title)
        : QGroupBox(title)
    {
    }
    CusGroupBox(const QString &title, QWidget *parent)
        : QGroupBox(title, parent)
    {
    }
};

/// QMenuBar under a name of its own.
class VELLUM_EXPORT CusMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    CusMenuBar() = default;
    explicit CusMenuBar(QWidget *parent)
        : QMenuBar(parent)
    {
    }
};

/// QToolBar under a name of its own.
class VELLUM_EXPORT CusToolBar : public QToolBar
{
    Q_OBJECT

public:
    CusToolBar() = default;
    explicit CusToolBar(QWidget *parent)
        : QToolBar(parent)
    {
    }
    explicit CusToolBar(const QString &title)
        : QToolBar(title)
    {
    }
    CusToolBar(const QString &title, QWidget *parent)
        : QToolBar(title, parent)
    {
    }
};

/// QProgressBar under a name of its own.
class VELLUM_EXPORT CusProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    CusProgressBar() = default;
    explicit CusProgressBar(QWidget *parent)
        : QProgressBar(parent)
    {
    }
};
