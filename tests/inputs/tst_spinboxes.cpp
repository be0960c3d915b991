#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AngleTiPWidget>
#include <Vellum/CusDoubleSpinBox>
#include <Vellum/CusSpinBox>
#include <Vellum/CusSpinBoxWithUnits>

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <limits>

using Before = std::function<void(CusBasicSpinBox *)>;
using Maker = QAbstractSpinBox *(*)();
Q_DECLARE_METATYPE(Before)
Q_DECLARE_METATYPE(Maker)

/// The four spin boxes: entries and what is told of them, wheel, arrows, and what Qt's do.
class TestSpinBoxes : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void commitsOrRefusesEntries_data();
    void commitsOrRefusesEntries();
    void refusedEntryGoesBackToItsStart_data();
    void refusedEntryGoesBackToItsStart();
    void typedTextSurvivesTheRefusal();
    void leavesTypingToQtWhenOff();
    void readsWhatQtShows();
    void turnsByWheel_data();
    void turnsByWheel();
    void pressOutsidePassesTheFocusOn();
    void diesWithARefusedEntry();
    void survivesDeletionByItsSlots_data();
    void survivesDeletionByItsSlots();
    void padsTheNumber_data();
    void padsTheNumber();
    void clampsOnlyWhereItDoesNotRefuse();
    void unitStandsBesideTheNumber();
    void checksFractions_data();
    void checksFractions();
    void arrowsFollowTheSheet_data();
    void arrowsFollowTheSheet();
    void behavesAsItsBase_data();
    void behavesAsItsBase();
    void takesExtremes();

private:
    void listenTo(CusBasicSpinBox *box);
    template <typename Box>
    Box *show(Box *box, int minimum, int maximum, int value);
    void leave() { m_other->setFocus(); }

    QScopedPointer<QWidget> m_window;
    QLineEdit *m_other = nullptr;
    QStringList m_told;
};

namespace {

const QString kTip = QStringLiteral("Please input 0~100.");

template <typename Box>
QAbstractSpinBox *make()
{
    return new Box;
}

class BoxWithOwnEdit : public CusBasicSpinBox
{
public:
    BoxWithOwnEdit()
    {
        setLineEdit(nullptr);
        setLineEdit(new QLineEdit(this));
    }
};

QStringList tipsOf(QWidget *widget)
{
    QStringList texts;
    const auto tips = widget->findChildren<AngleTiPWidget *>();
    for (AngleTiPWidget *tip : tips)
        texts += tip->findChild<QLabel *>(QStringLiteral("label_angleTip"))->text();
    return texts;
}

/// "\r" is Return, "\b" Backspace, "^" Up.
void type(QWidget *box, const QString &keys)
{
    for (const QChar key : keys) {
        if (key == QLatin1Char('\r'))
            QTest::keyClick(box, Qt::Key_Return);
        else if (key == QLatin1Char('\b'))
            QTest::keyClick(box, Qt::Key_Backspace);
        else if (key == QLatin1Char('^'))
            QTest::keyClick(box, Qt::Key_Up);
        else
            QTest::keyClicks(box, key);
    }
}

QLineEdit *editOf(QWidget *box)
{
    return box->findChild<QLineEdit *>();
}

} // namespace

void TestSpinBoxes::init()
{
    GuardedTest::init();
    QCursor::setPos(700, 500);
    m_told.clear();
    m_window.reset(new QWidget);
    m_window->setGeometry(100, 100, 300, 120);
    m_other = new QLineEdit(m_window.data());
    m_window->show();
    QApplication::setActiveWindow(m_window.data());
    m_other->setFocus();
}

void TestSpinBoxes::cleanup()
{
    m_window.reset();
    qApp->setStyleSheet(QString());
    GuardedTest::cleanup();
}

void TestSpinBoxes::listenTo(CusBasicSpinBox *box)
{
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { m_told += QString::number(value); });
    connect(box, &QSpinBox::editingFinished, this, [this] { m_told += QStringLiteral("done"); });
    connect(editOf(box), &QLineEdit::returnPressed, this,
            [this] { m_told += QStringLiteral("return"); });
}

