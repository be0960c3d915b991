#include "iconsurvey.h"
#include "support/guardedtest.h"

#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray svg(const QByteArray &body)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>" + body + "</svg>";
}

} // namespace

class TestIconSurvey : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void judgesByThePicture();
    void filledFramesAndLostColorsAreMarked();
    void walkReadsEveryFolderOnceAndEndsInLoops();

private:
    QString write(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("icon.svg")));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            ? file.fileName()
            : QString();
    }

    QTemporaryDir m_folder;
};

void TestIconSurvey::judgesByThePicture()
{
    const auto check = [this](const char *name, const QByteArray &bytes, int outcome) {
        const QString file = write(bytes);
        // The renderer's remarks about a bad file are its own business.
        const QtMessageHandler earlier =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        const IconVerdict verdict = judgeIcon(file, Qt::magenta, true);
        qInstallMessageHandler(earlier);
        QVERIFY2(verdict.outcome == outcome, name);
    };
    const QByteArray square = " d='M4 4h16v16H4z'/>";
    const QByteArray styled = "<style>.a{fill:#000;}</style><path class='a'";
    check("attribute", svg("<path fill='#000'" + square), IconVerdict::Tinted);
    check("style block alone", svg(styled + square), IconVerdict::Tinted);
    check("style block and attribute", svg(styled + " fill='#000'" + square), IconVerdict::Kept);
    check("currentColor loses the rule that named it",
          svg("<style>.a{color:#080;}</style><path class='a' fill='currentColor'" + square),
          IconVerdict::Missed);
    check("stroke keeps its colour", svg("<path stroke='#00f' stroke-width='4'" + square),
          IconVerdict::PartlyTinted);
    check("text keeps its colour",
          svg("<g fill='#000'><text x='2' y='20' font-size='20'>W</text></g>"), IconVerdict::Kept);
    check("nothing to see", svg("<g/>"), IconVerdict::Blank);
    check("no SVG", "<html/>", IconVerdict::Unreadable);
    check("broken XML", "<svg><path></svg>", IconVerdict::Unreadable);
    check("empty", QByteArray(), IconVerdict::Unreadable);
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.svg"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString dead = m_folder.filePath(QStringLiteral("dead.svg"));
    QVERIFY(QFile::link(QStringLiteral("nowhere.svg"), dead));
    for (const QString &file : {pipe, dead})
        QCOMPARE(judgeIcon(file, Qt::magenta, true).outcome, IconVerdict::Unreadable);
    check("nested beyond reason",
          svg(QByteArray("<g>").repeated(20000) + QByteArray("</g>").repeated(20000)),
          IconVerdict::Unreadable);
}

void TestIconSurvey::filledFramesAndLostColorsAreMarked()
{
    const auto judged = [this](const QByteArray &body, const QColor &tint = Qt::magenta) {
        return judgeIcon(write(svg(body)), tint);
    };
    const QByteArray frame = "<path fill='none' d='M0 0h24v24H0z'/>";
    const QByteArray mark = "<path fill='#000' d='M8 8h8v8H8z'/>";
    QVERIFY(judged(frame + mark).flooded);
    QVERIFY(!judged(mark).flooded);
    QVERIFY(judged(frame).appeared);
    const QByteArray two =
        "<path fill='#f00' d='M2 2h20v10H2z'/><path fill='#00f' d='M2 12h20v10H2z'/>";
    QVERIFY(judged(two).flattened);
    QVERIFY(!judged(two, QColor()).flattened);
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
    QCOMPARE(
        files.replaceInStrings(root.path() + QLatin1Char('/'), QString()).join(QLatin1Char(' ')),
        QStringLiteral("a.svg b/d.SVG b/lost.svg b/c/e.svg"));
}

QTEST_MAIN(TestIconSurvey)
#include "tst_iconsurvey.moc"
