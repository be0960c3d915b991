#pragma once

#include "common/cussvgimage.h"
#include "common/svgimageinfo.h"

#include <QSize>
#include <QStyle>

#include <array>

class QSvgRenderer;

namespace vellum {

/// The visual states of a button that has a picture for each.
enum class BtnState
{
    Normal,
    Hover,
    Pressed,
    Checked,
    Selected,
    Disable
};

/// What a button that paints itself shows in \a state.
BtnState widgetBtnState(QStyle::State state);
/// What a button that a delegate stamps into a cell shows in \a state.
BtnState stampBtnState(QStyle::State state);

/// One of the stacked pictures of a button: an image and a colour for each state, and the renderers
/// that are kept of them. It can't be copied, since the image can't.
class SvgBtnLayer
{
public:
    SvgImageInfo &operator[](BtnState state) { return m_pairs[static_cast<size_t>(state)]; }

    /// The normal state's file is also the document that the states with only a colour recolour.
    void setNormalImage(const QString &file);

    /// The renderer of the normal state, made where it is missing; null where there is none.
    QSvgRenderer *normalRenderer();
    /// The renderer of \a state, else that of the normal state, else null.
    QSvgRenderer *renderer(BtnState state);

    QSize size{16, 16};

private:
    static constexpr size_t kStateCount = 6;

    CusSvgImage m_image;
    std::array<SvgImageInfo, kStateCount> m_pairs;
};

} // namespace vellum
