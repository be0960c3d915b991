#include "iconsurvey.h"
#include "support/guardedtest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray svg(const QByteArray &body)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\">" + body + "</svg>";
}

} // namespace

class TestIconSurvey : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void judgesByThePicture_data();
    void judgesByThePicture();
    void filledFrameCountsAsFlooded();
    void severalColorsCountAsFlattened();
    void featuresAreFound();
    void pipesAndDeadLinksAreUnreadable();
    void walkReadsEveryFolderOnceAndEndsInLoops();
    void countsAddUp();

private:
    QString write(const QString &name, const QByteArray &bytes);

    QTemporaryDir m_folder;
};

QString TestIconSurvey::write(const QString &name, const QByteArray &bytes)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qWarning("can't write %s", qPrintable(path));
    return path;
}

void TestIconSurvey::judgesByThePicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("outcome");
    QTest::newRow("attribute") << svg("<path fill=\"#000\" d=\"M4 4h16v16H4z\"/>")
                               << int(IconVerdict::Tinted);
    QTest::newRow("style block alone")
        << svg("<style>.a{fill:#000;}</style><path class=\"a\" d=\"M4 4h16v16H4z\"/>")
        << int(IconVerdict::Tinted);
    QTest::newRow("style block and attribute")
        << svg("<style>.a{fill:#000;}</style><path class=\"a\" fill=\"#000\" "
               "d=\"M4 4h16v16H4z\"/>")
        << int(IconVerdict::Kept);
    QTest::newRow("currentColor loses the rule that named it")
        << svg("<style>.a{color:#080;}</style><path class=\"a\" fill=\"currentColor\" "
               "d=\"M4 4h16v16H4z\"/>")
        << int(IconVerdict::Missed);
    QTest::newRow("stroke keeps its colour")
        << svg("<path d=\"M4 4h16v16H4z\" stroke=\"#00f\" stroke-width=\"4\"/>")
        << int(IconVerdict::PartlyTinted);
    QTest::newRow("text keeps its colour")
        << svg("<g fill=\"#000\"><text x=\"2\" y=\"20\" font-size=\"20\">W</text></g>")
        << int(IconVerdict::Kept);
    QTest::newRow("nothing to see") << svg("<g/>") << int(IconVerdict::Blank);
    QTest::newRow("no SVG") << QByteArray("<html/>") << int(IconVerdict::Unreadable);
    QTest::newRow("broken XML") << QByteArray("<svg><path></svg>") << int(IconVerdict::Unreadable);
    QTest::newRow("empty") << QByteArray() << int(IconVerdict::Unreadable);
    QTest::newRow("nested beyond reason")
        << svg(QByteArray("<g>").repeated(20000) + QByteArray("</g>").repeated(20000))
        << int(IconVerdict::Unreadable);
}

void TestIconSurvey::judgesByThePicture()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, outcome);
    const QString file = write(QStringLiteral("judged.svg"), bytes);
    // The renderer's remarks about a bad file are its own business.
    const QtMessageHandler earlier =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const IconVerdict verdict = judgeIcon(file, Qt::magenta, true);
    qInstallMessageHandler(earlier);
    QCOMPARE(int(verdict.outcome), outcome);
}

void TestIconSurvey::filledFrameCountsAsFlooded()
{
    const QByteArray frame = "<path fill=\"none\" d=\"M0 0h24v24H0z\"/>";
    const QByteArray mark = "<path fill=\"#000\" d=\"M8 8h8v8H8z\"/>";
    QVERIFY(judgeIcon(write(QStringLiteral("frame.svg"), svg(frame + mark)), Qt::magenta).flooded);
    QVERIFY(!judgeIcon(write(QStringLiteral("mark.svg"), svg(mark)), Qt::magenta).flooded);
    QVERIFY(judgeIcon(write(QStringLiteral("empty.svg"), svg(frame)), Qt::magenta).appeared);
}

