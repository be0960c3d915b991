#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/ActionLineEdit>
#include <Vellum/CusLineEdit>
#include <Vellum/CusMenu>
#include <Vellum/CusSvgPushButton>

#include <QtTest>
#include <QtWidgets>

namespace {

constexpr int kLimit = 64;
const QString kWord = QStringLiteral("gate");
const auto kControl = Qt::KeyboardModifiers(Qt::ControlModifier);
const auto kShift = Qt::KeyboardModifiers(Qt::ShiftModifier);

/// The edit's buttons that are shown, from left to right.
std::vector<CusSvgPushButton *> shownButtons(const QWidget *edit)
{
    std::vector<CusSvgPushButton *> shown;
    const QList<CusSvgPushButton *> buttons = edit->findChildren<CusSvgPushButton *>();
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(shown),
                 [](const QWidget *button) { return button->isVisible(); });
    std::sort(shown.begin(), shown.end(),
              [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    return shown;
}

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
        QTest::keyClick(m_edit, Qt::Key_Space);
        QCOMPARE(changed + edited, (QList<QVariantList>{{simple}, {simple}, {simple}}));
        QCOMPARE(m_edit->text(), simple);
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
        CusLineEdit own, negative, stopped, behind, overlong;
        for (CusLineEdit *edit : {&own, &negative, &stopped, &behind, &overlong})
            edit->setText(QString(kLimit + 1, QLatin1Char('x')));
        own.setMaxLength(3);
        negative.setMaxLength(-7);
        stopped.setStopTimer();
        behind.QLineEdit::setMaxLength(3);
        QCOMPARE(own.text().size() + negative.text().size(), 3);
        QTRY_COMPARE(behind.maxLength(), kLimit);
        QTRY_COMPARE(overlong.maxLength(), kLimit + 1);
        QTRY_VERIFY(!stopped.findChild<QTimer *>()->isActive());
        overlong.QLineEdit::setMaxLength(200);
        overlong.backspace();
        QCOMPARE(own.maxLength(), 3);
        QCOMPARE(stopped.maxLength(), 32767);
        QCOMPARE(overlong.maxLength(), 200);
    }

    void keysCollapseASelectionOrAreSwallowed()
    {
        constexpr Qt::Key left = Qt::Key_Left, right = Qt::Key_Right;
        // The selection begins at 2: its length, and where cursor and selection are afterwards.
        const std::tuple<Qt::Key, Qt::KeyboardModifiers, int, int, int> rows[] = {
            {left, {}, 3, 2, 0},         {right, {}, 3, 5, 0},
            {right, {}, -2, 2, 0},       {right, kShift, 3, 6, 4},
            {left, kControl, 3, 2, 0},   {right, kControl | kShift, 3, 5, 0},
            {left, {}, 0, 1, 0},         {Qt::Key_End, {}, 3, 8, 0},
            {Qt::Key_B, kShift, 3, 5, 3}};
        m_edit->setFilterKeys({Qt::Key_Return, Qt::Key_B});
        for (const auto &[key, modifiers, length, cursor, selected] : rows) {
            m_edit->setText(QStringLiteral("abcdefgh"));
            m_edit->setSelection(2, length);
            QTest::keyClick(m_edit, key, modifiers);
            QCOMPARE(m_edit->cursorPosition(), cursor);
            QCOMPARE(m_edit->selectionLength(), selected);
        }
        m_edit->setFilterKeys({});
        QTest::keyClick(m_edit, Qt::Key_B);
        QCOMPARE(m_edit->text(), QStringLiteral("abbfgh"));
    }

