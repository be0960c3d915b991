#include "support/guardedtest.h"

#include <Vellum/CusUiCommonFun>

#include <QRandomGenerator>
#include <QtTest>

namespace {

/// The rules word for word, a character at a time: slow, and without any thought of spans.
QString plainWrap(const QFontMetrics &metrics, const QString &text, int width, bool *wrapped,
                  int *lineCount)
{
    *lineCount = 1;
    *wrapped = false;
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    QStringList lines;
    QString line;
    QString word;
    for (const QChar c : text) {
        const QString attempt = line + c;
        const QString attemptWord = word + c;
        const bool ideograph = c.unicode() >= 19968 && c.unicode() <= 40869;
        const bool blank = c == QLatin1Char(' ');
        const QString head = attempt.left(attempt.size() - attemptWord.size());
        if (metrics.horizontalAdvance(attempt) <= width) {
            line = attempt;
            word = attemptWord;
        } else if ((!line.isEmpty() && (blank || ideograph)) || head.isEmpty()) {
            if (!line.isEmpty())
                lines.append(line);
            line = word = c;
        } else {
            lines.append(head);
            line = word = attemptWord;
        }
        if (ideograph || blank || QStringLiteral(",;.").contains(c))
            word.clear();
    }
    if (!line.isEmpty())
        lines.append(line);
    *lineCount = lines.size();
    *wrapped = lines.size() > 1;
    return lines.join(QLatin1Char('\n'));
}

QString pick(QRandomGenerator *random, const QString &alphabet)
{
    const auto index = int(random->bounded(quint32(alphabet.size())));
    // Qt measures half a surrogate pair inside a text now so, now so: a pair stands whole, and as a
    // word that always fits.
    if (alphabet.at(index).isLowSurrogate())
        return alphabet.mid(index - 1, 2) + QLatin1Char(' ');
    return alphabet.at(index).isHighSurrogate() ? QString() : QString(alphabet.at(index));
}

QString randomText(QRandomGenerator *random, const QString &alphabet, int size)
{
    QString text;
    while (text.size() < size)
        text += pick(random, alphabet);
    return text;
}

QFont sized(const QString &family, int pixels, bool italic)
{
    QFont font(family);
    font.setPixelSize(pixels);
    font.setItalic(italic);
    // With it, each font makes Qt look through all that are installed for what it lacks.
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

} // namespace

class TestWarpString : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data();
    void rules();
    void agreesWithThePlainRules_data();
    void agreesWithThePlainRules();
    void agreesUnderOddFonts_data();
    void agreesUnderOddFonts();
    void losesNothingOfBrokenPairs();
    void nullResultsAreAllowed();
};

void TestWarpString::rules_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("digits"); // the width, in digits
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("lines");

    const auto row = [](const char *name, const char *text, int digits, const char *expected,
                        int lines) {
        QTest::newRow(name) << QString::fromUtf8(text) << digits << QString::fromUtf8(expected)
                            << lines;
    };
    row("a text that fits is returned as is", "12 34", 5, "12 34", 1);
    row("a word moves to the next line whole", "12,3456", 5, "12,\n3456", 2);
    row("a blank that doesn't fit starts the next line", "12345 6", 5, "12345\n 6", 2);
    row("a word that is too long breaks where it stands", "1234567", 3, "123\n456\n7", 3);
    row("break behind a comma, a semicolon and a full stop", "1,2;3.4", 2, "1,\n2;\n3.\n4", 4);
    row("break before any ideograph", "12\u4e00\u9fa5", 3, "12\n\u4e00\n\u9fa5", 3);
    row("no break at the ideograph behind the last", "1,2\u9fa6", 3, "1,\n2\u9fa6", 2);
    row("one character a line at width 0", "123", 0, "1\n2\n3", 3);
    row("one character a line at a negative width", "\u4e00 1", -9, "\u4e00\n \n1", 3);
    row("a line feed is a character like others", "1\n2", 0, "1\n\n\n2", 3);
    row("an empty text fits", "", 0, "", 1);
    row("an empty text that doesn't fit has no line", "", -1, "", 0);
}

void TestWarpString::rules()
{
    QFETCH(QString, text);
    QFETCH(int, digits);
    QFETCH(QString, expected);
    QFETCH(int, lines);

    // An ideograph is as wide as two digits.
    const QFontMetrics metrics(sized(QStringLiteral("Noto Sans Mono CJK SC"), 20, false));
    bool wrapped = lines <= 1;
    int lineCount = -1;
    QCOMPARE(warpString(metrics, text, digits * metrics.horizontalAdvance(QLatin1Char('0')),
                        &wrapped, &lineCount),
             expected);
    QCOMPARE(lineCount, lines);
    QCOMPARE(wrapped, lines > 1);
}

void TestWarpString::agreesWithThePlainRules_data()
{
    QTest::addColumn<QString>("alphabet");

    const auto row = [](const char *name, const char *alphabet) {
        QTest::newRow(name) << QString::fromUtf8(alphabet);
    };
    row("words", "abcdefghijklmnopqrstuvwxyzABCDEFG    ,.;'\"-0123456789");
    row("kerning and ligatures", "fffiiljtTAVWaoLY.,-/ ");
    row("one long word", "mwil1_AVTo");
    row("accents", "àéîõüßÆñçøĄŐŢİıƒ Wo,");
    row("digits and ideographs", "0123456789 .,(-)一二三通道摄像机");
    row("CJK with kana and full-width forms", "录像回放，。（）「」ひらがなカタカナＡＢ１２—…・ー");
    row("Latin and CJK", "abc ABC 摄像机 、。,.;“”‘’…—fi");
    row("Greek and Cyrillic", "αβγΑΥΩ абвгдТАУЖ .,;12");
    row("line ends and tabs", "ab \n\r\t\u2028,文");
    row("Arabic and Hebrew", "السلام عليكم שלום abc 12,.()");
    row("combining marks", "aeiou\u0301\u0308\u0323 xyz,文\u3099");
    row("Devanagari and Thai", "नमस्ते दुनिया क्षि กำี่ ab,");
    row("joiners, marks and controls", "\u200d\ufe0f❤ ab文\u200b\u00ad\u202e\u009c,");
    row("emoji", "😀👨🏽❤ ab文, ");
}

