#pragma once

#include "vellum_export.h"

#include <QFrame>

#include <functional>
#include <memory>

/// A number between a minus and a plus button, 106 pixels wide. The number is a button, too: a
/// client opens its own input there.
///
/// For style sheets the buttons are "pushButton_AddSubSub", "pushButton_addSubVal" and
/// "pushButton_AddSubAdd". GUI thread only.
class VELLUM_EXPORT AddSubBtnPane : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int value READ curValue WRITE setCurValue)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(int minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(int addStep READ addStep WRITE setAddStep)

public:
    explicit AddSubBtnPane(QWidget *parent = nullptr);
    ~AddSubBtnPane() override;

    /// 0 at first.
    int curValue() const;
    /// Shows any value, whatever the limits are, and tells nothing.
    void setCurValue(int value);
    /// 100 at first.
    int maxValue() const;
    /// Ignored unless above minValue(). The value stays as it is until a click.
    void setMaxValue(int value);
    /// 0 at first.
    int minValue() const;
    /// Ignored unless below maxValue(). The value stays as it is until a click.
    void setMinValue(int value);
    /// How far a click on plus goes, 1 at first. Any int is accepted.
    int addStep() const;
    void setAddStep(int step);

    /// Turns the value into the shown text, at once and from now on; an empty function shows the
    /// number.
    void registerNumToTextCb(const std::function<QString(const int &)> &numToText);

    /// Does nothing: the buttons keep their names.
    void setBtnObjName(const QString &sub, const QString &value, const QString &add);
    using QFrame::setToolTip;
    /// Does nothing.
    void setToolTip(const QString &sub, const QString &value, const QString &add);

Q_SIGNALS:
    /// A click on minus or plus changed the value.
    void signalValueChanged(int value);
    /// The number was clicked.
    void signalValBtnClicked(bool clicked);

private Q_SLOTS:
    // In reserve for clients that connect a button of their own by name; they keep to one limit
    // only and always tell.
    void onBtnAddClicked(bool clicked);
    void onBtnSubClicked(bool clicked);

private:
    void connectInit();
    void stepBy(qint64 step);
    void takeValue(qint64 value);
    void showValue();

    struct Private;
    const std::unique_ptr<Private> d;
};
