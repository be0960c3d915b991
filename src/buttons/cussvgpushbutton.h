#pragma once

#include "vellum_export.h"

#include <QPushButton>

#include <memory>

class QStyleOptionButton;

/// A push button drawn from up to three stacked SVG layers, background, border and icon, and a text
/// laid out beside the icon; what the style sheet says of a QPushButton is drawn below them.
///
/// Each layer has an image and a tint for each of six states: normal, hover, pressed, checked,
/// disabled and (background and border only) selected. A state with neither looks like the normal
/// one, a state with only a colour recolours the normal image, and a state with a file of its own
/// is independent. A file that is missing or is no SVG counts as none.
///
/// Images and colours usually come from a style sheet ("qproperty-svgIconImage: url(...)"), so no
/// setter repaints: the look changes at the next paint. An image is read and tinted at the first
/// paint of its state; later paints only replay it. Sizes and margins are in pixels; any int is
/// accepted, and a layer whose size is not positive draws nothing.
class VELLUM_EXPORT CusSvgPushButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(int svgBGWidth READ getSvgBGWidth WRITE setSvgBGWidth)
    Q_PROPERTY(int svgBGHeight READ getSvgBGHeight WRITE setSvgBGHeight)
    Q_PROPERTY(int svgIconWidth READ getSvgIconWidth WRITE setSvgIconWidth)
    Q_PROPERTY(int svgIconHeight READ getSvgIconHeight WRITE setSvgIconHeight)
    Q_PROPERTY(int leftMargin READ getLeftMargin WRITE setLeftMargin)
    Q_PROPERTY(int rightMargin READ getRightMargin WRITE setRightMargin)
    Q_PROPERTY(int topMargin READ getTopMargin WRITE setTopMargin)
    Q_PROPERTY(int bottomMargin READ getBottomMargin WRITE setBottomMargin)
    Q_PROPERTY(BtnTxtPos txtPos READ getTxtPos WRITE setTxtPos)
    Q_PROPERTY(BtnFlow btnFlow READ getBtnFlow WRITE setBtnFlow)
    Q_PROPERTY(int svgTxtSpace READ getSvgTxtSpace WRITE setSvgTxtSpace)
    Q_PROPERTY(QString svgBGImage READ getSvgBGImage WRITE setSvgBGImage)
    Q_PROPERTY(QColor svgBGNormalColor READ getSvgBGNormalColor WRITE setSvgBGNormalColor)
    Q_PROPERTY(QString svgBGHoverImage READ getSvgBGHoverImage WRITE setSvgBGHoverImage)
    Q_PROPERTY(QColor svgBGHoverColor READ getSvgBGHoverColor WRITE setSvgBGHoverColor)
    Q_PROPERTY(QString svgBGPressedImage READ getSvgBGPressedImage WRITE setSvgBGPressedImage)
    Q_PROPERTY(QColor svgBGPressedColor READ getSvgBGPressedColor WRITE setSvgBGPressedColor)
    Q_PROPERTY(QString svgBGCheckedImage READ getSvgBGCheckedImage WRITE setSvgBGCheckedImage)
    Q_PROPERTY(QColor svgBGCheckedColor READ getSvgBGCheckedColor WRITE setSvgBGCheckedColor)
    Q_PROPERTY(QString svgBGDisableImage READ getSvgBGDisableImage WRITE setSvgBGDisableImage)
    Q_PROPERTY(QColor svgBGDisableColor READ getSvgBGDisableColor WRITE setSvgBGDisableColor)
    Q_PROPERTY(QString svgBGSelectedImage READ getSvgBGSelectedImage WRITE setSvgBGSelectedImage)
    Q_PROPERTY(QColor svgBGSelectedColor READ getSvgBGSelectedColor WRITE setSvgBGSelectedColor)
    Q_PROPERTY(QString svgBorderImage READ getSvgBorderImage WRITE setSvgBorderImage)
    Q_PROPERTY(QColor svgNormalColor READ getSvgNormalColor WRITE setSvgNormalColor)
    Q_PROPERTY(QString svgBorderHoverImage READ getSvgHoverImage WRITE setSvgHoverImage)
    Q_PROPERTY(QColor svgHoverColor READ getSvgHoverColor WRITE setSvgHoverColor)
    Q_PROPERTY(QString svgBorderPressedImage READ getSvgPressedImage WRITE setSvgPressedImage)
    Q_PROPERTY(QColor svgPressedColor READ getSvgPressedColor WRITE setSvgPressedColor)
    Q_PROPERTY(QString svgBorderCheckedImage READ getSvgCheckedImage WRITE setSvgCheckedImage)
    Q_PROPERTY(QColor svgCheckedColor READ getSvgCheckedColor WRITE setSvgCheckedColor)
    Q_PROPERTY(QString svgBorderDisableImage READ getSvgDisableImage WRITE setSvgDisableImage)
    Q_PROPERTY(QColor svgDisableColor READ getSvgDisableColor WRITE setSvgDisableColor)
    Q_PROPERTY(QString svgBorderSelectedImage READ getSvgSelectedImage WRITE setSvgSelectedImage)
    Q_PROPERTY(QColor svgSelectedColor READ getSvgSelectedColor WRITE setSvgSelectedColor)
    // Qt looks a name up from the end, and most sheets set the icon.
    Q_PROPERTY(QString svgIconHoverImage READ getSvgIconHoverImage WRITE setSvgIconHoverImage)
    Q_PROPERTY(QColor svgIconHoverColor READ getSvgIconHoverColor WRITE setSvgIconHoverColor)
    Q_PROPERTY(QString svgIconPressedImage READ getSvgIconPressedImage WRITE setSvgIconPressedImage)
    Q_PROPERTY(QColor svgIconPressedColor READ getSvgIconPressedColor WRITE setSvgIconPressedColor)
    Q_PROPERTY(QString svgIconCheckedImage READ getSvgIconCheckedImage WRITE setSvgIconCheckedImage)
    Q_PROPERTY(QColor svgIconCheckedColor READ getSvgIconCheckedColor WRITE setSvgIconCheckedColor)
    Q_PROPERTY(QString svgIconDisableImage READ getSvgIconDisableImage WRITE setSvgIconDisableImage)
    Q_PROPERTY(QColor svgIconDisableColor READ getSvgIconDisableColor WRITE setSvgIconDisableColor)
    Q_PROPERTY(QColor svgIconNormalColor READ getSvgIconNormalColor WRITE setSvgIconNormalColor)
    Q_PROPERTY(QString svgIconImage READ getSvgIconImage WRITE setSvgIconImage)

