#pragma once

#include "labels/arrowwidget.h"

class QLabel;

/// An arrow frame with a text in it. 265 pixels wide and at least 100 high until setShowText()
/// fits it to its text. GUI thread only.
class VELLUM_EXPORT AngleWidgte : public ArrowWidget
{
    Q_OBJECT

public:
    /// With \a asToolTip the frame is a tool-tip window of its own, even with a parent.
    AngleWidgte(ArrowWidget::ArrowType arrowType, bool asToolTip, QWidget *parent = nullptr);
    ~AngleWidgte() override;

    /// The text's label, owned by the frame; null once another centre widget took its place.
    QLabel *label() const;
    /// Takes \a text, fits the frame to its one line plus the padding, and shows it. Does nothing
    /// without a label.
    void setShowText(const QString &text);
    /// Pixels around the text, from the next setShowText() on; 8, 8, 4 and 4 by default.
    void setLabelPadding(int left, int right, int top, int bottom);
    /// Names the label for style sheets.
    void setShowTextObjectName(const QString &name);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
