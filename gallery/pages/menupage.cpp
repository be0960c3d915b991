#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/CusMenu>
#include <Vellum/CusSvgAction>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// A still picture of \a menu, which stays hidden, with \a active under the cursor.
class MenuPicture : public QWidget
{
public:
    explicit MenuPicture(CusMenu *menu, QAction *active = nullptr)
        : m_menu(menu)
        , m_active(active)
    {
        m_menu->ensurePolished();
        setFixedSize(size());
    }

    QSize size() const { return m_menu->sizeHint().boundedTo(m_menu->maximumSize()); }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        // While it is open, it is in a state of its own.
        if (!m_menu->isVisible()) {
            m_menu->resize(width(), height());
            m_menu->setActiveAction(m_active);
        }
        QPixmap pixmap((QSizeF(width(), height()) * devicePixelRatioF()).toSize());
        pixmap.setDevicePixelRatio(devicePixelRatioF());
        pixmap.fill(Qt::transparent);
        m_menu->render(&pixmap, QPoint(), QRegion(), QWidget::DrawChildren);
        QPainter(this).drawPixmap(0, 0, pixmap);
    }

private:
    CusMenu *m_menu;
    QAction *m_active;
};

void addSvgAction(CusMenu *menu, const QString &icon, const QString &text, const QString &shortcut)
{
    auto *action = new CusSvgAction(icon, text, menu);
    action->setShortcut(QKeySequence(shortcut));
    menu->addAction(action);
}

void addCheck(CusMenu *menu, const QString &text, bool checked)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
}

CusMenu *cameraMenu(QWidget *owner)
{
    auto *menu = new CusMenu(owner);
    addSvgAction(menu, QStringLiteral("gallery_menuPlay"), QStringLiteral("Start the live view"),
                 QStringLiteral("Ctrl+L"));
    addSvgAction(menu, QStringLiteral("gallery_menuSnapshot"), QStringLiteral("Take a snapshot"),
                 QStringLiteral("F9"));
    addSvgAction(menu, QStringLiteral("gallery_menuExport"), QStringLiteral("Export a clip..."),
                 QStringLiteral("Ctrl+Shift+E"));
    menu->addSeparator();
    addCheck(menu, QStringLiteral("Record on motion"), true);
    addCheck(menu, QStringLiteral("Show the camera's name"), false);
    auto *stream = new CusMenu(QStringLiteral("Stream"), menu);
    addCheck(stream, QStringLiteral("Main stream, 4K"), true);
    addCheck(stream, QStringLiteral("Sub stream, 720p"), false);
    menu->addMenu(stream);
    auto *presets = new CusMenu(QStringLiteral("PTZ presets"), menu);
    menu->addMenu(presets)->setEnabled(false);
    menu->addSeparator();
    addSvgAction(menu, QStringLiteral("gallery_menuTrash"), QStringLiteral("Remove from the view"),
                 QStringLiteral("Del"));
    return menu;
}

CusMenu *mirroredMenu(QWidget *owner)
{
    auto *menu = new CusMenu(owner);
    menu->setLayoutDirection(Qt::RightToLeft);
    addSvgAction(menu, QStringLiteral("gallery_menuSnapshot"), QStringLiteral("التقاط صورة"),
                 QStringLiteral("F10"));
    addCheck(menu, QStringLiteral("التسجيل عند الحركة"), true);
    auto *stream = new CusMenu(QStringLiteral("البث"), menu);
    stream->setLayoutDirection(Qt::RightToLeft);
    addCheck(stream, QStringLiteral("البث الرئيسي"), true);
    menu->addMenu(stream);
    menu->addAction(QStringLiteral("إعادة تشغيل الكاميرا"))->setEnabled(false);
    return menu;
}

CusMenu *longMenu(QWidget *owner)
{
    auto *menu = new CusMenu(owner);
    addCheck(menu, QStringLiteral("Loading bay west, second dome above the weighbridge, at night"),
             true);
    menu->addAction(QStringLiteral("A text that fits"));
    auto *events = new CusMenu(
        QStringLiteral("Events of the last seven days, all cameras of the harbour"), menu);
    events->addAction(QStringLiteral("08:15:30  Line crossed"));
    events->addAction(QStringLiteral("08:16:02  Video lost"));
    menu->addMenu(events);
    return menu;
}

CusMenu *tabMenu(QWidget *owner)
{
    auto *menu = new CusMenu(owner);
    menu->addAction(QStringLiteral("North gate\t12 events"));
    menu->addAction(QStringLiteral("Loading bay\t3 events"));
    menu->addAction(QStringLiteral("Car park\tnone"));
    return menu;
}

/// The pictures of \a menus beside each other, and a button that opens the first.
QWidget *shown(const QVector<CusMenu *> &menus, QAction *active, QLabel *signalLine)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *pictures = new QHBoxLayout;
    pictures->setSpacing(4);
    for (CusMenu *menu : menus) {
        pictures->addWidget(new MenuPicture(menu, menu == menus.first() ? active : nullptr), 0,
                            Qt::AlignTop);
        QObject::connect(menu, &QMenu::triggered, signalLine, [signalLine](const QAction *action) {
            signalLine->setText(QStringLiteral("triggered: %1").arg(action->text()));
        });
    }
    pictures->addStretch(1);
    layout->addLayout(pictures);
    auto *open = new QPushButton(QStringLiteral("Open it"));
    QObject::connect(open, &QPushButton::clicked, menus.first(), [open, menu = menus.first()] {
        menu->popup(open->mapToGlobal(QPoint(0, open->height() + 4)));
    });
    layout->addWidget(open, 0, Qt::AlignLeft);
    layout->addStretch(1);
    return box;
}

class MenuPage : public QWidget
{
public:
    MenuPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Menu"),
            QStringLiteral("Rows with check marks, SVG icons, shortcuts and submenus, in columns "
                           "that every row keeps free."));
        auto *line = PageKit::signalLine(QStringLiteral("No action triggered yet."));
        CusMenu *camera = cameraMenu(this);
        auto *stream = qobject_cast<CusMenu *>(camera->actions().at(6)->menu());
        auto *top = new QHBoxLayout;
        top->setSpacing(16);
        top->addWidget(PageKit::card(QStringLiteral("A camera's menu and its submenu"),
                                     shown({camera, stream}, camera->actions().at(1), line)),
                       3);
        auto *mirrored = mirroredMenu(this);
        top->addWidget(PageKit::card(QStringLiteral("Right to left"),
                                     shown({mirrored}, mirrored->actions().at(1), line)),
                       2);
        column->addLayout(top);
        auto *bottom = new QHBoxLayout;
        bottom->setSpacing(16);
        bottom->addWidget(PageKit::card(QStringLiteral("Overlong texts: 400 px, the rest as a tip"),
                                        shown({longMenu(this)}, nullptr, line)),
                          3);
        bottom->addWidget(
            PageKit::card(QStringLiteral("Behind a tab"), shown({tabMenu(this)}, nullptr, line)),
            2);
        column->addLayout(bottom);
        column->addWidget(line);
    }
};

const GalleryPage page{45, QStringLiteral("Menu"), [] { return new MenuPage; }};

} // namespace
