#include <Vellum/CusSvgPushButton>
#include <Vellum/Vellum>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTextStream>

// Prints one line that says what an installed Vellum gave to a program outside its tree.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QFile sheet(QStringLiteral(":/Resource/vellum.qss"));
    const bool themed = sheet.open(QIODevice::ReadOnly);
    if (themed)
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()));

    CusSvgPushButton button;
    button.setText(QStringLiteral("Play"));
    button.setSvgIconImage(QStringLiteral(":/Resource/icons/play.svg"));
    button.resize(96, 30);
    QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QImage blank = image;
    button.render(&image);
    QTextStream(stdout) << "theme " << (themed ? "found" : "absent") << ", main colour "
                        << CusColorConfig::instance()->mainColor().name() << ", button "
                        << (image == blank ? "missing" : "drawn") << '\n';
    return 0;
}
