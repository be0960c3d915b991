#include "galleryoptions.h"

#include <QCommandLineParser>

GalleryOptions &GalleryOptions::current()
{
    static GalleryOptions options;
    return options;
}

double GalleryOptions::scaleFrom(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        QByteArray value;
        const QByteArray argument = argv[i];
        if (argument == "--scale" && i + 1 < argc)
            value = argv[i + 1];
        else if (argument.startsWith("--scale="))
            value = argument.mid(8);
        const double scale = value.toDouble();
        if (scale >= 0.5 && scale <= 4.0)
            return scale;
    }
    return 1.0;
}

void GalleryOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every control of Vellum at work."));
    parser.addHelpOption();
    const QCommandLineOption listOption(QStringLiteral("list"),
                                        QStringLiteral("List the pages and stop."));
    const QCommandLineOption pageOption(QStringLiteral("page"),
                                        QStringLiteral("Open, or picture, this page only."),
                                        QStringLiteral("name"));
    const QCommandLineOption screenshotsOption(QStringLiteral("screenshots"),
                                               QStringLiteral("Save a PNG of every page and stop."),
                                               QStringLiteral("folder"));
    const QCommandLineOption scaleOption(QStringLiteral("scale"),
                                         QStringLiteral("Device pixel ratio, 0.5 to 4."),
                                         QStringLiteral("ratio"), QStringLiteral("1"));
    const QCommandLineOption iconsOption(QStringLiteral("icons"),
                                         QStringLiteral("Folder of SVG files for the Icons page."),
                                         QStringLiteral("folder"));
    const QCommandLineOption surveyOption(
        QStringLiteral("survey"),
        QStringLiteral("Tint every SVG file below a folder, print what became of them, and stop."),
        QStringLiteral("folder"));
    parser.addOptions(
        {listOption, pageOption, screenshotsOption, scaleOption, iconsOption, surveyOption});
    parser.process(arguments);
    list = parser.isSet(listOption);
    page = parser.value(pageOption);
    screenshotFolder = parser.value(screenshotsOption);
    iconFolder = parser.value(iconsOption);
    surveyFolder = parser.value(surveyOption);
}
