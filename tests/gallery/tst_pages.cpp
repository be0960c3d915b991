#include "gallerypage.h"
#include "gallerywindow.h"
#include "support/guardedtest.h"

#include <QtTest>

#include <memory>

namespace {

/// Closes the dialogs and menus that a click opened, also while a nested event loop runs for them.
class PopupCloser : public QTimer
{
public:
    PopupCloser()
    {
        connect(this, &QTimer::timeout, this, [] {
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
            else if (QWidget *dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        start(1);
    }
};

/// What an operator does to a control, and what curious fingers do.
void drive(const QPointer<QWidget> &widget)
{
    const auto usable = [&widget] { return widget && widget->isVisible(); };
    if (!usable())
        return;
    const QPoint centre = widget->rect().center();
    QCursor::setPos(widget->mapToGlobal(centre));
    QEnterEvent enter(centre, centre, widget->mapToGlobal(centre));
    QCoreApplication::sendEvent(widget, &enter);
    const QVector<std::function<void()>> deeds = {
        [&] { QTest::mouseMove(widget, centre); },
        [&] { QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, centre); },
        [&] { QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, centre); },
        [&] { QTest::mouseMove(widget, QPoint(0, 0)); },
        [&] { QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(0, 0)); },
        [&] { QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, centre); },
        [&] { QTest::mouseClick(widget, Qt::RightButton, Qt::NoModifier, centre); },
        [&] { QTest::keyClick(widget, Qt::Key_7, Qt::NoModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_Space, Qt::NoModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_Down, Qt::NoModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_Backspace, Qt::NoModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_Return, Qt::NoModifier); },
        [&] { QTest::keyClick(widget, Qt::Key_Tab, Qt::NoModifier); },
    };
    for (const auto &deed : deeds) {
        if (!usable())
            return;
        deed();
        QCoreApplication::processEvents();
    }
    if (!usable())
        return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &leave);
}

} // namespace

class TestPages : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : {":/Resource/vellum.qss", ":/gallery/gallery.qss"}) {
            QFile sheet(QString::fromLatin1(name));
            QVERIFY2(sheet.open(QIODevice::ReadOnly), name);
            qApp->setStyleSheet(qApp->styleSheet() + QString::fromUtf8(sheet.readAll()));
        }
    }

    void survivesMouseAndKeys_data()
    {
        QTest::addColumn<QString>("name");
        for (const GalleryPage &page : GalleryPage::all())
            QTest::newRow(qPrintable(page.name)) << page.name;
    }

    /// No crash, no warning, and the page shows that something happened.
    void survivesMouseAndKeys()
    {
        QFETCH(QString, name);
        const PopupCloser closer;
        GalleryWindow window;
        window.resize(1280, 1600);
        QVERIFY(window.showPage(name));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QImage before = window.grab().toImage();

        QVector<QPointer<QWidget>> widgets;
        const QList<QWidget *> children = window.findChildren<QWidget *>();
        for (QWidget *child : children) {
            // The navigation would leave the page.
            if (child->isVisible() && !qobject_cast<QListWidget *>(child->parentWidget()))
                widgets.append(child);
        }
        for (const QPointer<QWidget> &widget : qAsConst(widgets))
            drive(widget);
        QVERIFY(window.showPage(name));
        QVERIFY(window.grab().toImage() != before);
    }
};

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
