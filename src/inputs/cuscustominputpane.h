#pragma once

#include "vellum_export.h"

#include <QWidget>

#include <memory>

class CusSpinBoxWithUnits;

/// The choice between a value that the system finds by itself, "Auto", and one that the user
/// enters, "Customize": two radio buttons, and a spin box that shows for the second.
///
/// The height is fixed: 30 pixels for each part that shows, and 6 between them. When the
/// dynamic property "Invalid" of the pane changes, the style sheet matches the spin box anew, so
/// that a rule for the pane can reach it. Object names: "widget_radios", "radioButton_auto",
/// "radioButton_customize", "cusSpinBoxWithUnits". GUI thread only.
class VELLUM_EXPORT CusCustomInputPane : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool autoChecked READ getAutoChecked WRITE setAutoChecked)
    Q_PROPERTY(int customizeMinVal READ getCustomizeMinVal WRITE setCustomizeMinVal)
    Q_PROPERTY(int customizeMaxVal READ getCustomizeMaxVal WRITE setCustomizeMaxVal)
    Q_PROPERTY(int customizeCurVal READ getCustomizeCurVal WRITE setCustomizeCurVal)
    Q_PROPERTY(QString customizeUnitTxt READ getCustomizeUnitTxt WRITE setCustomizeUnitTxt)
    Q_PROPERTY(QString customizeHolderTxt READ getCustomizeHolderTxt WRITE setCustomizeHolderTxt)
    Q_PROPERTY(QString autoRadioText READ getAutoRadioText WRITE setAutoRadioText)
    Q_PROPERTY(QString customizeRadioText READ getCustomizeRadioText WRITE setCustomizeRadioText)

public:
    explicit CusCustomInputPane(QWidget *parent = nullptr);
    ~CusCustomInputPane() override;

    /// True at first.
    bool getAutoChecked() const;
    /// Tells signalAutoCheckChanged() if it changes, and nothing else.
    void setAutoChecked(bool checked);

    /// \name The spin box
    /// Range and value are those of a QSpinBox. Its unit shows only if it was set before the spin
    /// box was first shown, as CusSpinBoxWithUnits has it.
    ///@{
    int getCustomizeMinVal() const;
    void setCustomizeMinVal(int value);
    int getCustomizeMaxVal() const;
    void setCustomizeMaxVal(int value);
    int getCustomizeCurVal() const;
    void setCustomizeCurVal(int value);
    QString getCustomizeUnitTxt() const;
    void setCustomizeUnitTxt(const QString &unit);
    QString getCustomizeHolderTxt() const;
    void setCustomizeHolderTxt(const QString &text);
    /// The pane's own; its range and value may be set there, too.
    CusSpinBoxWithUnits *getCustomizeSpinBox();
    ///@}

    QString getAutoRadioText() const;
    void setAutoRadioText(const QString &text);
    QString getCustomizeRadioText() const;
    void setCustomizeRadioText(const QString &text);
    /// Fixes the size of the Auto radio button, so that the second ones of several panes align.
    void setAutoRadioSize(const QSize &size);
    /// The pixels between the radio buttons, 100 at first; a negative number counts as 0.
    void setRadioLayoutSpacing(int spacing);
    /// Without radio buttons the pane is on Customize, with them it goes back to Auto; either way
    /// it tells as after a click.
    void setRadiosVisible(bool visible);
    /// Translates the texts that the client didn't replace.
    void resetWidgetUiLanguage();

Q_SIGNALS:
    void signalAutoCheckChanged();
    /// A radio button was chosen, or the spin box's value changed, Auto or not. \a inputVal is 0
    /// where Auto was chosen.
    void signalCustomizeInputValChanged(bool autoCheck, int inputVal);

protected:
    bool event(QEvent *event) override;

private:
    void connectInit();
    void onRadioAutoClicked();
    void onRadioCustomClicked();
    void choose(bool autoChecked);
    void applyState(bool autoChecked);

    struct Private;
    const std::unique_ptr<Private> d;
};
