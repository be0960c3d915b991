#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/ActionLineEdit>
#include <Vellum/CusLineEdit>
#include <Vellum/CusSvgPushButton>

#include <QtTest>
#include <QtWidgets>

using Act = std::function<void(CusLineEdit *)>;
using Modifiers = Qt::KeyboardModifiers;

namespace {

constexpr int kLimit = 64;
const QString kWord = QStringLiteral("gate");

/// The edit's buttons that are shown, from left to right.
QList<QWidget *> shownButtons(const QWidget *edit)
{
    QList<QWidget *> shown;
    const QList<CusSvgPushButton *> buttons = edit->findChildren<CusSvgPushButton *>();
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(shown),
                 [](const QWidget *button) { return button->isVisible(); });
    std::sort(shown.begin(), shown.end(),
              [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    return shown;
}

/// The entries of a menu in one line: "-" is a separator, "!" precedes one that is disabled.
QString rowsOf(const QMenu *menu)
{
    QStringList rows;
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        const QString text = entry->text().section(QLatin1Char('\t'), 0, 0);
        rows << (entry->isSeparator()     ? QStringLiteral("-")
                     : entry->isEnabled() ? text
                                          : QLatin1Char('!') + text);
    }
    return rows.join(QLatin1Char(' '));
}

QAction *entryOf(const QMenu *menu, const QString &text)
{
    const QList<QAction *> entries = menu->actions();
    const auto it = std::find_if(entries.begin(), entries.end(), [&](const QAction *entry) {
        return entry->text().startsWith(text);
    });
    return it == entries.end() ? nullptr : *it;
}

class FocusLog : public ActionLineEdit
{
public:
    using ActionLineEdit::ActionLineEdit;
    QString log;

protected:
    void lineEditFocusIn() override { log += QLatin1Char('+'); }
    void lineEidtFocusOut() override { log += QLatin1Char('-'); }
};

} // namespace

/// CusLineEdit and ActionLineEdit.
class TestLineEdit : public GuardedTest
{
    Q_OBJECT

private:
    QScopedPointer<QWidget> m_window;
    QPointer<CusLineEdit> m_edit;

    void makeEdit()
    {
        m_window.reset(new QWidget);
        m_window->resize(400, 60);
        m_edit = new CusLineEdit(m_window.data());
        m_edit->setGeometry(10, 10, 200, 30);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        m_edit->setFocus();
    }

private Q_SLOTS:
    void init()
    {
        GuardedTest::init();
        makeEdit();
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        m_window.reset();
        GuardedTest::cleanup();
    }

    void readsSimplifiedUnlessToldOtherwise()
    {
        QSignalSpy changed(m_edit.data(), &CusLineEdit::textChangedSimpled);
        QSignalSpy edited(m_edit.data(), &CusLineEdit::textEditedSimpled);
        const QString raw = QStringLiteral("  a \t b ");
        const QString simple = QStringLiteral("a b");
        m_edit->setText(raw);
        QCOMPARE(m_edit->text(), simple);
        QCOMPARE(m_edit->QLineEdit::text(), raw);
        QTest::keyClick(m_edit, Qt::Key_Space);
        QCOMPARE(changed, (QList<QVariantList>{{simple}, {simple}}));
        QCOMPARE(edited, (QList<QVariantList>{{simple}}));
        m_edit->setEraseSapce(false);
        QTest::keyClick(m_edit, Qt::Key_Backspace);
        QCOMPARE(m_edit->text(), raw);
        QCOMPARE(changed.last() + edited.last(), (QVariantList{raw, raw}));
    }

