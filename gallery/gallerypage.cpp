#include "gallerypage.h"

#include <algorithm>

namespace {

QVector<GalleryPage> &registry()
{
    static QVector<GalleryPage> pages;
    return pages;
}

} // namespace

GalleryPage::GalleryPage(int pageOrder, const QString &pageName,
                         const std::function<QWidget *()> &factory)
    : order(pageOrder)
    , name(pageName)
    , create(factory)
{
    registry().append(*this);
}

QVector<GalleryPage> GalleryPage::all()
{
    QVector<GalleryPage> pages = registry();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const GalleryPage &a, const GalleryPage &b) { return a.order < b.order; });
    return pages;
}
