#include "galleryoptions.h"
#include "gallerywindow.h"
#include "iconsurvey.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr QSize kWindowSize(1280, 860);
constexpr int kMaxPictureHeight = 4000;
constexpr int kSettleTime = 400;

/// The style sheet of the starter theme, and what only the gallery's own frame needs.
QString styleSheet()
{
    QString sheet;
    for (const char *name : {":/Resource/vellum.qss", ":/gallery/gallery.qss"}) {
        QFile file(QString::fromLatin1(name));
        if (file.open(QIODevice::ReadOnly))
            sheet += QString::fromUtf8(file.readAll());
    }
    return sheet;
}

/// Waits in the event loop, so that fonts, polish and the first ticks of timers are done.
void settle()
{
    QEventLoop loop;
    QTimer::singleShot(kSettleTime, &loop, &QEventLoop::quit);
    loop.exec();
}

int saveScreenshots(GalleryWindow *window, const GalleryOptions &options)
{
    QTextStream out(stdout);
    QDir folder(options.screenshotFolder);
    if (!folder.mkpath(QStringLiteral("."))) {
        out << "Can't make the folder " << folder.path() << '\n';
        return 1;
    }
    int saved = 0;
    const QStringList names =
        options.page.isEmpty() ? window->pageNames() : QStringList{options.page};
    for (const QString &name : names) {
        window->showPage(name);
        window->resize(kWindowSize);
        settle();
        const int height = qBound(kWindowSize.height(), window->pageHeight(), kMaxPictureHeight);
        if (height > window->height()) {
            window->resize(kWindowSize.width(), height);
            settle();
        }
        const QString file = folder.filePath(
            name.toLower().replace(QLatin1Char(' '), QLatin1Char('-')) + QStringLiteral(".png"));
        if (!window->grab().save(file)) {
            out << "Can't write " << file << '\n';
            return 1;
        }
        ++saved;
    }
    out << saved << " pages saved in " << folder.absolutePath() << '\n';
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const double scale = GalleryOptions::scaleFrom(argc, argv);
    if (!qFuzzyCompare(scale, 1.0))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vellum-gallery"));

    GalleryOptions &options = GalleryOptions::current();
    options.parse(QApplication::arguments());
    if (!options.surveyFolder.isEmpty())
        return runIconSurvey(options.surveyFolder);
    QFont font(QStringLiteral("Noto Sans CJK SC"));
    font.setPixelSize(14);
    QApplication::setFont(font);
    if (!options.screenshotFolder.isEmpty())
        QApplication::setCursorFlashTime(0);
    app.setStyleSheet(styleSheet());

    GalleryWindow window;
    if (options.list) {
        QTextStream(stdout) << window.pageNames().join(QLatin1Char('\n')) << '\n';
        return 0;
    }
    if (!options.page.isEmpty() && !window.showPage(options.page)) {
        QTextStream(stdout) << "No page is named " << options.page << '\n';
        return 1;
    }
    window.resize(kWindowSize);
    window.show();
    if (!options.screenshotFolder.isEmpty())
        return saveScreenshots(&window, options);
    return QApplication::exec();
}
