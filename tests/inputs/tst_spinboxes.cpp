#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AngleTiPWidget>
#include <Vellum/CusDoubleSpinBox>
#include <Vellum/CusSpinBox>
#include <Vellum/CusSpinBoxWithUnits>

#include <QtTest>
#include <QtWidgets>

#include <tuple>

namespace {

QString tipOf(QWidget *widget)
{
    const auto *tip = widget->findChild<AngleTiPWidget *>();
    return tip ? tip->findChild<QLabel *>()->text() : QString();
}

/// "\r" is Return, "\b" Backspace, "^" Up.
void type(QWidget *box, const char *keys)
{
    for (; *keys; ++keys) {
        if (*keys == '\r' || *keys == '\b' || *keys == '^')
            QTest::keyClick(box,
                            *keys == '\r'       ? Qt::Key_Return
                                : *keys == '\b' ? Qt::Key_Backspace
                                                : Qt::Key_Up);
        else
            QTest::keyClick(box, *keys);
    }
}

QLineEdit *editOf(QWidget *box)
{
    return box->findChild<QLineEdit *>();
}

bool turn(QWidget *box, const QPoint &delta)
{
    QWheelEvent event(QPointF(5, 5), QPointF(), QPoint(), delta, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &event);
    return event.isAccepted();
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

} // namespace

/// The four spin boxes: entries and what is told of them, wheel, arrows, and what Qt's do.
class TestSpinBoxes : public GuardedTest
{
    Q_OBJECT

    QScopedPointer<QWidget> m_window;
    QLineEdit *m_other = nullptr;
    QStringList m_told;

    void listenTo(CusBasicSpinBox *box)
    {
        m_told.clear();
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this](int value) { m_told += QString::number(value); });
        connect(box, &QSpinBox::editingFinished, this,
                [this] { m_told += QStringLiteral("done"); });
        connect(editOf(box), &QLineEdit::returnPressed, this,
                [this] { m_told += QStringLiteral("return"); });
    }
    template <typename Box>
    Box *show(Box *box, int minimum, int maximum, int value)
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
    void leave() { m_other->setFocus(); }

