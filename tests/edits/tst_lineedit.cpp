#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/ActionLineEdit>
#include <Vellum/CusLineEdit>
#include <Vellum/CusMenu>
#include <Vellum/CusSvgPushButton>

#include <QtTest>
#include <QtWidgets>

using Modifiers = Qt::KeyboardModifiers;

namespace {

constexpr int kLimit = 64;
const QString kWord = QStringLiteral("gate");

/// The edit's buttons that are shown, from left to right.
QList<QWidget *> shownButtons(const QWidget *edit)
{
    QMap<int, QWidget *> shown;
    const QList<CusSvgPushButton *> buttons = edit->findChildren<CusSvgPushButton *>();
    for (CusSvgPushButton *button : buttons) {
        if (button->isVisible())
            shown[button->x()] = button;
    }
    return shown.values();
}

/// The entries of a menu in one line: "-" is a separator, "!" precedes one that is disabled.
QString rowsOf(const QMenu *menu)
{
    QString rows;
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        rows += QLatin1String(entry->isSeparator() ? " -" : entry->isEnabled() ? " " : " !");
        rows += entry->text().section(QLatin1Char('\t'), 0, 0);
    }
    return rows.mid(1);
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

private Q_SLOTS:
    void init()
    {
        GuardedTest::init();
        m_window.reset(new QWidget);
        m_window->resize(400, 60);
        m_edit = new CusLineEdit(m_window.data());
        m_edit->resize(200, 30);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        m_edit->setFocus();
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
        QTest::keyClick(m_edit, Qt::Key_Space);
        QCOMPARE(changed, (QList<QVariantList>{{simple}, {simple}}));
        QCOMPARE(edited, (QList<QVariantList>{{simple}}));
        m_edit->setEraseSapce(false);
        QTest::keyClick(m_edit, Qt::Key_Backspace);
        QCOMPARE(changed.last() + edited.last(), (QVariantList{raw, raw}));
    }

    void limitStopsTypingAndCutsNothing()
    {
        m_edit->setText(QString(kLimit + 2, QLatin1Char('x')));
        QTest::keyClick(m_edit, Qt::Key_Y);
        m_edit->setSelection(5, -2);
        QTRY_COMPARE(m_edit->maxLength(), kLimit + 3);
        QCOMPARE(m_edit->text().size(), kLimit + 3);
        QCOMPARE(m_edit->selectedText(), QStringLiteral("xx"));
        QCOMPARE(m_edit->cursorPosition(), 3);
        QVERIFY(m_edit->isModified());
        // From here on the limit follows the text down, and stays at 64.
        for (const int length : {kLimit + 2, kLimit + 1, kLimit, kLimit - 1}) {
            m_edit->setCursorPosition(1);
            QTest::keyClick(m_edit, Qt::Key_Delete);
            QCOMPARE(m_edit->text().size(), length);
            QCOMPARE(m_edit->cursorPosition(), 1);
            QTest::keyClicks(m_edit, QStringLiteral("zz"));
            QCOMPARE(m_edit->text().size(), qMax(length, kLimit));
        }
    }

    void limitOfTheClientHolds()
    {
        CusLineEdit negative, stopped, behind;
        for (CusLineEdit *edit : {m_edit.data(), &negative, &stopped, &behind})
            edit->setText(kWord);
        m_edit->setMaxLength(3);
        negative.setMaxLength(-7);
        stopped.setStopTimer();
        behind.QLineEdit::setMaxLength(3);
        QCOMPARE(m_edit->text() + negative.text() + stopped.text(), QStringLiteral("gatgate"));
        QTRY_COMPARE(behind.maxLength(), kLimit);
        QTRY_VERIFY(!stopped.findChild<QTimer *>()->isActive());
        QCOMPARE(m_edit->maxLength(), 3);
        QCOMPARE(stopped.maxLength(), 32767);
    }

    void arrowsCollapseASelection()
    {
        constexpr Qt::Key left = Qt::Key_Left;
        constexpr Qt::Key right = Qt::Key_Right;
        const Modifiers none;
        const Modifiers shift = Qt::ShiftModifier;
        const Modifiers control = Qt::ControlModifier;
        // The selection begins at 2: its length, and where cursor and selection are afterwards.
        const std::tuple<Qt::Key, Modifiers, int, int, int> rows[] = {
            {left, none, 3, 2, 0},   {right, none, 3, 5, 0},      {right, none, -2, 2, 0},
            {right, shift, 3, 6, 4}, {left, control, 3, 2, 0},    {right, control | shift, 3, 5, 0},
            {left, none, 0, 1, 0},   {Qt::Key_End, none, 3, 8, 0}};
        for (const auto &[key, modifiers, length, cursor, selected] : rows) {
            m_edit->setText(QStringLiteral("abcdefgh"));
            m_edit->setSelection(2, length);
            QTest::keyClick(m_edit, key, modifiers);
            QCOMPARE(m_edit->cursorPosition(), cursor);
            QCOMPARE(m_edit->selectionLength(), selected);
        }
    }

