#include "support/guardedtest.h"

#include <Vellum/CusScrollHoverPane>
#include <Vellum/CusUiCommonFun>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
const QRect kEverywhere(QPoint(kMin, kMin), QPoint(kMax, kMax));
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

    template <typename Widget = QWidget>
    Widget *add(const QRect &geometry)
    {
        auto *widget = new Widget(content);
        widget->setGeometry(geometry);
        widget->show();
        return widget;
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
    void runLogPassesMessagesUpToTheLevel();
    void hitTestOfFrame();
    void outBounds();
    void widgetGeometry();
    void editingClearsTheInvalidMark();
    void textEditLimit();
    void buttonWidth();
    void splitterSizes();
    void scrollsToTheWidget();
    void scrollsToTheTextCursor();
    void hoverPaneCoversTheArea();
    void nullWidgets();
};

void TestCusUiCommonFun::modalDialogs()
{
    QDialog outer;
    outer.setModal(true);
    outer.show();
    auto *child = new QWidget(&outer);
    auto *inner = new QDialog(child);
    inner->show();
    // The top of the tree doesn't count itself.
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(child));
    inner->setModal(true);
    QVERIFY(CusUiCommonFun::judgeHaveModalDiaShow(&outer));
    QVERIFY(CusUiCommonFun::judgeHaveModalDiaShow(child));
    QCOMPARE(CusUiCommonFun::topParentObj(inner), &outer);
    QCOMPARE(CusUiCommonFun::topParentWid(inner), &outer);
    inner->hide();
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(child));
}

void TestCusUiCommonFun::runLogPassesMessagesUpToTheLevel()
{
    const auto log = [](const char *type, int level) {
        CusUiCommonFun::outputClientRunLog(QString::fromLatin1(type), QStringLiteral("user \"7\""),
                                           ClientOutLogLevel(level));
    };
    expectWarning(
        QRegularExpression(QStringLiteral(R"(^"login" ---- "user \\"7\\"" ---- time:  \d{13}$)")));
    log("login", 1);
    log("detail", 2); // a message that gets through unannounced fails the test
    CusUiCommonFun::setClientRunLogLevel(ClientOutLogLevel(2));
    expectWarning(QRegularExpression(QStringLiteral("^\"detail\"")));
    log("detail", 2);
    CusUiCommonFun::setClientRunLogLevel(ClientOutLogLevel(-5));
    log("login", 0);
    CusUiCommonFun::setClientRunLogLevel(ClientOutLogLevel(1));
}

void TestCusUiCommonFun::hitTestOfFrame()
{
    const QRect window(100, 50, 200, 150); // to 299, 199
    const auto hit = [&window](int x, int y) { return hitTest(x, y, 5, window); };
    QCOMPARE(hit(105, 55), Hit_TopLeft);
    QCOMPARE(hit(105, 56), Hit_Left);
    QCOMPARE(hit(106, 55), Hit_Top);
    QCOMPARE(hit(294, 50), Hit_TopRight);
    QCOMPARE(hit(293, 100), Hit_Client);
    QCOMPARE(hit(100, 199), Hit_BottomLeft);
    QCOMPARE(hit(106, 194), Hit_Bottom);
    QCOMPARE(hit(106, 193), Hit_Client);
    QCOMPARE(hit(299, 199), Hit_BottomRight);
    QCOMPARE(hit(102, -4000), Hit_Left); // outside, but in the left band
    QCOMPARE(hit(99, 20), Hit_Client);
    QCOMPARE(hitTest(101, 199, 0, window), Hit_Bottom);
    QCOMPARE(hitTest(100, 50, -1, window), Hit_Client);
    QCOMPARE(hitTest(0, 0, kMax, window), Hit_BottomRight);
    // In a window thinner than its borders the upper ones win.
    const QRect thin(0, 0, 100, 4);
    QCOMPARE(hitTest(50, 2, 5, thin), Hit_Top);
    QCOMPARE(hitTest(99, 3, 5, thin), Hit_TopRight);
    QCOMPARE(hitTest(kMax, 0, 9, kEverywhere), Hit_Right);

    const auto within = [&window](int x, int y) {
        return hitTest(x, y, 4, window, {100, 50, 200, 30}, {{250, 50, 20, 30}, {270, 50, 30, 30}});
    };
    QCOMPARE(within(200, 65), Hit_Caption);
    QCOMPARE(within(260, 65), Hit_Excluded);
    QCOMPARE(within(298, 65), Hit_Right);
    QCOMPARE(within(260, 81), Hit_Client);
}

