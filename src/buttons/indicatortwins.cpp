#include "buttons/indicatortwins.h"

#include "buttons/cussvgpushbutton.h"
#include "common/restyle.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"

#include <QFontMetrics>
#include <QStyleOptionButton>
#include <QVariant>

namespace vellum {

IndicatorTwins::IndicatorTwins(const QString &checkedName, const QString &uncheckedName)
    : checked(makeCheckedSvgTwin(checkedName))
    , unchecked(makeSvgTwin(uncheckedName))
{
}

void IndicatorTwins::rename(const QString &checkedName, const QString &uncheckedName)
{
    renameSvgTwin(checked.get(), checkedName);
    renameSvgTwin(unchecked.get(), uncheckedName);
}

void IndicatorTwins::setProperty(const char *name, const QVariant &value)
{
    // A twin has no parent: made visible it would open as a window of its own.
    if (qstrcmp(name, "visible") == 0)
        return;
    setRestyledProperty(checked.get(), name, value);
    setRestyledProperty(unchecked.get(), name, value);
}

void IndicatorTwins::draw(QPainter *painter, bool drawChecked, const QRect &rect,
                          QStyle::State state, const QWidget *owner) const
{
    QStyleOptionButton option;
    option.initFrom(owner);
    option.rect = rect;
    option.state = state;
    StyleDelegateComFun::drawSvgBtn(painter, &option, (drawChecked ? checked : unchecked).get(),
                                    owner->style(), CusSvgPushButton::DrawStype_Delegate);
}

bool setRestyledProperty(QWidget *widget, const char *name, const QVariant &value)
{
    const bool changes = name && widget->property(name) != value;
    const bool declared = widget->setProperty(name, value);
    // The sheet would set a declared property back to its own value.
    if (changes && !declared)
        restyle(widget);
    return declared;
}

QString elidedWithTip(QWidget *widget, const QString &text, const QFontMetrics &metrics, int width)
{
    if (metrics.size(Qt::TextShowMnemonic, text).width() <= width)
        return text;
    // Even the same tip sends an event, and this runs with every paint.
    if (widget->toolTip() != text)
        widget->setToolTip(text);
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, qMax(0, width), Qt::TextShowMnemonic);
    return lines.join(QLatin1Char('\n'));
}

QString elidedLabel(QWidget *widget, const QString &text)
{
    const QFontMetrics metrics = widget->fontMetrics();
    const int width = widget->width() - metrics.horizontalAdvance(QStringLiteral("..."));
    return elidedWithTip(widget, text, metrics, width);
}

} // namespace vellum
