#pragma once

#include "buttons/cussvgpushbutton.h"

#include <QColor>
#include <QPoint>
#include <QSize>

#include <memory>

/// An SVG button with a small badge over it, a number of unread events for example.
///
/// A change of any property repaints the button. The badge's place can't come from a style sheet,
/// since sheets have no points; all else can ("qproperty-mSmallSize: 16px 16px").
class VELLUM_EXPORT CusPushButtonNum : public CusSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(bool mSmallVisible READ getSmallVisible WRITE setSmallVisible)
    Q_PROPERTY(QColor mSmallBGColor READ getSmallBGColor WRITE setSmallBGColor)
    Q_PROPERTY(QColor mTextColor READ getTextColor WRITE setTextColor)
    Q_PROPERTY(QPoint mSmallPos READ getSmallPos WRITE setSmallPos)
    Q_PROPERTY(QSize mSmallSize READ getSmallSize WRITE setSmallSize)
    Q_PROPERTY(bool mShowTextVisible READ getShowTextVisible WRITE setShowTextVisible)
    Q_PROPERTY(QString mShowText READ getShowText WRITE setShowText)
    Q_PROPERTY(int mFontSize READ getFontSize WRITE setFontSize)
    Q_PROPERTY(SmallAreaType mSmallAreaType READ getSmallAreaType WRITE setSmallAreaType)

public:
    /// The badge's shape. AREA_TYPE_ANGLE has none, nor has any other number: only the text is
    /// drawn.
    enum SmallAreaType : int
    {
        AREA_TYPE_CIRCLE = 0,
        AREA_TYPE_RECT = 1,
        AREA_TYPE_ANGLE = 2
    };
    Q_ENUM(SmallAreaType)

    explicit CusPushButtonNum(QWidget *parent = nullptr);
    ~CusPushButtonNum() override;

    /// Whether the badge, its text included, is drawn; false at first.
    bool getSmallVisible() const;
    void setSmallVisible(bool visible);

    /// The shape's colour, at first "CusPushButtonNum_SmallBGColor" of the colour configuration.
    QColor getSmallBGColor() const;
    void setSmallBGColor(const QColor &color);

    /// The text's colour, at first the configuration's main text colour.
    QColor getTextColor() const;
    void setTextColor(const QColor &color);

    /// The badge's upper left corner in the button, 0, 0 at first.
    QPoint getSmallPos() const;
    void setSmallPos(const QPoint &pos);

    /// The badge's size in pixels, 10 by 10 at first. An empty one has no shape.
    QSize getSmallSize() const;
    void setSmallSize(const QSize &size);

    /// Whether the badge shows its text; false at first.
    bool getShowTextVisible() const;
    void setShowTextVisible(bool visible);

    QString getShowText() const;
    void setShowText(const QString &text);

    /// The text's size in points, 6 at first; 0 and less keep the button's own font size.
    int getFontSize() const;
    void setFontSize(int size);

    SmallAreaType getSmallAreaType() const;
    void setSmallAreaType(SmallAreaType type);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    template <typename T>
    void change(T &field, const T &value);

    struct Private;
    const std::unique_ptr<Private> d;
};
