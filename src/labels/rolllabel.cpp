#include "labels/rolllabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTimer>

namespace {

constexpr int kRollInterval = 200;

/// What stands between the end of the text and its next beginning.
QString rollGap()
{
    return QStringLiteral("    ");
}

} // namespace

struct RollLabel::Private
{
    QTimer *timer = nullptr;
    int rollPos = 0;
    QString fullText;
    QString shownText;
    RollLabelType rollType = Roll_Auto;
};

RollLabel::RollLabel(QWidget *parent)
    : RollLabel(QString(), parent)
{
}

RollLabel::RollLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
    , d(std::make_unique<Private>())
{
    d->fullText = text;
    d->shownText = text;
    d->timer = new QTimer(this);
    connect(d->timer, &QTimer::timeout, this, &RollLabel::onUpdate);
    d->timer->start(kRollInterval);
}

RollLabel::~RollLabel() = default;

void RollLabel::setText(const QString &text)
{
    if (text == d->fullText)
        return;
    d->fullText = text;
    d->shownText = text;
    QLabel::setText(text);
}

void RollLabel::setRollType(RollLabelType type)
{
    d->rollType = type;
    if (type == Roll_Auto)
        d->timer->start();
    else
        standStill();
    update();
}

RollLabel::RollLabelType RollLabel::rollType() const
{
    return d->rollType;
}

void RollLabel::startRoll()
{
    if (d->rollType != Roll_Auto)
        d->timer->start();
}

void RollLabel::stopRoll()
{
    if (d->rollType != Roll_Auto)
        standStill();
    update();
}

void RollLabel::standStill()
{
    d->timer->stop();
    d->shownText = d->fullText;
    QLabel::setText(d->fullText);
}

void RollLabel::onUpdate()
{
    if (!isVisible())
        return;
    if (++d->rollPos >= text().size() + rollGap().size())
        d->rollPos = 0;
    const QString before = d->shownText;
    updateRoll();
    // A text that fits shows the same picture at every tick.
    if (d->shownText != before)
        update();
}

void RollLabel::updateRoll()
{
    const int available = contentsRect().width() - 2 * margin();
    if (fontMetrics().horizontalAdvance(d->fullText) <= available)
        d->shownText = d->fullText;
    else
        d->shownText = (d->fullText + rollGap()).mid(d->rollPos) + d->fullText;
}

void RollLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const int inset = margin();
    style()->drawItemText(&painter, contentsRect().adjusted(inset, inset, -inset, -inset),
                          int(alignment()), option.palette, isEnabled(), d->shownText,
                          foregroundRole());
}
