#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusColorConfig>
#include <Vellum/ToolTipLabel>

#include <QtTest>
#include <QtWidgets>

class TestToolTipLabel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sameTextOnTheSameWidgetIsLeftAlone();
    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void eventsAndTimeHide();
    void hidingAnyTipTakesTheGlobalOneAlong();
    void takesTheSizeOfItsText();
    void paintsInTheThemeColours();
};

namespace {

/// The global tip on the screen, or null.
ToolTipLabel *globalTip()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *tip = qobject_cast<ToolTipLabel *>(widget);
        if (tip && tip->isVisible())
            return tip;
    }
    return nullptr;
}

} // namespace

void TestToolTipLabel::initTestCase()
{
    CusColorConfig::instance()->setConfig(
        {{QStringLiteral("ToolTipLabel_TipBordderColor"), QStringLiteral("#ff0000")},
         {QStringLiteral("ToolTipLabel_TipBGroundColor"), QStringLiteral("#0000ff")},
         {QStringLiteral("ToolTipLabel_TipTextColor"), QStringLiteral("#00ff00")}});
}

void TestToolTipLabel::sameTextOnTheSameWidgetIsLeftAlone()
{
    QWidget cell;
    ToolTipLabel::showLabelText(QPoint(10, 10), QStringLiteral("nobody asks"), nullptr);
    QVERIFY(!globalTip());
    ToolTipLabel::showLabelText(QPoint(100, 100), QStringLiteral("Camera 1"), &cell);
    const QPointer<ToolTipLabel> tip = globalTip();
    ToolTipLabel::showLabelText(QPoint(200, 200), QStringLiteral("Camera 1"), &cell);
    QCOMPARE(globalTip(), tip.data());
    QCOMPARE(tip->pos(), QPoint(102, 116));
    ToolTipLabel::showLabelText(QPoint(200, 200), QStringLiteral("Camera 2"), &cell);
    QCOMPARE(tip->pos(), QPoint(202, 216));
    tip->hide();
}

void TestToolTipLabel::staysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("corner");

    const QRect area = QGuiApplication::primaryScreen()->geometry();
    const int w = area.width();
    const int h = area.height();
    const QSize size(100, 30);
    QTest::newRow("just fits") << QPoint(w - 102, h - 46) << size << QPoint(w - 100, h - 30);
    QTest::newRow("lower right corner: above and left")
        << QPoint(w - 1, h - 1) << size << QPoint(w - 103, h - 39);
    QTest::newRow("too large") << QPoint(50, 60) << QSize(w + 50, h + 50) << QPoint(0, -50);
    QTest::newRow("far outside") << QPoint(INT_MAX, INT_MIN) << size << QPoint(w - 100, 0);
}

void TestToolTipLabel::staysOnTheScreen()
{
    QFETCH(QPoint, pos);
    QFETCH(QSize, size);
    ToolTipLabel tip;
    tip.resize(size);
    tip.placeTip(pos);
    QTEST(tip.pos(), "corner");
}

void TestToolTipLabel::eventsAndTimeHide()
{
    QWidget elsewhere;
    ToolTipLabel tip;
    auto *timer = tip.findChild<QTimer *>();
    const auto survives = [&](QEvent::Type type) {
        tip.show();
        QEvent event(type);
        return !tip.eventFilter(&elsewhere, &event) && tip.isVisible();
    };
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
          QEvent::FocusIn, QEvent::FocusOut, QEvent::Leave, QEvent::Close, QEvent::WindowActivate,
          QEvent::WindowDeactivate, QEvent::Wheel})
        QVERIFY2(!survives(type), QByteArray::number(type).constData());
    for (const QEvent::Type type : {QEvent::MouseMove, QEvent::KeyPress, QEvent::Enter})
        QVERIFY2(survives(type), QByteArray::number(type).constData());
    // The tip hears of them wherever they happen.
    QTest::mouseClick(&elsewhere, Qt::LeftButton);
    QVERIFY(!tip.isVisible() && !timer->isActive());

    // A table tip stays while the cursor is in its rectangle.
    tip.setTableTip(true);
    QVERIFY(tip.rectChanged(QRect(100, 100, 50, 20)));
    QVERIFY(!tip.rectChanged(QRect(100, 100, 50, 20)));
    QCursor::setPos(149, 119);
    QVERIFY(survives(QEvent::MouseMove));
    QCursor::setPos(150, 119);
    QVERIFY(!survives(QEvent::MouseMove));

    tip.show();
    QCOMPARE(timer->interval(), 10000);
    timer->start(0);
    QTRY_VERIFY(!tip.isVisible());
}

void TestToolTipLabel::hidingAnyTipTakesTheGlobalOneAlong()
{
    QWidget cell;
    auto *deleted = new QWidget;
    ToolTipLabel::showLabelText(QPoint(10, 10), QStringLiteral("first"), deleted);
    delete deleted;
    const QPointer<ToolTipLabel> first = globalTip();
    QVERIFY(first && !first->getToolTipWidget());
    ToolTipLabel other;
    other.show();
    other.hide();
    ToolTipLabel::showLabelText(QPoint(10, 10), QStringLiteral("second"), &cell);
    QTRY_VERIFY(!first);
    // The death of the first must not have orphaned the second.
    const QPointer<ToolTipLabel> second = globalTip();
    ToolTipLabel::showLabelText(QPoint(10, 10), QStringLiteral("third"), &cell);
    QCOMPARE(globalTip(), second.data());
}

void TestToolTipLabel::takesTheSizeOfItsText()
{
    ToolTipLabel tip;
    tip.updateSize(QStringLiteral("one"));
    const QSize one = tip.size();
    tip.updateSize(QStringLiteral("<table width=300 height=90><tr><td>rich</td></tr></table>"));
    QVERIFY(tip.minimumWidth() >= 300 && tip.minimumHeight() >= 90);
    tip.updateSize(QStringLiteral("one"));
    QCOMPARE(tip.size(), one);
    tip.updateSize(QString(100000, QLatin1Char('W')));
    QVERIFY(tip.width() > 10000);
}

void TestToolTipLabel::paintsInTheThemeColours()
{
    ToolTipLabel tip;
    for (const QString &text : {QStringLiteral("WWW"), QStringLiteral("<b>WWW</b>")}) {
        tip.updateSize(text);
        const QImage image = TestKit::renderAt(&tip, 2);
        const QSize size = tip.size() * 2;
        // A crisp frame reaches every edge.
        QCOMPARE(TestKit::extentOf(image, Qt::red), QRect(QPoint(0, 0), size));
        const QRect ink = TestKit::extentOf(image, Qt::green);
        QVERIFY(ink.width() > 20 && ink.left() >= 8 && ink.right() < size.width() - 4);
        QCOMPARE(image.pixelColor(4, size.height() / 2), QColor(Qt::blue));
    }
}

int main(int argc, char **argv)
{
    QPointer<ToolTipLabel> last;
    int failures = 0;
    {
        QApplication app(argc, argv);
        TestToolTipLabel test;
        failures = QTest::qExec(&test, argc, argv);
        QWidget cell;
        ToolTipLabel::showLabelText(QPoint(10, 10), QStringLiteral("left on the screen"), &cell);
        last = globalTip();
        if (!last)
            qFatal("no tip is on the screen");
    }
    if (last)
        qFatal("the tip outlived the application");
    return failures;
}

#include "tst_tooltiplabel.moc"