void TestIconSurvey::severalColorsCountAsFlattened()
{
    const QByteArray two = "<path fill=\"#f00\" d=\"M2 2h20v10H2z\"/>"
                           "<path fill=\"#00f\" d=\"M2 12h20v10H2z\"/>";
    QVERIFY(judgeIcon(write(QStringLiteral("two.svg"), svg(two)), Qt::magenta).flattened);
    QVERIFY(!judgeIcon(write(QStringLiteral("two.svg"), svg(two)), QColor()).flattened);
}

void TestIconSurvey::featuresAreFound()
{
    const QString file =
        write(QStringLiteral("features.svg"),
              svg("<style>.a{fill:#000;}</style><g><style/></g><linearGradient id=\"g\"/>"
                  "<path style=\"stroke:#000\" fill=\"currentColor\" d=\"M4 4h16v16H4z\"/>"));
    const QString link = m_folder.filePath(QStringLiteral("link.svg"));
    QVERIFY(QFile::link(file, link));
    const auto features = judgeIcon(link, Qt::magenta, true).features;
    QVector<int> found;
    for (int i = 0; i < IconVerdict::FeatureCount; ++i) {
        if (features.at(size_t(i)))
            found.append(i);
    }
    const QVector<int> expected = {IconVerdict::SymbolicLink,       IconVerdict::StyleBlock,
                                   IconVerdict::SeveralStyleBlocks, IconVerdict::ScopedStyleBlock,
                                   IconVerdict::Gradient,           IconVerdict::CurrentColor,
                                   IconVerdict::InlineStyle,        IconVerdict::Stroke};
    QCOMPARE(found, expected);
}

void TestIconSurvey::pipesAndDeadLinksAreUnreadable()
{
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.svg"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString dead = m_folder.filePath(QStringLiteral("dead.svg"));
    QVERIFY(QFile::link(QStringLiteral("nowhere.svg"), dead));
    for (const QString &file : {pipe, dead})
        QCOMPARE(judgeIcon(file, Qt::magenta, true).outcome, IconVerdict::Unreadable);
    QVERIFY(QFile::remove(pipe));
}

void TestIconSurvey::walkReadsEveryFolderOnceAndEndsInLoops()
{
    QTemporaryDir root;
    const QDir dir(root.path());
    QVERIFY(dir.mkpath(QStringLiteral("b/c")));
    for (const char *name : {"a.svg", "b/d.SVG", "b/c/e.svg", "b/notes.txt"}) {
        QFile file(dir.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QFile::link(QStringLiteral(".."), dir.filePath(QStringLiteral("b/up"))));
    QVERIFY(QFile::link(QStringLiteral("b"), dir.filePath(QStringLiteral("same"))));
    QVERIFY(QFile::link(QStringLiteral("gone"), dir.filePath(QStringLiteral("b/lost.svg"))));

    IconWalker walker(root.path());
    QStringList files;
    for (int steps = 0; walker.next(&files); ++steps)
        QVERIFY(steps < 20);
    for (QString &file : files)
        file = dir.relativeFilePath(file);
    const QStringList expected = {QStringLiteral("a.svg"), QStringLiteral("b/d.SVG"),
                                  QStringLiteral("b/lost.svg"), QStringLiteral("b/c/e.svg")};
    QCOMPARE(files, expected);

    IconWalker nowhere(dir.filePath(QStringLiteral("gone")));
    files.clear();
    while (nowhere.next(&files)) { }
    QVERIFY(files.isEmpty());
}

void TestIconSurvey::countsAddUp()
{
    IconCounts counts;
    for (int i = 0; i < 1200; ++i) {
        IconVerdict verdict;
        verdict.outcome = IconVerdict::Outcome(i % IconVerdict::OutcomeCount);
        verdict.flooded = i == 0;
        counts.add(verdict);
    }
    QCOMPARE(counts.line(),
             QStringLiteral("1,200 files: 600 changed, 400 kept their colours, 200 could not be "
                            "read"));
    QCOMPARE(counts.flooded, 1);
    QVERIFY(counts.table().contains(QStringLiteral("nearly solid after the tint: 1")));
}

QTEST_MAIN(TestIconSurvey)
#include "tst_iconsurvey.moc"