template <typename Box>
Box *TestSpinBoxes::show(Box *box, int minimum, int maximum, int value)
{
    box->setParent(m_window.data());
    box->setGeometry(20, 40, 120, 30);
    box->setRange(minimum, maximum);
    box->setValue(value);
    box->show();
    box->setFocus();
    box->selectAll();
    return box;
}

void TestSpinBoxes::commitsOrRefusesEntries_data()
{
    QTest::addColumn<QPair<int, int>>("range");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("told");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("tips");
    const QPair<int, int> percent(0, 100);
    const auto row = [](const char *name, const QPair<int, int> &range, int start, const char *keys,
                        const char *told, int value, const QStringList &tips) {
        QTest::newRow(name) << range << start << QString::fromLatin1(keys)
                            << QString::fromLatin1(told) << value << tips;
    };
    row("inside, leave", percent, 40, "60", "6 60 done", 60, {});
    row("inside, Return", percent, 40, "60\r", "6 60 60 done return", 60, {});
    row("above, leave", percent, 40, "200", "2 20 40 40 done", 40, {kTip});
    row("above, Return", percent, 40, "200\r", "2 20 40 40 done return", 40, {kTip});
    row("above and back inside", percent, 40, "200\b", "2 20 40 20 done", 20, {});
    row("below, leave", {30, 100}, 40, "7", "40 done", 40,
        {QStringLiteral("Please input 30~100.")});
    row("negative", {-10, 10}, 4, "-7", "-7 done", -7, {});
    row("unchanged, leave", percent, 40, "", "done", 40, {});
    row("unchanged, Return", percent, 40, "\r", "40 done return", 40, {});
    row("empty, leave", percent, 40, "\b", "40 done", 40, {kTip});
    row("empty at 0, leave", percent, 0, "\b", "done", 0, {kTip});
    row("empty, Return counts as 0", percent, 40, "\b\r", "0 done return", 0, {});
    row("empty, Return where 0 is outside", {5, 9}, 7, "\b\r", "7 done return", 7,
        {QStringLiteral("Please input 5~9.")});
    row("letters are refused", percent, 40, "x", "done", 40, {});
}

void TestSpinBoxes::commitsOrRefusesEntries()
{
    QFETCH(QString, keys);
    using Range = QPair<int, int>;
    QFETCH(Range, range);
    QFETCH(int, start);
    for (const QString &affix : {QString(), QStringLiteral("a ")}) {
        auto *box = show(new CusBasicSpinBox, range.first, range.second, start);
        box->setPrefix(affix);
        box->setSuffix(affix);
        box->selectAll();
        m_told.clear();
        listenTo(box);
        type(box, keys);
        const bool byReturn = keys.endsWith(QLatin1Char('\r'));
        if (!byReturn)
            leave();
        QTEST(m_told.join(QLatin1Char(' ')), "told");
        QTEST(box->value(), "value");
        QTEST(tipsOf(box), "tips");
        QCOMPARE(editOf(box)->text(), affix + QString::number(box->value()) + affix);
        disconnect(box, nullptr, this, nullptr);
        delete box;
    }
}

void TestSpinBoxes::refusedEntryGoesBackToItsStart_data()
{
    QTest::addColumn<Before>("before");
    QTest::addColumn<int>("value");
    const auto row = [](const char *name, const Before &before, int value) {
        QTest::newRow(name) << before << value;
    };
    row(
        "Return", [](auto *box) { type(box, QStringLiteral("60\r")); }, 60);
    row(
        "step", [](auto *box) { type(box, QStringLiteral("20^")); }, 21);
    row(
        "wheel",
        [](auto *box) {
            QWheelEvent turn(QPointF(5, 5), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &turn);
        },
        41);
    row(
        "setValue, silent, in the middle",
        [](auto *box) {
            type(box, QStringLiteral("2"));
            const QSignalBlocker blocker(box);
            box->setValue(70);
        },
        70);
    row(
        "another range", [](auto *box) { box->setRange(50, 90); }, 50);
    row(
        "leave and come back",
        [](auto *box) {
            type(box, QStringLiteral("33"));
            box->clearFocus();
            box->setFocus();
        },
        33);
}

