#pragma once

#include <QString>
#include <QStyle>

#include <memory>

class CusSvgPushButton;
class QRect;
class QStyleOption;
class QWidget;

namespace vellum {

/// A hidden twin: a button that is never shown, whose look comes from the application's style sheet
/// by \a objectName, to be stamped by StyleDelegateComFun::drawSvgBtn().
std::shared_ptr<CusSvgPushButton> makeSvgTwin(const QString &objectName);

/// The same, checkable and checked, so that a sheet's :checked rules hold.
std::shared_ptr<CusSvgPushButton> makeCheckedSvgTwin(const QString &objectName);

/// Gives \a twin another name and the look that the sheet has for it. Null does nothing.
void renameSvgTwin(CusSvgPushButton *twin, const QString &objectName);

/// The state of a twin that \a owner stamps at \a rect of itself: enabled as \a option is, and
/// while the cursor lies in \a rect, hovered and pressed as \a option is.
QStyle::State svgTwinState(const QRect &rect, const QStyleOption &option, const QWidget *owner);

} // namespace vellum