private Q_SLOTS:
    void init()
    {
        GuardedTest::init();
        QCursor::setPos(700, 500);
        m_window.reset(new QWidget);
        m_window->setGeometry(100, 100, 300, 120);
        m_other = new QLineEdit(m_window.data());
        m_window->show();
        QApplication::setActiveWindow(m_window.data());
        m_other->setFocus();
    }

    void cleanup()
    {
        m_window.reset();
        qApp->setStyleSheet(QString());
        GuardedTest::cleanup();
    }

    void commitsOrRefusesEntries_data()
    {
        QTest::addColumn<QPoint>("range");
        QTest::addColumn<int>("start");
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QString>("told");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("tip");
        const auto row = [](const char *name, const QPoint &range, int start, const char *keys,
                            const char *told, int value, const char *tip) {
            QTest::newRow(name) << range << start << QByteArray(keys) << QString::fromLatin1(told)
                                << value << QString::fromLatin1(tip);
        };
        const QPoint percent(0, 100);
        const char *tip = "Please input 0~100.";
        row("inside, leave", percent, 40, "60", "6 60 done", 60, "");
        row("inside, Return", percent, 40, "60\r", "6 60 60 done return", 60, "");
        row("above, leave", percent, 40, "200", "2 20 40 40 done", 40, tip);
        row("above, Return", percent, 40, "200\r", "2 20 40 40 done return", 40, tip);
        row("above and back inside", percent, 40, "200\b", "2 20 40 20 done", 20, "");
        row("below, leave", {30, 100}, 40, "7", "40 done", 40, "Please input 30~100.");
        row("negative", {-10, 10}, 4, "-7", "-7 done", -7, "");
        row("unchanged, Return", percent, 40, "\r", "40 done return", 40, "");
        row("empty, leave", percent, 40, "\b", "40 done", 40, tip);
        row("empty at 0, leave", percent, 0, "\b", "done", 0, tip);
        row("empty, Return counts as 0", percent, 40, "\b\r", "0 done return", 0, "");
        row("empty, Return, 0 outside", {5, 9}, 7, "\b\r", "7 done return", 7, "Please input 5~9.");
    }

    void commitsOrRefusesEntries()
    {
        QFETCH(QPoint, range);
        QFETCH(int, start);
        QFETCH(QByteArray, keys);
        for (const QString &affix : {QString(), QStringLiteral("a ")}) {
            const QScopedPointer<CusBasicSpinBox> box(
                show(new CusBasicSpinBox, range.x(), range.y(), start));
            box->setPrefix(affix);
            box->setSuffix(affix);
            box->selectAll();
            listenTo(box.data());
            type(box.data(), keys.constData());
            if (!keys.endsWith('\r'))
                leave();
            QTEST(m_told.join(QLatin1Char(' ')), "told");
            QTEST(box->value(), "value");
            QTEST(tipOf(box.data()), "tip");
            QCOMPARE(editOf(box.data())->text(), affix + QString::number(box->value()) + affix);
            disconnect(box.data(), nullptr, this, nullptr);
        }
    }

    void refusedEntryGoesBackToItsStart()
    {
        using Box = CusBasicSpinBox;
        const QList<QPair<int, std::function<void(Box *)>>> starts{
            {60, [](Box *box) { type(box, "60\r"); }},
            {21, [](Box *box) { type(box, "20^"); }},
            {41, [](Box *box) { turn(box, QPoint(0, 120)); }},
            {50, [](Box *box) { box->setRange(50, 90); }},
            {70,
             [](Box *box) {
                 type(box, "2");
                 const QSignalBlocker blocker(box);
                 box->setValue(70);
             }},
            {33, [](Box *box) {
                 type(box, "33");
                 box->clearFocus();
                 box->setFocus();
             }}};
        for (const auto &start : starts) {
            for (Box *box : QList<Box *>{new CusBasicSpinBox, new BoxWithOwnEdit, new CusSpinBox}) {
                show(box, 0, 100, 40);
                start.second(box);
                box->selectAll();
                type(box, "200");
                QCOMPARE(box->value(), start.first);
                QCOMPARE(editOf(box)->text(), QStringLiteral("200"));
            }
        }
    }

    void keepsTypedTextAndItsUndo()
    {
        auto *box = show(new CusBasicSpinBox, 0, 100, 0);
        for (const char *special : {"Off", ""}) {
            box->setSpecialValueText(QLatin1String(special));
            box->selectAll();
            type(box, "250");
            QCOMPARE(box->value(), 0);
            QCOMPARE(editOf(box)->text(), QStringLiteral("250"));
        }
        editOf(box)->undo();
        QCOMPARE(editOf(box)->text(), QStringLiteral("0"));
        box->setValue(40);
        // All at once, as from the clipboard.
        editOf(box)->setText(QStringLiteral("200"));
        leave();
        QCOMPARE(box->value(), 40);
        QCOMPARE(tipOf(box), QStringLiteral("Please input 0~100."));
    }

    void leavesTypingToQtWhenOff()
    {
        auto *box = show(new CusBasicSpinBox, 0, 100, 40);
        box->setInvaildValToRange(false);
        listenTo(box);
        type(box, "200\r");
        QCOMPARE(m_told.join(QLatin1Char(' ')), QStringLiteral("2 20 20 done return"));
        box->clear();
        leave();
        QCOMPARE(box->value(), 20);
        QCOMPARE(tipOf(box), QString());
    }

    void readsWhatQtShows()
    {
        auto *box = show(new CusBasicSpinBox, 1, 5000, 1);
        box->setSpecialValueText(QStringLiteral("Auto"));
        leave();
        box->setGroupSeparatorShown(true);
        for (const char *locale : {"en_US", "ar_EG"}) {
            box->setLocale(QLocale(QLatin1String(locale)));
            box->setValue(1234);
            type(box, "\r");
            QCOMPARE(box->value(), 1234);
        }
        QCOMPARE(tipOf(box), QString());
    }

    void turnsByWheel()
    {
        // Without the focus, up, far up, not a whole notch, sideways, nothing.
        using Row = std::tuple<bool, QPoint, int>;
        const QList<Row> rows{Row(false, {0, 120}, 40), Row(true, {0, 120}, 45),
                              Row(true, {0, 480}, 45),  Row(true, {0, 100}, 35),
                              Row(true, {120, 0}, 35),  Row(true, {0, 3}, 40)};
        for (const auto &[focused, delta, value] : rows) {
            auto *box = show(new CusSpinBox, 0, 100, 40);
            box->setSingleStep(5);
            box->setSuffix(QStringLiteral(" s"));
            if (!focused)
                leave();
            listenTo(box);
            QCOMPARE(turn(box, delta), value != 40);
            QCOMPARE(box->value(), value);
            QCOMPARE(m_told.size(), value == 40 ? 0 : 1);
            box->setReadOnly(true);
            QVERIFY(!turn(box, delta));
            QCOMPARE(box->value(), value);
            disconnect(box, nullptr, this, nullptr);
        }
    }

    void pressOutsidePassesTheFocusOn()
    {
        auto *box = show(new CusSpinBox, 0, 100, 40);
        QWidget desk(m_window.data());
        desk.setGeometry(200, 60, 50, 50);
        desk.show();
        qApp->installEventFilter(box);
        QCursor::setPos(box->mapToGlobal(QPoint(5, 5)));
        QTest::mouseClick(editOf(box), Qt::LeftButton);
        QVERIFY(box->hasFocus());
        QCursor::setPos(desk.mapToGlobal(QPoint(5, 5)));
        QTest::mouseClick(&desk, Qt::LeftButton);
        QVERIFY(m_other->hasFocus());
    }

    void diesInItsSlotsAndWithARefusedEntry()
    {
        for (const char *keys : {"\r", "\b\r", "\b"}) {
            for (const bool atValue : {true, false}) {
                QPointer<CusSpinBox> box = show(new CusSpinBox, 5, 100, 40);
                const auto die = [&box] { delete box.data(); };
                if (atValue)
                    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, die);
                else
                    connect(box, &QSpinBox::editingFinished, this, die);
                type(box, keys);
                leave();
                QVERIFY(!box);
            }
        }
        auto *pane = new QWidget(m_window.data());
        auto *box = show(new CusSpinBox, 0, 100, 40);
        box->setParent(pane);
        box->show();
        pane->show();
        box->setFocus();
        type(box, "200");
        delete pane;
        type(show(new CusSpinBox, 0, 100, 40), "200");
        m_window.reset();
    }

    void padsTheNumber()
    {
        using Row = std::tuple<int, int, char, int, const char *>;
        const QList<Row> rows{Row(10, 2, '0', 7, "07"),   Row(16, 2, '0', 26, "1a"),
                              Row(2, 4, ' ', 1, "   1"),  Row(0, -3, '.', 12, "12."),
                              Row(1, 5, '0', 7, "00007"), Row(37, 0, '0', 12, "12")};
        QCOMPARE(CusSpinBox().text(), QStringLiteral("00"));
        for (const auto &[base, width, fill, value, text] : rows) {
            CusSpinBox box;
            box.setValue(value);
            box.setBase(base);
            box.setFieldWidth(width);
            box.setFillChar(QLatin1Char(fill));
            QCOMPARE(box.text(), QLatin1String(text));
            QCOMPARE(box.value(), value);
            box.setFieldWidth(INT_MAX);
            QCOMPARE(box.text().size(), 64);
        }
    }

    void clampsOnlyWhereItDoesNotRefuse()
    {
        for (const bool refuses : {true, false}) {
            auto *box = show(new CusSpinBox, 10, 100, 40);
            box->setSuffix(QStringLiteral(" s"));
            box->setInvaildValToRange(refuses);
            for (const char *text : {"200 s", "3 s"}) {
                editOf(box)->setText(QLatin1String(text));
                leave();
                QCOMPARE(box->value(), refuses ? 40 : text[0] == '2' ? 100 : 10);
                box->setFocus();
            }
            editOf(box)->setText(QStringLiteral("200 s"));
            type(box, "\r");
            QCOMPARE(box->value(), refuses ? 40 : 100);
            // An entry is limited once.
            box->setMinimum(0);
            box->setSuffix(QString());
            box->clear();
            type(box, "\r");
            QCOMPARE(box->value(), refuses ? 0 : 100);
            // The base is for showing only.
            box->setBase(16);
            box->selectAll();
            type(box, "1a1");
            leave();
            QCOMPARE(editOf(box)->text(), QStringLiteral("0b"));
        }
    }

    void unitStandsBesideTheNumber()
    {
        auto *box = new CusSpinBoxWithUnits;
        box->setUnitTxt(QStringLiteral("kbit/s"));
        show(box, 0, 100, 40)->grab();
        const auto *label = box->findChild<QLabel *>(QStringLiteral("label_spinBoxUnits"));
        const int unit = box->fontMetrics().boundingRect(box->getUnitTxt()).width();
        const int number = editOf(box)->width();
        QVERIFY(label->isVisible());
        QCOMPARE(label->geometry(), QRect(number, 1, unit, 28));
        const int arrows = box->width() - number - unit;
        QVERIFY(arrows > 5 && arrows < 40);
        box->setLayoutDirection(Qt::RightToLeft);
        box->resize(140, 30);
        QCOMPARE(label->geometry(), QRect(arrows, 1, unit, 28));
        for (const int width : {20, 0}) {
            box->resize(width, width);
            box->grab();
            QCOMPARE(editOf(box)->width(), 0);
        }
        // Once without a unit, always without.
        box->setUnitTxt(QString());
        box->setUnitTxt(QStringLiteral("s"));
        QVERIFY(!label->isVisible());
    }

    void checksFractions()
    {
        CusDoubleSpinBox box;
        box.setPrefix(QStringLiteral("x"));
        box.setSuffix(QStringLiteral(" y"));
        const auto check = [&box](const char *text) {
            QString input = QLatin1String(text);
            int pos = 0;
            return box.validate(input, pos);
        };
        for (const char *good : {"1.25", "", "x y", "x1.5 y", "6.66"})
            QCOMPARE(check(good), QValidator::Acceptable);
        for (const char *bad : {"1.255", "one", "100"})
            QCOMPARE(check(bad), QValidator::Invalid);
        QStringList seen;
        box.setValidInputCallBack([&](const QString &whole, const QString &text, const int &) {
            seen << whole << text;
            box.setValidInputCallBack({});
            return QValidator::Intermediate;
        });
        QCOMPARE(check("1.255"), QValidator::Invalid);
        QCOMPARE(check("6.66"), QValidator::Intermediate);
        QCOMPARE(seen, (QStringList{QStringLiteral("x6.66 y"), QStringLiteral("6.66")}));
    }

    void arrowsFollowTheSheet()
    {
        const QString sheet = QStringLiteral(
            "QAbstractSpinBox { border: 1px solid black }"
            "QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { width: %1px; height: "
            "15px;"
            " background: yellow }"
            "#btn_spinBoxUp, #btn_spinBoxDown { border: none; background: #0000ff }"
            "#btn_spinBoxUp { background: #00ff00 } #btn_spinBoxUp:hover { background: #00ffff }"
            "#btn_spinBoxUp:pressed { background: #808080 }"
            "#btn_spinBoxUp:disabled { background: #404040 }"
            "#btn_spinBoxUp[Invalid=\"true\"] { background: #ff0000 }");
        using Row = QPair<QAbstractSpinBox *, int>;
        for (const auto &[box, width] : {Row(new CusBasicSpinBox, 22), Row(new CusBasicSpinBox, 10),
                                         Row(new CusDoubleSpinBox, 22)}) {
            qApp->setStyleSheet(sheet.arg(width));
            box->setParent(m_window.data());
            box->setGeometry(20, 40, 120, 32);
            box->show();
            const QImage image = TestKit::renderAt(box);
            const QRect up = TestKit::extentOf(image, QColor(0, 255, 0));
            const QRect down = TestKit::extentOf(image, Qt::blue);
            QCOMPARE(up.size(), QSize(qMin(width, 12), 12));
            QCOMPARE(down.size(), up.size());
            QVERIFY(up.bottom() < down.top());
            QVERIFY(box->width() - up.right() - 1 >= (width > 12 ? 7 : 0));
            QCOMPARE(TestKit::countOf(image, Qt::yellow), 0);

            const auto look = [&] { return TestKit::renderAt(box).pixelColor(up.center()); };
            QCursor::setPos(box->mapToGlobal(up.center()));
            box->setAttribute(Qt::WA_UnderMouse);
            QCOMPARE(look(), QColor(Qt::cyan));
            QTest::mousePress(box, Qt::LeftButton, {}, up.center());
            QCOMPARE(look(), QColor(0x80, 0x80, 0x80));
            QTest::mouseRelease(box, Qt::LeftButton, {}, up.center());
            QCOMPARE(box->property("value").toInt(), 1);
            box->setAttribute(Qt::WA_UnderMouse, false);
            if (auto *basic = qobject_cast<CusBasicSpinBox *>(box)) {
                basic->setIsValidStyle(false);
                QCOMPARE(look(), QColor(Qt::red));
                basic->setIsValidStyle(true);
                basic->setProperty("objectName", QStringLiteral("box"));
                QCOMPARE(look(), QColor(0, 255, 0));
            }
            box->setEnabled(false);
            QCOMPARE(look(), QColor(0x40, 0x40, 0x40));
            box->setEnabled(true);
            box->setLayoutDirection(Qt::RightToLeft);
            QVERIFY(TestKit::extentOf(TestKit::renderAt(box), QColor(0, 255, 0)).right() < 60);
            box->setButtonSymbols(QAbstractSpinBox::NoButtons);
            QCOMPARE(TestKit::countOf(TestKit::renderAt(box), Qt::blue), 0);
            box->hide();
        }
    }

    void behaveAsTheirBases()
    {
        const QList<QAbstractSpinBox *> boxes{new CusBasicSpinBox, new CusSpinBox,
                                              new CusSpinBoxWithUnits, new CusDoubleSpinBox};
        for (QAbstractSpinBox *box : boxes) {
            const bool clickFocus = qobject_cast<CusBasicSpinBox *>(box);
            const auto value = [box] { return box->property("value").toInt(); };
            box->setParent(m_window.data());
            box->show();
            leave();
            QTest::keyClick(m_other, Qt::Key_Tab);
            QCOMPARE(box->hasFocus(), !clickFocus);
            QCOMPARE(box->contextMenuPolicy() == Qt::NoContextMenu, clickFocus);
            QTest::mouseClick(editOf(box), Qt::LeftButton);
            QVERIFY(box->hasFocus());
            type(box, "^");
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
            type(box, "^8");
            QCOMPARE(value(), 7);
            box->hide();
        }
    }

    void takesExtremes()
    {
        auto *box = show(new CusSpinBoxWithUnits, INT_MIN, INT_MAX, INT_MAX);
        box->setSingleStep(INT_MAX);
        turn(box, QPoint(INT_MIN, INT_MAX));
        QCOMPARE(box->value(), INT_MAX);
        type(box, "99999999999\r");
        editOf(box)->setText(QString(1000000, QLatin1Char('9')));
        leave();
        QCOMPARE(box->value(), 999999999);
    }
};

QTEST_MAIN(TestSpinBoxes)

#include "tst_spinboxes.moc"
