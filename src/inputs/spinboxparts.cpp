#include "inputs/spinboxparts.h"

#include "buttons/cussvgpushbutton.h"
#include "buttons/indicatortwins.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"

#include <QAbstractSpinBox>
#include <QStyleOptionSpinBox>
#include <QStylePainter>
#include <QVariant>

namespace {

constexpr int kArrowSize = 12;
constexpr int kRightGap = 7;

/// The arrow's place in the style's button \a part of a box that ends at \a rightEdge.
QRect arrowRect(const QRect &part, int rightEdge)
{
    QRect arrow = part;
    if (part.width() > kArrowSize) {
        arrow.setWidth(kArrowSize);
        const int x = part.x() + (part.width() - kArrowSize) / 2;
        arrow.moveLeft(qMin(x, rightEdge - kRightGap - kArrowSize));
    }
    if (part.height() > kArrowSize) {
        arrow.setHeight(kArrowSize);
        arrow.moveTop(part.y() + (part.height() - kArrowSize) / 2);
    }
    return arrow;
}

} // namespace

namespace vellum {

QString stripAffixes(const QString &text, const QString &prefix, const QString &suffix)
{
    QString stripped = text;
    for (const QString &affix : {prefix, suffix}) {
        if (!affix.isEmpty())
            stripped.replace(affix, QString());
    }
    return stripped;
}

void SpinBoxArrows::make()
{
    if (m_up)
        return;
    m_up = makeSvgTwin(QStringLiteral("btn_spinBoxUp"));
    m_down = makeSvgTwin(QStringLiteral("btn_spinBoxDown"));
}

void SpinBoxArrows::setProperty(const char *name, const QVariant &value)
{
    make();
    setRestyledProperty(m_up.get(), name, value);
    setRestyledProperty(m_down.get(), name, value);
}

void SpinBoxArrows::paint(QStylePainter *painter, QStyleOptionSpinBox *option,
                          const QAbstractSpinBox *box)
{
    QStyle *style = box->style();
    const int rightEdge = option->rect.x() + option->rect.width();
    const QRect up = arrowRect(
        style->subControlRect(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxUp, box), rightEdge);
    const QRect down = arrowRect(
        style->subControlRect(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxDown, box), rightEdge);

    option->subControls &= ~(QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown);
    painter->drawComplexControl(QStyle::CC_SpinBox, *option);
    if (box->buttonSymbols() != QAbstractSpinBox::UpDownArrows)
        return;

    make();
    const auto stamp = [&](const QRect &rect, CusSvgPushButton *twin) {
        QStyleOptionButton button;
        button.rect = rect;
        button.state = svgTwinState(rect, *option, box);
        StyleDelegateComFun::drawSvgBtn(painter, &button, twin, style,
                                        CusSvgPushButton::DrawStype_Delegate);
    };
    stamp(up, m_up.get());
    stamp(down, m_down.get());
}

} // namespace vellum
