#pragma once

#include "vellum_export.h"

#include <QTabBar>

/// A tab bar without scroll arrows, whose tabs fill its height.
///
/// The wheel is taken and does nothing: a page that scrolls must not switch tabs by accident. The
/// arrows are every QToolButton that is a direct child. Meant for tabs above or below their pages:
/// in an upright bar each tab would be as tall as the bar.
class VELLUM_EXPORT CusTabBar : public QTabBar
{
    Q_OBJECT

public:
    /// \a parent is not used: the bar starts without one, and QTabWidget::setTabBar() adopts it.
    /// Who puts the bar elsewhere gives it a parent by setParent() or a layout.
    explicit CusTabBar(QWidget *parent);
    ~CusTabBar() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    /// The style's size, as high as the bar if that is higher.
    QSize tabSizeHint(int index) const override;
    void wheelEvent(QWheelEvent *event) override;
};
