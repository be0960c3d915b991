#include "support/guardedtest.h"

#include <Vellum/CusScrollHoverPane>
#include <Vellum/CusUiCommonFun>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTextEdit>
#include <QtTest>

#include <limits>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr char kInvalid[] = "Invalid";

/// A scroll area of 200 x 300 visible pixels on a content of 2000 x 2000.
struct ScrolledContent
{
    ScrolledContent()
    {
        area.setFrameShape(QFrame::NoFrame);
        area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        content = new QWidget;
        content->resize(2000, 2000);
        area.setWidget(content);
        area.resize(200, 300);
        area.show();
    }

    QPoint position() const
    {
        return {area.horizontalScrollBar()->value(), area.verticalScrollBar()->value()};
    }

    QScrollArea area;
    QWidget *content;
};

} // namespace

class TestCusUiCommonFun : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void modalDialogs();
    void focusFrameWidensText();
    void runLogPassesMessagesUpToTheLevel();
    void hitTestOfFrame_data();
    void hitTestOfFrame();
    void hitTestInsideTheFrame();
    void outBounds_data();
    void outBounds();
    void outBoundsOfWindow();
    void widgetGeometry();
    void editingClearsTheInvalidMark();
    void textEditLimit();
    void buttonWidth_data();
    void buttonWidth();
    void splitterSizes_data();
    void splitterSizes();
    void scrollsToTheWidget_data();
    void scrollsToTheWidget();
    void scrollsToTheTextCursor();
    void hoverPaneCoversTheArea();
    void scrollsInRightToLeftLayouts();
    void nullWidgets();
};

void TestCusUiCommonFun::modalDialogs()
{
    QDialog outer;
    outer.setModal(true);
    outer.show();
    auto *child = new QWidget(&outer);
    // The top of the tree doesn't count itself.
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(child));
    auto *inner = new QDialog(child);
    inner->show();
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(&outer));
    inner->setModal(true);
    QVERIFY(CusUiCommonFun::judgeHaveModalDiaShow(&outer));
    QVERIFY(CusUiCommonFun::judgeHaveModalDiaShow(child));
    QCOMPARE(CusUiCommonFun::topParentObj(inner), &outer);
    QCOMPARE(CusUiCommonFun::topParentWid(inner), &outer);
    inner->hide();
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(child));
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(nullptr));
}

void TestCusUiCommonFun::focusFrameWidensText()
{
    const QFontMetrics metrics(QApplication::font());
    const QString text = QStringLiteral("Front gate");
    const QRect plain = metrics.boundingRect(text);
    const int margin =
        QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, nullptr);
    const QRect rect = CusUiCommonFun::textBoundingRectUi(text, metrics, nullptr);
    QCOMPARE(rect, plain.adjusted(0, 0, 2 * (margin + 1), 0));
    const QRect empty = CusUiCommonFun::textBoundingRectUi(QString(), metrics, nullptr);
    QCOMPARE(empty.width(), 0);
    QCOMPARE(empty.height(), metrics.boundingRect(QString()).height());
}

void TestCusUiCommonFun::runLogPassesMessagesUpToTheLevel()
{
    const auto level = [](int value) { return ClientOutLogLevel(value); };
    expectWarning(
        QRegularExpression(QStringLiteral(R"(^"login" ---- "user \\"7\\"" ---- time:  \d{13}$)")));
    CusUiCommonFun::outputClientRunLog(QStringLiteral("login"), QStringLiteral("user \"7\""),
                                       level(1));
    // A message that gets through unannounced fails the test.
    CusUiCommonFun::outputClientRunLog(QStringLiteral("detail"), QString(), level(2));
    CusUiCommonFun::setClientRunLogLevel(level(2));
    expectWarning(QRegularExpression(QStringLiteral("^\"detail\"")));
    CusUiCommonFun::outputClientRunLog(QStringLiteral("detail"), QString(), level(2));
    CusUiCommonFun::setClientRunLogLevel(level(-5));
    CusUiCommonFun::outputClientRunLog(QStringLiteral("login"), QString(), level(0));
    CusUiCommonFun::setClientRunLogLevel(level(1));
}