void TestSpinBoxes::refusedEntryGoesBackToItsStart()
{
    QFETCH(Before, before);
    const QList<CusBasicSpinBox *> boxes{new CusBasicSpinBox, new BoxWithOwnEdit, new CusSpinBox,
                                         new CusSpinBoxWithUnits};
    for (CusBasicSpinBox *box : boxes) {
        show(box, 0, 100, 40);
        before(box);
        box->selectAll();
        type(box, QStringLiteral("200"));
        QTEST(box->value(), "value");
        QCOMPARE(editOf(box)->text(), QStringLiteral("200"));
    }
}

void TestSpinBoxes::typedTextSurvivesTheRefusal()
{
    auto *box = show(new CusBasicSpinBox, 0, 100, 0);
    box->setSpecialValueText(QStringLiteral("Off"));
    box->selectAll();
    type(box, QStringLiteral("250"));
    QCOMPARE(box->value(), 0);
    QCOMPARE(editOf(box)->text(), QStringLiteral("250"));
    box->setSpecialValueText(QString());
    box->setValue(40);
    box->selectAll();
    type(box, QStringLiteral("250"));
    editOf(box)->undo();
    QCOMPARE(editOf(box)->text(), QStringLiteral("40"));
    // All at once, as from the clipboard.
    editOf(box)->setText(QStringLiteral("200"));
    leave();
    QCOMPARE(box->value(), 40);
    QCOMPARE(tipsOf(box), QStringList{kTip});
}

void TestSpinBoxes::leavesTypingToQtWhenOff()
{
    auto *box = show(new CusBasicSpinBox, 0, 100, 40);
    box->setInvaildValToRange(false);
    listenTo(box);
    type(box, QStringLiteral("200"));
    QCOMPARE(editOf(box)->text(), QStringLiteral("20"));
    type(box, QStringLiteral("\r"));
    QCOMPARE(m_told.join(QLatin1Char(' ')), QStringLiteral("2 20 20 done return"));
    box->clear();
    leave();
    QCOMPARE(box->value(), 20);
    QCOMPARE(tipsOf(box), QStringList());
}

void TestSpinBoxes::readsWhatQtShows()
{
    auto *box = show(new CusBasicSpinBox, 1, 5000, 1);
    box->setSpecialValueText(QStringLiteral("Auto"));
    leave();
    box->setSpecialValueText(QString());
    for (const char *locale : {"en_US", "ar_EG"}) {
        box->setFocus();
        box->setLocale(QLocale(QLatin1String(locale)));
        box->setGroupSeparatorShown(true);
        box->setValue(1234);
        type(box, QStringLiteral("\r"));
        QCOMPARE(box->value(), 1234);
        leave();
    }
    QCOMPARE(tipsOf(box), QStringList());
}

void TestSpinBoxes::turnsByWheel_data()
{
    QTest::addColumn<bool>("focused");
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("without focus") << false << QPoint(0, 120) << 40 << false;
    QTest::newRow("up") << true << QPoint(0, 120) << 45 << true;
    QTest::newRow("far up is one step") << true << QPoint(0, 480) << 45 << true;
    QTest::newRow("down") << true << QPoint(0, -120) << 35 << true;
    QTest::newRow("less than a notch steps down") << true << QPoint(0, 100) << 35 << true;
    QTest::newRow("sideways steps down") << true << QPoint(120, 0) << 35 << true;
    QTest::newRow("nothing") << true << QPoint(0, 3) << 40 << false;
}

