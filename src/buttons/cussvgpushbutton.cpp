#include "buttons/cussvgpushbutton.h"

#include "buttons/svgbtnlayer.h"
#include "buttons/svgbtnlayout.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>
#include <QSvgRenderer>

using vellum::BtnState;

namespace {

void renderInto(QPainter *painter, QSvgRenderer *renderer, const QRect &rect)
{
    if (renderer && !rect.isEmpty())
        renderer->render(painter, QRectF(rect));
}

} // namespace

struct CusSvgPushButton::Private
{
    vellum::SvgBtnLayer borderLayer;
    vellum::SvgBtnLayer bgLayer;
    vellum::SvgBtnLayer iconLayer;
    vellum::SvgBtnLayout layout;
    bool enablePaintSvgBtn = true;
};

CusSvgPushButton::CusSvgPushButton(QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<Private>())
{
}

CusSvgPushButton::~CusSvgPushButton() = default;

void CusSvgPushButton::setSvgBGImage(const QString &image)
{
    d->bgLayer.setNormalImage(image);
}

QString CusSvgPushButton::getSvgBGImage() const
{
    return d->bgLayer.imageOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgBGNormalColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Normal, color);
}

QColor CusSvgPushButton::getSvgBGNormalColor() const
{
    return d->bgLayer.colorOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgBGHoverImage(const QString &image)
{
    d->bgLayer.setImage(BtnState::Hover, image);
}

QString CusSvgPushButton::getSvgBGHoverImage() const
{
    return d->bgLayer.imageOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgBGHoverColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Hover, color);
}

QColor CusSvgPushButton::getSvgBGHoverColor() const
{
    return d->bgLayer.colorOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgBGPressedImage(const QString &image)
{
    d->bgLayer.setImage(BtnState::Pressed, image);
}

QString CusSvgPushButton::getSvgBGPressedImage() const
{
    return d->bgLayer.imageOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgBGPressedColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Pressed, color);
}

QColor CusSvgPushButton::getSvgBGPressedColor() const
{
    return d->bgLayer.colorOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgBGCheckedImage(const QString &image)
{
    d->bgLayer.setImage(BtnState::Checked, image);
}

QString CusSvgPushButton::getSvgBGCheckedImage() const
{
    return d->bgLayer.imageOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgBGCheckedColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Checked, color);
}

QColor CusSvgPushButton::getSvgBGCheckedColor() const
{
    return d->bgLayer.colorOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgBGDisableImage(const QString &image)
{
    d->bgLayer.setImage(BtnState::Disable, image);
}

QString CusSvgPushButton::getSvgBGDisableImage() const
{
    return d->bgLayer.imageOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgBGDisableColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Disable, color);
}

QColor CusSvgPushButton::getSvgBGDisableColor() const
{
    return d->bgLayer.colorOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgBGSelectedImage(const QString &image)
{
    d->bgLayer.setImage(BtnState::Selected, image);
}

QString CusSvgPushButton::getSvgBGSelectedImage() const
{
    return d->bgLayer.imageOf(BtnState::Selected);
}

void CusSvgPushButton::setSvgBGSelectedColor(const QColor &color)
{
    d->bgLayer.setColor(BtnState::Selected, color);
}

QColor CusSvgPushButton::getSvgBGSelectedColor() const
{
    return d->bgLayer.colorOf(BtnState::Selected);
}

void CusSvgPushButton::setSvgBorderImage(const QString &image)
{
    d->borderLayer.setNormalImage(image);
}

QString CusSvgPushButton::getSvgBorderImage() const
{
    return d->borderLayer.imageOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgNormalColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Normal, color);
}

QColor CusSvgPushButton::getSvgNormalColor() const
{
    return d->borderLayer.colorOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgHoverImage(const QString &image)
{
    d->borderLayer.setImage(BtnState::Hover, image);
}

QString CusSvgPushButton::getSvgHoverImage() const
{
    return d->borderLayer.imageOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgHoverColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Hover, color);
}

QColor CusSvgPushButton::getSvgHoverColor() const
{
    return d->borderLayer.colorOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgPressedImage(const QString &image)
{
    d->borderLayer.setImage(BtnState::Pressed, image);
}

QString CusSvgPushButton::getSvgPressedImage() const
{
    return d->borderLayer.imageOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgPressedColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Pressed, color);
}

QColor CusSvgPushButton::getSvgPressedColor() const
{
    return d->borderLayer.colorOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgCheckedImage(const QString &image)
{
    d->borderLayer.setImage(BtnState::Checked, image);
}

QString CusSvgPushButton::getSvgCheckedImage() const
{
    return d->borderLayer.imageOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgCheckedColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Checked, color);
}

