#pragma once

class QWidget;

namespace vellum {

/// Makes the style sheet match \a widget again after one of its dynamic properties or its object
/// name changed; update() alone doesn't do that. A widget that was not polished yet is left to its
/// coming polish: setting a style on it now would pin the plain style and shut out a style sheet
/// that the client sets later. Null does nothing.
void restyle(QWidget *widget);

} // namespace vellum
