#include "labels/angletipwidget.h"

#include "common/cuscolorconfig.h"
#include "common/cusuicommonfun.h"
#include "common/saferect.h"

#include <QCursor>
#include <QEvent>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace {

constexpr int kShowTime = 3000;
constexpr int kMaximumTextWidth = 500;
constexpr int kTextPadding = 20;
constexpr int kMinimumHeight = 40;
constexpr int kArrowHeight = 11;
constexpr int kArrowTip = 23;
constexpr int kArrowBaseRight = 25;
constexpr int kArrowBaseLeft = 35;
constexpr int kBelowTargetTop = 7;

/// By the bubble, not by the target: one target may have several.
using LivingTips = QHash<AngleTiPWidget *, QPointer<AngleTiPWidget>>;

LivingTips &livingTips()
{
    static LivingTips tips;
    return tips;
}

} // namespace

struct AngleTiPWidget::Private
{
    QTimer *timer = nullptr;
    int interval = kShowTime;
    QLabel *label = nullptr;
    QPointer<QWidget> target;
    QPoint targetGlobalPos;
    QPoint rightBottom;
    QColor angleColor;
    bool firstPaint = true;
    bool dismissed = false;
};

AngleTiPWidget::AngleTiPWidget(ArrowWidget::ArrowType type, QWidget *target)
    : QWidget(target)
    , d(std::make_unique<Private>())
{
    Q_UNUSED(type)
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    d->angleColor =
        CusColorConfig::instance()->getColor(QStringLiteral("AngleTiPWidget_AngleColor"), QColor());
    d->label = new QLabel(this);
    d->label->setObjectName(QStringLiteral("label_angleTip"));
    d->label->setMaximumWidth(kMaximumTextWidth);
    d->label->setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, kArrowHeight);
    layout->addWidget(d->label);
    d->timer = new QTimer(this);
    d->timer->setSingleShot(true);
    connect(d->timer, &QTimer::timeout, this, &AngleTiPWidget::timeOut);
    if (!target)
        return;
    d->target = target;
    d->targetGlobalPos = target->mapToGlobal(QPoint(0, 0));
    connect(target, &QObject::destroyed, this, &AngleTiPWidget::onErrwidgetDestory,
            Qt::UniqueConnection);
    target->installEventFilter(this);
}

AngleTiPWidget::~AngleTiPWidget()
{
    livingTips().remove(this);
}

void AngleTiPWidget::showAngleTipText(QWidget *target, const QPoint &rightBottom,
                                      const QString &text, ArrowWidget::ArrowType type)
{
    Q_UNUSED(type)
    if (!target)
        return;
    auto *tip = new AngleTiPWidget(ArrowWidget::Arrow_Left, target);
    tip->setWindowFlags(tip->windowFlags() | Qt::ToolTip);
    tip->setTipRightBottomPoint(rightBottom);
    tip->setShowText(text);
    livingTips().insert(tip, tip);
    tip->show();
}

void AngleTiPWidget::showAngleTipText(QWidget *target, const QString &text,
                                      ArrowWidget::ArrowType type)
{
    if (!target)
        return;
    const QPoint rightBottom =
        target->mapToGlobal(QPoint(0, 0)) + QPoint(target->width(), kBelowTargetTop);
    showAngleTipText(target, rightBottom, text, type);
}

void AngleTiPWidget::hideAngleTip(QWidget *target)
{
    if (!target)
        return;
    // One that was dismissed already stays a child until the event loop comes to its deletion; it
    // must not stand in front of a newer one.
    const auto dismissFirst = [target](Qt::FindChildOptions options) {
        const auto tips = target->findChildren<AngleTiPWidget *>(QString(), options);
        for (AngleTiPWidget *tip : tips) {
            if (!tip->d->dismissed) {
                tip->dismiss();
                return true;
            }
        }
        return false;
    };
    if (!dismissFirst(Qt::FindDirectChildrenOnly))
        dismissFirst(Qt::FindChildrenRecursively);
}

void AngleTiPWidget::hideAllAngleTip()
{
    // Aside first: hiding runs client code, which may show or delete bubbles.
    const LivingTips tips = std::exchange(livingTips(), {});
    for (const QPointer<AngleTiPWidget> &tip : tips) {
        if (tip)
            tip->dismiss();
    }
}

void AngleTiPWidget::setShowText(const QString &text)
{
    d->label->ensurePolished();
    const int textWidth =
        CusUiCommonFun::textBoundingRectUi(text, d->label->fontMetrics(), d->label).width();
    d->label->setText(text);
    d->label->setMinimumWidth(qMin(textWidth + kTextPadding, d->label->maximumWidth()));
    // After the minimum: a label that may wrap asks for a narrower and higher place before it.
    adjustSize();
}

void AngleTiPWidget::setTipRightBottomPoint(const QPoint &rightBottom)
{
    d->rightBottom = rightBottom;
}

bool AngleTiPWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (d->target && watched == d->target) {
        switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Hide:
        case QEvent::WindowDeactivate:
            dismiss();
            break;
        case QEvent::Paint: {
            // A target hears nothing when one of its ancestors moves, but it is painted anew.
            const QPoint pos = d->target->mapToGlobal(QPoint(0, 0));
            if (pos != d->targetGlobalPos) {
                d->targetGlobalPos = pos;
                dismiss();
            }
            break;
        }
        default:
            break;
        }
    }
    return false;
}

void AngleTiPWidget::setVisible(bool visible)
{
    if (visible)
        d->timer->start(d->interval);
    else
        d->timer->stop();
    QWidget::setVisible(visible);
}

void AngleTiPWidget::onErrwidgetDestory()
{
    d->target.clear();
    d->dismissed = true;
    d->timer->stop();
    deleteLater();
}

void AngleTiPWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (d->rightBottom.isNull())
        return;
    const QPoint br = rect().bottomRight();
    if (br != d->rightBottom && d->firstPaint) {
        d->firstPaint = false;
        placeAtRightBottom();
        update();
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(d->angleColor, Qt::SolidPattern));
    const QPolygon arrow({br - QPoint(kArrowTip, 0), br - QPoint(kArrowBaseRight, kArrowHeight),
                          br - QPoint(kArrowBaseLeft, kArrowHeight)});
    painter.drawPolygon(arrow);
}

void AngleTiPWidget::timeOut()
{
    if (d->label->geometry().contains(mapFromGlobal(QCursor::pos()))) {
        d->timer->start(d->interval);
        return;
    }
    dismiss();
}

void AngleTiPWidget::dismiss()
{
    d->dismissed = true;
    d->timer->stop();
    deleteLater();
    // Last, since a hide handler of the client may delete the bubble with its target.
    hide();
}

void AngleTiPWidget::placeAtRightBottom()
{
    // The height first, or the lower right corner would leave its point again.
    setMinimumHeight(kMinimumHeight);
    move(vellum::safeExtent(qint64(d->rightBottom.x()) - rect().right()),
         vellum::safeExtent(qint64(d->rightBottom.y()) - rect().bottom()));
}
