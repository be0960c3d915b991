#include "inputs/custwosidesegslider.h"

#include "common/safeint.h"
#include "inputs/twosidegroove.h"

#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

namespace {

constexpr int kMinimum = 0;
constexpr int kMaximum = 100;
constexpr int kFillHeight = 2;
constexpr int kCenterLineWidth = 2;
constexpr int kCenterLineReach = 4;
// Going back to the centre takes one value more on the left than on the right; clients know it so.
constexpr int kLastNearLeft = 5;
constexpr int kLastNearRight = 4;

/// The segment that ends at or beyond \a distance values from the centre; 0 near the centre.
int segmentAt(qint64 distance, double perSegment, int lastNear, int segments)
{
    const double full = double(distance) / perSegment;
    if (full < 1.0 && distance <= lastNear)
        return 0;
    return full >= segments ? segments : int(full) + 1;
}

} // namespace

struct CusTwoSideSegSlider::Private
{
    QColor defaultGrooveColor{0xA0, 0xA7, 0xB4};
    QColor usedGrooveColor{0x42, 0x9E, 0xF6};
    QColor centerLineColor{0xFF, 0xFF, 0xFF};
    int leftSegment = 1;
    int rightSegment = 1;
    double leftPerSegVal = 1.0;
    double rightPerSegVal = 1.0;
    bool lastIsLeft = false;
    int lastSegNum = 0;
};

CusTwoSideSegSlider::CusTwoSideSegSlider(QWidget *parent)
    : CusTwoSideSegSlider(Qt::Horizontal, parent)
{
}

CusTwoSideSegSlider::CusTwoSideSegSlider(Qt::Orientation orientation, QWidget *parent)
    : CusSlider(orientation, parent)
    , d(std::make_unique<Private>())
{
    // The sides are named left and right, so they don't change places with the layout.
    setLayoutDirection(Qt::LeftToRight);
    QAbstractSlider::setMinimum(kMinimum);
    QAbstractSlider::setMaximum(kMaximum);
    connect(this, &QSlider::valueChanged, this, &CusTwoSideSegSlider::onSliderValChanged);
    CusSlider::setValue(center());
}

CusTwoSideSegSlider::~CusTwoSideSegSlider() = default;

void CusTwoSideSegSlider::setLeftSegment(int count)
{
    if (count < 1)
        return;
    d->leftSegment = count;
    calLeftRightPerSegVal();
}

int CusTwoSideSegSlider::getLeftSegment() const
{
    return d->leftSegment;
}

void CusTwoSideSegSlider::setRightSegment(int count)
{
    if (count < 1)
        return;
    d->rightSegment = count;
    calLeftRightPerSegVal();
}

int CusTwoSideSegSlider::getRightSegment() const
{
    return d->rightSegment;
}

void CusTwoSideSegSlider::setToSegment(bool isLeft, int segNum)
{
    const int middle = center();
    int target = 0;
    if (isLeft) {
        target = qMin(vellum::toInt(middle - segNum * d->leftPerSegVal), middle);
        if (target < 1)
            target = minimum();
    } else {
        target = vellum::toInt(segNum * d->rightPerSegVal + middle);
        target = qMax(qMin(target, maximum()), middle);
    }
    const QSignalBlocker blocker(this);
    QAbstractSlider::setValue(target); // clazy:exclude=skipped-base-method
}

void CusTwoSideSegSlider::setDefaultGrooveBrushColor(const QColor &color)
{
    if (!color.isValid())
        return;
    d->defaultGrooveColor = color;
    update();
}

void CusTwoSideSegSlider::setUsedGrooveBrushColor(const QColor &color)
{
    if (!color.isValid())
        return;
    d->usedGrooveColor = color;
    update();
}

QColor CusTwoSideSegSlider::getUsedGrooveBrushColor() const
{
    return d->usedGrooveColor;
}

void CusTwoSideSegSlider::setCenterLineColor(const QColor &color)
{
    d->centerLineColor = color;
    update();
}

void CusTwoSideSegSlider::setMinimum(int /*minimum*/)
{
    QAbstractSlider::setMinimum(kMinimum);
}

void CusTwoSideSegSlider::setMaximum(int /*maximum*/)
{
    QAbstractSlider::setMaximum(kMaximum);
}

void CusTwoSideSegSlider::paintEvent(QPaintEvent * /*event*/)
{
    drawCenterLenTwoSide();
}

void CusTwoSideSegSlider::onSliderValChanged(int val)
{
    const int middle = center();
    const bool isLeft = val < middle;
    int segment = 0;
    int snapped = middle;
    if (isLeft) {
        segment = segmentAt(qint64(middle) - val, d->leftPerSegVal, kLastNearLeft, d->leftSegment);
        snapped = qMin(middle, vellum::toInt(middle - segment * d->leftPerSegVal));
    } else if (val > middle) {
        segment =
            segmentAt(qint64(val) - middle, d->rightPerSegVal, kLastNearRight, d->rightSegment);
        snapped = vellum::toInt(segment * d->rightPerSegVal + middle);
    }
    if (segment != d->lastSegNum || isLeft != d->lastIsLeft) {
        const QPointer<CusTwoSideSegSlider> alive(this);
        Q_EMIT signalSegValChanged(isLeft, segment);
        if (!alive)
            return;
        // After the emit: whatever a receiver sets, the value below wins, and the record with it.
        d->lastSegNum = segment;
        d->lastIsLeft = isLeft;
    }
    const QSignalBlocker blocker(this);
    // CusSlider's setValue() would drop it during a press.
    QAbstractSlider::setValue(snapped); // clazy:exclude=skipped-base-method
}

/// The minimum is not added: the range is 0 to 100 unless a client went round setMinimum().
int CusTwoSideSegSlider::center() const
{
    return int((qint64(maximum()) - minimum()) / 2);
}

bool CusTwoSideSegSlider::calLeftRightPerSegVal()
{
    const qint64 left = qint64(center()) - minimum();
    const qint64 right = qint64(maximum()) - center();
    if (left < 1 || right < 1)
        return false;
    d->leftPerSegVal = double(left) / d->leftSegment;
    d->rightPerSegVal = double(right) / d->rightSegment;
    return true;
}

void CusTwoSideSegSlider::drawCenterLenTwoSide()
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove;
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const vellum::TwoSideGroove sides(groove, minimum(), center(), maximum());
    {
        QPainter painter(this);
        style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
        if (!sides.isValid())
            return;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(d->defaultGrooveColor);
        painter.drawRect(groove);
        if (value() != center()) {
            painter.setBrush(d->usedGrooveColor);
            painter.drawRect(sides.fill(value(), kFillHeight));
        }
    }
    drawSliderHandler();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(d->centerLineColor, kCenterLineWidth));
    const int x = groove.x() + groove.width() / 2;
    const int y = groove.center().y();
    painter.drawLine(x, y - kCenterLineReach, x, y + kCenterLineReach);
}