void TestSpinBoxes::turnsByWheel()
{
    QFETCH(bool, focused);
    QFETCH(QPoint, delta);
    auto *box = show(new CusSpinBox, 0, 100, 40);
    box->setSingleStep(5);
    box->setSuffix(QStringLiteral(" s"));
    const auto turn = [&] {
        QWheelEvent event(QPointF(5, 5), QPointF(), QPoint(), delta, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
        return event.isAccepted();
    };
    if (!focused)
        leave();
    QSignalSpy spy(box, QOverload<int>::of(&QSpinBox::valueChanged));
    QTEST(turn(), "accepted");
    QTEST(box->value(), "value");
    QCOMPARE(spy.count(), box->value() == 40 ? 0 : 1);
    QCOMPARE(editOf(box)->hasSelectedText(), focused);
    box->setReadOnly(true);
    QVERIFY(!turn());
    QTEST(box->value(), "value");
}

void TestSpinBoxes::pressOutsidePassesTheFocusOn()
{
    auto *box = show(new CusSpinBox, 0, 100, 40);
    auto *desk = new QWidget(m_window.data());
    desk->setGeometry(200, 60, 50, 50);
    desk->show();
    qApp->installEventFilter(box);
    QCursor::setPos(box->mapToGlobal(QPoint(5, 5)));
    QTest::mouseClick(editOf(box), Qt::LeftButton);
    QVERIFY(box->hasFocus());
    QCursor::setPos(desk->mapToGlobal(QPoint(5, 5)));
    QTest::mouseClick(desk, Qt::LeftButton);
    QVERIFY(!box->hasFocus());
    QVERIFY(m_other->hasFocus());
}

void TestSpinBoxes::diesWithARefusedEntry()
{
    for (int level = 0; level < 3; ++level) {
        auto *pane = new QWidget(m_window.data());
        auto *box = show(new CusSpinBox, 0, 100, 40);
        box->setParent(pane);
        pane->show();
        box->show();
        box->setFocus();
        type(box, QStringLiteral("200"));
        QPointer<QWidget> gone(level == 0 ? box : level == 1 ? pane : m_window.data());
        if (gone.data() == m_window.data())
            m_window.take();
        delete gone;
        QVERIFY(!gone);
    }
}

void TestSpinBoxes::survivesDeletionByItsSlots_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("at Return") << QStringLiteral("\r");
    QTest::newRow("at a refused Return") << QStringLiteral("\b\r");
    QTest::newRow("leaving") << QStringLiteral("\b");
}

void TestSpinBoxes::survivesDeletionByItsSlots()
{
    QFETCH(QString, keys);
    for (const bool atValue : {true, false}) {
        QPointer<CusSpinBox> box = show(new CusSpinBox, 5, 100, 40);
        if (atValue)
            connect(box, QOverload<int>::of(&QSpinBox::valueChanged), box,
                    [box] { delete box.data(); });
        else
            connect(box, &QSpinBox::editingFinished, box, [box] { delete box.data(); });
        type(box, keys);
        leave();
        QVERIFY(!box);
        m_other->clear();
    }
}

void TestSpinBoxes::padsTheNumber_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("width");
    QTest::addColumn<QChar>("fill");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    const QChar zero(QLatin1Char('0'));
    QTest::newRow("two digits") << 10 << 2 << zero << 7 << QStringLiteral("07");
    QTest::newRow("hexadecimal") << 16 << 2 << zero << 26 << QStringLiteral("1a");
    QTest::newRow("another fill") << 2 << 6 << QChar(QLatin1Char('.')) << 5
                                  << QStringLiteral("...101");
    QTest::newRow("base 0 changes nothing") << 0 << 3 << zero << 12 << QStringLiteral("012");
    QTest::newRow("base 37 changes nothing") << 37 << 2 << zero << 12 << QStringLiteral("12");
    QTest::newRow("blanks") << 10 << 4 << QChar(QLatin1Char(' ')) << 26 << QStringLiteral("  26");
    QTest::newRow("huge width") << 10 << INT_MAX << zero << 1
                                << QString(63, zero) + QLatin1Char('1');
    QTest::newRow("width to the left")
        << 10 << -3 << QChar(QLatin1Char('.')) << 1 << QStringLiteral("1..");
}

