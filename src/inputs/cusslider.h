#pragma once

#include "vellum_export.h"

#include <QColor>
#include <QList>
#include <QSlider>
#include <QVariant>

#include <functional>
#include <memory>

class QLabel;

/// A slider whose handle is drawn from SVG images, that jumps to a click, and that can show its
/// value as text and mark one value with a tick.
///
/// The handle is a hidden button that the application's style sheet dresses by its object name,
/// "btn_sliderHandle". A press of the left button anywhere, on a vertical slider too, sets the
/// value by the press's distance to the edge of the minimum, in shares of the width less 10 pixels.
/// Keyboard and wheel are QSlider's. Values are any int; where the range is empty or the slider too
/// narrow for a computation, that step is left out.
class VELLUM_EXPORT CusSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(SliderTextPos textPos READ sliderTextPos WRITE setLabelTextPos)
    Q_PROPERTY(bool showText READ allwaysShowText WRITE setAllwaysShowText)
    Q_PROPERTY(int validMin READ validMin WRITE setValidMin)
    Q_PROPERTY(int validMax READ validMax WRITE setValidMax)
    Q_PROPERTY(bool checkValidRange READ checkValidRange WRITE setCheckValidRange)

public:
    /// Where the value's text stands. Any other number puts it to the slider's upper left corner.
    enum SliderTextPos : int
    {
        TEXT_POS_NONE = 0,
        TEXT_POS_LEFT = 1,      ///< above the slider's left end
        TEXT_POS_RIGHT = 2,     ///< above its right end
        TEXT_POS_ON_HANDLE = 3, ///< above the handle; see enableLabelIsChild()
        TEXT_POS_FOLLOW_MOUSE = 4
    };
    Q_ENUM(SliderTextPos)

    enum SliderDrawType : int
    {
        SLIDER_DRAW_DEFAULT = 0
    };
    Q_ENUM(SliderDrawType)

    /// A horizontal slider.
    explicit CusSlider(QWidget *parent = nullptr);
    explicit CusSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    /// Deletes the value label too, whoever its parent is by now.
    ~CusSlider() override;

    /// Formats the value's text; an empty function means the plain number. It may be asked for
    /// values that the slider does not have, such as the one under the cursor.
    void registerValueToTextCb(const std::function<QString(int)> &callback);

    /// TEXT_POS_NONE at first, which hides the label. The label is made when it is first needed.
    void setLabelTextPos(SliderTextPos position);
    SliderTextPos sliderTextPos() const;
    /// Moves the text down by \a offset pixels; with TEXT_POS_FOLLOW_MOUSE, up. No effect on
    /// TEXT_POS_ON_HANDLE.
    void setOffsetY(int offset);

    /// Whether the text follows each change of the value and stays when the cursor leaves. True at
    /// first; it takes effect at the next of these events.
    void setAllwaysShowText(bool show);
    bool allwaysShowText() const;

    /// Makes the slider (true) or its parent widget (false) the label's parent, within which the
    /// label stays. A slider without a parent keeps its label. With TEXT_POS_ON_HANDLE the slider
    /// looks for a higher parent by itself if there is no room above the handle.
    void enableLabelIsChild(bool isChild);
    /// Makes \a parent the label's parent; null does nothing.
    void setLabelParentWidget(QWidget *parent);

    /// An invalid colour is ignored.
    void setTextLabelFontColor(const QColor &color);
    /// In pixels, 11 at first; a size below 1 is ignored. A style sheet's size for labels wins.
    void setTextLabelFontSize(int size);
    /// Sets a dynamic property on the label and lets the style sheet match it again.
    void setTextLabelStyleProperty(const char *name, const QVariant &value);

    /// Marks \a value by a line in the theme's highlightColor, except while it is the slider's
    /// value. Shows at the next paint.
    void setTickMark(int value);
    /// Shows at the next paint.
    void cleanTickMark();

    /// \name Valid range
    /// 0 to 100 at first. While checkValidRange() is on, a value outside can't be dragged: the
    /// handle stays until the button is released. All other ways to change the value stay free.
    ///@{
    void setValidMin(int minimum);
    int validMin() const;
    void setValidMax(int maximum);
    int validMax() const;
    void setCheckValidRange(bool check);
    bool checkValidRange() const;
    ///@}

    /// \name Kept for clients; nothing is drawn from them
    ///@{
    void setMaskValue(const QList<int> &values, const QColor &color);
    void setSliderDrawType(SliderDrawType type);
    void setCustomGroveColor(const QColor &used, const QColor &unused);
    ///@}

    /// Whether the cursor is over the slider's rectangle.
    bool isMouseHover() const;

Q_SIGNALS:
    /// Follows each valueChanged().
    void signalSliderValueChange();

public Q_SLOTS:
    /// Hides QAbstractSlider::setValue(), for it does nothing while the left button is down: a
    /// model that is updated meanwhile can't pull the handle away. Such a value is dropped, not
    /// kept for later.
    void setValue(int value);
    /// Connected to the slider's own valueChanged().
    void onValueChanged(int value);

public:
    void setVisible(bool visible) override;

protected:
    /// The theme's highlightColor, as it was when the slider was made.
    QColor getTickLineColor() const;
    /// The QStyle::State of a handle in \a rect: enabled, hovered and pressed as in \a option, the
    /// latter two only under the cursor.
    int getSvgBtnState(const QRect &rect, const QStyleOptionSlider &option) const;
    /// Draws the handle into \a rect. A null painter draws nothing.
    void drawSliderBtn(QPainter *painter, const QRect &rect, const QStyleOptionSlider &option);
    /// Draws the handle at its place; for paintEvent(), while no other painter is active.
    void drawSliderHandler();

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void sliderChange(SliderChange change) override;

private:
    QLabel *ensureLabel();
    void moveLabelTo(QWidget *parent);
    void refreshLabel();
    void showLabel();
    bool updateLabelParentWid();
    void drawSliderText();
    QPoint followMousePos(const QRect &textRect);
    void drawTick();

    struct Private;
    const std::unique_ptr<Private> d;
};
