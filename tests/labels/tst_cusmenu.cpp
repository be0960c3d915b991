#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusMenu>
#include <Vellum/CusSvgAction>
#include <Vellum/CusSvgPushButton>
#include <Vellum/ToolTipLabel>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

const QString kLong = QString(QStringLiteral("Loading bay west, second dome ")).repeated(6);
constexpr int kLeft = 8, kRight = 10, kIcon = 16, kSpace = 6;

QString shownTip()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *tip = qobject_cast<ToolTipLabel *>(widget); tip && tip->isVisible())
            return tip->text();
    }
    return {};
}

/// A place in the row of \a action, which Qt makes wider than the menu where its text is.
QPoint placeIn(const QMenu &menu, QAction *action)
{
    return menu.actionGeometry(action).topLeft() + QPoint(60, 8);
}

bool sendTipEvent(QMenu *menu, QAction *action)
{
    const QPoint place = placeIn(*menu, action);
    QHelpEvent event(QEvent::ToolTip, place, menu->mapToGlobal(place));
    return QApplication::sendEvent(menu, &event);
}

QStringList textsOf(QWidget *menu, const QColor &color = Qt::blue)
{
    return TestKit::drawnTexts([&](QPaintDevice *device) { menu->render(device); }, color);
}

} // namespace

