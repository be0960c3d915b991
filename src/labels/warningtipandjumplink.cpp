#include "labels/warningtipandjumplink.h"

#include "ui_warningtipandjumplink.h"

struct WarningTipAndJumpLink::Private
{
    Ui::WarningTipAndJumpLink ui;
};

WarningTipAndJumpLink::WarningTipAndJumpLink(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    connectInit();
}

WarningTipAndJumpLink::~WarningTipAndJumpLink() = default;

QString WarningTipAndJumpLink::labelTipText() const
{
    return d->ui.label_warningTip->text();
}

QString WarningTipAndJumpLink::labelJumpText() const
{
    return d->ui.pushButton_link->text();
}

bool WarningTipAndJumpLink::labelTipTextVisible() const
{
    return d->ui.label_warningTip->isVisible();
}

bool WarningTipAndJumpLink::labelJumpTextVisible() const
{
    return d->ui.pushButton_link->isVisible();
}

void WarningTipAndJumpLink::setLabelTipText(const QString &text)
{
    if (labelTipText() == text)
        return;
    d->ui.label_warningTip->setText(text);
    Q_EMIT labelTipTextChanged(text);
}

void WarningTipAndJumpLink::setLabelJumpText(const QString &text)
{
    if (labelJumpText() == text)
        return;
    d->ui.pushButton_link->setText(text);
    Q_EMIT labelJumpTextChanged(text);
}

void WarningTipAndJumpLink::setLabelTipTextVisible(bool visible)
{
    if (labelTipTextVisible() == visible)
        return;
    d->ui.label_warningTip->setVisible(visible);
    Q_EMIT labelTipTextVisibleChanged(visible);
}

void WarningTipAndJumpLink::setLabelJumpTextVisible(bool visible)
{
    if (labelJumpTextVisible() == visible)
        return;
    d->ui.pushButton_link->setVisible(visible);
    Q_EMIT labelJumpTextVisibleChanged(visible);
}

void WarningTipAndJumpLink::connectInit()
{
    connect(d->ui.pushButton_link, &QPushButton::clicked, this,
            &WarningTipAndJumpLink::signalJumpLinkPressed);
}
