#include "buttons/cuscheckbox.h"

#include "buttons/indicatortwins.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

namespace {

constexpr int kWrappedIndicatorY = 2;
constexpr int kUnboundedHeight = 65536;
constexpr int kWrapFlags = int(Qt::TextWordWrap) | int(Qt::AlignTop) | int(Qt::AlignLeft);

} // namespace

struct CusCheckBox::Private
{
    vellum::IndicatorTwins twins{QStringLiteral("btn_checkBoxChecked"),
                                 QStringLiteral("btn_checkBoxUnchecked")};
    bool checkOnlyIndicator = false;
    bool checkLabelWordWrap = false;
    QRect indicatorRect;
    QRect labelRect;
    bool hovered = false;
    int labelHeight = 0;
};

CusCheckBox::CusCheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
    , d(std::make_unique<Private>())
{
    setCursor(Qt::PointingHandCursor);
}

CusCheckBox::CusCheckBox(QWidget *parent)
    : CusCheckBox(QString(), parent)
{
}

CusCheckBox::~CusCheckBox() = default;

int CusCheckBox::getCheckLabelHeight() const
{
    return d->labelHeight;
}

void CusCheckBox::setCheckOnlyIndicator(bool only)
{
    d->checkOnlyIndicator = only;
}

bool CusCheckBox::getCheckOnlyIndicator() const
{
    return d->checkOnlyIndicator;
}

void CusCheckBox::setCheckLabelWordWrap(bool wrap)
{
    if (d->checkLabelWordWrap == wrap)
        return;
    d->checkLabelWordWrap = wrap;
    if (!wrap && d->labelHeight > 0) {
        d->labelHeight = 0;
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
    }
    update();
}

bool CusCheckBox::getCheckLabelWordWrap() const
{
    return d->checkLabelWordWrap;
}

void CusCheckBox::setCheckBoxBtnObjectName(const QString &checked, const QString &unchecked)
{
    d->twins.rename(checked, unchecked);
    update();
}

bool CusCheckBox::setProperty(const char *name, const QVariant &value)
{
    d->twins.setProperty(name, value);
    return vellum::setRestyledProperty(this, name, value);
}

QRect CusCheckBox::indicatorRect(const QStyleOptionButton &option) const
{
    QRect rect = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    if (d->checkLabelWordWrap)
        rect.moveTop(kWrappedIndicatorY);
    return rect;
}

QRect CusCheckBox::wrappedLabelRect(const QStyleOptionButton &option) const
{
    QRect column = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    // Some styles place the contents beside the indicator, which they centre in height.
    column.setTop(0);
    column.setHeight(kUnboundedHeight);
    const QRect bounds = fontMetrics().boundingRect(column, kWrapFlags, option.text);
    return QStyle::visualRect(option.direction, column, bounds);
}

void CusCheckBox::takeLabelHeight(int height)
{
    height = qBound(0, height, QWIDGETSIZE_MAX);
    if (height == d->labelHeight)
        return;
    d->labelHeight = height;
    setFixedHeight(height);
}

void CusCheckBox::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool wrap = d->checkLabelWordWrap;
    if (wrap) {
        d->labelRect = wrappedLabelRect(option);
        takeLabelHeight(d->labelRect.height());
    } else {
        option.text = vellum::elidedLabel(this, option.text);
    }

    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    const QRect contents = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    d->indicatorRect = indicatorRect(option);
    option.state &= ~(QStyle::State_Off | QStyle::State_On);
    QStyle::State state = option.state;
    if (wrap)
        state.setFlag(QStyle::State_MouseOver, d->hovered);
    d->twins.draw(&painter, checkState() == Qt::Checked, d->indicatorRect, state, this);

    const QString text = option.text;
    if (wrap)
        option.text.clear();
    option.rect = contents;
    style()->drawControl(QStyle::CE_CheckBoxLabel, &option, &painter, this);
    if (wrap) {
        style()->drawItemText(&painter, d->labelRect, kWrapFlags, option.palette, isEnabled(), text,
                              QPalette::WindowText);
    }
}

bool CusCheckBox::hitButton(const QPoint &pos) const
{
    if (QCheckBox::hitButton(pos))
        return true;
    // The style knows the place of one centred line alone.
    return d->checkLabelWordWrap && overWrapped(pos);
}

bool CusCheckBox::overIndicator(const QPoint &pos) const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    // Where the style has it counts also in a wrapped box, whose drawn one stands higher.
    return style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this).contains(pos)
        || (d->checkLabelWordWrap && d->indicatorRect.contains(pos));
}

bool CusCheckBox::overWrapped(const QPoint &pos) const
{
    return d->indicatorRect.contains(pos) || d->labelRect.contains(pos);
}

void CusCheckBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (d->checkOnlyIndicator && hitButton(event->pos()) && !overIndicator(event->pos())) {
        Q_EMIT signalLabelClicked();
        event->ignore();
        return;
    }
    QAbstractButton::mousePressEvent(event);
}

void CusCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    d->hovered = false;
    QAbstractButton::mouseReleaseEvent(event);
}

void CusCheckBox::mouseMoveEvent(QMouseEvent *event)
{
    // What the client does with pressed() or released() may delete the box.
    const QPointer<CusCheckBox> alive(this);
    QCheckBox::mouseMoveEvent(event);
    if (alive && d->checkLabelWordWrap)
        setHovered(overWrapped(event->pos()));
}

void CusCheckBox::leaveEvent(QEvent *event)
{
    QCheckBox::leaveEvent(event);
    d->hovered = false;
    if (d->checkLabelWordWrap)
        update();
}

void CusCheckBox::setHovered(bool hovered)
{
    if (d->hovered == hovered)
        return;
    d->hovered = hovered;
    update();
}
