#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"

#include <Vellum/CusLabel>

#include <QtTest>
#include <QtWidgets>

Q_DECLARE_METATYPE(CusLabel::LableType)

namespace {

constexpr int kSize = 14;

QFont fontOf(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    return font;
}

QString tick(CusLabel &label)
{
    QMetaObject::invokeMethod(&label, "onTimeOut");
    return label.text();
}

QString elided(const QString &text, int width, int pixelSize = kSize)
{
    return QFontMetrics(fontOf(pixelSize)).elidedText(text, Qt::ElideRight, width);
}

int advance(const QString &text)
{
    return QFontMetrics(fontOf(kSize)).horizontalAdvance(text);
}

/// The rule for line breaks, character by character; a surrogate pair is one character.
QString walked(const QFontMetrics &metrics, const QString &text, int width)
{
    if (width >= metrics.boundingRect(text).width() + 5)
        return text;
    QString result;
    QString line;
    for (const QChar c : text) {
        result += c;
        line += c;
        if (!c.isHighSurrogate() && metrics.boundingRect(line).width() + 5 >= width) {
            result += QLatin1Char('\n');
            line.clear();
        }
    }
    return result;
}

const QString kGate = QStringLiteral("North gate, inner lane");
const QString kTime = QStringLiteral("08:15:30");
const QString kBig = QStringLiteral("<font style='font-size:14px';>%1</font>");
const QString kSmall = QStringLiteral("<font style='font-size:12px';>%1</font>");

} // namespace

class TestCusLabel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheTextByItsPolicy_data();
    void showsTheTextByItsPolicy();
    void linesBreakWhereThePlainWalkBreaksThem();
    void followsWidthAndFont();
    void scrollsThroughBothParts();
    void scrollsOnlyWhileVisibleAndTooNarrow();
    void aFontInPointsComesToRest();
    void drawsTheTintedImageBehindTheText();
    void tellsPressAndReleaseOnce();
};

void TestCusLabel::showsTheTextByItsPolicy_data()
{
    constexpr auto elide = CusLabel::LABEL_TYPE_LONG_ELLIPSES;
    const QStringList one{kGate};
    const QStringList two{kGate, kTime};
    const QString none;
    const QString whole = kBig.arg(kGate) + kSmall.arg(kTime);
    QTest::addColumn<CusLabel::LableType>("type");
    QTest::addColumn<QStringList>("parts");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");

    QTest::newRow("clipped") << CusLabel::LABEL_TYPE_DEFAULT << two << 20 << whole << none;
    QTest::newRow("unknown policy") << CusLabel::LableType(9) << one << 20 << kGate << none;
    QTest::newRow("elided, no width") << elide << one << 0 << elided(kGate, 0) << kGate;
    QTest::newRow("elided, two fit") << elide << two << 400 << whole << none;
    QTest::newRow("elided, second cut")
        << elide << two << advance(kGate) + 30
        << kBig.arg(kGate) + kSmall.arg(elided(kTime, 30, 12)) << kGate + kTime;
    QTest::newRow("elided, first cut")
        << elide << two << 80 << kBig.arg(elided(kGate, 80)) << kGate + kTime;
}

void TestCusLabel::showsTheTextByItsPolicy()
{
    QFETCH(CusLabel::LableType, type);
    QFETCH(QStringList, parts);
    QFETCH(int, width);
    CusLabel label;
    label.setFont(fontOf(kSize));
    label.resize(width, 30);
    label.setLableType(type);
    label.setText(QStringLiteral("an earlier text"));
    label.setCustomText(parts.value(0), parts.value(1));
    QTEST(label.text(), "text");
    QTEST(label.toolTip(), "tip");
    QCOMPARE(label.property("cusText").toString(), parts.join(QString()));
    label.clear();
    QCOMPARE(label.text() + label.getCustomText(), QString());
}

void TestCusLabel::linesBreakWhereThePlainWalkBreaksThem()
{
    const std::pair<const char *, const char *> fontsAndAlphabets[] = {
        {"DejaVu Serif", "AVToLfil'\"jJ W"},
        {"DejaVu Sans", "摄像机北门iW12，。"},
        {"Noto Sans CJK SC", "abW\u0301\u0645\u0631\t\n\u200d\U0001F4F7"},
    };
    QRandomGenerator random(20);
    for (int round = 0; round < 96; ++round) {
        const auto &[family, characters] = fontsAndAlphabets[round % 3];
        const QVector<uint> alphabet = QString::fromUtf8(characters).toUcs4();
        QString text;
        for (int i = random.bounded(250); i > 0; --i)
            text += QString::fromUcs4(&alphabet.at(random.bounded(alphabet.size())), 1);
        QFont font(QString::fromUtf8(family));
        font.setPixelSize(8 + random.bounded(24));
        font.setItalic(round % 4 == 0);
        if (round % 5 == 1)
            font.setLetterSpacing(QFont::AbsoluteSpacing, 4 - random.bounded(20));
        CusLabel label;
        label.setLableType(CusLabel::LABEL_TYPE_LINE_BREAK);
        label.setFont(font);
        label.resize(round < 12 ? round : random.bounded(700), 30);
        label.setText(text);
        QCOMPARE(label.text(), walked(label.fontMetrics(), text, label.width()));
    }
}