    void limitStopsTypingAndCutsNothing()
    {
        m_edit->setText(QString(kLimit + 2, QLatin1Char('x')));
        QTest::keyClicks(m_edit, QStringLiteral("y"));
        m_edit->setSelection(5, -2);
        QTRY_COMPARE(m_edit->maxLength(), kLimit + 3);
        QCOMPARE(m_edit->text().size(), kLimit + 3);
        QCOMPARE(m_edit->selectedText(), QStringLiteral("xx"));
        QCOMPARE(m_edit->cursorPosition(), 3);
        QVERIFY(m_edit->isModified());

        // From here on the limit follows the text down, and stays at 64.
        m_edit->setCursorPosition(1);
        for (const int length : {kLimit + 2, kLimit + 1, kLimit, kLimit - 1}) {
            QTest::keyClick(m_edit, Qt::Key_Delete);
            QCOMPARE(m_edit->text().size(), length);
            QCOMPARE(m_edit->cursorPosition(), 1);
            QTest::keyClicks(m_edit, QStringLiteral("zz"));
            QCOMPARE(m_edit->text().size(), qMax(length, kLimit));
            m_edit->setCursorPosition(1);
        }
    }

    void limitOfTheClientHolds()
    {
        const auto stop = [](CusLineEdit *edit) { edit->setStopTimer(); };
        const std::tuple<Act, int, int> rows[] = {
            {[](CusLineEdit *edit) { edit->setMaxLength(5); }, 5, 5},
            {[](CusLineEdit *edit) { edit->setMaxLength(-7); }, 0, 0},
            {[](CusLineEdit *edit) { edit->QLineEdit::setMaxLength(5); }, 5, kLimit},
            {stop, 32767, 32767}};
        for (const auto &[act, now, later] : rows) {
            makeEdit();
            m_edit->setText(QStringLiteral("loading bay"));
            act(m_edit);
            QCOMPARE(m_edit->maxLength(), now);
            QCOMPARE(m_edit->text().size(), qMin(11, now));
            QSignalSpy fired(m_edit->findChild<QTimer *>(), &QTimer::timeout);
            QVERIFY(fired.wait());
            QCOMPARE(m_edit->maxLength(), later);
        }
    }