    void swallowsFilteredKeys()
    {
        const QSignalSpy returned(m_edit.data(), &QLineEdit::returnPressed);
        m_edit->setFilterKeys({Qt::Key_Return, Qt::Key_B});
        QTest::keyClicks(m_edit, QStringLiteral("abcB\r"));
        m_edit->setFilterKeys({});
        QTest::keyClicks(m_edit, QStringLiteral("b"));
        QCOMPARE(m_edit->text(), QStringLiteral("acb"));
        QVERIFY(returned.isEmpty());
    }

    void buttonsCallBackAndTakeNames()
    {
        // What is named before there is a button is lost; an empty text changes nothing.
        for (const QString &text : {kWord, kWord, QString()}) {
            const QString held = m_edit->getSurpotTrailBtn() ? kWord : QString();
            for (const char *name :
                 {"trailBtnObjName", "trailBtnTips", "leadBtnObjName", "leadBtnTips"}) {
                m_edit->setProperty(name, text);
                QCOMPARE(m_edit->property(name).toString(), held);
            }
            if (held.isEmpty()) {
                m_edit->setProperty("surpotTrailBtn", true);
                m_edit->setProperty("surpotLeadBtn", true);
            }
        }
        QString calls;
        m_edit->registerTrailFun([&](bool on) { calls += QStringLiteral("trail%1 ").arg(on); });
        m_edit->registerLeadFun([&](bool on) { calls += QStringLiteral("lead%1 ").arg(on); });
        m_edit->registerTrailFun({});
        for (QWidget *button : shownButtons(m_edit)) {
            QCOMPARE(button->size(), QSize(20, 20));
            static_cast<CusSvgPushButton *>(button)->setCheckable(true);
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(calls, QStringLiteral("lead1 trail1 "));
        QVERIFY(m_edit->hasFocus());
    }

    void trailingButtonIsReplacedLeadingOnesAddUp()
    {
        const QString sheet = QStringLiteral("CusLineEdit { qproperty-surpotTrailBtn: true;"
                                             " qproperty-trailBtnObjName: \"clear\" }"
                                             "#clear { qproperty-svgIconWidth: 7 }");
        // Qt goes over all widgets meanwhile, also over the button that is replaced.
        for (int round = 1; round <= 3; ++round) {
            qApp->setStyleSheet(sheet + QString(round, QLatin1Char(' ')));
            m_edit->setSurpotLeadBtn(true);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(m_edit->actions().size(), round + 1);
            QCOMPARE(shownButtons(m_edit).size(), round + 1);
            QCOMPARE(shownButtons(m_edit).last()->property("svgIconWidth"), QVariant(7));
        }
        m_edit->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(shownButtons(m_edit).first()->objectName(), QStringLiteral("clear"));
    }

    void trailingButtonHidesWithoutText()
    {
        m_edit->setSurpotTrailBtn(true);
        QString seen;
        // Blanks are text to a change of the text, and none to the switch.
        for (const char *text : {"", "x", "", "  "}) {
            m_edit->setText(QLatin1String(text));
            for (const bool hide : {true, false}) {
                m_edit->setEnableNoTextNotShowTrailBtn(hide);
                seen += QString::number(shownButtons(m_edit).size());
            }
        }
        QCOMPARE(seen, QStringLiteral("00110000"));
        m_edit->setEnableNoTextNotShowTrailBtn(true);
        m_edit->setText(QStringLiteral("   "));
        QCOMPARE(shownButtons(m_edit).size(), 1);
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
        QLineEdit next(m_window.data());
        next.show();
        m_edit->setSurpotTrailBtn(true);
        QTest::keyClick(m_edit, Qt::Key_Tab);
        QVERIFY(next.hasFocus());

        qApp->setStyleSheet(QStringLiteral("CusLineEdit:focus { background: #0000ff }"
                                           "CusLineEdit:disabled { background: #ff0000 }"));
        const auto ground = [this] { return TestKit::renderAt(m_edit).pixelColor(150, 3); };
        m_edit->setFocus();
        QCOMPARE(ground(), QColor(Qt::blue));
        m_edit->setDisabled(true);
        QCOMPARE(ground(), QColor(Qt::red));
    }

    void menuOffersWhatTheStateAllows()
    {
        const auto menuRows = [this](bool copied = true) {
            QGuiApplication::clipboard()->setText(copied ? kWord : QString());
            const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
            return rowsOf(menu.data()).toLatin1();
        };
        QCOMPARE(menuRows(), "!&Undo !&Redo - !Cu&t !&Copy &Paste !Delete - !Select All");
        m_edit->insert(kWord);
        QCOMPARE(menuRows(false), "&Undo !&Redo - !Cu&t !&Copy !&Paste !Delete - Select All");
        m_edit->selectAll();
        QCOMPARE(menuRows(), "&Undo !&Redo - Cu&t &Copy &Paste Delete - !Select All");
        m_edit->setEchoMode(QLineEdit::Password);
        QCOMPARE(menuRows(), "&Undo !&Redo - !Cu&t !&Copy &Paste Delete - !Select All");
        m_edit->setReadOnly(true);
        QCOMPARE(menuRows(), "!&Copy - !Select All");
        const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
        QVERIFY(qobject_cast<CusMenu *>(menu.data()));
        QCOMPARE(menu->actions().first()->text(),
                 QStringLiteral("&Copy\t")
                     + QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText));
    }