void TestCusLabel::followsWidthAndFont()
{
    CusLabel label(kGate);
    label.setFont(fontOf(kSize));
    label.show();
    for (const int width : {400, 60, 90, 120, 60}) {
        label.resize(width, 30);
        QCOMPARE(label.text(), elided(kGate, width));
        QCOMPARE(label.toolTip(), width == 400 ? QString() : kGate);
    }
    label.setFont(fontOf(10));
    label.grab();
    QCOMPARE(label.text(), elided(kGate, 60, 10));
    label.setLableType(CusLabel::LABEL_TYPE_LINE_BREAK);
    QCOMPARE(label.text(), elided(kGate, 60, 10));
}

void TestCusLabel::scrollsThroughBothParts()
{
    CusLabel label;
    label.setFont(fontOf(kSize));
    label.setLableType(CusLabel::LABEL_TYPE_SCROLL_SHOW);
    label.resize(advance(QStringLiteral("West y")), 30);
    label.setCustomText(QStringLiteral("West yard"), QStringLiteral("live"));
    QCOMPARE(label.text(), QStringLiteral("West yard")); // the second part is out of sight
    QCOMPARE(label.toolTip(), QStringLiteral("West yardlive"));
    label.show();
    QStringList seen;
    for (int step = 1; step <= 17; ++step)
        seen.append(tick(label));
    const QString live = kSmall.arg(QStringLiteral("live"));
    QCOMPARE(seen.at(7), kBig.arg(QStringLiteral("d")) + live);
    QCOMPARE(seen.at(8), QStringLiteral("live"));
    QCOMPARE(seen.mid(11), QStringList({QStringLiteral("e"), {}, {}, {}, {}, label.text()}));
    QCOMPARE(label.text(), QStringLiteral("West yard"));
    label.setText(kGate); // starts over
    QCOMPARE(tick(label), kGate.mid(1));
}

void TestCusLabel::scrollsOnlyWhileVisibleAndTooNarrow()
{
    QWidget window;
    CusLabel label(&window);
    const auto *timer = label.findChild<QTimer *>();
    label.setFont(fontOf(kSize));
    label.setLableType(CusLabel::LABEL_TYPE_SCROLL_SHOW);
    label.resize(50, 30);
    label.setText(kGate);
    label.setVisible(true);
    QVERIFY(!timer->isActive());
    window.show();
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 300);
    for (QWidget *widget : {static_cast<QWidget *>(&label), &window}) {
        widget->setVisible(false);
        QVERIFY(!timer->isActive());
        widget->setVisible(true);
        QVERIFY(timer->isActive());
    }

    label.resize(400, 30);
    QCOMPARE(tick(label), kGate);
    QCOMPARE(label.toolTip(), QString());
    QVERIFY(!timer->isActive());
    label.resize(50, 30);
    QVERIFY(timer->isActive());
    label.setLableType(CusLabel::LABEL_TYPE_DEFAULT);
    QVERIFY(!timer->isActive());
}

void TestCusLabel::aFontInPointsComesToRest()
{
    CusLabel label;
    label.setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
    label.resize(300, 30);
    label.setCustomText(QStringLiteral("Lobby"), QStringLiteral("ground floor"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QTRY_VERIFY(label.text().startsWith(QLatin1String("<font>Lobby</font>")));
    QCoreApplication::processEvents();
    const PaintCounter paints(&label);
    label.repaint();
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 1);
}

void TestCusLabel::drawsTheTintedImageBehindTheText()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("<svg viewBox='0 0 4 4'><rect width='4' height='4' fill='#000000'/></svg>");
    file.close();
    CusLabel label;
    label.resize(40, 20);
    label.setSvgBGColor(QColor(0, 200, 0));
    label.setSvgBGImage(QStringLiteral("missing.svg"));
    QVERIFY(TestKit::inkExtent(TestKit::renderAt(&label)).isNull());
    label.setProperty("svgBGImage", file.fileName());
    QCOMPARE(TestKit::countOf(TestKit::renderAt(&label), QColor(0, 200, 0)), 40 * 20);
    label.setSvgBGColor(Qt::red);
    label.setText(QStringLiteral("W"));
    QVERIFY(TestKit::inkExtent(TestKit::renderAt(&label), Qt::red).width() < 30);
}

void TestCusLabel::tellsPressAndReleaseOnce()
{
    CusLabel label(kGate);
    const QSignalSpy pressed(&label, &CusLabel::signalPressed);
    const QSignalSpy released(&label, &CusLabel::signalReleased);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
        QTest::mousePress(&label, button);
    QCOMPARE(pressed.count(), 1);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton})
        QTest::mouseRelease(&label, button, Qt::NoModifier, QPoint(-5, -5));
    QCOMPARE(released.count(), 1);

    for (const auto signal : {&CusLabel::signalPressed, &CusLabel::signalReleased}) {
        const QPointer<CusLabel> deleted(new CusLabel(kGate));
        connect(deleted, signal, deleted, [deleted] { delete deleted; });
        QTest::mousePress(deleted, Qt::LeftButton);
        if (deleted)
            QTest::mouseRelease(deleted, Qt::LeftButton);
        QVERIFY(!deleted);
    }
}

QTEST_MAIN(TestCusLabel)
#include "tst_cuslabel.moc"
