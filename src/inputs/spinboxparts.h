#pragma once

#include <QString>

#include <memory>

class CusSvgPushButton;
class QAbstractSpinBox;
class QStyleOptionSpinBox;
class QStylePainter;
class QVariant;

namespace vellum {

/// \a text without any occurrence of \a prefix and \a suffix, case sensitive.
QString stripAffixes(const QString &text, const QString &prefix, const QString &suffix);

/// The SVG arrows of a spin box: hidden twins named "btn_spinBoxUp" and "btn_spinBoxDown", at most
/// 12 by 12 pixels each, that a spin box stamps where its style has the buttons.
class SpinBoxArrows
{
public:
    /// Sets a property on both twins and lets the style sheet match them again.
    void setProperty(const char *name, const QVariant &value);
    /// Draws \a box without the style's buttons, and the arrows on top if it has arrows at all.
    void paint(QStylePainter *painter, QStyleOptionSpinBox *option, const QAbstractSpinBox *box);

private:
    void make();

    // Made when they are first needed: a form with hundreds of boxes shows a few of them.
    std::shared_ptr<CusSvgPushButton> m_up;
    std::shared_ptr<CusSvgPushButton> m_down;
};

} // namespace vellum