    void deleteEntrySearchesContent()
    {
        const std::tuple<const char *, int, int, const char *, int> rows[] = {
            {"gate", 0, 4, "", 0},
            {"a cam a cam", 2, 3, "a cam a ", 5},
            {"a  cam cam", 3, 3, "a cam ", 6},
            {" ab cd", 3, -2, " cd", 0},
            {"north   gate", 8, 4, "north   gate", 12},
            {"a   b", 1, 3, "a   b", 4}};
        for (const auto &[text, start, length, rest, cursor] : rows) {
            m_edit->setText(QLatin1String(text));
            m_edit->setSelection(start, length);
            const QScopedPointer<QMenu> menu(m_edit->createStandardContextMenu());
            menu->actions().at(6)->trigger();
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
        m_edit->setContextMenuPolicy(Qt::DefaultContextMenu);
        for (const int entries : {9, 6, 3, 0}) {
            m_edit->setReadOnly(entries < 6);
            m_edit->setRedoUndoMenuEnable(entries % 2 == 1);
            const QPointer<QMenu> menu = open();
            QVERIFY(menu);
            QCOMPARE(menu->objectName(), QStringLiteral("RightMenuPane"));
            QCOMPARE(menu->actions().size(), entries);
            QCOMPARE(m_edit->lastMenuGlobalRect(), menu->geometry());
            QVERIFY(!m_edit->isShowingContextMenu());
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!menu);
        }
        const QPointer<QMenu> last = open();
        delete m_edit;
        QVERIFY(!last);
    }

    void survivesDeletionByItsCallers()
    {
        m_edit->registerTrailFun([this](bool) { delete m_edit; });
        m_edit->setSurpotTrailBtn(true);
        m_edit->findChild<CusSvgPushButton *>()->click();
        QVERIFY(!m_edit);
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
        frame->setLineEditMaxLength(4);
        QCOMPARE(frame->text(), QStringLiteral("a"));
    }

    void frameArrangesWidgetsBesideTheEdit()
    {
        qApp->setStyleSheet(QStringLiteral("#CustomLineedit { border: 2px solid #00ff00 }"));
        ActionLineEdit frame;
        const auto leading = ActionLineEdit::LeadingPosition;
        const auto trailing = ActionLineEdit::TrailingPosition;
        const QLayout *layout = frame.layout();
        QWidget *edit = frame.lineedit();
        auto *one = new QLabel;
        QLabel two, unit;
        frame.addAction(&unit, trailing);
        QCOMPARE(frame.contentsMargins(), QMargins(0, 0, 5, 0));
        frame.addAction(one, leading);
        frame.addAction(&two, leading);
        for (QWidget *useless : QList<QWidget *>{nullptr, one, &unit, &frame, edit})
            frame.addAction(useless, trailing);
        frame.addAction(m_edit, ActionLineEdit::ActionLineeditActionPosition(7));
        QCOMPARE(layout->count(), 4);
        QCOMPARE(layout->indexOf(one), 0);
        QCOMPARE(layout->indexOf(edit), 2);
        // Nor does a new look bring back the margins that the border asks for.
        frame.show();
        QCOMPARE(frame.contentsMargins(), QMargins(5, 0, 5, 0));
        frame.setReadOnly(true);
        QCOMPARE(frame.contentsMargins(), QMargins(5, 0, 5, 0));

        for (QWidget *gone : QList<QWidget *>{nullptr, edit, &unit})
            frame.deleteAction(gone);
        delete one;
        frame.addAction(&unit, leading);
        QCOMPARE(layout->indexOf(&unit), 1);
        QCOMPARE(layout->indexOf(edit), 2);
        two.setParent(nullptr);
        unit.setParent(nullptr);
        QCOMPARE(frame.contentsMargins(), QMargins());
    }

    void filtersPasteIntoAPassword()
    {
        const QString copied = QString::fromUtf8("x东区 ab cd");
        QGuiApplication::clipboard()->setText(copied);
        ActionLineEdit frame;
        frame.lineedit()->setEchoMode(QLineEdit::Password);
        frame.setText(kWord);
        const auto pasted = [&frame](Modifiers modifiers = Qt::ControlModifier) {
            QTest::keyClick(frame.lineedit(), Qt::Key_V, modifiers);
            return frame.text();
        };
        QCOMPARE(pasted(Qt::ControlModifier | Qt::ShiftModifier), kWord);
        frame.setReadOnly(true);
        QCOMPARE(pasted(), kWord);
        frame.setReadOnly(false);
        QCOMPARE(pasted(), QStringLiteral("xabcd"));
        frame.setFilterPaste(false);
        QCOMPARE(pasted(), QStringLiteral("xabcd") + copied);
        frame.setFilterPaste(true);
        frame.lineedit()->setEchoMode(QLineEdit::Normal);
        frame.setText(QString());
        QCOMPARE(pasted(), copied);
    }
};

QTEST_MAIN(TestLineEdit)

#include "tst_lineedit.moc"
