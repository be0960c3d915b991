#pragma once

#include "vellum_export.h"

#include <QPushButton>

#include <memory>

class QStyleOptionButton;

/// The plain text button. A text that doesn't fit is elided and becomes the tool tip; each line of
/// a text with line feeds by itself. A long press, with the mouse or the space bar, can be
/// reported.
class VELLUM_EXPORT CusPushButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(bool mEnableLongPress READ getEnableLongPress WRITE setEnableLongPress)
    Q_PROPERTY(int mLongPressInternal READ getLongPressInternal WRITE setLongPressInternal)

public:
    explicit CusPushButton(QWidget *parent = nullptr);
    ~CusPushButton() override;

    /// Whether a long press is reported. False at first; the click that ends it comes all the same.
    void setEnableLongPress(bool enable);
    bool getEnableLongPress() const;

    /// How long a long press takes, in milliseconds, 300 at first. Below 1 counts as 1; a press
    /// that is under way keeps its time.
    void setLongPressInternal(int milliseconds);
    int getLongPressInternal() const;

    /// The pixels of the button's width that are not the text's: padding, icon. 0 at first.
    void setOtherFixedWidth(int width);

Q_SIGNALS:
    /// The button has been held down for the set time, once a press; \a clicked is isChecked().
    void signalBtnLongPressed(bool clicked);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void textAdjustBtnWidth(QStyleOptionButton *option);
    void startLongPress();
    void onLongPressTimeout();

    struct Private;
    const std::unique_ptr<Private> d;
};
