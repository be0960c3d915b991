#include "support/guardedtest.h"

#include <Vellum/CusUiCommonFun>

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

QString randomText(QRandomGenerator *random, const QString &alphabet, int size)
{
    QString text;
    while (text.size() < size)
        text += alphabet.at(random->bounded(alphabet.size()));
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

/// Few: each new one is searched through the whole system for the letters that it lacks.
QVector<QFont> plainFonts()
{
    QVector<QFont> fonts;
    for (const char *family : {"DejaVu Sans", "Noto Sans", "Noto Sans CJK SC", "Noto Serif"}) {
        fonts.append(sized(QString::fromLatin1(family), 7, false));
        fonts.append(sized(QString::fromLatin1(family), 19, true));
    }
    fonts.first().setFamilies({fonts.first().family(), QStringLiteral("Noto Sans CJK SC"),
                               QStringLiteral("Noto Sans Devanagari")});
    fonts.first().setStyleStrategy(QFont::PreferDefault);
    return fonts;
}

/// With spacing that eats letters up or turns their widths round, small capitals, fractions of
/// pixels, stretch.
QVector<QFont> oddFonts()
{
    QVector<QFont> fonts(6, sized(QStringLiteral("Noto Sans"), 15, false));
    fonts[0].setLetterSpacing(QFont::AbsoluteSpacing, -6);
    fonts[1].setLetterSpacing(QFont::AbsoluteSpacing, -30);
    fonts[2].setWordSpacing(-25);
    fonts[3].setCapitalization(QFont::SmallCaps);
    fonts[4].setHintingPreference(QFont::PreferNoHinting);
    fonts[5].setStretch(70);
    return fonts;
}

/// Fails the test unless warpString() gives what the plain rules give.
void compareWithPlainRules(const QFont &font, const QString &text, int width)
{
    const QFontMetrics metrics(font);
    bool wrapped = false;
    bool plainlyWrapped = false;
    int lineCount = 0;
    int plainCount = 0;
    const QString expected = plainWrap(metrics, text, width, &plainlyWrapped, &plainCount);
    const QString actual = warpString(metrics, text, width, &wrapped, &lineCount);
    QVERIFY2(actual == expected, qPrintable(font.toString() + QLatin1Char('\n') + actual));
    QCOMPARE(wrapped, plainlyWrapped);
    QCOMPARE(lineCount, plainCount);
}

} // namespace

class TestWarpString : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void rules();
    void agreesWithThePlainRules_data();
    void agreesWithThePlainRules();
    void losesNothingOfBrokenPairs();
};

void TestWarpString::rules()
{
    // An ideograph is as wide as two digits.
    const QFontMetrics metrics(sized(QStringLiteral("Noto Sans Mono CJK SC"), 20, false));
    const int digit = metrics.horizontalAdvance(QLatin1Char('0'));
    const auto check = [&](const char *text, int digits, const char *expected, int lines) {
        bool wrapped = lines <= 1;
        int lineCount = -1;
        QCOMPARE(warpString(metrics, QString::fromUtf8(text), digits * digit, &wrapped, &lineCount),
                 QString::fromUtf8(expected));
        QCOMPARE(lineCount, lines);
        QCOMPARE(wrapped, lines > 1);
    };
    check("12 34", 5, "12 34", 1);
    check("12,3456", 5, "12,\n3456", 2);
    check("12345 6", 5, "12345\n 6", 2);
    check("1234567", 3, "123\n456\n7", 3); // a word that is too long breaks where it stands
    check("1,2;3.4", 2, "1,\n2;\n3.\n4", 4);
    check("12\u4e00\u9fa5", 3, "12\n\u4e00\n\u9fa5", 3);
    check("1,2\u9fa6", 3, "1,\n2\u9fa6", 2); // no break at the ideograph behind the last
    check("\u4e00 1", -9, "\u4e00\n \n1", 3);
    check("1\n2", 0, "1\n\n\n2", 3);
    check("", 0, "", 1);
    check("", -1, "", 0); // an empty text that doesn't fit has no line
}

void TestWarpString::agreesWithThePlainRules_data()
{
    QTest::addColumn<QString>("alphabet");
    QTest::addColumn<QVector<QFont>>("fonts");

    const auto row = [](const char *name, const char *alphabet) {
        QTest::newRow(name) << QString::fromUtf8(alphabet) << plainFonts();
    };
    row("words", "abcdefghijklmnopqrstuvwxyzABCDEFG    ,.;'\"-0123456789");
    row("kerning and ligatures", "fffiiljtTAVWaoLY.,-/ ");
    row("one long word", "mwil1_AVTo");
    row("digits and ideographs", "0123456789 .,(-)一二三通道摄像机");
    row("CJK with kana and full-width forms", "录像回放，。（）「」ひらがなカタカナＡＢ１２—…・ー");
    row("Latin and CJK", "abc ABC 摄像机 、。,.;“”‘’…—fi");
    row("accents, Greek and Cyrillic", "àéîõüßÆçĄŐİıƒ αβγΑΥΩ абвгдТАУЖ .,;12");
    row("line ends and tabs", "ab \n\r\t\u2028,文");
    row("Arabic and Hebrew", "السلام عليكم שלום abc 12,.()");
    row("combining marks", "aeiou\u0301\u0308\u0323 xyz,文\u3099");
    row("Devanagari and Thai", "नमस्ते दुनिया क्षि กำี่ ab,");
    row("joiners, marks and controls", "\u200d\ufe0f❤ ab文\u200b\u00ad\u202e\u009c,");
    QTest::newRow("odd fonts") << QStringLiteral("abcdefillVATWwm    ,.;1(文") << oddFonts();
}

void TestWarpString::agreesWithThePlainRules()
{
    QFETCH(QString, alphabet);
    QFETCH(QVector<QFont>, fonts);

    QRandomGenerator random(20200229);
    for (int round = 0; round < 40 && !QTest::currentTestFailed(); ++round) {
        const QFont font = fonts.at(round % fonts.size());
        const QString text = randomText(&random, alphabet, random.bounded(1, 160));
        // Mostly a width at which the text, up to some character, just fits or just doesn't.
        const QString start = text.left(random.bounded(text.size() + 1));
        const int width = random.bounded(4) > 0
            ? QFontMetrics(font).horizontalAdvance(start) - random.bounded(2)
            : random.bounded(-2, 400);
        compareWithPlainRules(font, text, width);
    }
}

void TestWarpString::losesNothingOfBrokenPairs()
{
    // Qt measures half a surrogate pair inside a text now so, now so: no rule says where it wraps.
    const QFontMetrics metrics{sized(QStringLiteral("Noto Sans"), 16, false)};
    QRandomGenerator random(11);
    const QString alphabet = QString::fromUtf8("😀👨\u200d👩🏽\ufe0fab 文,");
    for (int round = 0; round < 20; ++round) {
        const QString text = randomText(&random, alphabet, 60);
        const int width = random.bounded(-1, 200);
        QString wrapped = warpString(metrics, text, width, nullptr, nullptr);
        QCOMPARE(wrapped.remove(QLatin1Char('\n')), text);
    }
}

QTEST_MAIN(TestWarpString)
#include "tst_warpstring.moc"
