#include "support/guardedtest.h"

#include <Vellum/CusUiCommonFun>

#include <QImage>
#include <QPainter>
#include <QtTest>

namespace {

/// The text that an independent reader finds in the picture; empty when it fails.
QString decoded(const QString &reader, const QPixmap &pixmap)
{
    // The symbol's own border is one module; a reader asks for four.
    const int margin = pixmap.width() / 8;
    QImage image(pixmap.size() + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawPixmap(margin, margin, pixmap);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("code.png"));
    image.save(file);
    QProcess process;
    // Binary: the bytes as they are, where the reader would otherwise guess their encoding.
    process.start(reader,
                  {QStringLiteral("--quiet"), QStringLiteral("--raw"), QStringLiteral("--oneshot"),
                   QStringLiteral("-Sbinary"), file});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class TestQrCode : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void anIndependentReaderDecodesIt();
    void borderIsOneModule();
    void neutralResults();
};

void TestQrCode::anIndependentReaderDecodesIt()
{
    const QString reader = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
    if (reader.isEmpty())
        QSKIP("zbarimg, the independent reader, is not installed");
    const auto check = [&reader](const QString &text, const QSize &size) {
        const QPixmap pixmap = generateQRCode(text, size);
        QCOMPARE(pixmap.size(), size);
        QCOMPARE(decoded(reader, pixmap), text);
    };
    check(QStringLiteral("7"), QSize(90, 90));
    check(QStringLiteral("https://example.org/device?sn=DS-2CD/0042"), QSize(160, 160));
    check(QString::fromUtf8("北门停车场入口 3 号摄像机"), QSize(220, 220));
    check(QString::fromUtf8("录像通道").repeated(150), QSize(1200, 1200));
    check(QStringLiteral("camera 17"), QSize(101, 101)); // modules of broken pixels
}

void TestQrCode::borderIsOneModule()
{
    // The smallest symbol has 21 modules: 23 with the border, here of 10 x 3 pixels.
    const QImage image = generateQRCode(QStringLiteral("7"), QSize(230, 69)).toImage();
    const auto darkAt = [&image](int column, int row) {
        return image.pixelColor(10 * column + 5, 3 * row + 1) == QColor(Qt::black);
    };
    for (int i = 0; i < 23; ++i)
        QVERIFY(!darkAt(i, 0) && !darkAt(i, 22) && !darkAt(0, i) && !darkAt(22, i));
    for (int i = 1; i <= 7; ++i) // the finder patterns
        QVERIFY(darkAt(i, 1) && darkAt(1, i) && darkAt(22 - i, 7) && darkAt(i, 21));
    QVERIFY(!darkAt(2, 2) && darkAt(3, 3));
    for (int side : {101, 232, 233}) {
        const QImage whole =
            generateQRCode(QStringLiteral("camera 17"), QSize(side, side)).toImage();
        for (int i = 0; i < side; ++i) {
            QCOMPARE(whole.pixelColor(side - 1, i), QColor(Qt::white));
            QCOMPARE(whole.pixelColor(i, side - 1), QColor(Qt::white));
        }
    }
}

void TestQrCode::neutralResults()
{
    const QSize size(50, 50);
    const auto sizeOf = [](int letters, const QSize &wanted) {
        return generateQRCode(QString(letters, QLatin1Char('a')), wanted).size();
    };
    const QSize null(0, 0);
    QCOMPARE(sizeOf(2331, size), size); // the longest text
    QCOMPARE(sizeOf(2332, size), null);
    QCOMPARE(sizeOf(50000000, size), null);
    QCOMPARE(sizeOf(0, size), size);
    QCOMPARE(sizeOf(1, size * -1), null);
    QCOMPARE(sizeOf(1, QSize(50, 0)), null);
    QCOMPARE(sizeOf(1, QSize(1, 1)), QSize(1, 1));
    QCOMPARE(sizeOf(1, QSize(2147483647, 2147483647)), null);
    QCOMPARE(sizeOf(1, QSize(1, 32768)), null); // longer than painting reaches
}

QTEST_MAIN(TestQrCode)
#include "tst_qrcode.moc"
