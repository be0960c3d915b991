#include "support/guardedtest.h"

#include <Vellum/CusIntValidator>
#include <Vellum/CusMousePressedMove>
#include <Vellum/RichString>

#include <QColor>
#include <QFont>
#include <QMouseEvent>
#include <QtTest>

class TestSmallTools : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void richStringEscapes();
    void richStringTakesValidColours();
    void validatorHasNoIntermediateState_data();
    void validatorHasNoIntermediateState();
    void dragIsMeasured();
    void dragNeedsItsButton();
};

void TestSmallTools::richStringEscapes()
{
    const RichString string(QStringLiteral("<b a=\"'\">x & &lt;\r\n%1</b>"));
    const QString html = QStringLiteral(
        "<span style = \"font-size:14px;\">&lt;b&nbsp;a=&quot;&#39;&quot;&gt;x&nbsp;&amp;&nbsp;"
        "&amp;lt;<br><br>%1&lt;/b&gt;</span>");
    QCOMPARE(string.toHtmlText(), html);
    QCOMPARE(string.toPlainText(), html);
}

void TestSmallTools::richStringTakesValidColours()
{
    const QString text = QStringLiteral("%2");
    QCOMPARE(RichString(QColor(0, 0, 255, 9), text).toHtmlText(),
             QStringLiteral("<span style = \"font-size:14px; color:#0000ff;\">%2</span>"));
    QVERIFY(RichString(QColor(), text) == RichString(text));
    for (const RichString &empty : {RichString(QFont(), text), RichString(QFont(), text, text),
                                    RichString(QColor(Qt::red), text, text)})
        QCOMPARE(empty.toHtmlText(), QString());
}

void TestSmallTools::validatorHasNoIntermediateState_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("acceptable");
    for (const char *good : {"", "10", "20", " +15 "})
        QTest::newRow(good) << QString::fromLatin1(good) << true;
    for (const char *bad : {"1", "21", "abc", "-", "15.0", "0xf", "4294967311"})
        QTest::newRow(bad) << QString::fromLatin1(bad) << false;
}

void TestSmallTools::validatorHasNoIntermediateState()
{
    QFETCH(QString, input);
    QFETCH(bool, acceptable);
    int pos = 0;
    QCOMPARE(CusIntValidator(10, 20).validate(input, pos),
             acceptable ? QValidator::Acceptable : QValidator::Invalid);
}

static QMouseEvent mouseAt(int x, int y)
{
    return {QEvent::MouseMove, QPoint(x, y), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier};
}

void TestSmallTools::dragIsMeasured()
{
    CusMousePressedMove move;
    QPoint point;
    QMouseEvent start = mouseAt(10, 20);
    QMouseEvent near = mouseAt(13, 24);
    QMouseEvent far = mouseAt(-2147483647, 30);
    move.mousePressEvent(&start);
    move.mouseMoveEvent(&near);
    move.mouseMoveEvent(&near);
    move.mousePressEvent(nullptr);
    move.mouseReleaseEvent(nullptr);
    QVERIFY(move.getMovedDxDy(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(3, 4)); // a move to the same place keeps the last step
    move.mouseMoveEvent(&far);
    QVERIFY(move.getCurMovedXY(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(std::numeric_limits<int>::min(), 10));
    QVERIFY(move.getStartMovedPoint(point));
    QCOMPARE(point, QPoint(10, 20));

    move.mouseReleaseEvent(&near);
    QVERIFY(!move.getMovedDxDy(point.rx(), point.ry()));
    QVERIFY(move.getMovedXY(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(3, 4));
    move.mousePressEvent(&start);
    QVERIFY(move.getMovedXY(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(0, 0));
}

void TestSmallTools::dragNeedsItsButton()
{
    CusMousePressedMove move;
    QMouseEvent event = mouseAt(4, 9);
    QPoint point;
    move.setPressedBtn(Qt::RightButton);
    move.mousePressEvent(&event);
    move.mouseMoveEvent(&event);
    QVERIFY(!move.getCurMovedXY(point.rx(), point.ry()));
    QVERIFY(!move.getStartMovedPoint(point));
    move.mouseReleaseEvent(&event);
    QVERIFY(move.getMovedXY(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(4, 9)); // a release counts without a drag
}

QTEST_MAIN(TestSmallTools)
#include "tst_smalltools.moc"
