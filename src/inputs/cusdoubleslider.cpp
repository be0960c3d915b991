#include "inputs/cusdoubleslider.h"

#include "common/painterguard.h"
#include "common/safeint.h"
#include "inputs/sliderhandle.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

#include <cmath>

namespace {

constexpr int kTextPadding = 5;

/// The position of a limit: the first step that is not below it.
int stepsUp(double value, double step)
{
    return vellum::toInt(std::ceil(value / step));
}

} // namespace

struct CusDoubleSlider::Private
{
    bool showText = true;
    std::function<QString(double)> valToText;
    vellum::SliderHandle handle;
    double doubleVal = 0.0;
    double doubleMax = 100.0;
    double doubleMin = 0.0;
    double valueStep = 0.01;
};

CusDoubleSlider::CusDoubleSlider(QWidget *parent)
    : CusDoubleSlider(Qt::Horizontal, parent)
{
}

CusDoubleSlider::CusDoubleSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , d(std::make_unique<Private>())
{
    // Never shown: clients look for it by name, but the text is painted.
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("label_sliderText"));
    label->setAlignment(Qt::AlignCenter);
    label->hide();
    updateRange();
    connect(this, &QSlider::sliderMoved, this, &QSlider::valueChanged);
    connect(this, &QSlider::valueChanged, this, &CusDoubleSlider::updateCurVal);
}

CusDoubleSlider::~CusDoubleSlider() = default;

void CusDoubleSlider::registerValToTextCb(const std::function<QString(double)> &callback)
{
    d->valToText = callback;
    update();
}

void CusDoubleSlider::setAllwaysShowText(bool show)
{
    d->showText = show;
    update();
}

bool CusDoubleSlider::allwaysShowText() const
{
    return d->showText;
}

void CusDoubleSlider::setDoubleMinimum(double minimum)
{
    if (!std::isfinite(minimum))
        return;
    d->doubleMin = qMax(0.0, minimum);
    updateRange();
}

double CusDoubleSlider::getDoubleMinimum() const
{
    return d->doubleMin;
}

void CusDoubleSlider::setDoubleMaximum(double maximum)
{
    if (!std::isfinite(maximum))
        return;
    d->doubleMax = maximum;
    updateRange();
}

double CusDoubleSlider::getDoubleMaximum() const
{
    return d->doubleMax;
}

void CusDoubleSlider::setDoubleValueRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || maximum <= minimum)
        return;
    const QPointer<CusDoubleSlider> alive(this);
    setDoubleMaximum(maximum);
    if (alive)
        setDoubleMinimum(minimum);
}

void CusDoubleSlider::setValueStep(double step)
{
    if (!std::isfinite(step) || step <= 0.0 || d->doubleMax - d->doubleMin <= step)
        return;
    const double value = d->doubleVal;
    d->valueStep = step;
    // The same position means another value now, so the value is set again where it belongs.
    const QSignalBlocker blocker(this);
    updateRange();
    setDoubleVal(value);
}

double CusDoubleSlider::getValueStep() const
{
    return d->valueStep;
}

void CusDoubleSlider::setDoubleVal(double value)
{
    if (std::isnan(value))
        return;
    d->doubleVal = bounded(value);
    const QSignalBlocker blocker(this);
    setValue(vellum::toInt(d->doubleVal / d->valueStep));
    update();
}

double CusDoubleSlider::getDoubleVal() const
{
    return d->doubleVal;
}

void CusDoubleSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QSlider::mousePressEvent(event);
        return;
    }
    const QRect handle = textHandle();
    const int before = value();
    {
        // The page step of the base is taken back unseen, so that the jump alone is told.
        const QSignalBlocker blocker(this);
        QSlider::mousePressEvent(event);
        setRepeatAction(SliderNoAction);
        const bool tookHandle = isSliderDown() && value() == before;
        setValue(before);
        if (tookHandle || handle.contains(event->pos()) || width() <= 0 || minimum() == maximum())
            return;
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    const double ratio = double(vellum::fromMinimumEdge(event->pos().x(), option)) / width();
    setValue(vellum::toInt(maximum() * ratio));
}

void CusDoubleSlider::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CusDoubleSlider> alive(this);
    QSlider::mouseReleaseEvent(event);
    if (!alive)
        return;
    const double value = d->doubleVal;
    Q_EMIT signalMouseReleased(value);
}

void CusDoubleSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    QPainter painter(this);
    paintSlider(&painter);
    paintValText(&painter);
}

void CusDoubleSlider::sliderChange(SliderChange change)
{
    if (change == SliderRangeChange)
        vellum::avoidFatalRange(this);
    QSlider::sliderChange(change);
}

void CusDoubleSlider::updateCurVal(int value)
{
    d->doubleVal = qMin(value * d->valueStep, d->doubleMax);
    update();
    const double now = d->doubleVal;
    Q_EMIT signalValueChanged(now);
}

void CusDoubleSlider::updateRange()
{
    const QPointer<CusDoubleSlider> alive(this);
    setRange(stepsUp(d->doubleMin, d->valueStep), stepsUp(d->doubleMax, d->valueStep));
    if (alive)
        d->doubleVal = bounded(d->doubleVal);
}

/// With limits that are upside down the upper one wins.
double CusDoubleSlider::bounded(double value) const
{
    return qMin(qMax(value, d->doubleMin), d->doubleMax);
}

/// The handle as the plain style places it. A sheet may draw its handle beside it and so make room
/// for the text.
QRect CusDoubleSlider::textHandle() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
}

void CusDoubleSlider::paintSlider(QPainter *painter)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (isSliderDown())
        option.state |= QStyle::State_Sunken;
    const vellum::PainterGuard guard(painter);
    d->handle.paint(painter, option, this);
}

void CusDoubleSlider::paintValText(QPainter *painter)
{
    if (!d->showText)
        return;
    const auto valToText = d->valToText;
    const QString text =
        valToText ? valToText(d->doubleVal) : QString::number(d->doubleVal, 'f', 1);
    const QRect handle = textHandle();
    const QRect textRect = fontMetrics().boundingRect(text);
    const int textWidth = textRect.width() + kTextPadding;
    int x = qMax(handle.x() + handle.width() / 2 - textRect.width() / 2, rect().x());
    const int excess = textWidth + x - rect().topRight().x();
    if (excess > 0)
        x -= excess;
    style()->drawItemText(painter, QRect(x, handle.y(), textWidth, textRect.height()),
                          Qt::AlignHCenter | Qt::AlignVCenter, palette(), isEnabled(), text,
                          foregroundRole());
}
