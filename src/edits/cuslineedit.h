#pragma once

#include "vellum_export.h"

#include <QLineEdit>
#include <QList>

#include <functional>
#include <memory>

/// The one single-line input: a QLineEdit whose text reads without superfluous white space, with up
/// to two small SVG buttons inside, keys that can be swallowed, and a context menu of its own.
///
/// - At most 64 characters can be typed, or as many as setMaxLength() allows. That limit comes into
///   force 100 ms after construction, so a text that is set meanwhile is not cut: it stays whole,
///   and typing is stopped until it has become shorter than the limit.
/// - Left and Right over a selection go to its edge and no further, unless Shift alone is held.
/// - The context menu is off until the client sets Qt::DefaultContextMenu.
///
/// text(), setMaxLength() and createStandardContextMenu() hide those of QLineEdit without being
/// virtual, so call them through this type. GUI thread only.
class VELLUM_EXPORT CusLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool surpotTrailBtn READ getSurpotTrailBtn WRITE setSurpotTrailBtn)
    Q_PROPERTY(QString trailBtnObjName READ getTrailBtnObjName WRITE setTrailBtnObjName)
    Q_PROPERTY(QString trailBtnTips READ getTrailBtnTips WRITE setTrailBtnTips)
    Q_PROPERTY(bool surpotLeadBtn READ getSurpotLeadBtn WRITE setSurpotLeadBtn)
    Q_PROPERTY(QString leadBtnObjName READ getLeadBtnObjName WRITE setLeadBtnObjName)
    Q_PROPERTY(QString leadBtnTips READ getLeadBtnTips WRITE setLeadBtnTips)

public:
    explicit CusLineEdit(QWidget *parent = nullptr);
    ~CusLineEdit() override;

    /// The text, simplified (QString::simplified()) while eraseSpace() is on. Hides
    /// QLineEdit::text(), which gives it as it was typed.
    QString text() const;

    /// Whether text(), textChangedSimpled() and textEditedSimpled() give simplified text; true at
    /// first. Changing it leaves the shown text alone.
    bool eraseSpace() const;
    void setEraseSapce(bool erase);

    /// The most characters that the edit takes, 64 at first; a longer text is cut at once. A
    /// negative number counts as 0. Hides QLineEdit::setMaxLength(), whose limit is overwritten
    /// 100 ms after construction.
    void setMaxLength(int length);
    /// Keeps the limit from coming into force by itself: Qt's own holds until setMaxLength().
    void setStopTimer();

    /// Keys that the edit swallows, whatever the modifiers. None at first.
    void setFilterKeys(const QList<Qt::Key> &keys);

    /// Whether the context menu offers Undo and Redo; true at first. False takes the menu's first
    /// three entries away, which in a read-only edit are all that there are.
    void setRedoUndoMenuEnable(bool enable);

    /// The colour of the placeholder text. Any other colour of the edit's palette goes back to the
    /// default. A style sheet that sets "color" for the edit colours the placeholder, too, and
    /// wins.
    void setPlaceHolderTextColor(const QColor &color);

    /// \name Buttons in the edit
    /// 20 by 20 pixels, at the leading and the trailing edge, as children of the edit. Their look
    /// is the style sheet's by their object name. Names and tips reach only a button that is there,
    /// and an empty text changes nothing; without a button they read as empty.
    ///@{

    /// True puts a new button in the place of the present one. False hides the button's action and
    /// leaves the button itself alone.
    void setSurpotTrailBtn(bool support);
    bool getSurpotTrailBtn() const;
    void setTrailBtnObjName(const QString &name);
    QString getTrailBtnObjName() const;
    void setTrailBtnTips(const QString &tips);
    QString getTrailBtnTips() const;

    /// Each true adds a button, which the name and the tips then go to; false takes none away.
    void setSurpotLeadBtn(bool support);
    bool getSurpotLeadBtn() const;
    void setLeadBtnObjName(const QString &name);
    QString getLeadBtnObjName() const;
    void setLeadBtnTips(const QString &tips);
    QString getLeadBtnTips() const;

    /// What a click on the button calls, with its checked state. An empty function is ignored.
    void registerLeadFun(const std::function<void(bool)> &function);
    void registerTrailFun(const std::function<void(bool)> &function);

    /// Whether the trailing button shows only while there is text, be it blanks; false at first.
    /// Switching it off shows nothing again by itself.
    void setEnableNoTextNotShowTrailBtn(bool enable);
    bool getEnableNoTextNotShowTrailBnt() const;
    ///@}

    /// True while the context menu is being put on the screen.
    bool isShowingContextMenu() const;
    /// Where the last context menu came up, in global coordinates; null before the first one.
    const QRect &lastMenuGlobalRect() const;

    /// A new menu with the editing commands that the edit's state allows; it belongs to the edit
    /// until the caller deletes it. Hides that of QLineEdit.
    QMenu *createStandardContextMenu();

Q_SIGNALS:
    /// QLineEdit::textChanged(), simplified while eraseSpace() is on.
    void textChangedSimpled(const QString &text);
    /// QLineEdit::textEdited(), likewise.
    void textEditedSimpled(const QString &text);
    /// Any mouse button went down in the edit.
    void signalMousePressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void childEvent(QChildEvent *event) override;

    /// Sees each key first; true ends its handling. This one collapses a selection to its edge on
    /// Left and Right. Null gives false.
    virtual bool dealLeftRightKeyPress(QKeyEvent *event);

private Q_SLOTS:
    void onTextChanged(const QString &text);
    void onTextEdit(const QString &text);
    void onApplyTimeout();

private:
    void deleteSelectedText();

    struct Private;
    const std::unique_ptr<Private> d;
};
