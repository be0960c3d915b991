#include "pages/buttonstate.h"

#include <Vellum/CusSvgPushButton>

#include <QPainter>
#include <QStyleOptionButton>

ButtonState::ButtonState(CusSvgPushButton *button, QStyle::State state, const QSize &size,
                         QWidget *parent)
    : QWidget(parent)
    , m_button(button)
    , m_state(state)
{
    setFixedSize(size);
}

void ButtonState::paintEvent(QPaintEvent * /*event*/)
{
    m_button->ensurePolished();
    const bool enabled = m_state & QStyle::State_Enabled;
    QPainter painter(this);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.setFont(m_button->font());
    painter.setPen(m_button->palette().color(enabled ? QPalette::Active : QPalette::Disabled,
                                             m_button->foregroundRole()));
    QStyleOptionButton option;
    option.initFrom(m_button);
    option.rect = rect();
    option.state = m_state;
    option.text = m_button->text();
    m_button->paintSvgBtn(&painter, option, m_button->style(), CusSvgPushButton::DrawStype_Widget);
}