class TestCusMenu : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CusColorConfig::instance()->setConfig({});
        qApp->setStyleSheet(QStringLiteral(
            "QMenu { color: #0000ff; background: #ffffff; border: 1px solid #000000 }"
            "QMenu:disabled { color: #8080ff }"
            "QMenu::item { padding: 6px 40px; background: transparent }"
            "QMenu::item:selected { background: #00ffff }"
            "CusSvgPushButton { border: none }"
            "#btn_menuCheckBoxChecked { background: #ff0000 }"
            "#btn_menuCheckBoxChecked:checked { background: #00ff00 }"
            "#btn_menuArrowRight { background: #ff8000 }"
            "#btn_menuArrowRight:disabled { background: #808080 }"
            "#btn_menuArrowDown { background: #800080 }"
            "#testIcon { background: #808000 }"));
    }

    void cleanup()
    {
        ToolTipLabel::showLabelText(QPoint(), QString(), nullptr);
        GuardedTest::cleanup();
    }

    void growsWithEachAdditionOnly()
    {
        CusMenu menu;
        QCOMPARE(menu.minimumWidth(), 180);
        QCOMPARE(menu.maximumWidth(), 400);
        QCOMPARE(menu.getMenuMaxWidth(), 0);
        QCOMPARE(menu.getActionWidth(nullptr), 0);
        const QFontMetrics metrics = menu.fontMetrics();
        const auto widthOf = [&](const QString &text) {
            return kLeft + kIcon + kSpace + metrics.boundingRect(text).width() + kIcon + kRight;
        };
        const QString text = QStringLiteral("Start the live view of the gate");
        QAction own(text);
        QMenu submenu(text + QStringLiteral("mm"));
        QAction *narrow = menu.addAction(QStringLiteral("A"));
        QCOMPARE(menu.minimumWidth(), 180);
        QCOMPARE(menu.getActionWidth(narrow), widthOf(QStringLiteral("A")));
        menu.addAction(&own);
        QCOMPARE(menu.minimumWidth(), widthOf(text));
        own.setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
        const int withShortcut =
            widthOf(text) + 10 + metrics.boundingRect(QStringLiteral("Ctrl+L")).width();
        QCOMPARE(menu.getActionWidth(&own), withShortcut);
        QCOMPARE(menu.minimumWidth(), widthOf(text));
        own.setShortcutVisibleInContextMenu(false);
        QCOMPARE(menu.getActionWidth(&own), widthOf(text));

        QCOMPARE(menu.addMenu(&submenu), submenu.menuAction());
        QCOMPARE(menu.minimumWidth(), widthOf(submenu.title()));
        QCOMPARE(menu.getMenuMaxWidth(), widthOf(submenu.title()));
        QCOMPARE(menu.addMenu(QIcon(), text)->menuAction()->text(), text);
        QCOMPARE(menu.addMenu(text)->title(), text);
        QSignalSpy triggered(&own, &QAction::changed);
        menu.addAction(QIcon(), text, nullptr, nullptr);
        menu.addAction(QIcon(), text, &own, SLOT(setDisabled(bool)), QKeySequence(Qt::Key_F9));
        menu.actions().constLast()->trigger();
        QVERIFY(own.isEnabled());
        QCOMPARE(triggered.count(), 0);

        const int count = menu.actions().size();
        menu.addAction(static_cast<QAction *>(nullptr));
        menu.addActions({nullptr, nullptr});
        QVERIFY(!menu.addMenu(static_cast<QMenu *>(nullptr)));
        QCOMPARE(menu.actions().size(), count);
        menu.addAction(QIcon(), kLong);
        QCOMPARE(menu.minimumWidth(), 400);
        menu.clear();
        QCOMPARE(menu.minimumWidth(), 400);
        QCOMPARE(menu.getMenuMaxWidth(), 0);
    }

    void marksStandInTheirColumns()
    {
        CusMenu menu;
        QAction *check = menu.addAction(QStringLiteral("Mark"));
        check->setCheckable(true);
        check->setChecked(true);
        check->setEnabled(false);
        auto *svg = new CusSvgAction(QStringLiteral("testIcon"), QStringLiteral("Mark"), &menu);
        menu.addAction(svg);
        QAction *separator = menu.addSeparator();
        CusMenu submenu(QStringLiteral("Mark"));
        menu.addMenu(&submenu);
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            menu.setLayoutDirection(direction);
            menu.resize(menu.sizeHint());
            const QImage image = TestKit::renderAt(&menu);
            const auto found = [&](QAction *action, QRgb color) {
                const QRect row = menu.actionGeometry(action);
                return TestKit::extentOf(image.copy(row), QColor(color));
            };
            const auto middle = [&](QAction *action, int size) {
                return (menu.actionGeometry(action).height() - size) / 2;
            };
            const int width = menu.actionGeometry(check).width();
            QCOMPARE(found(check, 0x00ff00), QRect(kLeft, middle(check, 16), 16, 16));
            QCOMPARE(found(svg, 0x808000), QRect(kLeft, middle(svg, 20), 20, 20));
            const QRgb arrow = direction == Qt::LeftToRight ? 0xff8000 : 0x800080;
            const QRect arrowPlace(width - kRight - kIcon, middle(submenu.menuAction(), 16), 16,
                                   16);
            QCOMPARE(found(submenu.menuAction(), arrow), arrowPlace);
            // The texts of all rows begin, or end, at one line; a disabled one is dim.
            const QRect text = found(svg, 0x0000ff);
            QCOMPARE(found(submenu.menuAction(), 0x0000ff).left(), text.left());
            QCOMPARE(found(check, 0x8080ff).left(), text.left());
            QVERIFY(found(check, 0x0000ff).isEmpty());
            const int textLeft = kLeft + kIcon + kSpace;
            if (direction == Qt::LeftToRight)
                QVERIFY(qAbs(text.left() - textLeft) <= 3);
            else
                QVERIFY(qAbs(text.right() - (width - kRight - kIcon - kSpace)) <= 3);
            QVERIFY(found(separator, 0x0000ff).isEmpty());
        }
        menu.setLayoutDirection(Qt::LeftToRight);
        submenu.menuAction()->setEnabled(false);
        QVERIFY(TestKit::countOf(TestKit::renderAt(&menu), QColor(0x808080)) >= 256);
        menu.setActiveAction(svg);
        const QRect row = menu.actionGeometry(svg);
        QCOMPARE(TestKit::renderAt(&menu).pixelColor(row.center().x(), row.top() + 1),
                 QColor(0x00ffff));
    }

    void marginsMoveTheColumns()
    {
        CusMenu menu;
        QAction *check = menu.addAction(QStringLiteral("Mark"));
        check->setCheckable(true);
        check->setChecked(true);
        menu.setLeftActionMargin(30);
        menu.setRightActionMargin(20);
        QCOMPARE(menu.getLeftActionMargin() + menu.getRightActionMargin(), 50);
        QCOMPARE(TestKit::extentOf(TestKit::renderAt(&menu), QColor(0x00ff00)).left(),
                 menu.actionGeometry(check).left() + 30);
        for (int margin : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -5}) {
            menu.setLeftActionMargin(margin);
            menu.setRightActionMargin(margin);
            menu.addAction(QStringLiteral("Mark"));
            menu.grab();
            QVERIFY(menu.minimumWidth() >= 180 && menu.minimumWidth() <= 400);
        }
    }

    void shortcutsStandBehindTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shortcut");
        QTest::addColumn<bool>("shows");
        QTest::addColumn<QStringList>("texts");
        const QString key = QStringLiteral("Ctrl+L");
        const QString tabbed = QStringLiteral("Gate\t12 events");
        const auto add = [](const char *name, const QString &text, const QString &shortcut,
                            bool shows, const QStringList &texts) {
            QTest::newRow(name) << text << shortcut << shows << texts;
        };
        add("shortcut", QStringLiteral("Gate"), key, true, {key, QStringLiteral("Gate")});
        add("hidden", QStringLiteral("Gate"), key, false, {QStringLiteral("Gate")});
        add("tab", tabbed, {}, true, {QStringLiteral("12 events"), QStringLiteral("Gate")});
        add("tab at the start", QStringLiteral("\tGate"), {}, true, {QStringLiteral("Gate")});
        add("none", QStringLiteral("Gate"), {}, true, {QStringLiteral("Gate")});
    }
    void shortcutsStandBehindTheText()
    {
        QFETCH(QString, text);
        QFETCH(QString, shortcut);
        QFETCH(bool, shows);
        QFETCH(QStringList, texts);
        CusMenu menu;
        QAction *action = menu.addAction(text);
        action->setShortcut(QKeySequence(shortcut));
        action->setShortcutVisibleInContextMenu(shows);
        menu.resize(menu.sizeHint());
        // What the base drew is below the rows.
        QStringList all;
        for (const QString &one : textsOf(&menu))
            all.append(one.trimmed());
        QCOMPARE(all.mid(all.size() - texts.size()), texts);
        if (texts.size() < 2)
            return;
        const QRect ink = TestKit::extentOf(TestKit::renderAt(&menu), Qt::blue, 80);
        QVERIFY(qAbs(ink.right() - (menu.width() - 1 - kRight - kIcon - kSpace)) <= 4);
    }

    void overlongTextsBecomeTips()
    {
        CusMenu menu;
        QAction *fits = menu.addAction(QStringLiteral("Gate"));
        QAction *overlong = menu.addAction(kLong);
        QAction *removed = menu.addAction(kLong);
        QMenu *events = menu.addMenu(kLong);
        events->addAction(QStringLiteral("Video lost"));
        fits->setToolTip(QStringLiteral("the client's own"));
        menu.popup(QPoint(20, 20));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(menu.width(), 400);
        menu.grab();
        QCOMPARE(overlong->toolTip(), kLong);
        const QString shown = textsOf(&menu).constLast();
        QVERIFY(shown.endsWith(QChar(0x2026)) && kLong.startsWith(shown.chopped(1)));
        // The frame stands at the right of overlong rows, too.
        const QRect row = menu.actionGeometry(overlong);
        const QImage image = TestKit::renderAt(&menu);
        for (int y = row.top(); y <= row.bottom(); ++y)
            QCOMPARE(image.pixelColor(399, y), QColor(Qt::black));

        QVERIFY(sendTipEvent(&menu, fits));
        QCOMPARE(shownTip(), QString());
        QVERIFY(sendTipEvent(&menu, overlong));
        QCOMPARE(shownTip(), kLong);
        overlong->setText(QStringLiteral("Short"));
        menu.grab();
        QTest::mousePress(&menu, Qt::RightButton, Qt::NoModifier, QPoint(-200, -200));
        menu.popup(QPoint(20, 20));
        QVERIFY(sendTipEvent(&menu, overlong));
        QCOMPARE(shownTip(), QString());

        // A submenu that opens by the timer takes the events that would ask for the tip.
        const QPoint place = placeIn(menu, events->menuAction());
        QCursor::setPos(menu.mapToGlobal(place));
        QTest::mouseMove(&menu, place - QPoint(5, 0));
        QTest::mouseMove(&menu, place);
        QTRY_VERIFY(events->isVisible());
        qDebug() << menu.actionAt(menu.mapFromGlobal(QCursor::pos())) << events->menuAction()
                 << events->menuAction()->toolTip() << menu.isVisible() << shownTip();
        QTRY_COMPARE(shownTip(), kLong);

        menu.removeAction(removed);
        menu.setToolTipsVisible(false);
        QVERIFY(!sendTipEvent(&menu, fits) || shownTip().isEmpty());
        menu.close();
    }

    void behavesAsAMenu()
    {
        CusMenu menu(QStringLiteral("Camera"));
        QAction *live = menu.addAction(QStringLiteral("&Live"));
        QAction *motion = menu.addAction(QStringLiteral("&Motion"));
        motion->setCheckable(true);
        CusMenu submenu(QStringLiteral("&Stream"));
        QAction *stream = submenu.addAction(QStringLiteral("Sub stream"));
        menu.addMenu(&submenu);
        QCOMPARE(menu.title(), QStringLiteral("Camera"));
        QVERIFY(menu.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
        QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(menu.toolTipsVisible());
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&menu);
        QCOMPARE(face->role(), QAccessible::PopupMenu);
        QCOMPARE(face->childCount(), 3);
        QCOMPARE(face->child(1)->text(QAccessible::Name), QStringLiteral("Motion"));

        const auto keys = [&](const QVector<Qt::Key> &all) {
            menu.popup(QPoint(20, 20));
            for (Qt::Key key : all)
                QTest::keyClick(QApplication::activePopupWidget(), key);
        };
        QSignalSpy triggered(&menu, &QMenu::triggered);
        keys({Qt::Key_Down, Qt::Key_Return});
        keys({Qt::Key_M});
        keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return});
        QVector<QAction *> actions;
        for (const QList<QVariant> &one : qAsConst(triggered))
            actions.append(one.first().value<QAction *>());
        QCOMPARE(actions, (QVector<QAction *>{live, motion, stream}));
        QVERIFY(motion->isChecked());
        keys({Qt::Key_Escape});
        QVERIFY(!menu.isVisible());

        menu.popup(QPoint(20, 20));
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                          menu.actionGeometry(motion).center());
        QVERIFY(!motion->isChecked());
    }

    void oddRows()
    {
        CusMenu menu;
        auto *widgetAction = new QWidgetAction(&menu);
        auto *field = new QFrame;
        field->setFixedSize(100, 30);
        widgetAction->setDefaultWidget(field);
        widgetAction->setText(QStringLiteral("hidden"));
        menu.addAction(widgetAction);
        menu.addAction(QString(1000000, QLatin1Char('m')));
        menu.addAction(QString())->setVisible(false);
        auto *svg = new CusSvgAction(QStringLiteral("testIcon"), QString(), &menu);
        menu.addAction(svg);
        delete svg->getSvgActionBtn();
        menu.popup(QPoint(20, 20));
        QVERIFY(!textsOf(&menu).contains(QStringLiteral("hidden")));
        delete svg;
        menu.grab();
        menu.close();

        // Rows that don't fit on the screen scroll, and leave the arrows at both ends alone.
        menu.clear();
        for (int i = 0; i < 300; ++i) {
            QAction *action = menu.addAction(QStringLiteral("Camera"));
            action->setCheckable(true);
            action->setChecked(true);
        }
        menu.popup(QPoint(20, 20));
        QTest::keyClick(&menu, Qt::Key_PageDown);
        for (int i = 0; i < 60; ++i)
            QTest::keyClick(&menu, Qt::Key_Down);
        const QRect marks = TestKit::extentOf(TestKit::renderAt(&menu), QColor(0x00ff00));
        const int scroller =
            menu.style()->pixelMetric(QStyle::PM_MenuScrollerHeight, nullptr, &menu);
        qDebug() << menu.geometry() << menu.actionGeometry(menu.actions().constFirst())
                 << menu.actionGeometry(menu.actions().constLast()) << marks << scroller;
        QVERIFY(menu.actionGeometry(menu.actions().constFirst()).top() < 0);
        QVERIFY(marks.top() >= scroller && marks.bottom() < menu.height() - scroller);

        auto *dying = new CusMenu;
        dying->addAction(kLong);
        dying->popup(QPoint(20, 20));
        sendTipEvent(dying, dying->actions().constFirst());
        delete dying;
    }
};

QTEST_MAIN(TestCusMenu)
#include "tst_cusmenu.moc"
