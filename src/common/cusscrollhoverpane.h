#pragma once

#include "vellum_export.h"

#include <QFrame>

#include <memory>

/// A frame that hovers over the lower edge of a scroll area and covers that much of its view.
///
/// The pane is hidden until the client shows it; ensureWidgetVisible() takes the height of a
/// visible one off the area that counts as seen.
class VELLUM_EXPORT CusScrollHoverPane : public QFrame
{
    Q_OBJECT

public:
    /// With \a followParent the pane keeps the parent's width and stays at its lower edge while the
    /// parent is resized; without it the client places the pane.
    explicit CusScrollHoverPane(QWidget *parent = nullptr, bool followParent = false);
    ~CusScrollHoverPane() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void placeAtLowerEdge();

    struct Private;
    const std::unique_ptr<Private> d;
};
