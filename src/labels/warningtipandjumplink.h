#pragma once

#include "vellum_export.h"

#include <QWidget>

#include <memory>

/// A warning in one line: an icon, a text, and a link that the client acts on.
///
/// For style sheets the icon is "pushButton_warningIcon", the text "label_warningTip", the link
/// "pushButton_link". The setters compare with what is seen: while the control itself isn't shown,
/// no part counts as visible, so setting false does nothing and setting true always tells. GUI
/// thread only.
class VELLUM_EXPORT WarningTipAndJumpLink : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        QString labelTipText READ labelTipText WRITE setLabelTipText NOTIFY labelTipTextChanged)
    Q_PROPERTY(
        QString labelJumpText READ labelJumpText WRITE setLabelJumpText NOTIFY labelJumpTextChanged)
    Q_PROPERTY(bool labelTipTextVisible READ labelTipTextVisible WRITE setLabelTipTextVisible NOTIFY
                   labelTipTextVisibleChanged)
    Q_PROPERTY(bool labelJumpTextVisible READ labelJumpTextVisible WRITE setLabelJumpTextVisible
                   NOTIFY labelJumpTextVisibleChanged)

public:
    explicit WarningTipAndJumpLink(QWidget *parent = nullptr);
    ~WarningTipAndJumpLink() override;

    QString labelTipText() const;
    QString labelJumpText() const;
    bool labelTipTextVisible() const;
    bool labelJumpTextVisible() const;

public Q_SLOTS:
    void setLabelTipText(const QString &text);
    void setLabelJumpText(const QString &text);
    void setLabelTipTextVisible(bool visible);
    void setLabelJumpTextVisible(bool visible);

Q_SIGNALS:
    void labelTipTextChanged(const QString &text);
    void labelJumpTextChanged(const QString &text);
    void labelTipTextVisibleChanged(bool visible);
    void labelJumpTextVisibleChanged(bool visible);
    /// The link was clicked; \a checked as the button's own signal has it.
    void signalJumpLinkPressed(bool checked);

private:
    void connectInit();

    struct Private;
    const std::unique_ptr<Private> d;
};
