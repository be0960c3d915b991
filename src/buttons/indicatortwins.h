#pragma once

#include <QString>
#include <QStyle>

#include <memory>

class CusSvgPushButton;
class QFontMetrics;
class QPainter;
class QVariant;

namespace vellum {

/// The two hidden twins that stand for the indicator of a check box or radio button.
struct IndicatorTwins
{
    IndicatorTwins(const QString &checkedName, const QString &uncheckedName);

    /// Gives the twins other names and the looks that the sheet has for them.
    void rename(const QString &checkedName, const QString &uncheckedName);

    /// Sets a property of both, and matches the sheet again after a dynamic one changed.
    void setProperty(const char *name, const QVariant &value);

    /// Draws one of them into \a rect, by the style of \a owner.
    void draw(QPainter *painter, bool checked, const QRect &rect, QStyle::State state,
              const QWidget *owner) const;

    std::shared_ptr<CusSvgPushButton> checked;
    std::shared_ptr<CusSvgPushButton> unchecked;
};

/// Sets a property of \a widget itself, past a setProperty() that hides QObject's, and matches the
/// sheet again after a dynamic one changed. What QObject::setProperty() returns.
bool setRestyledProperty(QWidget *widget, const char *name, const QVariant &value);

/// \a text with each line elided on the right to \a width pixels. Where that shortens it, the whole
/// text becomes the tool tip of \a widget; a tip is never taken away.
QString elidedWithTip(QWidget *widget, const QString &text, const QFontMetrics &metrics, int width);

/// The same for a label beside an indicator: it may be as wide as \a widget less an ellipsis.
QString elidedLabel(QWidget *widget, const QString &text);

} // namespace vellum
