#pragma once

#include "vellum_export.h"

#include <QLabel>

#include <memory>

/// A label that rolls a text that doesn't fit, one character every 200 milliseconds, and shows one
/// that fits still. A hidden label asks for no repaint.
class VELLUM_EXPORT RollLabel : public QLabel
{
    Q_OBJECT

public:
    enum RollLabelType : int
    {
        Roll_Auto = 0,  ///< rolls whenever it is visible
        Roll_Manual = 1 ///< rolls from startRoll() to stopRoll()
    };

    explicit RollLabel(QWidget *parent = nullptr);
    explicit RollLabel(const QString &text, QWidget *parent = nullptr);
    ~RollLabel() override;

    /// Roll_Auto at first. Any other value stops the rolling and shows the text from its start.
    void setRollType(RollLabelType type);
    RollLabelType rollType() const;

    /// Starts and stops the rolling; neither does so with Roll_Auto.
    void startRoll();
    void stopRoll();

public Q_SLOTS:
    /// Hides QLabel's; a text equal to the present one changes nothing.
    void setText(const QString &text);
    /// One step of rolling, if the label is visible.
    void onUpdate();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void updateRoll();
    void standStill();

    struct Private;
    const std::unique_ptr<Private> d;
};