void TestCusUiCommonFun::hitTestOfFrame_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("border");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<int>("expected");

    const QRect window(100, 50, 200, 150); // to 299, 199
    const auto row = [&](const char *name, int x, int y, HitType expected) {
        QTest::newRow(name) << QPoint(x, y) << 5 << window << int(expected);
    };
    row("top left, last pixel", 105, 55, Hit_TopLeft);
    row("below the top left corner", 105, 56, Hit_Left);
    row("right of the top left corner", 106, 55, Hit_Top);
    row("top right, first pixel", 294, 50, Hit_TopRight);
    row("right", 294, 100, Hit_Right);
    row("inside the right edge", 293, 100, Hit_Client);
    row("bottom left", 100, 199, Hit_BottomLeft);
    row("bottom", 106, 194, Hit_Bottom);
    row("inside the bottom edge", 106, 193, Hit_Client);
    row("bottom right", 299, 199, Hit_BottomRight);
    row("outside, but in the left band", 102, -4000, Hit_Left);
    row("outside, in no band", 99, 20, Hit_Client);
    QTest::newRow("border 0") << QPoint(101, 199) << 0 << window << int(Hit_Bottom);
    QTest::newRow("a negative border takes none")
        << QPoint(100, 50) << -1 << window << int(Hit_Client);
    const QRect thin(0, 0, 100, 4);
    QTest::newRow("a thin window is sized at the top")
        << QPoint(50, 2) << 5 << thin << int(Hit_Top);
    QTest::newRow("top corners win in a thin window")
        << QPoint(99, 3) << 5 << thin << int(Hit_TopRight);
    QRect all;
    all.setCoords(kMin, kMin, kMax, kMax);
    QTest::newRow("everywhere, at the end") << QPoint(kMax, 0) << 9 << all << int(Hit_Right);
    QTest::newRow("an endless border") << QPoint(0, 0) << kMax << window << int(Hit_BottomRight);
}

void TestCusUiCommonFun::hitTestOfFrame()
{
    QFETCH(QPoint, point);
    QFETCH(int, border);
    QFETCH(QRect, rect);
    QFETCH(int, expected);

    QCOMPARE(int(hitTest(point.x(), point.y(), border, rect)), expected);
}

void TestCusUiCommonFun::hitTestInsideTheFrame()
{
    const QRect window(0, 0, 200, 150);
    const QRect caption(0, 0, 200, 30);
    const QList<QRect> buttons = {QRect(150, 0, 20, 30), QRect(170, 0, 30, 30)};
    QCOMPARE(hitTest(100, 15, 4, window, caption, buttons), Hit_Caption);
    QCOMPARE(hitTest(160, 15, 4, window, caption, buttons), Hit_Excluded);
    QCOMPARE(hitTest(198, 15, 4, window, caption, buttons), Hit_Right);
    QCOMPARE(hitTest(160, 31, 4, window, caption, buttons), Hit_Client);
}

void TestCusUiCommonFun::outBounds_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<int>("expected");

    QTest::newRow("the bounds themselves") << QRect(0, 0, 100, 80) << 0;
    QTest::newRow("left") << QRect(-1, 0, 50, 50) << 1;
    QTest::newRow("top") << QRect(0, -1, 50, 50) << 2;
    QTest::newRow("right") << QRect(51, 0, 50, 50) << 4;
    QTest::newRow("bottom") << QRect(50, 31, 50, 50) << 8;
    QTest::newRow("all around") << QRect(-1, -1, 102, 82) << 15;
    QTest::newRow("empty, at the right edge") << QRect(100, 0, 0, 0) << 0;
    QRect all;
    all.setCoords(kMin, kMin, kMax, kMax);
    QTest::newRow("everywhere") << all << 15;
}

void TestCusUiCommonFun::outBounds()
{
    QFETCH(QRect, rect);
    QFETCH(int, expected);

    QCOMPARE(judgeRectOutBounds(rect, QRect(0, 0, 100, 80)), expected);
}

void TestCusUiCommonFun::outBoundsOfWindow()
{
    QWidget window;
    window.setGeometry(300, 200, 100, 100);
    auto *pane = new QWidget(&window);
    pane->setGeometry(60, 10, 50, 20);
    window.show();
    const QRect bounds(window.mapToGlobal(QPoint(0, 0)), window.size());
    QCOMPARE(judgeWindowOutBounds(&window, bounds), 0);
    QCOMPARE(judgeWindowOutBounds(pane, bounds), 4);
    pane->move(kMax - 400, kMin + 400);
    QCOMPARE(judgeWindowOutBounds(pane, bounds), 6);
}

