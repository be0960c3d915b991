#pragma once

#include "vellum_export.h"

#include <QFontMetrics>
#include <QList>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>

class QComboBox;
class QLineEdit;
class QObject;
class QPushButton;
class QSplitter;
class QTextEdit;
class QWidget;

/// Verbosity of the run log. Only the order matters: a message is written when its level is at most
/// the current one, which starts at RunLog_Warning. Any other int may be cast to it.
enum ClientOutLogLevel : int
{
    RunLog_Error = 0,
    RunLog_Warning = 1,
    RunLog_Info = 2,
    RunLog_Debug = 3
};

/// Part of a window's frame, as hitTest() names it. The numbers are those of the Windows message
/// WM_NCHITTEST, so a frameless window can return them to the system as they are.
enum HitType : int
{
    Hit_Client = 1,
    Hit_Caption = 2,
    Hit_Left = 10,
    Hit_Right = 11,
    Hit_Top = 12,
    Hit_TopLeft = 13,
    Hit_TopRight = 14,
    Hit_Bottom = 15,
    Hit_BottomLeft = 16,
    Hit_BottomRight = 17,
    Hit_Excluded = 65 ///< inside a rectangle that doesn't drag the window, such as its own buttons
};

/// Helpers for widget trees, text measuring and the run log. All but the run log belong to the GUI
/// thread.
class VELLUM_EXPORT CusUiCommonFun
{
public:
    /// Whether the tree that \a object belongs to holds a modal QDialog that is not hidden. The top
    /// object of the tree doesn't count itself. Null: false.
    static bool judgeHaveModalDiaShow(QObject *object);

    /// The last ancestor of \a object along parent(), \a object itself without a parent; null for
    /// null.
    static QObject *topParentObj(QObject *object);

    /// The last ancestor of \a widget along parent() as long as the parents are widgets; null for
    /// null.
    static QWidget *topParentWid(QWidget *widget);

    /// The bounding rectangle of \a text, in pixels, widened by the focus frame that the
    /// application's style puts on both sides of a text on \a widget (may be null). An empty text
    /// gives what \a metrics say of it, with width 0.
    static QRect textBoundingRectUi(const QString &text, const QFontMetrics &metrics,
                                    const QWidget *widget);

    /// Writes both texts and the time in milliseconds since the epoch as one qWarning() message, if
    /// \a level is at most the current level. Where the line goes is up to the Qt message handler.
    /// May be called from any thread.
    static void outputClientRunLog(const QString &first, const QString &second,
                                   ClientOutLogLevel level);

    /// Sets the current level of the whole process. May be called from any thread.
    static void setClientRunLogLevel(ClientOutLogLevel level);
};

/// The part of the frame of \a rect, \a border pixels wide, that the point lies on. A band is
/// tested along its own axis only, so a point far above the window can still be Hit_Left; with a
/// negative border no band is hit.
VELLUM_EXPORT HitType hitTest(int x, int y, int border, const QRect &rect);

/// The same, and inside the frame Hit_Excluded in one of \a excludedRects, else Hit_Caption in
/// \a captionRect.
VELLUM_EXPORT HitType hitTest(int x, int y, int border, const QRect &rect, const QRect &captionRect,
                              const QList<QRect> &excludedRects);

/// The sides on which \a rect sticks out of \a bounds, as bits: 1 left, 2 top, 4 right, 8 bottom; 0
/// inside.
VELLUM_EXPORT int judgeRectOutBounds(const QRect &rect, const QRect &bounds);

/// judgeRectOutBounds() of \a widget's rectangle on the screen; \a bounds is in global coordinates.
/// 0 for null.
VELLUM_EXPORT int judgeWindowOutBounds(QWidget *widget, const QRect &bounds);

/// A rectangle of \a widget's size at its pos() mapped from \a widget to \a ancestor. The position
/// counts twice for a direct child: callers rely on it. A null rectangle where one is null or
/// \a ancestor is neither \a widget nor one of its parents.
VELLUM_EXPORT QRect getWidgetGeometry(QWidget *widget, QWidget *ancestor);

/// \a text with line feeds, so that its lines are at most \a width pixels wide.
///
/// A line breaks before a blank, before and after a CJK ideograph (U+4E00 to U+9FA5), and after ","
/// ";" "." and blank; a word that fits no line breaks where it stands, and a line holds at least
/// one character whatever the width. Line ends in \a text count as characters. A text that fits is
/// returned as it is. \a wrapped tells whether there is more than one line, \a lineCount how many;
/// either may be null.
VELLUM_EXPORT QString warpString(const QFontMetrics &metrics, const QString &text, int width,
                                 bool *wrapped, int *lineCount);

/// A QR code of \a text (UTF-8, error correction level medium) with a border of one module, black
/// on white, stretched to \a size pixels. A null pixmap where the text is too long for a code
/// (2,331 bytes, some more in capitals or digits alone), or \a size is empty, above 64 megapixels
/// or above 32,767 pixels on a side. The text ends at its first null character.
VELLUM_EXPORT QPixmap generateQRCode(const QString &text, const QSize &size);

/// Clears the widget's dynamic property "Invalid" whenever its text changes, and makes the style
/// sheet match again, so that a rule for [Invalid="true"] lets go of it. Each call adds a handler;
/// it dies with the widget. Null does nothing.
VELLUM_EXPORT void realCheckInvalid(QComboBox *comboBox);
VELLUM_EXPORT void realCheckInvalid(QLineEdit *lineEdit);
VELLUM_EXPORT void realCheckInvalid(QTextEdit *textEdit);

/// As realCheckInvalid(), and calls \a callback after that; an empty one is left out.
VELLUM_EXPORT void realCheckInvalidWithCall(QComboBox *comboBox,
                                            const std::function<void()> &callback);
VELLUM_EXPORT void realCheckInvalidWithCall(QLineEdit *lineEdit,
                                            const std::function<void()> &callback);
VELLUM_EXPORT void realCheckInvalidWithCall(QTextEdit *textEdit,
                                            const std::function<void()> &callback);

/// Cuts the text of \a edit to its first \a maxLength UTF-16 units whenever it changes. A second
/// call changes the limit, from the next change on; a negative limit cuts nothing. Null does
/// nothing.
VELLUM_EXPORT void bindTextEditMaxLength(QTextEdit *edit, int maxLength);

/// Fixes the width of \a button, in pixels, to that of its text plus one pixel a character, the
/// contents margins, \a extra1 and \a extra2, within \a minWidth to \a maxWidth; where these
/// contradict, a narrow text gets \a minWidth, a wider one \a maxWidth. Null does nothing.
VELLUM_EXPORT void adjustButtonWidthWithText(QPushButton *button, int minWidth, int maxWidth,
                                             int extra1, int extra2);

/// Shares the width of \a widget, less its contents margins, between the two panes of \a splitter.
/// With \a side 1 the first pane gets \a size pixels, else the second; the first pane never gets
/// less than \a minSize. Does nothing where the first pane has its size already, \a minSize is
/// negative or a pointer is null.
VELLUM_EXPORT void adjustHorSplitterSize(QWidget *widget, QSplitter *splitter, int side, int size,
                                         int minSize);

/// Scrolls the nearest QScrollArea above \a widget so that the widget, or the cursor of a text
/// input, is seen with a margin of 50 pixels at the sides and 130 above and below. A visible
/// CusScrollHoverPane on the area covers that much of it. Does nothing for null or without an area.
VELLUM_EXPORT void ensureWidgetVisible(QWidget *widget);
