#include "buttons/svgbtnlayer.h"

#include <QSvgRenderer>

namespace vellum {

namespace {

/// A pair keeps the renderer of a file that could not be read, so that it isn't read again.
QSvgRenderer *usable(QSvgRenderer *renderer)
{
    return renderer && renderer->isValid() ? renderer : nullptr;
}

} // namespace

BtnState widgetBtnState(QStyle::State state)
{
    if (!(state & QStyle::State_Enabled))
        return BtnState::Disable;
    if (state & QStyle::State_Selected)
        return BtnState::Selected;
    if (state & QStyle::State_On)
        return BtnState::Checked;
    if (state & QStyle::State_Sunken)
        return BtnState::Pressed;
    return state & QStyle::State_MouseOver ? BtnState::Hover : BtnState::Normal;
}

BtnState stampBtnState(QStyle::State state)
{
    // In a cell the cursor's feedback comes first.
    if (!(state & QStyle::State_Enabled))
        return BtnState::Disable;
    if (state & QStyle::State_Sunken)
        return BtnState::Pressed;
    if (state & QStyle::State_MouseOver)
        return BtnState::Hover;
    if (state & QStyle::State_On)
        return BtnState::Checked;
    return state & QStyle::State_Selected ? BtnState::Selected : BtnState::Normal;
}

void SvgBtnLayer::setNormalImage(const QString &file)
{
    m_image.load(file);
    (*this)[BtnState::Normal].setSvgImage(file);
}

QSvgRenderer *SvgBtnLayer::normalRenderer()
{
    SvgImageInfo &normal = (*this)[BtnState::Normal];
    if (!normal.render()) {
        // The document may have changed, and the states that only recolour it hold snapshots of the
        // old one. A selected look keeps its snapshot.
        for (BtnState state :
             {BtnState::Hover, BtnState::Pressed, BtnState::Checked, BtnState::Disable}) {
            if ((*this)[state].svgImage().isEmpty())
                (*this)[state].clean();
        }
    }
    normal.init(&m_image);
    return usable(normal.render());
}

QSvgRenderer *SvgBtnLayer::renderer(BtnState state)
{
    QSvgRenderer *normal = normalRenderer();
    if (state == BtnState::Normal)
        return normal;
    SvgImageInfo &pair = (*this)[state];
    pair.init(&m_image);
    QSvgRenderer *own = usable(pair.render());
    return own ? own : normal;
}

} // namespace vellum
