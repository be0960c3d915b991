#pragma once

#include <QString>

#include <memory>

class CusSvgPushButton;

namespace vellum {

/// A hidden twin: a button that is never shown, whose look comes from the application's style sheet
/// by \a objectName, to be stamped by StyleDelegateComFun::drawSvgBtn().
std::shared_ptr<CusSvgPushButton> makeSvgTwin(const QString &objectName);

/// The same, checkable and checked, so that a sheet's :checked rules hold.
std::shared_ptr<CusSvgPushButton> makeCheckedSvgTwin(const QString &objectName);

/// Gives \a twin another name and the look that the sheet has for it. Null does nothing.
void renameSvgTwin(CusSvgPushButton *twin, const QString &objectName);

} // namespace vellum
