#pragma once

#include <QStyle>
#include <QWidget>

class CusSvgPushButton;

/// A still picture of an SVG button in one state, whatever the mouse does.
class ButtonState : public QWidget
{
    Q_OBJECT

public:
    /// \a button is drawn at the size of this widget, and stays hidden; its owner keeps it.
    ButtonState(CusSvgPushButton *button, QStyle::State state, const QSize &size,
                QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CusSvgPushButton *m_button;
    QStyle::State m_state;
};
