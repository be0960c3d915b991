#pragma once

#include "vellum_export.h"

#include <QLabel>

#include <memory>

/// The grey text over a view that has nothing to show.
///
/// Texts are given in the source language: the label shows their translation in the context
/// "NoContentTipLabel" and keeps the source in the dynamic property "__origin_tip". It carries the
/// dynamic property "gray" for style sheets. GUI thread only.
class VELLUM_EXPORT NoContentTipLabel : public QLabel
{
    Q_OBJECT

public:
    /// Where the text stands: from the upper edge of the view, its middle, or its lower edge
    /// downwards. Other values count as Show_Top.
    enum ShowType : int
    {
        Show_Top = 1,
        Show_Center = 2,
        Show_Below = 3
    };
    Q_ENUM(ShowType)

    explicit NoContentTipLabel(QWidget *parent = nullptr);
    ~NoContentTipLabel() override;

    /// Shows \a text as wide as \a widget and follows it from then on, \a x and \a y pixels from
    /// the place that \a type names (Show_Center ignores \a y). The label stays in its own parent;
    /// without one it stays hidden. An empty text or a null widget hides it.
    ///
    /// After a move or a resize the offsets are 20 and 40, whatever was given here.
    void showTipContent(const QString &text, QWidget *widget, ShowType type, int x, int y);
    /// Shows \a text inside \a widget, which becomes the parent, at (\a x, \a y). An empty text or
    /// a null widget hides the label.
    void showTipContentAsChild(const QString &text, QWidget *widget, int x, int y);
    /// Shows another text in the same place; an empty one changes nothing.
    void updateTipContentAsChild(const QString &text);
    /// Moves the label to its place on \a widget again, with other offsets. A null widget, or a
    /// label without a parent, does nothing.
    void resetPosition(QWidget *widget, int x, int y);
    /// Translates the text anew, after the language changed.
    void resetWidgetUiLanguage();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    void setOriginText(const QString &text);
    void takeWidthOf(const QWidget *widget);
    void fitHeight();

    struct Private;
    const std::unique_ptr<Private> d;
};
