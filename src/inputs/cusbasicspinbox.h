#pragma once

#include "vellum_export.h"

#include <QSpinBox>

#include <memory>

class QStylePainter;

/// An integer spin box with SVG arrows, which refuses an entry outside its range instead of
/// bending it to the nearest limit: the value from before comes back, and a bubble says what is
/// allowed.
///
/// - Typing a number inside the range: the value follows each key.
/// - Typing one outside: the text stays; the value is that of before the typing began.
/// - Return, Enter: commits; tells valueChanged(), editingFinished() and the line edit's
///   returnPressed(), once each, even without a change. An empty text counts as 0.
/// - Losing the focus: commits; an empty text is refused.
/// - Wheel, with the focus: one step a turn, however large; a turn of less than 15 degrees or
///   sideways steps down.
/// - Wheel, without the focus or read-only: left to the parent.
/// - Tab passes by: focus comes by a click only.
///
/// The number is read in base 10; what is none counts as 0. There is no context menu. The arrows
/// are hidden buttons, "btn_spinBoxUp" and "btn_spinBoxDown" for style sheets. GUI thread only.
class VELLUM_EXPORT CusBasicSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit CusBasicSpinBox(QWidget *parent = nullptr);
    ~CusBasicSpinBox() override;

    /// True, the default, refuses entries outside the range as described above; false leaves
    /// typing, Return and loss of focus to QSpinBox.
    void setInvaildValToRange(bool enable);
    /// Sets the dynamic property "Invalid" to the opposite of \a valid on box and arrows, and lets
    /// the style sheet match them again.
    void setIsValidStyle(bool valid);
    /// The text in the empty editor.
    void setPlaceHolderText(const QString &text);
    /// Hides QObject::setProperty(): sets the property on the box and, but for "objectName" and
    /// "visible", on the arrows, so that a style sheet's state reaches their images.
    void setProperty(const char *name, const QVariant &value);

    /// Installed on the application, a press outside the box passes its focus on.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Hides QAbstractSpinBox::setLineEdit(), which is called; null does nothing.
    void setLineEdit(QLineEdit *edit);
    /// Draws the box as \a option says: frame and ground by the style, the arrows by their images.
    void paintSpinbox(QStylePainter *painter, QStyleOptionSpinBox *option);
    void initStyleOption(QStyleOptionSpinBox *option) const;
    /// True while the value changes below a text that stays as it was typed. textFromValue() of a
    /// subclass then returns what this class's returns.
    bool keepsTypedText() const;
    /// The number in \a text, which may have prefix and suffix; 0, and \a ok false, if it is none.
    int readNumber(const QString &text, bool *ok = nullptr) const;

    QValidator::State validate(QString &input, int &pos) const override;
    QString textFromValue(int value) const override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void watchLineEdit();
    void onEditorTextChanged(const QString &text);
    QString typedText() const;
    bool isInRange(int number) const;
    void commitByReturn(QKeyEvent *event);
    void addOrSubSingleStep(int steps);
    void showRangeTip(const QString &fullStop);

    struct Private;
    const std::unique_ptr<Private> d;
};