QColor CusSvgPushButton::getSvgCheckedColor() const
{
    return d->borderLayer.colorOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgDisableImage(const QString &image)
{
    d->borderLayer.setImage(BtnState::Disable, image);
}

QString CusSvgPushButton::getSvgDisableImage() const
{
    return d->borderLayer.imageOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgDisableColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Disable, color);
}

QColor CusSvgPushButton::getSvgDisableColor() const
{
    return d->borderLayer.colorOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgSelectedImage(const QString &image)
{
    d->borderLayer.setImage(BtnState::Selected, image);
}

QString CusSvgPushButton::getSvgSelectedImage() const
{
    return d->borderLayer.imageOf(BtnState::Selected);
}

void CusSvgPushButton::setSvgSelectedColor(const QColor &color)
{
    d->borderLayer.setColor(BtnState::Selected, color);
}

QColor CusSvgPushButton::getSvgSelectedColor() const
{
    return d->borderLayer.colorOf(BtnState::Selected);
}

void CusSvgPushButton::setSvgIconImage(const QString &image)
{
    d->iconLayer.setNormalImage(image);
}

QString CusSvgPushButton::getSvgIconImage() const
{
    return d->iconLayer.imageOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgIconNormalColor(const QColor &color)
{
    d->iconLayer.setColor(BtnState::Normal, color);
}

QColor CusSvgPushButton::getSvgIconNormalColor() const
{
    return d->iconLayer.colorOf(BtnState::Normal);
}

void CusSvgPushButton::setSvgIconHoverImage(const QString &image)
{
    d->iconLayer.setImage(BtnState::Hover, image);
}

QString CusSvgPushButton::getSvgIconHoverImage() const
{
    return d->iconLayer.imageOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgIconHoverColor(const QColor &color)
{
    d->iconLayer.setColor(BtnState::Hover, color);
}

QColor CusSvgPushButton::getSvgIconHoverColor() const
{
    return d->iconLayer.colorOf(BtnState::Hover);
}

void CusSvgPushButton::setSvgIconPressedImage(const QString &image)
{
    d->iconLayer.setImage(BtnState::Pressed, image);
}

QString CusSvgPushButton::getSvgIconPressedImage() const
{
    return d->iconLayer.imageOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgIconPressedColor(const QColor &color)
{
    d->iconLayer.setColor(BtnState::Pressed, color);
}

QColor CusSvgPushButton::getSvgIconPressedColor() const
{
    return d->iconLayer.colorOf(BtnState::Pressed);
}

void CusSvgPushButton::setSvgIconCheckedImage(const QString &image)
{
    d->iconLayer.setImage(BtnState::Checked, image);
}

QString CusSvgPushButton::getSvgIconCheckedImage() const
{
    return d->iconLayer.imageOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgIconCheckedColor(const QColor &color)
{
    d->iconLayer.setColor(BtnState::Checked, color);
}

QColor CusSvgPushButton::getSvgIconCheckedColor() const
{
    return d->iconLayer.colorOf(BtnState::Checked);
}

void CusSvgPushButton::setSvgIconDisableImage(const QString &image)
{
    d->iconLayer.setImage(BtnState::Disable, image);
}

QString CusSvgPushButton::getSvgIconDisableImage() const
{
    return d->iconLayer.imageOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgIconDisableColor(const QColor &color)
{
    d->iconLayer.setColor(BtnState::Disable, color);
}

QColor CusSvgPushButton::getSvgIconDisableColor() const
{
    return d->iconLayer.colorOf(BtnState::Disable);
}

void CusSvgPushButton::setSvgBGWidth(int width)
{
    d->bgLayer.size.setWidth(width);
}

int CusSvgPushButton::getSvgBGWidth() const
{
    return d->bgLayer.size.width();
}

void CusSvgPushButton::setSvgBGHeight(int height)
{
    d->bgLayer.size.setHeight(height);
}

int CusSvgPushButton::getSvgBGHeight() const
{
    return d->bgLayer.size.height();
}

void CusSvgPushButton::setSvgIconWidth(int width)
{
    d->iconLayer.size.setWidth(width);
}

int CusSvgPushButton::getSvgIconWidth() const
{
    return d->iconLayer.size.width();
}

void CusSvgPushButton::setSvgIconHeight(int height)
{
    d->iconLayer.size.setHeight(height);
}

int CusSvgPushButton::getSvgIconHeight() const
{
    return d->iconLayer.size.height();
}

void CusSvgPushButton::setLeftMargin(int margin)
{
    d->layout.leftMargin = margin;
}

int CusSvgPushButton::getLeftMargin() const
{
    return d->layout.leftMargin;
}

void CusSvgPushButton::setRightMargin(int margin)
{
    d->layout.rightMargin = margin;
}

int CusSvgPushButton::getRightMargin() const
{
    return d->layout.rightMargin;
}

void CusSvgPushButton::setTopMargin(int margin)
{
    d->layout.topMargin = margin;
}

int CusSvgPushButton::getTopMargin() const
{
    return d->layout.topMargin;
}

void CusSvgPushButton::setBottomMargin(int margin)
{
    d->layout.bottomMargin = margin;
}

int CusSvgPushButton::getBottomMargin() const
{
    return d->layout.bottomMargin;
}

void CusSvgPushButton::setTxtPos(BtnTxtPos position)
{
    d->layout.txtPos = position;
}

CusSvgPushButton::BtnTxtPos CusSvgPushButton::getTxtPos() const
{
    return d->layout.txtPos;
}

void CusSvgPushButton::setBtnFlow(BtnFlow flow)
{
    d->layout.btnFlow = flow;
}

CusSvgPushButton::BtnFlow CusSvgPushButton::getBtnFlow() const
{
    return d->layout.btnFlow;
}

void CusSvgPushButton::setSvgTxtSpace(int space)
{
    d->layout.svgTxtSpace = space;
}

int CusSvgPushButton::getSvgTxtSpace() const
{
    return d->layout.svgTxtSpace;
}

void CusSvgPushButton::setIconImage(const QString &image)
{
    setSvgIconImage(image);
}

QString CusSvgPushButton::iconImage() const
{
    return getSvgIconImage();
}

void CusSvgPushButton::setIconColor(const QColor &color)
{
    setSvgIconNormalColor(color);
}

QColor CusSvgPushButton::iconColor() const
{
    return getSvgIconNormalColor();
}

void CusSvgPushButton::setIconSize(const QSize &size)
{
    d->iconLayer.size = size;
    if (!d->enablePaintSvgBtn)
        QAbstractButton::setIconSize(size);
}

QSize CusSvgPushButton::iconSize() const
{
    return d->iconLayer.size;
}

void CusSvgPushButton::setIcon(const QString &image, const QSize &size, const QColor &color)
{
    setIconImage(image);
    setIconSize(size);
    setIconColor(color);
}

void CusSvgPushButton::setIcon(const QIcon &icon)
{
    QAbstractButton::setIcon(icon);
}

void CusSvgPushButton::setEnablePaintSvgBtn(bool enable)
{
    d->enablePaintSvgBtn = enable;
}

bool CusSvgPushButton::getEnablePaintSvgBtn() const
{
    return d->enablePaintSvgBtn;
}

void CusSvgPushButton::adjustSize()
{
    // The sheet's images, margins and font count, as they do for a size hint.
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize icon = d->iconLayer.normalRenderer() ? d->iconLayer.size : QSize();
    const QSize size =
        d->layout.sizeAround(icon, option.fontMetrics.boundingRect(option.text).size());
    setFixedSize(size);
}

void CusSvgPushButton::paintSvgBtn(QPainter *painter, const QStyleOptionButton &option,
                                   QStyle *style, DrawStype drawType)
{
    if (!painter || !painter->isActive())
        return;
    if (style) {
        QStyleOptionButton base = option;
        base.text.clear();
        base.icon = QIcon();
        style->drawControl(QStyle::CE_PushButton, &base, painter, this);
    }

    const BtnState state = drawType == DrawStype_Widget ? vellum::widgetBtnState(option.state)
                                                        : vellum::stampBtnState(option.state);
    renderInto(painter, d->bgLayer.renderer(state),
               d->layout.backgroundRect(option.rect, d->bgLayer.size));
    renderInto(painter, d->borderLayer.renderer(state), option.rect);

    QSvgRenderer *icon = d->iconLayer.renderer(state);
    const vellum::SvgBtnContent content =
        d->layout.content(option, icon ? d->iconLayer.size : QSize(), this);
    if (!content.shownText.isEmpty())
        painter->drawText(content.text, Qt::AlignCenter, content.shownText);
    renderInto(painter, icon, content.icon);
}

void CusSvgPushButton::paintEvent(QPaintEvent *event)
{
    if (!d->enablePaintSvgBtn) {
        QPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    QStyleOptionButton option;
    initStyleOption(&option);
    paintSvgBtn(&painter, option, style(), DrawStype_Widget);
}

void CusSvgPushButton::enterEvent(QEvent *event)
{
    QPushButton::enterEvent(event);
    Q_EMIT signalMouseEnter();
}

void CusSvgPushButton::leaveEvent(QEvent *event)
{
    QPushButton::leaveEvent(event);
    Q_EMIT signalMouseLeave();
}

void CusSvgPushButton::mousePressEvent(QMouseEvent *event)
{
    // What the client does with pressed() or clicked() may delete the button.
    const QPointer<CusSvgPushButton> alive(this);
    QAbstractButton::mousePressEvent(event);
    if (alive)
        update();
}

void CusSvgPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CusSvgPushButton> alive(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (alive)
        update();
}