public:
    /// Where the content sits in the button. Any other number, as a sheet may give it, is centred.
    enum BtnFlow : int
    {
        Flow_Left = 0,
        Flow_Right = 1,
        Flow_Top = 2,
        Flow_Bottom = 3,
        Flow_Center = 4
    };
    Q_ENUM(BtnFlow)

    /// Where the text stands relative to the icon. With Txt_Pos_Center the text has the whole
    /// button and no icon is drawn. Any other number counts as Txt_Pos_Bottom.
    enum BtnTxtPos : int
    {
        Txt_Pos_Left = 0,
        Txt_Pos_Right = 1,
        Txt_Pos_Center = 2,
        Txt_Pos_Top = 3,
        Txt_Pos_Bottom = 4
    };
    Q_ENUM(BtnTxtPos)

    /// Who draws the button. It decides which state wins when several hold: a widget shows
    /// selected, then checked, pressed and hovered; a stamp in a cell shows pressed, then hovered,
    /// checked and selected. Disabled wins in both.
    enum DrawStype : int
    {
        DrawStype_Widget = 0,
        DrawStype_Delegate = 1
    };

    explicit CusSvgPushButton(QWidget *parent = nullptr);
    ~CusSvgPushButton() override;

    /// \name Background layer
    /// Drawn first, at the layer's size. The image of the normal state also is the document that
    /// the other states' colours recolour.
    ///@{
    void setSvgBGImage(const QString &image);
    QString getSvgBGImage() const;
    void setSvgBGNormalColor(const QColor &color);
    QColor getSvgBGNormalColor() const;
    void setSvgBGHoverImage(const QString &image);
    QString getSvgBGHoverImage() const;
    void setSvgBGHoverColor(const QColor &color);
    QColor getSvgBGHoverColor() const;
    void setSvgBGPressedImage(const QString &image);
    QString getSvgBGPressedImage() const;
    void setSvgBGPressedColor(const QColor &color);
    QColor getSvgBGPressedColor() const;
    void setSvgBGCheckedImage(const QString &image);
    QString getSvgBGCheckedImage() const;
    void setSvgBGCheckedColor(const QColor &color);
    QColor getSvgBGCheckedColor() const;
    void setSvgBGDisableImage(const QString &image);
    QString getSvgBGDisableImage() const;
    void setSvgBGDisableColor(const QColor &color);
    QColor getSvgBGDisableColor() const;
    void setSvgBGSelectedImage(const QString &image);
    QString getSvgBGSelectedImage() const;
    void setSvgBGSelectedColor(const QColor &color);
    QColor getSvgBGSelectedColor() const;
    ///@}

    /// \name Border layer
    /// Drawn second, over the whole button. Its accessors drop the word, all but the normal image.
    ///@{
    void setSvgBorderImage(const QString &image);
    QString getSvgBorderImage() const;
    void setSvgNormalColor(const QColor &color);
    QColor getSvgNormalColor() const;
    void setSvgHoverImage(const QString &image);
    QString getSvgHoverImage() const;
    void setSvgHoverColor(const QColor &color);
    QColor getSvgHoverColor() const;
    void setSvgPressedImage(const QString &image);
    QString getSvgPressedImage() const;
    void setSvgPressedColor(const QColor &color);
    QColor getSvgPressedColor() const;
    void setSvgCheckedImage(const QString &image);
    QString getSvgCheckedImage() const;
    void setSvgCheckedColor(const QColor &color);
    QColor getSvgCheckedColor() const;
    void setSvgDisableImage(const QString &image);
    QString getSvgDisableImage() const;
    void setSvgDisableColor(const QColor &color);
    QColor getSvgDisableColor() const;
    void setSvgSelectedImage(const QString &image);
    QString getSvgSelectedImage() const;
    void setSvgSelectedColor(const QColor &color);
    QColor getSvgSelectedColor() const;
    ///@}

    /// \name Icon layer
    /// Drawn last, beside the text. A selected button shows the icon of its normal state: a
    /// selection changes the ground, not the symbol.
    ///@{
    void setSvgIconImage(const QString &image);
    QString getSvgIconImage() const;
    void setSvgIconNormalColor(const QColor &color);
    QColor getSvgIconNormalColor() const;
    void setSvgIconHoverImage(const QString &image);
    QString getSvgIconHoverImage() const;
    void setSvgIconHoverColor(const QColor &color);
    QColor getSvgIconHoverColor() const;
    void setSvgIconPressedImage(const QString &image);
    QString getSvgIconPressedImage() const;
    void setSvgIconPressedColor(const QColor &color);
    QColor getSvgIconPressedColor() const;
    void setSvgIconCheckedImage(const QString &image);
    QString getSvgIconCheckedImage() const;
    void setSvgIconCheckedColor(const QColor &color);
    QColor getSvgIconCheckedColor() const;
    void setSvgIconDisableImage(const QString &image);
    QString getSvgIconDisableImage() const;
    void setSvgIconDisableColor(const QColor &color);
    QColor getSvgIconDisableColor() const;
    ///@}

    /// \name Sizes of the layers, 16 by 16 at first
    ///@{
    void setSvgBGWidth(int width);
    int getSvgBGWidth() const;
    void setSvgBGHeight(int height);
    int getSvgBGHeight() const;
    void setSvgIconWidth(int width);
    int getSvgIconWidth() const;
    void setSvgIconHeight(int height);
    int getSvgIconHeight() const;
    ///@}

    /// \name Placement
    /// Margins are 0 at first; they move the background layer and the content, not the border.
    ///@{
    void setLeftMargin(int margin);
    int getLeftMargin() const;
    void setRightMargin(int margin);
    int getRightMargin() const;
    void setTopMargin(int margin);
    int getTopMargin() const;
    void setBottomMargin(int margin);
    int getBottomMargin() const;
    /// Txt_Pos_Right at first.
    void setTxtPos(BtnTxtPos position);
    BtnTxtPos getTxtPos() const;
    /// Flow_Center at first.
    void setBtnFlow(BtnFlow flow);
    BtnFlow getBtnFlow() const;
    /// The gap between icon and text, 6 at first.
    void setSvgTxtSpace(int space);
    int getSvgTxtSpace() const;
    ///@}

    /// \name Short forms for the icon layer's normal state
    ///@{
    void setIconImage(const QString &image);
    QString iconImage() const;
    void setIconColor(const QColor &color);
    QColor iconColor() const;
    /// Hides QAbstractButton::setIconSize(), which is called too while SVG painting is off.
    void setIconSize(const QSize &size);
    /// Hides QAbstractButton::iconSize().
    QSize iconSize() const;
    void setIcon(const QString &image, const QSize &size, const QColor &color);
    /// QAbstractButton's icon; it shows only while SVG painting is off.
    void setIcon(const QIcon &icon);
    ///@}

    /// False hands all painting back to QPushButton. True at first.
    void setEnablePaintSvgBtn(bool enable);
    bool getEnablePaintSvgBtn() const;

    /// Fixes the button to the size of its margins, icon and text, and 5 pixels more each way.
    /// Hides QWidget::adjustSize().
    void adjustSize();

    /// Draws the button into \a painter at \a option's rectangle, in \a option's state and with its
    /// text, so that an item delegate can stamp it into a cell. \a style draws the base, no text
    /// and no QIcon, below the layers; null leaves the base out. The text has the painter's pen and
    /// font. Without an active painter nothing happens.
    void paintSvgBtn(QPainter *painter, const QStyleOptionButton &option, QStyle *style,
                     DrawStype drawType);

Q_SIGNALS:
    void signalMouseEnter();
    void signalMouseLeave();

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
