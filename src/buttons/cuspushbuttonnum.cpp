#include "buttons/cuspushbuttonnum.h"

#include "common/cuscolorconfig.h"
#include "common/painterguard.h"
#include "common/saferect.h"

#include <QPainter>

struct CusPushButtonNum::Private
{
    bool smallVisible = false;
    QColor smallBGColor = CusColorConfig::instance()->getColor(
        QStringLiteral("CusPushButtonNum_SmallBGColor"), QColor());
    QColor textColor = CusColorConfig::instance()->mainTextColor();
    QPoint smallPos;
    QSize smallSize{10, 10};
    bool showTextVisible = false;
    QString showText;
    int fontSize = 6;
    SmallAreaType smallAreaType = AREA_TYPE_CIRCLE;

    void drawShape(QPainter *painter, const QRect &rect) const;
    void drawText(QPainter *painter, const QRect &rect) const;
};

void CusPushButtonNum::Private::drawShape(QPainter *painter, const QRect &rect) const
{
    if (rect.isEmpty())
        return;
    const vellum::PainterGuard guard(painter);
    painter->setBrush(smallBGColor);
    if (smallAreaType == AREA_TYPE_CIRCLE)
        painter->drawEllipse(rect);
    else if (smallAreaType == AREA_TYPE_RECT)
        painter->drawRect(rect);
}

void CusPushButtonNum::Private::drawText(QPainter *painter, const QRect &rect) const
{
    if (!showTextVisible)
        return;
    const vellum::PainterGuard guard(painter);
    painter->setPen(textColor);
    if (fontSize > 0) {
        QFont font = painter->font();
        font.setPointSize(fontSize);
        painter->setFont(font);
    }
    painter->drawText(rect, Qt::AlignCenter, showText);
}

CusPushButtonNum::CusPushButtonNum(QWidget *parent)
    : CusSvgPushButton(parent)
    , d(std::make_unique<Private>())
{
}

CusPushButtonNum::~CusPushButtonNum() = default;

template <typename T>
void CusPushButtonNum::change(T &field, const T &value)
{
    if (field == value)
        return;
    field = value;
    update();
}

bool CusPushButtonNum::getSmallVisible() const
{
    return d->smallVisible;
}

void CusPushButtonNum::setSmallVisible(bool visible)
{
    change(d->smallVisible, visible);
}

QColor CusPushButtonNum::getSmallBGColor() const
{
    return d->smallBGColor;
}

void CusPushButtonNum::setSmallBGColor(const QColor &color)
{
    change(d->smallBGColor, color);
}

QColor CusPushButtonNum::getTextColor() const
{
    return d->textColor;
}

void CusPushButtonNum::setTextColor(const QColor &color)
{
    change(d->textColor, color);
}

QPoint CusPushButtonNum::getSmallPos() const
{
    return d->smallPos;
}

void CusPushButtonNum::setSmallPos(const QPoint &pos)
{
    change(d->smallPos, pos);
}

QSize CusPushButtonNum::getSmallSize() const
{
    return d->smallSize;
}

void CusPushButtonNum::setSmallSize(const QSize &size)
{
    change(d->smallSize, size);
}

bool CusPushButtonNum::getShowTextVisible() const
{
    return d->showTextVisible;
}

void CusPushButtonNum::setShowTextVisible(bool visible)
{
    change(d->showTextVisible, visible);
}

QString CusPushButtonNum::getShowText() const
{
    return d->showText;
}

void CusPushButtonNum::setShowText(const QString &text)
{
    change(d->showText, text);
}

int CusPushButtonNum::getFontSize() const
{
    return d->fontSize;
}

void CusPushButtonNum::setFontSize(int size)
{
    change(d->fontSize, size);
}

CusPushButtonNum::SmallAreaType CusPushButtonNum::getSmallAreaType() const
{
    return d->smallAreaType;
}

void CusPushButtonNum::setSmallAreaType(SmallAreaType type)
{
    change(d->smallAreaType, type);
}

void CusPushButtonNum::paintEvent(QPaintEvent *event)
{
    CusSvgPushButton::paintEvent(event);
    if (!d->smallVisible)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(d->smallBGColor, 0));
    const QRect badge = vellum::safeRect(d->smallPos.x(), d->smallPos.y(), d->smallSize.width(),
                                         d->smallSize.height());
    d->drawShape(&painter, badge);
    d->drawText(&painter, badge);
}