void TestCusUiCommonFun::widgetGeometry()
{
    QWidget window;
    auto *pane = new QWidget(&window);
    pane->setGeometry(10, 20, 100, 80);
    auto *button = new QWidget(pane);
    button->setGeometry(3, 4, 30, 20);
    // A direct child's position counts twice.
    QCOMPARE(getWidgetGeometry(pane, &window), QRect(20, 40, 100, 80));
    QCOMPARE(getWidgetGeometry(button, &window), QRect(16, 28, 30, 20));
    auto *dialog = new QDialog(pane); // a window of its own, but still a child
    dialog->setGeometry(40, 50, 100, 80);
    QCOMPARE(getWidgetGeometry(dialog, pane), QRect(80, 100, 100, 80));
    QCOMPARE(getWidgetGeometry(pane, pane), QRect(10, 20, 100, 80));
    QCOMPARE(getWidgetGeometry(&window, pane), QRect());
    QCOMPARE(getWidgetGeometry(pane, nullptr), QRect());
    QCOMPARE(getWidgetGeometry(nullptr, pane), QRect());
}

void TestCusUiCommonFun::editingClearsTheInvalidMark()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("QLineEdit, QComboBox, QTextEdit { color: black }"
                                        "*[Invalid=\"true\"] { color: red }"));
    auto *lineEdit = new QLineEdit(&window);
    auto *textEdit = new QTextEdit(&window);
    auto *comboBox = new QComboBox(&window);
    comboBox->setEditable(true);
    const QWidgetList marked = {lineEdit, textEdit, comboBox};
    for (QWidget *widget : marked)
        widget->setProperty(kInvalid, true);
    int calls = 0;
    const auto count = [&] { calls += lineEdit->property(kInvalid).toBool() ? 100 : 1; };
    realCheckInvalid(lineEdit);
    realCheckInvalid(textEdit);
    realCheckInvalid(comboBox);
    realCheckInvalidWithCall(lineEdit, count);
    realCheckInvalidWithCall(lineEdit, count);
    realCheckInvalidWithCall(lineEdit, {});
    realCheckInvalidWithCall(textEdit, count);
    realCheckInvalidWithCall(comboBox, count);
    window.show();
    const auto textColor = [](const QWidget *widget) {
        return widget->palette().color(QPalette::Text);
    };
    QCOMPARE(textColor(lineEdit), QColor(Qt::red));
    QCOMPARE(textColor(textEdit), QColor(Qt::red));

    lineEdit->setText(QStringLiteral("192.168.1.64"));
    textEdit->setPlainText(QStringLiteral("north wing"));
    comboBox->setEditText(QStringLiteral("H.265"));
    QCOMPARE(calls, 4);
    QCOMPARE(textColor(lineEdit), QColor(Qt::black));
    QCOMPARE(textColor(textEdit), QColor(Qt::black));
    for (const QWidget *widget : marked)
        QCOMPARE(widget->property(kInvalid), QVariant(false));
}

