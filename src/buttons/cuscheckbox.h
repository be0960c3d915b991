#pragma once

#include "vellum_export.h"

#include <QCheckBox>

#include <memory>

class QStyleOptionButton;

/// A check box whose indicator is an SVG button of the application's style sheet:
/// a CusSvgPushButton named "btn_checkBoxChecked" while it is checked, "btn_checkBoxUnchecked"
/// otherwise. The latter also stands for a partly checked box, which a sheet can tell by
/// ":indeterminate".
///
/// A label that is wider than the box less an ellipsis is elided and becomes the box's tool tip;
/// the tip stays when the label changes. With checkLabelWordWrap the label wraps instead, the box
/// takes its height when it is painted, and the indicator stands beside the first line; "&" is then
/// drawn as it stands. Keyboard, focus and accessibility are QCheckBox's.
class VELLUM_EXPORT CusCheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool checkOnlyIndicator READ getCheckOnlyIndicator WRITE setCheckOnlyIndicator)
    Q_PROPERTY(bool checkLabelWordWrap READ getCheckLabelWordWrap WRITE setCheckLabelWordWrap)

public:
    explicit CusCheckBox(const QString &text, QWidget *parent = nullptr);
    explicit CusCheckBox(QWidget *parent = nullptr);
    ~CusCheckBox() override;

    /// The height in pixels that a wrapped label last gave the box, 0 before.
    int getCheckLabelHeight() const;

    /// True: a press on the label doesn't toggle but emits signalLabelClicked(). False at first.
    void setCheckOnlyIndicator(bool only);
    bool getCheckOnlyIndicator() const;

    /// True: the label wraps at the box's width. False at first; setting it back frees the height.
    void setCheckLabelWordWrap(bool wrap);
    bool getCheckLabelWordWrap() const;

    /// Renames the two hidden indicators, so that the sheet gives them other pictures.
    void setCheckBoxBtnObjectName(const QString &checked, const QString &unchecked);

    /// Sets a property of both hidden indicators and then of the box; the sheet is matched again,
    /// so that a dynamic property reaches the pictures. "visible" reaches the box alone. Hides
    /// QObject::setProperty(), which a base pointer still calls.
    bool setProperty(const char *name, const QVariant &value);

Q_SIGNALS:
    void signalLabelClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool hitButton(const QPoint &pos) const override;

private:
    QRect indicatorRect(const QStyleOptionButton &option) const;
    QRect wrappedLabelRect(const QStyleOptionButton &option) const;
    bool overIndicator(const QPoint &pos) const;
    bool overWrapped(const QPoint &pos) const;
    void takeLabelHeight(int height);
    void setHovered(bool hovered);

    struct Private;
    const std::unique_ptr<Private> d;
};