    void arrowsCollapseASelection_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Modifiers>("modifiers");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("selected");
        const Modifiers none;
        const Modifiers shift = Qt::ShiftModifier;
        const Modifiers control = Qt::ControlModifier;
        QTest::newRow("left") << int(Qt::Key_Left) << none << 3 << 2 << 0;
        QTest::newRow("right") << int(Qt::Key_Right) << none << 3 << 5 << 0;
        QTest::newRow("right, backwards") << int(Qt::Key_Right) << none << -2 << 2 << 0;
        QTest::newRow("shift extends") << int(Qt::Key_Right) << shift << 3 << 6 << 4;
        QTest::newRow("control collapses") << int(Qt::Key_Left) << control << 3 << 2 << 0;
        QTest::newRow("both collapse") << int(Qt::Key_Right) << (control | shift) << 3 << 5 << 0;
        QTest::newRow("no selection moves") << int(Qt::Key_Left) << none << 0 << 1 << 0;
        QTest::newRow("end moves") << int(Qt::Key_End) << none << 3 << 8 << 0;
    }

    void arrowsCollapseASelection()
    {
        QFETCH(int, key);
        QFETCH(Modifiers, modifiers);
        QFETCH(int, length);
        m_edit->setText(QStringLiteral("abcdefgh"));
        m_edit->setSelection(2, length);
        QTest::keyClick(m_edit, Qt::Key(key), modifiers);
        QTEST(m_edit->cursorPosition(), "cursor");
        int selected = m_edit->selectionLength();
        QTEST(selected, "selected");
    }

    void swallowsFilteredKeys()
    {
        const QSignalSpy returned(m_edit.data(), &QLineEdit::returnPressed);
        m_edit->setFilterKeys({Qt::Key_Return, Qt::Key_B});
        QTest::keyClicks(m_edit, QStringLiteral("abcB\r"));
        QCOMPARE(m_edit->text(), QStringLiteral("ac"));
        QVERIFY(returned.isEmpty());
        m_edit->setFilterKeys({});
        QTest::keyClicks(m_edit, QStringLiteral("b"));
        QCOMPARE(m_edit->text(), QStringLiteral("acb"));
    }

    void buttonsCallBackAndTakeNames()
    {
        for (const QString &edge : {QStringLiteral("Trail"), QStringLiteral("Lead")}) {
            const QByteArray support = QStringLiteral("surpot%1Btn").arg(edge).toLatin1();
            const QByteArray name = edge.toLower().toLatin1() + "BtnObjName";
            const QByteArray tips = edge.toLower().toLatin1() + "BtnTips";
            // What is named before there is a button is lost; an empty text changes nothing.
            for (const QString &text : {kWord, kWord, QString()}) {
                QVERIFY(m_edit->setProperty(name.constData(), text));
                QVERIFY(m_edit->setProperty(tips.constData(), text));
                const bool supported = m_edit->property(support.constData()).toBool();
                for (const QByteArray &property : {name, tips})
                    QCOMPARE(m_edit->property(property.constData()).toString(),
                             supported ? kWord : QString());
                if (!supported)
                    m_edit->setProperty(support.constData(), true);
            }
        }
        QStringList calls;
        m_edit->registerTrailFun([&](bool on) { calls << QStringLiteral("trail %1").arg(on); });
        m_edit->registerLeadFun([&](bool on) { calls << QStringLiteral("lead %1").arg(on); });
        m_edit->registerTrailFun({});
        for (QWidget *button : shownButtons(m_edit)) {
            QCOMPARE(button->size(), QSize(20, 20));
            static_cast<CusSvgPushButton *>(button)->setCheckable(true);
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(calls, (QStringList{QStringLiteral("lead 1"), QStringLiteral("trail 1")}));
        QVERIFY(m_edit->hasFocus());
    }

    void trailingButtonIsReplacedLeadingOnesAddUp()
    {
        const QString sheet = QStringLiteral("CusLineEdit { qproperty-surpotTrailBtn: true;"
                                             " qproperty-trailBtnObjName: \"clear\" }");
        // Qt goes over all widgets meanwhile, also over the button that is replaced.
        for (int round = 1; round <= 3; ++round) {
            qApp->setStyleSheet(sheet + QString(round, QLatin1Char(' ')));
            m_edit->setSurpotLeadBtn(true);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QList<QWidget *> buttons = shownButtons(m_edit);
            QCOMPARE(buttons.size(), round + 1);
            QCOMPARE(m_edit->actions().size(), round + 1);
            QCOMPARE(buttons.last()->objectName(), QStringLiteral("clear"));
            QVERIFY(buttons.at(round - 1)->x() < buttons.last()->x());
        }
        m_edit->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(shownButtons(m_edit).first()->objectName(), QStringLiteral("clear"));
        m_edit->setSurpotTrailBtn(false);
        m_edit->setSurpotLeadBtn(false);
        QCOMPARE(shownButtons(m_edit).size(), 4);
        const QList<QAction *> actions = m_edit->actions();
        QCOMPARE(std::count_if(actions.begin(), actions.end(), std::mem_fn(&QAction::isVisible)),
                 3);
    }

    void trailingButtonHidesWithoutText()
    {
        // Blanks are text to a change of the text, and none to the switch.
        const std::tuple<Act, bool> steps[] = {
            {[](CusLineEdit *edit) { edit->setSurpotTrailBtn(true); }, true},
            {[](CusLineEdit *edit) { edit->setEnableNoTextNotShowTrailBtn(true); }, false},
            {[](CusLineEdit *edit) { edit->setText(QStringLiteral("  ")); }, true},
            {[](CusLineEdit *edit) { edit->setEnableNoTextNotShowTrailBtn(true); }, false},
            {[](CusLineEdit *edit) { edit->setEnableNoTextNotShowTrailBtn(false); }, false},
            {[](CusLineEdit *edit) { edit->setSurpotTrailBtn(true); }, true},
            {[](CusLineEdit *edit) { edit->clear(); }, true}};
        for (const auto &[act, shown] : steps) {
            act(m_edit);
            QCOMPARE(!shownButtons(m_edit).isEmpty(), shown);
            QCOMPARE(m_edit->actions().last()->isVisible(), shown);
        }
    }

    void keepsWhatALineEditDoes()
    {
        QTest::keyClicks(m_edit, kWord);
        QInputMethodEvent commit;
        commit.setCommitString(QString::fromUtf8("东区"));
        QCoreApplication::sendEvent(m_edit, &commit);
        QCOMPARE(m_edit->text(), QString::fromUtf8("gate东区"));
        QTest::keyClick(m_edit, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(m_edit->isRedoAvailable());
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(m_edit);
        QCOMPARE(face->role(), QAccessible::EditableText);
        QCOMPARE(face->text(QAccessible::Value), m_edit->text());

        const QSignalSpy pressed(m_edit.data(), &CusLineEdit::signalMousePressed);
        QTest::mousePress(m_edit, Qt::LeftButton);
        QTest::mousePress(m_edit, Qt::RightButton);
        QCOMPARE(pressed.size(), 2);
        auto *next = new QLineEdit(m_window.data());
        next->show();
        m_edit->setSurpotTrailBtn(true);
        QTest::keyClick(m_edit, Qt::Key_Tab);
        QVERIFY(next->hasFocus());

        qApp->setStyleSheet(QStringLiteral("CusLineEdit { background: #00ff00 }"
                                           "CusLineEdit:focus { background: #0000ff }"
                                           "CusLineEdit:disabled { background: #ff0000 }"));
        const auto ground = [this] { return TestKit::renderAt(m_edit).pixelColor(150, 3); };
        QCOMPARE(ground(), QColor(Qt::green));
        m_edit->setFocus();
        QCOMPARE(ground(), QColor(Qt::blue));
        m_edit->setDisabled(true);
        QCOMPARE(ground(), QColor(Qt::red));
    }

    void menuOffersWhatTheStateAllows()
    {
        const auto type = [](CusLineEdit *edit) { edit->insert(kWord); };
        const std::tuple<Act, const char *> rows[] = {
            {[](CusLineEdit *) {}, "!&Undo !&Redo - !Cu&t !&Copy &Paste !Delete - !Select All"},
            {type, "&Undo !&Redo - !Cu&t !&Copy &Paste !Delete - Select All"},
            {[&](CusLineEdit *edit) { type(edit), edit->selectAll(); },
             "&Undo !&Redo - Cu&t &Copy &Paste Delete - !Select All"},
            {[&](CusLineEdit *edit) { type(edit), edit->undo(); },
             "!&Undo &Redo - !Cu&t !&Copy &Paste !Delete - !Select All"},
            {[&](CusLineEdit *edit) {
                 edit->setEchoMode(QLineEdit::Password), type(edit), edit->setSelection(0, 2);
             },
             "&Undo !&Redo - !Cu&t !&Copy &Paste Delete - Select All"},
            {[&](CusLineEdit *edit) {
                 type(edit), edit->setReadOnly(true), edit->setSelection(0, 2);
             },
             "&Copy - Select All"},
            {[](CusLineEdit *edit) { edit->setText(QStringLiteral("  ")), edit->selectAll(); },
             "!&Undo !&Redo - Cu&t &Copy &Paste !Delete - !Select All"}};
        QGuiApplication::clipboard()->setText(kWord);
        for (const auto &[act, entries] : rows) {
            makeEdit();
            act(m_edit);
            const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
            QCOMPARE(rowsOf(menu.data()), QLatin1String(entries));
            QCOMPARE(menu->objectName(), QStringLiteral("qt_edit_menu"));
        }
        QGuiApplication::clipboard()->clear();
        const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
        const QAction *paste = entryOf(menu.data(), QStringLiteral("&Paste"));
        QVERIFY(!paste->isEnabled());
        QCOMPARE(paste->text(),
                 QStringLiteral("&Paste\t")
                     + QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText));
    }

    void deleteEntrySearchesContent()
    {
        const std::tuple<const char *, int, int, const char *, int> rows[] = {
            {"gate", 0, 4, "", 0},
            {"gate 3", 0, 4, " 3", 0},
            {"cam a cam b cam", 0, 3, "cam a  b cam", 3},
            {"cam a cam b", 9, -3, "cam a  b", 6},
            {"cam a cam", 6, 3, "cam a ", 6},
            {"a  cam cam", 3, 3, "a cam ", 6},
            {" ab cd", 3, -2, " cd", 0},
            {"north   gate", 8, 4, "north   gate", 12},
            {"a   b", 1, 3, "a   b", 4}};
        for (const auto &[text, start, length, rest, cursor] : rows) {
            m_edit->setText(QLatin1String(text));
            m_edit->setSelection(start, length);
            const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
            entryOf(menu.data(), QStringLiteral("Delete"))->trigger();
            QCOMPARE(m_edit->QLineEdit::text(), QLatin1String(rest));
            QCOMPARE(m_edit->cursorPosition(), cursor);
        }
    }

    void menuOpensWhereThePolicyAllows()
    {
        const auto open = [this]() -> QPointer<QMenu> {
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(50, 50));
            QCoreApplication::sendEvent(m_edit, &event);
            return qobject_cast<QMenu *>(QApplication::activePopupWidget());
        };
        QVERIFY(!open());
        QVERIFY(m_edit->lastMenuGlobalRect().isNull());
        m_edit->setContextMenuPolicy(Qt::DefaultContextMenu);
        const std::tuple<bool, bool, int> rows[] = {
            {false, true, 9}, {false, false, 6}, {true, true, 3}, {true, false, 0}};
        for (const auto &[readOnly, undo, count] : rows) {
            m_edit->setReadOnly(readOnly);
            m_edit->setRedoUndoMenuEnable(undo);
            const QPointer<QMenu> menu = open();
            QVERIFY(menu);
            QCOMPARE(menu->objectName(), QStringLiteral("RightMenuPane"));
            QCOMPARE(menu->actions().size(), count);
            QCOMPARE(m_edit->lastMenuGlobalRect(), menu->geometry());
            QVERIFY(!m_edit->isShowingContextMenu());
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!menu);
        }
    }

    void survivesDeletionInItsSignals()
    {
        const Act deadly[] = {[](CusLineEdit *edit) {
                                  edit->registerTrailFun([edit](bool) { delete edit; });
                                  edit->setSurpotTrailBtn(true);
                                  edit->findChild<CusSvgPushButton *>()->click();
                              },
                              [](CusLineEdit *edit) {
                                  connect(edit, &CusLineEdit::signalMousePressed, edit,
                                          [edit] { delete edit; });
                                  QTest::mousePress(edit, Qt::LeftButton);
                              }};
        for (const Act &act : deadly) {
            makeEdit();
            act(m_edit);
            QVERIFY(!m_edit);
        }
    }

    void frameShowsStatesOfItsEdit()
    {
        qApp->setStyleSheet(QStringLiteral(
            "#CustomLineedit { background: #00ff00 }"
            "#CustomLineedit[hasfocus=\"true\"] { background: #0000ff }"
            "#CustomLineedit[readonly=\"true\"] { background: #ff0000 }"
            "[editNoBorder=\"true\"] #lineEdit_addr { background: transparent; border: none }"));
        auto *frame = new FocusLog(m_window.data());
        frame->show();
        const auto ground = [frame] { return TestKit::renderAt(frame).pixelColor(150, 3); };
        QCOMPARE(ground(), QColor(Qt::green));
        QCOMPARE(frame->size(), QSize(321, 27));
        frame->setFocus();
        QCOMPARE(ground(), QColor(Qt::blue));
        m_edit->setFocus();
        QCOMPARE(ground(), QColor(Qt::green));
        QCOMPARE(frame->log, QStringLiteral("+-"));
        for (const bool on : {true, false}) {
            frame->setReadOnly(on);
            QCOMPARE(ground(), QColor(on ? Qt::red : Qt::green));
            QCOMPARE(frame->lineedit()->isReadOnly(), on);
            frame->setDisabled(on);
            QCOMPARE(frame->isEnabled(), !on);
            QCOMPARE(frame->lineedit()->testAttribute(Qt::WA_ForceDisabled), on);
        }
        frame->setText(QStringLiteral(" a  b "));
        QCOMPARE(frame->text(), QStringLiteral("a b"));
        frame->setLineEditMaxLength(2);
        QCOMPARE(frame->text(), QStringLiteral("a"));
    }

    void frameArrangesWidgetsBesideTheEdit()
    {
        qApp->setStyleSheet(QStringLiteral("#CustomLineedit { border: 2px solid #00ff00 }"));
        ActionLineEdit frame;
        const auto leading = ActionLineEdit::LeadingPosition;
        const auto trailing = ActionLineEdit::TrailingPosition;
        const auto order = [&frame] {
            QList<QWidget *> widgets;
            for (int i = 0; i < frame.layout()->count(); ++i)
                widgets << frame.layout()->itemAt(i)->widget();
            return widgets;
        };
        QWidget *edit = frame.lineedit();
        auto *one = new QLabel;
        QLabel two;
        QLabel unit;
        frame.addAction(&unit, trailing);
        QCOMPARE(frame.contentsMargins(), QMargins(0, 0, 5, 0));
        frame.addAction(one, leading);
        frame.addAction(&two, leading);
        for (QWidget *useless : QList<QWidget *>{nullptr, one, &unit, &frame, edit})
            frame.addAction(useless, trailing);
        frame.addAction(m_edit, ActionLineEdit::ActionLineeditActionPosition(7));
        QCOMPARE(order(), (QList<QWidget *>{one, &two, edit, &unit}));
        // Nor does a new look bring back the margins that the border asks for.
        frame.show();
        frame.setReadOnly(true);
        QCOMPARE(frame.contentsMargins(), QMargins(5, 0, 5, 0));

        frame.deleteAction(nullptr);
        frame.deleteAction(edit);
        frame.deleteAction(&unit);
        QCOMPARE(order(), (QList<QWidget *>{one, &two, edit}));
        QCOMPARE(frame.contentsMargins(), QMargins(5, 0, 0, 0));
        delete one;
        frame.addAction(&unit, leading);
        QCOMPARE(order(), (QList<QWidget *>{&two, &unit, edit}));
        two.setParent(nullptr);
        unit.setParent(nullptr);
        QCOMPARE(frame.contentsMargins(), QMargins());
    }

    void filtersPasteIntoAPassword()
    {
        using Prepare = std::function<void(ActionLineEdit *)>;
        const Modifiers control = Qt::ControlModifier;
        const auto showText = [](ActionLineEdit *edit) {
            edit->lineedit()->setEchoMode(QLineEdit::Normal);
        };
        const std::tuple<Prepare, Modifiers, const char *> rows[] = {
            {[](ActionLineEdit *) {}, control, "xabcd"},
            {[](ActionLineEdit *) {}, control | Qt::ShiftModifier, "old"},
            {[](ActionLineEdit *edit) { edit->setFilterPaste(false); }, control, "oldx东区 ab cd"},
            {showText, control, "oldx东区 ab cd"},
            {[](ActionLineEdit *edit) { edit->setReadOnly(true); }, control, "old"}};
        QGuiApplication::clipboard()->setText(QString::fromUtf8("x东区 ab cd"));
        for (const auto &[prepare, modifiers, text] : rows) {
            ActionLineEdit frame;
            frame.lineedit()->setEchoMode(QLineEdit::Password);
            frame.setText(QStringLiteral("old"));
            prepare(&frame);
            QTest::keyClick(frame.lineedit(), Qt::Key_V, modifiers);
            QCOMPARE(frame.text(), QString::fromUtf8(text));
        }
    }
};

QTEST_MAIN(TestLineEdit)

#include "tst_lineedit.moc"
