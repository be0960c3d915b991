#include "common/restyle.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace vellum {

void restyle(QWidget *widget)
{
    if (widget && widget->testAttribute(Qt::WA_WState_Polished))
        widget->setStyle(QApplication::style());
}

} // namespace vellum
