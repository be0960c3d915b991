#include "support/guardedtest.h"

#include <Vellum/CusIntValidator>
#include <Vellum/CusMousePressedMove>
#include <Vellum/RichString>

#include <QtGui>
#include <QtTest>

class TestSmallTools : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void richStringEscapes();
    void validatorHasNoIntermediateState();
    void dragIsMeasured();
};

void TestSmallTools::richStringEscapes()
{
    const RichString string(QStringLiteral("<b a=\"'\">x & &lt;\r\n%1</b>"));
    const QString html = QStringLiteral(
        "<span style = \"font-size:14px;\">&lt;b&nbsp;a=&quot;&#39;&quot;&gt;x&nbsp;&amp;&nbsp;"
        "&amp;lt;<br><br>%1&lt;/b&gt;</span>");
    QCOMPARE(string.toHtmlText(), html);
    QCOMPARE(string.toPlainText(), html);

    const QString text = QStringLiteral("%2");
    QCOMPARE(RichString(QColor(0, 0, 255, 9), text).toHtmlText(),
             QStringLiteral("<span style = \"font-size:14px; color:#0000ff;\">%2</span>"));
    QVERIFY(RichString(QColor(), text) == RichString(text));
    QCOMPARE(RichString(QFont(), text).toHtmlText(), QString());
    QCOMPARE(RichString(QColor(Qt::red), text, text).toHtmlText(), QString());
}

void TestSmallTools::validatorHasNoIntermediateState()
{
    const CusIntValidator validator(10, 20);
    const auto stateOf = [&validator](const char *text) {
        QString input = QString::fromLatin1(text);
        int pos = 0;
        return validator.validate(input, pos);
    };
    for (const char *good : {"", "10", "20", " +15 "})
        QVERIFY2(stateOf(good) == QValidator::Acceptable, good);
    for (const char *bad : {"1", "21", "abc", "-", "15.0", "0xf", "4294967311"})
        QVERIFY2(stateOf(bad) == QValidator::Invalid, bad);
}

void TestSmallTools::dragIsMeasured()
{
    CusMousePressedMove move;
    QPoint point;
    const auto mouseAt = [](int x, int y) {
        return QMouseEvent(QEvent::MouseMove, QPoint(x, y), Qt::LeftButton, Qt::LeftButton, {});
    };
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

    move.setPressedBtn(Qt::RightButton);
    move.mousePressEvent(&start);
    QVERIFY(!move.getStartMovedPoint(point));
    QVERIFY(move.getMovedXY(point.rx(), point.ry()));
    QCOMPARE(point, QPoint(0, 0)); // any press forgets the last drag
}

QTEST_MAIN(TestSmallTools)
#include "tst_smalltools.moc"
