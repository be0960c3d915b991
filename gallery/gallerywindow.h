#pragma once

#include <Vellum/CusWidget>

#include <memory>

/// The gallery's window: a list of the pages at the left, the chosen page at the right.
class GalleryWindow : public CusWidget
{
    Q_OBJECT

public:
    GalleryWindow();
    ~GalleryWindow() override;

    /// The window that holds \a page, or null.
    static GalleryWindow *of(const QWidget *page);

    QStringList pageNames() const;
    /// Shows the page of that name, compared without case; an unknown name changes nothing and
    /// gives false.
    bool showPage(const QString &name);
    /// The height in pixels at which the present page needs no scrolling.
    int pageHeight() const;

public Q_SLOTS:
    /// Builds every page again, after the colours or the style sheet changed.
    void rebuildPages();

private:
    void showRow(int row);

    struct Private;
    const std::unique_ptr<Private> d;
};