void TestSpinBoxes::padsTheNumber()
{
    QFETCH(int, value);
    CusSpinBox box;
    QCOMPARE(editOf(&box)->text(), QStringLiteral("00"));
    box.setRange(0, 1000);
    box.setValue(value);
    QFETCH(int, base);
    box.setBase(base);
    QFETCH(int, width);
    QFETCH(QChar, fill);
    box.setFieldWidth(width);
    box.setFillChar(fill);
    QTEST(editOf(&box)->text(), "text");
    QCOMPARE(box.value(), value);
}

void TestSpinBoxes::clampsOnlyWhereItDoesNotRefuse()
{
    for (const bool refuses : {true, false}) {
        auto *box = show(new CusSpinBox, 10, 100, 40);
        box->setSuffix(QStringLiteral(" s"));
        box->setInvaildValToRange(refuses);
        listenTo(box);
        for (const char *text : {"200", "3"}) {
            editOf(box)->setText(QLatin1String(text) + box->suffix());
            leave();
            QCOMPARE(box->value(), refuses ? 40 : text[0] == '2' ? 100 : 10);
            box->setFocus();
        }
        editOf(box)->setText(QStringLiteral("200 s"));
        type(box, QStringLiteral("\r"));
        QCOMPARE(box->value(), refuses ? 40 : 100);
        // The base is for showing only.
        box->setBase(16);
        box->selectAll();
        type(box, QStringLiteral("1a1"));
        leave();
        QCOMPARE(box->value(), 11);
        QCOMPARE(editOf(box)->text(), QStringLiteral("0b s"));
    }
}

void TestSpinBoxes::unitStandsBesideTheNumber()
{
    auto *box = new CusSpinBoxWithUnits;
    box->setUnitTxt(QStringLiteral("kbit/s"));
    show(box, 0, 100, 40);
    const auto *label = box->findChild<QLabel *>(QStringLiteral("label_spinBoxUnits"));
    const int unitWidth = box->fontMetrics().boundingRect(box->getUnitTxt()).width();
    box->grab();
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    option.frame = true;
    const int arrows =
        box->style()
            ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, box)
            .width();
    const int numberWidth = 120 - arrows - unitWidth;
    QCOMPARE(label->geometry(), QRect(numberWidth, 1, unitWidth, 28));
    QCOMPARE(editOf(box)->width(), numberWidth);
    QVERIFY(label->isVisible());
    box->setLayoutDirection(Qt::RightToLeft);
    box->resize(140, 30);
    QCOMPARE(label->geometry(), QRect(arrows, 1, unitWidth, 28));
    for (const int width : {20, 1, 0}) {
        box->resize(width, width);
        box->grab();
        QCOMPARE(editOf(box)->width(), 0);
    }
    // Once without a unit, always without.
    box->setUnitTxt(QString());
    box->setUnitTxt(QStringLiteral("s"));
    QVERIFY(!label->isVisible());
    box->setProperty("placeHolderText", QStringLiteral("Rate"));
    QCOMPARE(editOf(box)->placeholderText(), QStringLiteral("Rate"));
}

void TestSpinBoxes::checksFractions_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("state");
    const int no = QValidator::Invalid;
    const int yes = QValidator::Acceptable;
    QTest::newRow("two digits") << QStringLiteral("1.25") << yes;
    QTest::newRow("three digits") << QStringLiteral("1.255") << no;
    QTest::newRow("empty") << QString() << yes;
    QTest::newRow("affixes alone") << QStringLiteral("x y") << yes;
    QTest::newRow("affixes") << QStringLiteral("x1.5 y") << yes;
    QTest::newRow("refused by the callback") << QStringLiteral("6.66") << no;
    QTest::newRow("letters") << QStringLiteral("one") << no;
    QTest::newRow("too large") << QStringLiteral("100") << no;
}

