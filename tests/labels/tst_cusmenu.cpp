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
const QPoint kPopup(20, 20);
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

QStringList textsOf(QWidget *menu)
{
    return TestKit::drawnTexts([&](QPaintDevice *device) { menu->render(device); }, Qt::blue);
}

QAction *addChecked(CusMenu *menu)
{
    QAction *action = menu->addAction(QStringLiteral("Mark"));
    action->setCheckable(true);
    action->setChecked(true);
    return action;
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
            "#btn_menuCheckBoxChecked:checked { background: #00ff00 }"
            "#btn_menuArrowRight { background: #ff8000 }"
            "#btn_menuArrowRight:disabled { background: #808080 }"
            "#btn_menuArrowDown { background: #800080 }"
            "#testIcon { background: #808000 }"));
    }

    void growsWithEachAdditionOnly()
    {
        CusMenu menu;
        QCOMPARE(menu.minimumWidth(), 180);
        QCOMPARE(menu.maximumWidth(), 400);
        QCOMPARE(menu.getMenuMaxWidth() + menu.getActionWidth(nullptr), 0);
        const QFontMetrics metrics = menu.fontMetrics();
        const auto widthOf = [&](const QString &text) {
            return kLeft + kIcon + kSpace + metrics.boundingRect(text).width() + kIcon + kRight;
        };
        const QString text = QStringLiteral("Start the live view of the gate");
        QAction own(text);
        QMenu submenu(text + QStringLiteral("mm"));
        menu.addAction(QStringLiteral("A"));
        QCOMPARE(menu.minimumWidth(), 180);
        menu.addAction(&own);
        own.setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
        QCOMPARE(menu.getActionWidth(&own),
                 widthOf(text) + 10 + metrics.boundingRect(QStringLiteral("Ctrl+L")).width());
        QCOMPARE(menu.minimumWidth(), widthOf(text));
        QCOMPARE(menu.addMenu(&submenu), submenu.menuAction());
        QCOMPARE(menu.minimumWidth(), widthOf(submenu.title()));
        QCOMPARE(menu.getMenuMaxWidth(), menu.getActionWidth(&own));
        menu.addAction(QIcon(), text, nullptr, nullptr);

        const int count = menu.actions().size();
        menu.addAction(static_cast<QAction *>(nullptr));
        menu.addActions({nullptr, nullptr});
        QVERIFY(!menu.addMenu(static_cast<QMenu *>(nullptr)));
        QCOMPARE(menu.actions().size(), count);
        menu.addMenu(kLong);
        menu.clear();
        QCOMPARE(menu.minimumWidth(), 400);
    }

    void marksStandInTheirColumns()
    {
        CusMenu menu;
        QAction *check = addChecked(&menu);
        check->setEnabled(false);
        auto *svg = new CusSvgAction(QStringLiteral("testIcon"), QStringLiteral("Mark"), &menu);
        menu.addAction(svg);
        CusMenu submenu(QStringLiteral("Mark"));
        QAction *branch = menu.addMenu(&submenu);
        for (Qt::LayoutDirection direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            const bool mirrored = direction == Qt::RightToLeft;
            menu.setLayoutDirection(direction);
            menu.resize(menu.sizeHint());
            const QImage image = TestKit::renderAt(&menu);
            const auto found = [&](QAction *action, QRgb color) {
                return TestKit::extentOf(image.copy(menu.actionGeometry(action)), QColor(color));
            };
            const QSize row = menu.actionGeometry(check).size();
            const int end = row.width() - kRight - kIcon;
            const int top = (row.height() - 16) / 2;
            QCOMPARE(found(check, 0x00ff00), QRect(kLeft, top, 16, 16));
            QCOMPARE(found(svg, 0x808000), QRect(kLeft, (row.height() - 20) / 2, 20, 20));
            QCOMPARE(found(branch, mirrored ? 0x800080 : 0xff8000), QRect(end, top, 16, 16));
            // The texts of all rows begin, or end, at one line; a disabled one is dim.
            const QRect text = found(svg, 0x0000ff);
            QCOMPARE(found(branch, 0x0000ff).left(), text.left());
            QCOMPARE(found(check, 0x8080ff).left(), text.left());
            QVERIFY(found(check, 0x0000ff).isEmpty());
            QVERIFY(qAbs(mirrored ? text.right() - (end - kSpace)
                                  : text.left() - (kLeft + kIcon + kSpace))
                    <= 3);
        }
        branch->setEnabled(false);
        QVERIFY(TestKit::countOf(TestKit::renderAt(&menu), QColor(0x808080)) >= 256);
        menu.setActiveAction(svg);
        QCOMPARE(
            TestKit::renderAt(&menu).pixelColor(menu.actionGeometry(svg).topLeft() + QPoint(90, 1)),
            QColor(0x00ffff));

        menu.setLeftActionMargin(30);
        QCOMPARE(TestKit::extentOf(TestKit::renderAt(&menu), QColor(0x00ff00)).left(),
                 menu.actionGeometry(check).left() + 30);
        menu.setLeftActionMargin(std::numeric_limits<int>::max());
        menu.setRightActionMargin(std::numeric_limits<int>::min());
        menu.addAction(QStringLiteral("Mark"));
        menu.grab();
        QVERIFY(menu.minimumWidth() >= 180 && menu.minimumWidth() <= 400);
    }

    void shortcutsStandBehindTheText()
    {
        const QString gate = QStringLiteral("Gate"), key = QStringLiteral("Ctrl+L");
        const QString events = QStringLiteral("12 events");
        const struct
        {
            QString text, shortcut;
            bool shows;
            QStringList drawn;
        } rows[] = {
            {gate, key, true, {key, gate}},
            {gate, key, false, {gate}},
            {gate + QLatin1Char('\t') + events, QString(), true, {events, gate}},
            {QLatin1Char('\t') + gate, QString(), true, {QLatin1Char(' ') + gate}},
        };
        for (const auto &row : rows) {
            CusMenu menu;
            QAction *action = menu.addAction(row.text);
            action->setShortcut(QKeySequence(row.shortcut));
            action->setShortcutVisibleInContextMenu(row.shows);
            menu.resize(menu.sizeHint());
            // What the base drew comes first, and is covered.
            QStringList last = textsOf(&menu);
            last = last.mid(last.size() - row.drawn.size());
            QCOMPARE(last, row.drawn);
            const int end = menu.width() - 1 - kRight - kIcon - kSpace;
            const QRect ink = TestKit::extentOf(TestKit::renderAt(&menu), Qt::blue, 80);
            QCOMPARE(qAbs(ink.right() - end) <= 4, row.drawn.size() == 2);
        }
    }

    void overlongTextsBecomeTips()
    {
        CusMenu menu;
        QAction *fits = menu.addAction(QStringLiteral("Gate"));
        fits->setToolTip(QStringLiteral("the client's own"));
        QAction *overlong = menu.addAction(kLong);
        QMenu *events = menu.addMenu(kLong);
        events->addAction(QStringLiteral("Video lost"));
        menu.popup(kPopup);
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(menu.width(), 400);
        const QString shown = textsOf(&menu).constLast();
        QVERIFY(shown.endsWith(QChar(0x2026)) && kLong.startsWith(shown.chopped(1)));
        QCOMPARE(overlong->toolTip(), kLong);
        // The frame stands at the right of overlong rows, too.
        const QRect row = menu.actionGeometry(overlong);
        const QImage edge = TestKit::renderAt(&menu).copy(399, row.top(), 1, row.height());
        QCOMPARE(TestKit::countOf(edge, Qt::black), row.height());

        QVERIFY(sendTipEvent(&menu, fits));
        QCOMPARE(shownTip(), QString());
        QVERIFY(sendTipEvent(&menu, overlong));
        QCOMPARE(shownTip(), kLong);
        menu.close();
        QTRY_COMPARE(shownTip(), QString());

        // A submenu that opens by the timer takes the events that would ask for the tip.
        menu.removeAction(overlong);
        delete overlong;
        menu.popup(kPopup);
        const QPoint place = placeIn(menu, events->menuAction());
        QCursor::setPos(menu.mapToGlobal(place));
        QTest::mouseMove(&menu, place - QPoint(5, 0));
        QTest::mouseMove(&menu, place);
        QTRY_COMPARE(shownTip(), kLong);
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
        const auto flags = Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::Popup;
        QCOMPARE(menu.windowFlags() & flags, flags);
        QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground) && menu.toolTipsVisible());
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&menu);
        QCOMPARE(face->role(), QAccessible::PopupMenu);
        QCOMPARE(face->child(1)->text(QAccessible::Name), QStringLiteral("Motion"));

        QSignalSpy triggered(&menu, &QMenu::triggered);
        const QVector<QVector<Qt::Key>> all{{Qt::Key_Down, Qt::Key_Return},
                                            {Qt::Key_M},
                                            {Qt::Key_Up, Qt::Key_Right, Qt::Key_Return},
                                            {Qt::Key_Escape}};
        for (const auto &keys : all) {
            menu.popup(kPopup);
            for (Qt::Key key : keys)
                QTest::keyClick(QApplication::activePopupWidget(), key);
            QVERIFY(!menu.isVisible());
        }
        QCOMPARE(triggered.count(), 3);
        for (QAction *action : {live, motion, stream})
            QCOMPARE(triggered.takeFirst().first().value<QAction *>(), action);
    }

    void oddRows()
    {
        CusMenu menu;
        auto *widgetAction = new QWidgetAction(&menu);
        widgetAction->setDefaultWidget(new QFrame);
        widgetAction->defaultWidget()->setFixedSize(100, 30);
        widgetAction->setText(QStringLiteral("hidden"));
        menu.addAction(widgetAction);
        menu.addAction(QString(1000000, QLatin1Char('m')));
        menu.addAction(QString())->setVisible(false);
        auto *svg = new CusSvgAction(QStringLiteral("testIcon"), QString(), &menu);
        menu.addAction(svg);
        delete svg->getSvgActionBtn();
        menu.popup(kPopup);
        QVERIFY(!textsOf(&menu).contains(QStringLiteral("hidden")));
        delete svg;
        menu.grab();
    }
};

QTEST_MAIN(TestCusMenu)
#include "tst_cusmenu.moc"
