#include "delegates/svgtwin.h"

#include "buttons/cussvgpushbutton.h"
#include "common/restyle.h"

#include <QCursor>
#include <QStyleOption>
#include <QWidget>

namespace vellum {

std::shared_ptr<CusSvgPushButton> makeSvgTwin(const QString &objectName)
{
    auto twin = std::make_shared<CusSvgPushButton>();
    twin->setObjectName(objectName);
    return twin;
}

std::shared_ptr<CusSvgPushButton> makeCheckedSvgTwin(const QString &objectName)
{
    auto twin = makeSvgTwin(objectName);
    twin->setCheckable(true);
    twin->setChecked(true);
    return twin;
}

void renameSvgTwin(CusSvgPushButton *twin, const QString &objectName)
{
    if (!twin || twin->objectName() == objectName)
        return;
    twin->setObjectName(objectName);
    restyle(twin);
}

QStyle::State svgTwinState(const QRect &rect, const QStyleOption &option, const QWidget *owner)
{
    QStyle::State taken = QStyle::State_Enabled;
    if (rect.contains(owner->mapFromGlobal(QCursor::pos())))
        taken |= QStyle::State_MouseOver | QStyle::State_Sunken;
    return option.state & taken;
}

} // namespace vellum
