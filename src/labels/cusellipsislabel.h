#pragma once

#include "vellum_export.h"

#include <QLabel>

#include <memory>

/// A label that grows with its text up to maxWidth and elides beyond it.
///
/// The label sizes itself while it paints: its maximum width and its width follow the text, which
/// is measured as plain text in the label's font. An empty text leaves it one pixel wide.
class VELLUM_EXPORT CusEllipsisLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int maxWidth READ maxWidth WRITE set_maxWidth NOTIFY maxWidthChanged)
    Q_PROPERTY(
        bool customToolTip READ customToolTip WRITE set_customToolTip NOTIFY customToolTipChanged)

public:
    explicit CusEllipsisLabel(QWidget *parent = nullptr);
    ~CusEllipsisLabel() override;

    /// The width in pixels from which on the text is elided, 65535 at first. A negative one counts
    /// as 0 where the label is sized.
    int maxWidth() const;
    void set_maxWidth(int width);

    /// With false, the default, an elided text becomes the tool tip whenever the label paints; with
    /// true the tool tip is the client's own.
    bool customToolTip() const;
    void set_customToolTip(bool custom);

Q_SIGNALS:
    /// Sent when the value changed only, as customToolTipChanged() is.
    void maxWidthChanged(int width);
    void customToolTipChanged(bool custom);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void takeWidth(int width);
    void drawElided(int width);

    struct Private;
    const std::unique_ptr<Private> d;
};
