#include "buttons/cussvgaction.h"

#include "buttons/cussvgpushbutton.h"
#include "common/restyle.h"

#include <QPointer>

struct CusSvgAction::Private
{
    // A client that gives the button to a layout hands it over to that layout's widget.
    QPointer<CusSvgPushButton> svgActionBtn;
};

CusSvgAction::CusSvgAction(const QString &objName, const QString &text, QWidget *parent)
    : QAction(text, parent)
    , d(std::make_unique<Private>())
{
    d->svgActionBtn = new CusSvgPushButton;
    d->svgActionBtn->setObjectName(objName);
    d->svgActionBtn->hide();
}

CusSvgAction::~CusSvgAction()
{
    delete d->svgActionBtn;
}

CusSvgPushButton *CusSvgAction::getSvgActionBtn() const
{
    return d->svgActionBtn;
}

void CusSvgAction::setSvgActionObjName(const QString &objName)
{
    if (!d->svgActionBtn)
        return;
    d->svgActionBtn->setObjectName(objName);
    vellum::restyle(d->svgActionBtn);
}