    void buttonsCallBackAndTakeNames()
    {
        // What is named before there is a button is lost; an empty text changes nothing.
        for (const bool there : {false, true}) {
            m_edit->setProperty("surpotTrailBtn", there);
            m_edit->setProperty("surpotLeadBtn", there);
            for (const char *name :
                 {"trailBtnObjName", "trailBtnTips", "leadBtnObjName", "leadBtnTips"}) {
                for (const QString &text : {kWord, QString()})
                    m_edit->setProperty(name, text);
                QCOMPARE(m_edit->property(name).toString(), there ? kWord : QString());
            }
        }
        QString calls;
        m_edit->registerTrailFun([&](bool on) { calls += QStringLiteral("trail%1 ").arg(on); });
        m_edit->registerLeadFun([&](bool on) { calls += QStringLiteral("lead%1 ").arg(on); });
        m_edit->registerTrailFun({});
        for (CusSvgPushButton *button : shownButtons(m_edit)) {
            button->setCheckable(true);
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(calls, QStringLiteral("lead1 trail1 "));
        QVERIFY(m_edit->hasFocus());
        // A function may delete its button, or the whole edit.
        m_edit->registerLeadFun([this](bool) { delete shownButtons(m_edit).front(); });
        m_edit->registerTrailFun([this](bool) { delete m_edit; });
        QTest::mouseClick(shownButtons(m_edit).front(), Qt::LeftButton);
        m_edit->resize(180, 28);
        QCOMPARE(m_edit->actions().size(), 1);
        shownButtons(m_edit).front()->click();
        QVERIFY(!m_edit);
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
            QCOMPARE(int(shownButtons(m_edit).size()), round + 1);
            QCOMPARE(shownButtons(m_edit).back()->property("svgIconWidth"), QVariant(7));
        }
        m_edit->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(shownButtons(m_edit).front()->objectName(), QStringLiteral("clear"));
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
        m_edit->clear();
        m_edit->setSurpotTrailBtn(true);
        QVERIFY(shownButtons(m_edit).empty());
        m_edit->setText(QStringLiteral("   "));
        QVERIFY(!shownButtons(m_edit).empty());
    }

    void keepsWhatALineEditDoes()
    {
        QTest::keyClicks(m_edit, kWord);
        QInputMethodEvent commit;
        commit.setCommitString(QString::fromUtf8("东区"));
        QCoreApplication::sendEvent(m_edit, &commit);
        QCOMPARE(m_edit->text(), QString::fromUtf8("gate东区"));
        QTest::keyClick(m_edit, Qt::Key_Z, kControl);
        QVERIFY(m_edit->isRedoAvailable());
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(m_edit);
        QCOMPARE(face->role(), QAccessible::EditableText);
        QCOMPARE(face->text(QAccessible::Value), m_edit->text());

        const QSignalSpy pressed(m_edit.data(), &CusLineEdit::signalMousePressed);
        QTest::mousePress(m_edit, Qt::RightButton);
        QCOMPARE(pressed.size(), 1);
        QLineEdit next(m_window.data());
        next.show();
        m_edit->setSurpotTrailBtn(true);
        QTest::keyClick(m_edit, Qt::Key_Tab);
        QVERIFY(next.hasFocus());
    }