void TestCusUiCommonFun::outBounds()
{
    const auto sides = [](const QRect &rect) {
        return judgeRectOutBounds(rect, QRect(0, 0, 100, 80));
    };
    QCOMPARE(sides({0, 0, 100, 80}), 0);
    QCOMPARE(sides({-1, 0, 50, 50}), 1);
    QCOMPARE(sides({0, -1, 50, 50}), 2);
    QCOMPARE(sides({51, 0, 50, 50}), 4);
    QCOMPARE(sides({50, 31, 50, 50}), 8);
    QCOMPARE(sides({100, 0, 0, 0}), 0);
    QCOMPARE(sides(kEverywhere), 15);

    QWidget window;
    window.setGeometry(300, 200, 100, 100);
    auto *pane = new QWidget(&window);
    pane->setGeometry(60, 10, 50, 20);
    window.show();
    const QRect bounds(window.mapToGlobal(QPoint(0, 0)), window.size());
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
    QCOMPARE(getWidgetGeometry(pane, pane), pane->geometry());
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
    QCOMPARE(textEdit->palette().color(QPalette::Text), QColor(Qt::red));
    QCOMPARE(lineEdit->palette().color(QPalette::Text), QColor(Qt::red));

    lineEdit->setText(QStringLiteral("192.168.1.64"));
    textEdit->setPlainText(QStringLiteral("north wing"));
    comboBox->setEditText(QStringLiteral("H.265"));
    QCOMPARE(calls, 4);
    QCOMPARE(textEdit->palette().color(QPalette::Text), QColor(Qt::black));
    QCOMPARE(lineEdit->palette().color(QPalette::Text), QColor(Qt::black));
    for (const QWidget *widget : marked)
        QCOMPARE(widget->property(kInvalid), QVariant(false));
}

