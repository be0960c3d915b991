#pragma once

#include "vellum_export.h"

#include <QAction>

#include <memory>

class CusSvgPushButton;

/// An action with an SVG icon, for menus. The icon is a hidden button that the client's style sheet
/// finds by its object name, and that the menu draws beside the action's text.
class VELLUM_EXPORT CusSvgAction : public QAction
{
    Q_OBJECT

public:
    /// \a objName is the object name of the button; \a parent owns the action.
    CusSvgAction(const QString &objName, const QString &text, QWidget *parent);
    ~CusSvgAction() override;

    /// The button, which belongs to the action.
    CusSvgPushButton *getSvgActionBtn() const;

    /// Renames the button; the style sheet is matched again.
    void setSvgActionObjName(const QString &objName);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
