#pragma once

#include "vellum_export.h"

#include <QWidget>

#include <memory>

/// A minimum above a maximum, each a CusCustomInputPane with a label and a button that shows a tip.
///
/// Object names: "cusLabel_minVal", "cusClickTipButton_minTip" (with the dynamic property
/// "button_tip"), "cusCustomInputPane_minVal", and the same with "max". The two panes start with
/// the dynamic property "Invalid" false. GUI thread only.
class VELLUM_EXPORT CusVerRangeInputPane : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString minLabelText READ getMinLabelText WRITE setMinLabelText)
    Q_PROPERTY(QString maxLabelText READ getMaxLabelText WRITE setMaxLabelText)
    Q_PROPERTY(QString minUnit READ getMinUnit WRITE setMinUnit)
    Q_PROPERTY(QString maxUnit READ getMaxUnit WRITE setMaxUnit)
    Q_PROPERTY(QString minHolderTxt READ getMinHolderTxt WRITE setMinHolderTxt)
    Q_PROPERTY(QString maxHolderTxt READ getMaxHolderTxt WRITE setMaxHolderTxt)
    Q_PROPERTY(QString minBtnTipText READ getMinBtnTipText WRITE setMinBtnTipText)
    Q_PROPERTY(QString maxBtnTipText READ getMaxBtnTipText WRITE setMaxBtnTipText)

public:
    explicit CusVerRangeInputPane(QWidget *parent = nullptr);
    ~CusVerRangeInputPane() override;

    /// \name Texts
    ///@{
    QString getMinLabelText() const;
    void setMinLabelText(const QString &text);
    QString getMaxLabelText() const;
    void setMaxLabelText(const QString &text);
    QString getMinUnit() const;
    void setMinUnit(const QString &unit);
    QString getMaxUnit() const;
    void setMaxUnit(const QString &unit);
    QString getMinHolderTxt() const;
    void setMinHolderTxt(const QString &text);
    QString getMaxHolderTxt() const;
    void setMaxHolderTxt(const QString &text);
    /// The tip of the button beside the label.
    QString getMinBtnTipText() const;
    void setMinBtnTipText(const QString &text);
    QString getMaxBtnTipText() const;
    void setMaxBtnTipText(const QString &text);
    void setMinRadiaoBtnTxt(const QString &autoText, const QString &customizeText);
    void setMaxRadiaoBtnTxt(const QString &autoText, const QString &customizeText);
    /// What getRangeVal() says of a minimum above the maximum; empty, at first, is a text of our
    /// own.
    void setInvalidText(const QString &text);
    ///@}

    /// The range; a value on Auto is 0. If neither is on Auto and the minimum is above the maximum,
    /// says so in a bubble at both spin boxes, sets the dynamic property "Invalid" on both panes,
    /// leaves the parameters alone and returns false. The property stays until the client resets
    /// it.
    bool getRangeVal(bool &minAuto, int &minVal, bool &maxAuto, int &maxVal);
    /// Unchecked; a value on Auto is 0.
    void getMinCurVal(bool &autoChecked, int &value);
    void getMaxCurVal(bool &autoChecked, int &value);
    void setCurMinValInfo(bool autoChecked, int value);
    void setCurMaxValInfo(bool autoChecked, int value);
    /// Limits of what can be entered, as of QSpinBox::setRange().
    void setMinValRange(int minimum, int maximum);
    void setMaxValRange(int minimum, int maximum);

    /// The pixels between the two halves, 10 at first; a negative number counts as 0.
    int getMainItemSpacing();
    void setMainItemSpacing(int spacing);
    /// The pixels between label and input of each half, 10 at first; a negative number counts as 0.
    int getSubItemSpacing();
    void setSubItemSpacing(int spacing);

    /// Translates the texts that the client didn't replace.
    void resetWidgetUiLanguage();

Q_SIGNALS:
    void signalInputValChanged(bool isMin, bool autochec, int inputVal);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectInit();
    void onCustomizeInputValChanged(bool autoCheck, int inputVal);

    struct Private;
    const std::unique_ptr<Private> d;
};
