#include "buttons/svgbtnlayer.h"

#include "common/cussvgimage.h"
#include "common/svgimageinfo.h"

#include <QSvgRenderer>

#include <array>

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

struct SvgBtnLayer::Pictures
{
    CusSvgImage image;
    std::array<SvgImageInfo, 6> pairs;

    SvgImageInfo &operator[](BtnState state) { return pairs.at(static_cast<size_t>(state)); }
};

SvgBtnLayer::SvgBtnLayer() = default;
SvgBtnLayer::~SvgBtnLayer() = default;

SvgBtnLayer::Pictures &SvgBtnLayer::pictures()
{
    if (!m_pictures)
        m_pictures = std::make_unique<Pictures>();
    return *m_pictures;
}

QString SvgBtnLayer::imageOf(BtnState state) const
{
    return m_pictures ? (*m_pictures)[state].svgImage() : QString();
}

QColor SvgBtnLayer::colorOf(BtnState state) const
{
    return m_pictures ? (*m_pictures)[state].svgColor() : QColor();
}

void SvgBtnLayer::setNormalImage(const QString &file)
{
    pictures().image.load(file);
    setImage(BtnState::Normal, file);
}

void SvgBtnLayer::setImage(BtnState state, const QString &file)
{
    pictures()[state].setSvgImage(file);
}

void SvgBtnLayer::setColor(BtnState state, const QColor &color)
{
    pictures()[state].setSvgColor(color);
}

QSvgRenderer *SvgBtnLayer::normalRenderer()
{
    if (!m_pictures)
        return nullptr;
    SvgImageInfo &normal = (*m_pictures)[BtnState::Normal];
    if (!normal.render()) {
        // The document may have changed, and the states that only recolour it hold snapshots of the
        // old one. A selected look keeps its snapshot.
        for (BtnState state :
             {BtnState::Hover, BtnState::Pressed, BtnState::Checked, BtnState::Disable}) {
            SvgImageInfo &pair = (*m_pictures)[state];
            if (pair.svgImage().isEmpty())
                pair.clean();
        }
    }
    normal.init(&m_pictures->image);
    return usable(normal.render());
}

QSvgRenderer *SvgBtnLayer::renderer(BtnState state)
{
    QSvgRenderer *normal = normalRenderer();
    if (!m_pictures || state == BtnState::Normal)
        return normal;
    SvgImageInfo &pair = (*m_pictures)[state];
    pair.init(&m_pictures->image);
    QSvgRenderer *own = usable(pair.render());
    return own ? own : normal;
}

} // namespace vellum
