#include "common/custabwidget.h"

#include "common/custabbar.h"

CusTabWidget::CusTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new CusTabBar(this));
}

CusTabWidget::~CusTabWidget() = default;