    void menuOffersWhatTheStateAllows()
    {
        // "-" is a separator, "!" precedes an entry that is disabled.
        const auto menuRows = [this](bool copied = true) {
            QGuiApplication::clipboard()->setText(copied ? kWord : QString());
            QByteArray rows;
            const QList<QAction *> entries = m_edit->createStandardContextMenu()->actions();
            for (const QAction *entry : entries)
                rows += (entry->isSeparator()     ? "-"
                             : entry->isEnabled() ? ""
                                                  : "!")
                    + entry->text().section(QLatin1Char('\t'), 0, 0).toLatin1() + ' ';
            return rows.trimmed();
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
    }

    void deleteEntrySearchesContent()
    {
        const std::tuple<const char *, int, int, const char *, int> rows[] = {
            {"gate", 0, 4, "", 0},
            {"a cam a cam", 2, 3, "a cam a ", 5},
            {"a  cam cam", 3, 3, "a cam ", 6},
            {" ab cd", 3, -2, " cd", 0},
            {"a   b", 1, 3, "a   b", 4}};
        for (const auto &[text, start, length, rest, cursor] : rows) {
            m_edit->setText(QLatin1String(text));
            m_edit->setSelection(start, length);
            m_edit->createStandardContextMenu()->actions().at(6)->trigger();
            QCOMPARE(m_edit->QLineEdit::text(), QLatin1String(rest));
            QCOMPARE(m_edit->cursorPosition(), cursor);
        }
    }

    void menuOpensWhereThePolicyAllows()
    {
        const auto open = [this] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(50, 50));
            QCoreApplication::sendEvent(m_edit, &event);
            return QPointer<CusMenu>(qobject_cast<CusMenu *>(QApplication::activePopupWidget()));
        };
        QVERIFY(!open());
        m_edit->setContextMenuPolicy(Qt::DefaultContextMenu);
        for (const int entries : {9, 6, 3, 0}) {
            m_edit->setReadOnly(entries < 6);
            m_edit->setRedoUndoMenuEnable(entries % 2 == 1);
            const QPointer<CusMenu> menu = open();
            QVERIFY(menu);
            QCOMPARE(menu->objectName(), QStringLiteral("RightMenuPane"));
            QCOMPARE(menu->actions().size(), entries);
            QCOMPARE(m_edit->lastMenuGlobalRect(), menu->geometry());
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!menu);
        }
    }

    void frameShowsStatesOfItsEdit()
    {
        qApp->setStyleSheet(QStringLiteral(
            "#CustomLineedit { background: #00ff00 }"
            "#CustomLineedit[hasfocus=\"true\"] { background: #0000ff }"
            "#CustomLineedit[readonly=\"true\"] { background: #ff0000 }"
            "[editNoBorder=\"true\"] #lineEdit_addr { background: transparent; border: none }"));
        struct FocusLog : ActionLineEdit
        {
            using ActionLineEdit::ActionLineEdit;
            QString log;
            void lineEditFocusIn() override { log += QLatin1Char('+'); }
            void lineEidtFocusOut() override { log += QLatin1Char('-'); }
        };
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
            frame->setDisabled(on);
            QVERIFY(frame->lineedit()->isReadOnly() == on && frame->isEnabled() == !on);
            QCOMPARE(frame->lineedit()->testAttribute(Qt::WA_ForceDisabled), on);
        }
    }

    void frameArrangesWidgetsBesideTheEdit()
    {
        qApp->setStyleSheet(QStringLiteral("#CustomLineedit { border: 2px solid #00ff00 }"));
        ActionLineEdit frame;
        const auto leading = frame.LeadingPosition;
        const auto trailing = frame.TrailingPosition;
        QLayout *layout = frame.layout();
        QWidget *edit = frame.lineedit();
        auto *one = new QLabel;
        QLabel two, unit, own;
        frame.addAction(&unit, trailing);
        QCOMPARE(frame.contentsMargins(), QMargins(0, 0, 5, 0));
        frame.addAction(one, leading);
        frame.addAction(&two, leading);
        for (QWidget *useless : std::initializer_list<QWidget *>{nullptr, one, &unit, &frame, edit})
            frame.addAction(useless, trailing);
        frame.addAction(m_edit, ActionLineEdit::ActionLineeditActionPosition(7));
        QCOMPARE(layout->count(), 4);
        QCOMPARE(layout->indexOf(edit), 2);
        // Nor does a new look bring back the margins that the border asks for.
        frame.show();
        frame.setReadOnly(true);
        QCOMPARE(frame.contentsMargins(), QMargins(5, 0, 5, 0));

        layout->addWidget(&own);
        for (QWidget *gone : std::initializer_list<QWidget *>{nullptr, edit, &unit, &own})
            frame.deleteAction(gone);
        delete one;
        frame.addAction(&unit, leading);
        QCOMPARE(layout->count(), 3);
        QCOMPARE(layout->indexOf(&unit), 1);
        for (QWidget *label : {&two, &unit, &own})
            label->setParent(nullptr);
        QCOMPARE(frame.contentsMargins(), QMargins());
    }

    void filtersPasteIntoAPassword()
    {
        const QString copied = QString::fromUtf8("x东区 ab cd");
        QGuiApplication::clipboard()->setText(copied);
        ActionLineEdit frame;
        const auto pasted = [&frame](Qt::KeyboardModifiers modifiers = kControl) {
            QTest::keyClick(frame.lineedit(), Qt::Key_V, modifiers);
            return frame.text();
        };
        QCOMPARE(pasted(), copied);
        frame.lineedit()->setEchoMode(QLineEdit::Password);
        frame.setText(kWord);
        QCOMPARE(pasted(kControl | kShift), kWord);
        QCOMPARE(pasted(), QStringLiteral("xabcd"));
        frame.setFilterPaste(false);
        QCOMPARE(pasted(), QStringLiteral("xabcd") + copied);
    }
};

QTEST_MAIN(TestLineEdit)

#include "tst_lineedit.moc"
