#include "support/guardedtest.h"

#include <Vellum/CusUiCommonFun>

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// The text that an independent reader finds in the picture.
QString decoded(const QString &reader, const QPixmap &pixmap)
{
    // The symbol's own border is one module; a reader asks for four.
    const int margin = pixmap.width() / 8;
    QImage image(pixmap.size() + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawPixmap(margin, margin, pixmap);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("code.png"));
    if (!image.save(file))
        return QStringLiteral("the picture could not be saved");
    QProcess process;
    // Binary: the bytes as they are, where the reader would otherwise guess their encoding.
    process.start(reader,
                  {QStringLiteral("--quiet"), QStringLiteral("--raw"), QStringLiteral("--oneshot"),
                   QStringLiteral("-Sbinary"), file});
    if (!process.waitForFinished())
        return QStringLiteral("the reader did not end");
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class TestQrCode : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void anIndependentReaderDecodesIt_data();
    void anIndependentReaderDecodesIt();
    void borderIsOneModule();
    void neutralResults_data();
    void neutralResults();
};

void TestQrCode::anIndependentReaderDecodesIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");

    QTest::newRow("one character") << QStringLiteral("7") << QSize(90, 90);
    QTest::newRow("an address") << QStringLiteral("https://example.org/device?sn=DS-2CD/0042")
                                << QSize(160, 160);
    QTest::newRow("Chinese") << QString::fromUtf8("北门停车场入口 3 号摄像机") << QSize(220, 220);
    QTest::newRow("600 ideographs")
        << QString::fromUtf8("录像通道").repeated(150) << QSize(1200, 1200);
    QTest::newRow("modules of broken pixels") << QStringLiteral("camera 17") << QSize(101, 101);
}

void TestQrCode::anIndependentReaderDecodesIt()
{
    const QString reader = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
    if (reader.isEmpty())
        QSKIP("zbarimg, the independent reader, is not installed");
    QFETCH(QString, text);
    QFETCH(QSize, size);

    const QPixmap pixmap = generateQRCode(text, size);
    QCOMPARE(pixmap.size(), size);
    QCOMPARE(decoded(reader, pixmap), text);
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
}

void TestQrCode::neutralResults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isNull");

    const QSize size(50, 50);
    const auto letters = [](int count) { return QString(count, QLatin1Char('a')); };
    QTest::newRow("the longest text") << letters(2331) << size << false;
    QTest::newRow("one byte too many") << letters(2332) << size << true;
    QTest::newRow("far too long") << letters(50000000) << size << true;
    QTest::newRow("empty text") << QString() << size << false;
    QTest::newRow("negative size") << letters(1) << QSize(-50, -50) << true;
    QTest::newRow("no height") << letters(1) << QSize(50, 0) << true;
    QTest::newRow("one pixel") << letters(1) << QSize(1, 1) << false;
    QTest::newRow("huge") << letters(1) << QSize(2147483647, 2147483647) << true;
    QTest::newRow("longer than painting reaches") << letters(1) << QSize(1, 32768) << true;
}

void TestQrCode::neutralResults()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QFETCH(bool, isNull);

    const QPixmap pixmap = generateQRCode(text, size);
    QCOMPARE(pixmap.isNull(), isNull);
    QCOMPARE(pixmap.size(), isNull ? QSize(0, 0) : size);
}

QTEST_MAIN(TestQrCode)
#include "tst_qrcode.moc"