void TestSpinBoxes::checksFractions()
{
    QFETCH(QString, input);
    CusDoubleSpinBox box;
    box.setPrefix(QStringLiteral("x"));
    box.setSuffix(QStringLiteral(" y"));
    QStringList seen;
    box.setValidInputCallBack([&](const QString &whole, const QString &text, const int &) {
        seen << whole << text;
        box.setValidInputCallBack({});
        return text == QLatin1String("6.66") ? QValidator::Invalid : QValidator::Acceptable;
    });
    int pos = 0;
    QTEST(int(box.validate(input, pos)), "state");
    if (!seen.isEmpty())
        QCOMPARE(seen.at(0), QLatin1Char('x') + seen.at(1) + QStringLiteral(" y"));
}

void TestSpinBoxes::arrowsFollowTheSheet_data()
{
    QTest::addColumn<Maker>("create");
    QTest::addColumn<int>("width");
    for (const int width : {10, 22}) {
        QTest::addRow("basic, %d wide", width) << Maker(&make<CusBasicSpinBox>) << width;
        QTest::addRow("double, %d wide", width) << Maker(&make<CusDoubleSpinBox>) << width;
    }
}

void TestSpinBoxes::arrowsFollowTheSheet()
{
    QFETCH(Maker, create);
    QFETCH(int, width);
    qApp->setStyleSheet(QStringLiteral("QAbstractSpinBox { border: 1px solid black }"
                                       "QAbstractSpinBox::up-button, QAbstractSpinBox::down-button "
                                       "{ width: %1px; height: 15px;"
                                       " background: yellow }"
                                       "#btn_spinBoxUp { background: #00ff00; border: none }"
                                       "#btn_spinBoxDown { background: #0000ff; border: none }"
                                       "#btn_spinBoxUp:hover { background: #00ffff } "
                                       "#btn_spinBoxUp:pressed { background: #808080 }"
                                       "#btn_spinBoxUp:disabled { background: #404040 }"
                                       "#btn_spinBoxUp[Invalid=\"true\"] { background: #ff0000 }")
                            .arg(width));
    QAbstractSpinBox *box = create();
    box->setParent(m_window.data());
    box->setGeometry(20, 40, 120, 32);
    box->show();
    const auto colorAt = [&](const QRect &place) {
        return TestKit::renderAt(box).pixelColor(place.center());
    };
    const QImage image = TestKit::renderAt(box);
    const QRect up = TestKit::extentOf(image, QColor(0, 255, 0));
    const QRect down = TestKit::extentOf(image, Qt::blue);
    QCOMPARE(up.size(), QSize(qMin(width, 12), 12));
    QCOMPARE(down.size(), up.size());
    QVERIFY(up.bottom() < down.top());
    QVERIFY(box->width() - up.right() - 1 >= (width > 12 ? 7 : 0));
    QCOMPARE(TestKit::countOf(image, Qt::yellow), 0);

    QCursor::setPos(box->mapToGlobal(up.center()));
    box->setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(colorAt(up), QColor(Qt::cyan));
    QCOMPARE(colorAt(down), QColor(Qt::blue));
    QTest::mousePress(box, Qt::LeftButton, {}, up.center());
    QCOMPARE(colorAt(up), QColor(0x80, 0x80, 0x80));
    QTest::mouseRelease(box, Qt::LeftButton, {}, up.center());
    box->setAttribute(Qt::WA_UnderMouse, false);
    if (auto *basic = qobject_cast<CusBasicSpinBox *>(box)) {
        QCOMPARE(basic->value(), 1);
        basic->setIsValidStyle(false);
        QCOMPARE(colorAt(up), QColor(Qt::red));
        QCOMPARE(basic->property("Invalid"), QVariant(true));
        basic->setIsValidStyle(true);
        QCOMPARE(colorAt(up), QColor(0, 255, 0));
        basic->setProperty("objectName", QStringLiteral("box"));
        basic->setProperty(nullptr, 1);
    }
    box->setEnabled(false);
    QCOMPARE(colorAt(up), QColor(0x40, 0x40, 0x40));
    box->setEnabled(true);
    box->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(TestKit::extentOf(TestKit::renderAt(box), QColor(0, 255, 0)).right() < 60);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    QCOMPARE(TestKit::countOf(TestKit::renderAt(box), Qt::blue), 0);
}

