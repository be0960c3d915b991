#include "common/cusscrollarea.h"

#include "common/cusscrollhoverpane.h"

struct CusScrollArea::Private
{
    CusScrollHoverPane *hoverPane = nullptr;
};

CusScrollArea::CusScrollArea(QWidget *parent)
    : QScrollArea(parent)
    , d(std::make_unique<Private>())
{
    d->hoverPane = new CusScrollHoverPane(this, true);
}

CusScrollArea::~CusScrollArea() = default;
