#pragma once

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

/// One page of the gallery. A page's file holds a static object of it, which registers the page:
///
///     static const GalleryPage page{order, QStringLiteral("Name"), [] { return new NamePage; }};
///
/// The factory's widget is shown in a frame that scrolls where the page is higher than the window;
/// it is built again after the theme changed, so a page keeps nothing outside its widget. Pictures
/// of the page are taken 400 ms after it was first shown, at a fixed size.
struct GalleryPage
{
    GalleryPage(int pageOrder, const QString &pageName, const std::function<QWidget *()> &factory);

    /// All pages, by ascending order.
    static QVector<GalleryPage> all();

    int order;
    QString name;
    std::function<QWidget *()> create;
};