void TestSpinBoxes::behavesAsItsBase_data()
{
    QTest::addColumn<Maker>("create");
    QTest::addColumn<bool>("clickFocus");
    QTest::newRow("CusBasicSpinBox") << Maker(&make<CusBasicSpinBox>) << true;
    QTest::newRow("CusSpinBox") << Maker(&make<CusSpinBox>) << true;
    QTest::newRow("CusSpinBoxWithUnits") << Maker(&make<CusSpinBoxWithUnits>) << true;
    QTest::newRow("CusDoubleSpinBox") << Maker(&make<CusDoubleSpinBox>) << false;
}

void TestSpinBoxes::behavesAsItsBase()
{
    QFETCH(Maker, create);
    QFETCH(bool, clickFocus);
    QAbstractSpinBox *box = create();
    box->setParent(m_window.data());
    box->show();
    QTest::keyClick(m_other, Qt::Key_Tab);
    QCOMPARE(box->hasFocus(), !clickFocus);
    QCOMPARE(box->contextMenuPolicy() == Qt::NoContextMenu, clickFocus);
    QTest::mouseClick(editOf(box), Qt::LeftButton);
    QVERIFY(box->hasFocus());

    const auto value = [box] { return box->property("value").toInt(); };
    type(box, QStringLiteral("^"));
    QCOMPARE(value(), 1);
    QTest::keyClick(box, Qt::Key_PageUp);
    QCOMPARE(value(), 11);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(value(), 10);
    box->selectAll();
    QInputMethodEvent composed(QString(), {});
    composed.setCommitString(QStringLiteral("7"));
    QApplication::sendEvent(box, &composed);
    QCOMPARE(value(), 7);
    QVERIFY(editOf(box)->isUndoAvailable());
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(accessible->role(), QAccessible::SpinBox);
    QCOMPARE(accessible->valueInterface()->currentValue().toInt(), 7);
    box->setReadOnly(true);
    type(box, QStringLiteral("^8"));
    QCOMPARE(value(), 7);
}

void TestSpinBoxes::takesExtremes()
{
    auto *box = show(new CusSpinBoxWithUnits, INT_MIN, INT_MAX, INT_MAX);
    box->setSingleStep(INT_MAX);
    QWheelEvent turn(QPointF(), QPointF(), QPoint(), QPoint(INT_MIN, INT_MAX), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &turn);
    QCOMPARE(box->value(), INT_MAX);
    type(box, QStringLiteral("99999999999\r"));
    QCOMPARE(box->value(), 999999999);
    editOf(box)->setText(QString(1000000, QLatin1Char('9')));
    leave();
    QCOMPARE(box->value(), 999999999);
    box->setMaximum(-5);
    box->setMinimum(3);
    QCOMPARE(box->value(), 3);

    const double infinity = std::numeric_limits<double>::infinity();
    CusDoubleSpinBox fraction;
    for (const double number : {std::nan(""), infinity, -infinity, 1e308}) {
        fraction.setSingleStep(number);
        fraction.setMinimum(number);
        fraction.setMaximum(number);
        fraction.setDecimals(INT_MAX);
        fraction.setValue(number);
        fraction.stepBy(INT_MIN);
        fraction.setRange(0, 10);
        fraction.setSingleStep(1);
        fraction.setDecimals(2);
        fraction.setValue(5);
        QCOMPARE(fraction.value(), 5.0);
        QVERIFY(!TestKit::inkExtent(TestKit::renderAt(&fraction)).isNull());
    }
}

QTEST_MAIN(TestSpinBoxes)

#include "tst_spinboxes.moc"