void TestWarpString::agreesWithThePlainRules()
{
    QFETCH(QString, alphabet);

    // Few fonts: each new one is searched through the whole system for the letters that it lacks.
    const QStringList families = {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"),
                                  QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Serif")};
    QRandomGenerator random(20200229);
    for (int round = 0; round < 40; ++round) {
        const int kind = round / families.size() % 2;
        QFont font = sized(families.at(round % families.size()), 7 + 12 * kind, kind == 1);
        if (round % 8 == 0) {
            font.setFamilies({font.family(), QStringLiteral("Noto Sans CJK SC"),
                              QStringLiteral("Noto Sans Devanagari")});
            font.setStyleStrategy(QFont::PreferDefault);
        }
        const QFontMetrics metrics(font);
        const QString text = randomText(&random, alphabet, random.bounded(1, 160));
        // Mostly a width at which the text, up to some character, just fits or just doesn't.
        const QString start = text.left(random.bounded(text.size() + 1));
        int width = random.bounded(4) > 0 ? metrics.horizontalAdvance(start) - random.bounded(2)
                                          : random.bounded(-2, 400);
        if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); }))
            width += 4 * font.pixelSize();
        bool wrapped = false;
        bool plainlyWrapped = false;
        int lineCount = 0;
        int plainCount = 0;
        const QString expected = plainWrap(metrics, text, width, &plainlyWrapped, &plainCount);
        const QString actual = warpString(metrics, text, width, &wrapped, &lineCount);
        QVERIFY2(actual == expected,
                 qPrintable(QStringLiteral("round %1, %2, width %3: \"%4\" instead of \"%5\"")
                                .arg(round)
                                .arg(font.toString())
                                .arg(width)
                                .arg(actual, expected)));
        QCOMPARE(wrapped, plainlyWrapped);
        QCOMPARE(lineCount, plainCount);
    }
}

void TestWarpString::agreesUnderOddFonts_data()
{
    QTest::addColumn<QFont>("font");

    QFont font = sized(QStringLiteral("Noto Sans"), 15, false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, -6);
    QTest::newRow("letter spacing that eats narrow letters up") << font;
    font.setLetterSpacing(QFont::AbsoluteSpacing, -30);
    QTest::newRow("letter spacing that turns widths round") << font;
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    font.setWordSpacing(-25);
    QTest::newRow("word spacing that turns blanks round") << font;
    font.setWordSpacing(0);
    font.setCapitalization(QFont::SmallCaps);
    QTest::newRow("small capitals") << font;
    font.setCapitalization(QFont::MixedCase);
    font.setHintingPreference(QFont::PreferNoHinting);
    QTest::newRow("fractions of pixels") << font;
    font.setFamily(QStringLiteral("DejaVu Sans"));
    font.setStretch(70);
    QTest::newRow("condensed") << font;
}

void TestWarpString::agreesUnderOddFonts()
{
    QFETCH(QFont, font);

    const QFontMetrics metrics(font);
    QRandomGenerator random(7);
    const QString alphabet = QStringLiteral("abcdefillVATWwm    ,.;1(文");
    for (int round = 0; round < 24; ++round) {
        const QString text = randomText(&random, alphabet, random.bounded(1, 200));
        const int width =
            metrics.horizontalAdvance(text.left(random.bounded(text.size()))) - random.bounded(2);
        bool wrapped = false;
        int lineCount = 0;
        const QString expected = plainWrap(metrics, text, width, &wrapped, &lineCount);
        QCOMPARE(warpString(metrics, text, width, nullptr, nullptr), expected);
    }
}

void TestWarpString::losesNothingOfBrokenPairs()
{
    const QFontMetrics metrics{sized(QStringLiteral("Noto Sans"), 16, false)};
    QRandomGenerator random(11);
    const QString alphabet = QString::fromUtf8("😀👨\u200d👩🏽\ufe0fab 文,");
    for (int round = 0; round < 20; ++round) {
        QString text;
        while (text.size() < 60)
            text += alphabet.at(random.bounded(alphabet.size()));
        const int width = random.bounded(-1, 200);
        QString wrapped = warpString(metrics, text, width, nullptr, nullptr);
        QCOMPARE(wrapped.remove(QLatin1Char('\n')), text);
    }
}

void TestWarpString::nullResultsAreAllowed()
{
    const QFontMetrics metrics{sized(QStringLiteral("DejaVu Sans Mono"), 20, false)};
    int lineCount = 0;
    QCOMPARE(warpString(metrics, QStringLiteral("12"), 0, nullptr, &lineCount),
             QStringLiteral("1\n2"));
    QCOMPARE(lineCount, 2);
    QCOMPARE(warpString(metrics, QStringLiteral("12"), 100, nullptr, nullptr),
             QStringLiteral("12"));
}

QTEST_MAIN(TestWarpString)
#include "tst_warpstring.moc"
