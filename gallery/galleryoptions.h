#pragma once

#include <QString>
#include <QStringList>

/// What the command line of the gallery asks for.
struct GalleryOptions
{
    /// The options of the running gallery; main() fills them before the first page is made.
    static GalleryOptions &current();

    /// Reads --scale alone, which Qt must know before the application object exists. 1 where it is
    /// absent or not a number from 0.5 to 4.
    static double scaleFrom(int argc, char **argv);

    void parse(const QStringList &arguments);

    bool list = false;
    QString page;
    QString screenshotFolder;
    QString iconFolder;
    /// A folder whose SVG files are judged instead of showing the window.
    QString surveyFolder;
};