void TestCusUiCommonFun::textEditLimit()
{
    QTextEdit edit;
    bindTextEditMaxLength(&edit, 5);
    const QSignalSpy changes(&edit, &QTextEdit::textChanged);
    edit.setPlainText(QStringLiteral("1234567"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("12345"));
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(2);
    edit.setTextCursor(cursor);
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("12ab3"));
    QCOMPARE(edit.textCursor().position(), 4);

    bindTextEditMaxLength(&edit, 3);
    const int before = changes.size();
    edit.setPlainText(QStringLiteral("abcdef"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("abc"));
    QCOMPARE(changes.size() - before, 2); // one handler: set, cut
    bindTextEditMaxLength(&edit, -1);
    edit.setPlainText(QStringLiteral("abcdefgh"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("abcdefgh"));
    bindTextEditMaxLength(&edit, 0);
    edit.append(QStringLiteral("i"));
    QCOMPARE(edit.toPlainText(), QString());
}

void TestCusUiCommonFun::buttonWidth_data()
{
    QTest::addColumn<int>("minWidth");
    QTest::addColumn<int>("maxWidth");
    QTest::addColumn<int>("extra");
    QTest::addColumn<int>("expected"); // -1: the text's own width

    QTest::newRow("between the limits") << 0 << 500 << 4 << -1;
    QTest::newRow("below the minimum") << 300 << 500 << 4 << 300;
    QTest::newRow("above the maximum") << 10 << 20 << 4 << 20;
    QTest::newRow("contradicting limits") << 300 << 20 << 4 << 300;
    QTest::newRow("negative limits") << -20 << -10 << 4 << 0;
    QTest::newRow("endless extra") << 0 << kMax << kMax << QWIDGETSIZE_MAX - 1;
}

void TestCusUiCommonFun::buttonWidth()
{
    QFETCH(int, minWidth);
    QFETCH(int, maxWidth);
    QFETCH(int, extra);
    QFETCH(int, expected);

    QPushButton button(QStringLiteral("Start recording"));
    button.setContentsMargins(3, 0, 4, 0);
    const int own =
        3 + 4 + 15 + button.fontMetrics().horizontalAdvance(button.text()) + 2 * (extra % kMax);
    adjustButtonWidthWithText(&button, minWidth, maxWidth, extra, extra);
    QCOMPARE(button.minimumWidth(), expected < 0 ? own : expected);
    QCOMPARE(button.maximumWidth(), button.minimumWidth());
}

void TestCusUiCommonFun::splitterSizes_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("minSize");
    QTest::addColumn<QList<int>>("expected");

    QTest::newRow("first pane") << 1 << 120 << 50 << QList<int>{120, 280};
    QTest::newRow("first pane at its least") << 1 << 20 << 50 << QList<int>{50, 350};
    QTest::newRow("second pane") << 2 << 120 << 50 << QList<int>{280, 120};
    QTest::newRow("second pane leaves the first its least")
        << 0 << 390 << 50 << QList<int>{50, 350};
    QTest::newRow("negative least does nothing") << 1 << 120 << -1 << QList<int>{200, 200};
    QTest::newRow("larger than all") << 1 << kMax << 0 << QList<int>{400, 0};
    QTest::newRow("far below zero") << 2 << kMin << 0 << QList<int>{400, 0};
}

void TestCusUiCommonFun::splitterSizes()
{
    QFETCH(int, side);
    QFETCH(int, size);
    QFETCH(int, minSize);
    QFETCH(QList<int>, expected);

    QWidget window;
    window.setContentsMargins(15, 0, 5, 0);
    window.resize(420, 100);
    auto *splitter = new QSplitter(&window);
    splitter->setHandleWidth(0);
    splitter->setGeometry(15, 0, 400, 100);
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    window.show();
    splitter->setSizes({200, 200});
    adjustHorSplitterSize(&window, splitter, side, size, minSize);
    QCOMPARE(splitter->sizes(), expected);
}

void TestCusUiCommonFun::scrollsToTheWidget_data()
{
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("seen already") << QPoint(10, 10) << QRect(10, 10, 200, 300) << QPoint(10, 10);
    QTest::newRow("beyond right, and bottom with margins taller than the view")
        << QPoint(0, 0) << QRect(500, 600, 40, 50) << QPoint(500 + 40 + 50 - 200, 625 - 150);
    QTest::newRow("beyond the bottom")
        << QPoint(0, 0) << QRect(60, 600, 40, 30) << QPoint(0, 630 + 130 - 300);
    QTest::newRow("before left and top")
        << QPoint(900, 900) << QRect(300, 400, 40, 30) << QPoint(250, 270);
    QTest::newRow("wider than the view")
        << QPoint(0, 0) << QRect(500, 140, 300, 30) << QPoint(650 - 100, 0);
    QTest::newRow("never before the start")
        << QPoint(900, 900) << QRect(0, 0, 40, 30) << QPoint(0, 0);
}

void TestCusUiCommonFun::scrollsToTheWidget()
{
    QFETCH(QPoint, start);
    QFETCH(QRect, widget);
    QFETCH(QPoint, expected);

    ScrolledContent scrolled;
    auto *frame = new QWidget(scrolled.content);
    frame->setGeometry(widget.adjusted(-7, -9, 0, 0));
    auto *child = new QWidget(frame);
    child->setGeometry({QPoint(7, 9), widget.size()});
    child->show();
    frame->show();
    scrolled.area.horizontalScrollBar()->setValue(start.x());
    scrolled.area.verticalScrollBar()->setValue(start.y());
    ensureWidgetVisible(child);
    QCOMPARE(scrolled.position(), expected);
}

void TestCusUiCommonFun::scrollsToTheTextCursor()
{
    ScrolledContent scrolled;
    auto *edit = new QLineEdit(scrolled.content);
    edit->setGeometry(0, 10, 1500, 30);
    edit->show();
    edit->setText(QString(80, QLatin1Char('x')));
    edit->setCursorPosition(0);
    ensureWidgetVisible(edit);
    QCOMPARE(scrolled.position(), QPoint(0, 0));
    edit->setCursorPosition(80);
    ensureWidgetVisible(edit);
    const QRect cursor = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QCOMPARE(scrolled.position().x(), cursor.right() + 1 + 50 - 200);

    // An input may be the content itself; a cursor anywhere at all must not overflow.
    struct Editor : QWidget
    {
        QVariant inputMethodQuery(Qt::InputMethodQuery) const override { return cursor; }
        QRect cursor{30, 900, 1, 20};
    };
    auto *editor = new Editor;
    editor->resize(2000, 2000);
    scrolled.area.setWidget(editor);
    ensureWidgetVisible(editor);
    QCOMPARE(scrolled.position(), QPoint(0, 920 + 130 - 300));
    editor->cursor.setCoords(kMax, kMin, kMax, kMin);
    ensureWidgetVisible(editor);
    QCOMPARE(scrolled.position(), QPoint(2000 - 200, 0));
}

void TestCusUiCommonFun::hoverPaneCoversTheArea()
{
    ScrolledContent scrolled;
    auto *child = new QWidget(scrolled.content);
    child->setGeometry(20, 250, 40, 30);
    child->show();
    CusScrollHoverPane pane(&scrolled.area, true);
    pane.resize(200, 60);
    auto *other = new CusScrollHoverPane(new QScrollArea(scrolled.content));
    other->parentWidget()->show();
    other->show(); // covers its own area
    ensureWidgetVisible(child);
    QCOMPARE(scrolled.position(), QPoint(0, 0));
    pane.show();
    ensureWidgetVisible(child);
    // With its margins the child is taller than the 240 pixels that are left.
    QCOMPARE(scrolled.position(), QPoint(0, 265 - 120));
}

void TestCusUiCommonFun::scrollsInRightToLeftLayouts()
{
    ScrolledContent scrolled;
    scrolled.area.setLayoutDirection(Qt::RightToLeft);
    auto *child = new QWidget(scrolled.content);
    child->setGeometry(600, 20, 40, 30);
    child->show();
    QCoreApplication::processEvents();
    ensureWidgetVisible(child);
    const QRect seen(-scrolled.content->pos(), scrolled.area.viewport()->size());
    QVERIFY2(seen.contains(child->geometry()), qPrintable(QString::number(seen.x())));
}

void TestCusUiCommonFun::nullWidgets()
{
    QCOMPARE(CusUiCommonFun::topParentObj(nullptr), nullptr);
    QCOMPARE(CusUiCommonFun::topParentWid(nullptr), nullptr);
    QCOMPARE(judgeWindowOutBounds(nullptr, QRect(0, 0, 1, 1)), 0);
    realCheckInvalid(static_cast<QComboBox *>(nullptr));
    realCheckInvalidWithCall(static_cast<QLineEdit *>(nullptr), [] { QFAIL("called"); });
    bindTextEditMaxLength(nullptr, 5);
    adjustButtonWidthWithText(nullptr, 0, 0, 0, 0);
    ensureWidgetVisible(nullptr);
    QScrollArea area;
    QSplitter splitter;
    adjustHorSplitterSize(nullptr, &splitter, 1, 10, 0);
    adjustHorSplitterSize(&area, nullptr, 1, 10, 0);
    // No area; an area without a content; a widget of the area that isn't in its content.
    ensureWidgetVisible(&area);
    ensureWidgetVisible(area.viewport());
    area.setWidget(new QWidget);
    ensureWidgetVisible(area.viewport());
    QCOMPARE(area.verticalScrollBar()->value(), 0);
}

QTEST_MAIN(TestCusUiCommonFun)
#include "tst_cusuicommonfun.moc"
