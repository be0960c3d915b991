#pragma once

#include "vellum_export.h"

#include <QColor>
#include <QLabel>

#include <memory>

/// The standard label: a text in one or two parts, the second drawn two pixels smaller, with a
/// policy for what doesn't fit.
///
/// A label's minimum width follows its text, as QLabel's does, so a layout never makes it narrower
/// than what it shows: fix its width where the text shall be elided, broken or scrolled. Parts are
/// not escaped; two parts make a rich text, one part alone stays as it is. Fonts are expected in
/// pixels. Use it in the GUI thread.
class VELLUM_EXPORT CusLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(LableType lableType READ lableType WRITE setLableType)
    Q_PROPERTY(QString cusText READ getCustomText WRITE setCusText)
    Q_PROPERTY(QString svgBGImage READ getSvgBGImage WRITE setSvgBGImage)
    Q_PROPERTY(QColor svgBGColor READ getSvgBGColor WRITE setSvgBGColor)

public:
    /// What becomes of a text that is wider than the label.
    enum LableType : int
    {
        LABEL_TYPE_DEFAULT = 0,       ///< all text is set and the label clips
        LABEL_TYPE_LINE_BREAK = 1,    ///< a line feed is put in wherever a line is full
        LABEL_TYPE_LONG_ELLIPSES = 2, ///< elided; the tool tip tells the whole text
        LABEL_TYPE_SCROLL_SHOW = 3    ///< scrolls while visible; the tool tip tells the whole text
    };
    Q_ENUM(LableType)

    explicit CusLabel(QWidget *parent = nullptr);
    explicit CusLabel(const QString &text, QWidget *parent = nullptr);
    ~CusLabel() override;

    /// Shows two parts; an empty \a second counts as absent.
    void setCustomText(const QString &first, const QString &second);
    /// The same as setCustomText().
    void setCusText(const QString &first, const QString &second = QString());
    /// The parts, joined.
    QString getCustomText() const;

    /// The policy for overflow, LABEL_TYPE_LONG_ELLIPSES at first. What is shown is worked out anew
    /// at the next text, resize or change of the font's size.
    void setLableType(const LableType &type);
    LableType lableType() const;

    /// With true the cursor is a pointing hand over the label.
    void setMouseArrowHoverEnabled(bool enabled);

    /// Stored only; the label's layout doesn't read them. Pixels.
    void setPaddingLeftVal(int padding);
    void setPaddingRightVal(int padding);

    /// File of the SVG that fills the label behind its text; empty, or one that can't be read,
    /// draws nothing.
    QString getSvgBGImage() const;
    void setSvgBGImage(const QString &file);
    /// The tint of that SVG; an invalid colour leaves it as authored.
    QColor getSvgBGColor() const;
    void setSvgBGColor(const QColor &color);

    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Shows \a text as the only part and scrolls from its start again. Hides QLabel's.
    void setText(const QString &text);
    /// Drops the text and stops scrolling. Hides QLabel's.
    void clear();

Q_SIGNALS:
    /// Any mouse button went down; the label may be deleted in the slot.
    void signalPressed();
    /// The pressed button went up, inside the label or out of it; may delete the label as well.
    void signalReleased();

protected Q_SLOTS:
    /// One step of scrolling.
    void onTimeOut();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setParts(const QStringList &parts);
    void updateShownText();
    void showElided(int pixelSize);
    void getScrollShowText();
    void changeToolTip(const QString &tip);
    int shownPixelSize() const;

    struct Private;
    const std::unique_ptr<Private> d;
};
