#include "gallerywindow.h"

#include "gallerypage.h"

#include <Vellum/CusScrollArea>

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>

namespace {

constexpr int kNavigationWidth = 208;

QWidget *inScrollArea(QWidget *page)
{
    auto *area = new CusScrollArea;
    area->setObjectName(QStringLiteral("gallery_pageArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    return area;
}

} // namespace

struct GalleryWindow::Private
{
    QVector<GalleryPage> pages = GalleryPage::all();
    QListWidget *navigation = nullptr;
    QStackedWidget *stack = nullptr;
};

GalleryWindow::GalleryWindow()
    : d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("gallery_window"));
    setWindowTitle(QStringLiteral("Vellum gallery"));
    d->navigation = new QListWidget;
    d->navigation->setObjectName(QStringLiteral("gallery_navigation"));
    d->navigation->setFixedWidth(kNavigationWidth);
    d->navigation->addItems(pageNames());
    d->stack = new QStackedWidget;
    for (int i = 0; i < d->pages.size(); ++i)
        d->stack->addWidget(new QWidget);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d->navigation);
    layout->addWidget(d->stack, 1);
    connect(d->navigation, &QListWidget::currentRowChanged, this, &GalleryWindow::showRow);
    if (!d->pages.isEmpty())
        d->navigation->setCurrentRow(0);
}

GalleryWindow::~GalleryWindow() = default;

GalleryWindow *GalleryWindow::of(const QWidget *page)
{
    return page ? qobject_cast<GalleryWindow *>(page->window()) : nullptr;
}

QStringList GalleryWindow::pageNames() const
{
    QStringList names;
    for (const GalleryPage &page : qAsConst(d->pages))
        names.append(page.name);
    return names;
}

bool GalleryWindow::showPage(const QString &name)
{
    for (int row = 0; row < d->pages.size(); ++row) {
        if (d->pages.at(row).name.compare(name, Qt::CaseInsensitive) == 0) {
            d->navigation->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

int GalleryWindow::pageHeight() const
{
    const auto *area = qobject_cast<const QScrollArea *>(d->stack->currentWidget());
    if (!area || !area->widget())
        return 0;
    const QWidget *page = area->widget();
    const int width = area->viewport()->width();
    const int layoutHeight = page->layout() && page->layout()->hasHeightForWidth()
        ? page->layout()->totalHeightForWidth(width)
        : 0;
    return qMax(layoutHeight, page->minimumSizeHint().height());
}

void GalleryWindow::rebuildPages()
{
    for (int row = 0; row < d->pages.size(); ++row) {
        QWidget *old = d->stack->widget(row);
        d->stack->insertWidget(row, new QWidget);
        d->stack->removeWidget(old);
        // The request may come from a button of the page itself.
        old->deleteLater();
    }
    showRow(d->navigation->currentRow());
}

void GalleryWindow::showRow(int row)
{
    if (row < 0)
        return;
    if (!qobject_cast<CusScrollArea *>(d->stack->widget(row))) {
        QWidget *placeholder = d->stack->widget(row);
        d->stack->insertWidget(row, inScrollArea(d->pages.at(row).create()));
        d->stack->removeWidget(placeholder);
        delete placeholder;
    }
    d->stack->setCurrentIndex(row);
}