void TestCusUiCommonFun::textEditLimit()
{
    QTextEdit edit;
    bindTextEditMaxLength(&edit, 5);
    edit.setPlainText(QStringLiteral("1234567"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("12345"));
    edit.moveCursor(QTextCursor::Start);
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    QCOMPARE(edit.toPlainText(), QStringLiteral("ab123"));
    QCOMPARE(edit.textCursor().position(), 2);

    const QSignalSpy changes(&edit, &QTextEdit::textChanged);
    for (int limit : {3, -1, 0}) {
        bindTextEditMaxLength(&edit, limit);
        edit.setPlainText(QStringLiteral("abcdef"));
        QCOMPARE(edit.toPlainText(), QStringLiteral("abcdef").left(limit));
    }
    QCOMPARE(changes.size(), 5); // one handler: set, cut; set; set, cut
}

void TestCusUiCommonFun::buttonWidth()
{
    QPushButton button(QStringLiteral("Start recording"));
    button.setContentsMargins(3, 0, 4, 0);
    const auto fixed = [&button](int minWidth, int maxWidth, int extra) {
        adjustButtonWidthWithText(&button, minWidth, maxWidth, extra, extra);
        return button.minimumWidth() == button.maximumWidth() ? button.minimumWidth() : -1;
    };
    const int text = button.fontMetrics().horizontalAdvance(button.text());
    QCOMPARE(fixed(0, 500, 4), 3 + 4 + 15 + text + 2 * 4);
    QCOMPARE(fixed(300, 500, 4), 300);
    QCOMPARE(fixed(10, 20, 4), 20);
    QCOMPARE(fixed(300, 20, 4), 300);
    QCOMPARE(fixed(-20, -10, 4), 0);
    QCOMPARE(fixed(0, kMax, kMax), QWIDGETSIZE_MAX - 1);
}

void TestCusUiCommonFun::splitterSizes()
{
    QWidget window;
    window.setContentsMargins(15, 0, 5, 0);
    window.resize(420, 100);
    auto *splitter = new QSplitter(&window);
    splitter->setHandleWidth(0);
    splitter->setGeometry(15, 0, 400, 100);
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    window.show();
    const auto adjusted = [&](int side, int size, int minSize) {
        splitter->setSizes({200, 200});
        adjustHorSplitterSize(&window, splitter, side, size, minSize);
        return splitter->sizes();
    };
    QCOMPARE(adjusted(1, 120, 50), (QList<int>{120, 280}));
    QCOMPARE(adjusted(1, 20, 50), (QList<int>{50, 350}));
    QCOMPARE(adjusted(2, 120, 50), (QList<int>{280, 120}));
    QCOMPARE(adjusted(0, 390, 50), (QList<int>{50, 350}));
    QCOMPARE(adjusted(1, 120, -1), (QList<int>{200, 200}));
    QCOMPARE(adjusted(1, kMax, 0), (QList<int>{400, 0}));
    QCOMPARE(adjusted(2, kMin, 0), (QList<int>{400, 0}));
}

void TestCusUiCommonFun::scrollsToTheWidget()
{
    ScrolledContent scrolled;
    auto *frame = scrolled.add({});
    auto *child = new QWidget(frame);
    child->show();
    const auto from = [&](const QPoint &start, const QRect &widget) {
        frame->setGeometry(widget.adjusted(-7, -9, 0, 0));
        child->setGeometry({QPoint(7, 9), widget.size()});
        scrolled.area.horizontalScrollBar()->setValue(start.x());
        scrolled.area.verticalScrollBar()->setValue(start.y());
        ensureWidgetVisible(child);
        return scrolled.position();
    };
    const QPoint start(0, 0);
    QCOMPARE(from({10, 10}, {10, 10, 200, 300}), QPoint(10, 10)); // seen already
    // Beyond the right edge, and at the bottom with margins taller than the view.
    QCOMPARE(from(start, {500, 600, 40, 50}), QPoint(500 + 40 + 50 - 200, 625 - 150));
    QCOMPARE(from(start, {60, 600, 40, 30}), QPoint(0, 630 + 130 - 300));
    QCOMPARE(from({900, 900}, {300, 400, 40, 30}), QPoint(250, 270));
    QCOMPARE(from(start, {500, 140, 300, 30}), QPoint(650 - 100, 0)); // wider than the view
    QCOMPARE(from({900, 900}, {0, 0, 40, 30}), start);

    scrolled.area.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    from(start, {600, 20, 40, 30});
    const QRect seen(-scrolled.content->pos(), scrolled.area.viewport()->size());
    QVERIFY(seen.contains(frame->geometry()));
}

void TestCusUiCommonFun::scrollsToTheTextCursor()
{
    struct Editor : QWidget
    {
        using QWidget::QWidget;
        QVariant inputMethodQuery(Qt::InputMethodQuery) const override { return cursor; }
        QRect cursor{30, 900, 1, 20};
    };
    ScrolledContent scrolled;
    auto *editor = scrolled.add<Editor>({5, 10, 1500, 1500});
    ensureWidgetVisible(editor);
    QCOMPARE(scrolled.position(), QPoint(0, 930 + 130 - 300));
    editor->cursor.moveTo(1200, 0);
    ensureWidgetVisible(editor);
    QCOMPARE(scrolled.position(), QPoint(1206 + 50 - 200, 0));

    // An input may be the content itself; a cursor anywhere at all must not overflow.
    editor = new Editor;
    editor->resize(2000, 2000);
    scrolled.area.setWidget(editor);
    editor->cursor.setCoords(kMax, kMin, kMax, kMin);
    ensureWidgetVisible(editor);
    QCOMPARE(scrolled.position(), QPoint(2000 - 200, 0));
}

void TestCusUiCommonFun::hoverPaneCoversTheArea()
{
    ScrolledContent scrolled;
    auto *child = scrolled.add({20, 250, 40, 30});
    CusScrollHoverPane pane(&scrolled.area, true);
    pane.resize(200, 60);
    auto *other = new CusScrollHoverPane(scrolled.add<QScrollArea>({}));
    other->show(); // covers its own area
    ensureWidgetVisible(child);
    QCOMPARE(scrolled.position(), QPoint(0, 0));
    pane.show();
    ensureWidgetVisible(child);
    // With its margins the child is taller than the 240 pixels that are left.
    QCOMPARE(scrolled.position(), QPoint(0, 265 - 120));
}

void TestCusUiCommonFun::nullWidgets()
{
    QCOMPARE(CusUiCommonFun::topParentObj(nullptr), nullptr);
    QCOMPARE(CusUiCommonFun::topParentWid(nullptr), nullptr);
    QCOMPARE(judgeWindowOutBounds(nullptr, QRect(0, 0, 1, 1)), 0);
    QVERIFY(!CusUiCommonFun::judgeHaveModalDiaShow(nullptr));
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
