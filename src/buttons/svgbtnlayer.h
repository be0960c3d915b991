#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QStyle>

#include <memory>

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
/// that are kept of them. It can't be copied, since the image can't. Few buttons use every layer,
/// so a layer takes memory only from its first setter on.
class SvgBtnLayer
{
public:
    SvgBtnLayer();
    ~SvgBtnLayer();

    QString imageOf(BtnState state) const;
    QColor colorOf(BtnState state) const;
    /// The normal state's file is also the document that the states with only a colour recolour.
    void setNormalImage(const QString &file);
    void setImage(BtnState state, const QString &file);
    void setColor(BtnState state, const QColor &color);

    /// The renderer of the normal state, made where it is missing; null where there is none.
    QSvgRenderer *normalRenderer();
    /// The renderer of \a state, else that of the normal state, else null.
    QSvgRenderer *renderer(BtnState state);

    QSize size{16, 16};

private:
    struct Pictures;
    Pictures &pictures();

    std::unique_ptr<Pictures> m_pictures;
};

} // namespace vellum
