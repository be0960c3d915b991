#include "labels/anglewidgte.h"

#include "common/restyle.h"
#include "common/saferect.h"

#include <QLabel>
#include <QLayout>
#include <QPointer>

namespace {

constexpr int kWidth = 265;
constexpr int kMinimumHeight = 100;
constexpr int kMaximumHeight = 65536;

int padded(int extent, int before, int after)
{
    return qMax(0, vellum::safeExtent(qint64(extent) + before + after));
}

} // namespace

struct AngleWidgte::Private
{
    QPointer<QLabel> label;
    int left = 8;
    int right = 8;
    int top = 4;
    int bottom = 4;
};

AngleWidgte::AngleWidgte(ArrowWidget::ArrowType arrowType, bool asToolTip, QWidget *parent)
    : ArrowWidget(arrowType, parent)
    , d(std::make_unique<Private>())
{
    Qt::WindowFlags flags = windowFlags() | Qt::FramelessWindowHint;
    if (asToolTip)
        flags |= Qt::ToolTip;
    setWindowFlags(flags);
    d->label = new QLabel(this);
    d->label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    d->label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    addCenterWidget(d->label);
    setFrameSize(QSize(kWidth, kMinimumHeight), QSize(kWidth, kMaximumHeight));
}

AngleWidgte::~AngleWidgte() = default;

QLabel *AngleWidgte::label() const
{
    // A replaced label lives on until the event loop deletes it.
    return d->label && layout()->indexOf(d->label) >= 0 ? d->label.data() : nullptr;
}

void AngleWidgte::setShowText(const QString &text)
{
    QLabel *target = label();
    if (!target)
        return;
    target->setText(text);
    target->ensurePolished();
    const QSize size = target->fontMetrics().boundingRect(text).size();
    setCenterWidgetSize(
        QSize(padded(size.width(), d->left, d->right), padded(size.height(), d->top, d->bottom)));
    show();
}

void AngleWidgte::setLabelPadding(int left, int right, int top, int bottom)
{
    d->left = left;
    d->right = right;
    d->top = top;
    d->bottom = bottom;
}

void AngleWidgte::setShowTextObjectName(const QString &name)
{
    if (QLabel *target = label()) {
        target->setObjectName(name);
        vellum::restyle(target);
    }
}
