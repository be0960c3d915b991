#pragma once

#include "buttons/cussvgpushbutton.h"

/// An SVG button that shows its tool tip as soon as it is clicked, a question mark beside an input
/// for example. Its object name is "CusClickTipButton".
class VELLUM_EXPORT CusClickTipButton : public CusSvgPushButton
{
    Q_OBJECT

public:
    explicit CusClickTipButton(QWidget *parent = nullptr);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};
