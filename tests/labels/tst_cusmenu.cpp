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
#include <tuple>

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

QStringList textsOf(QWidget *menu)
{
    return TestKit::drawnTexts([&](QPaintDevice *device) { menu->render(device); }, Qt::blue);
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
            "#btn_menuArrowDown { background: #800080 }"
            "#testIcon { background: #808000 }"));
    }

    void growsWithEachAdditionOnly()
    {
        CusMenu menu;
        QCOMPARE(menu.minimumWidth(), 180);
        QCOMPARE(menu.getMenuMaxWidth() + menu.getActionWidth(nullptr), 0);
        const QFontMetrics metrics = menu.fontMetrics();
        const auto widthOf = [&](const QString &text) {
            return kLeft + kIcon + kSpace + metrics.boundingRect(text).width() + kIcon + kRight;
        };
        const QString text = QStringLiteral("Start the live view of the gate");
        QAction own(text);
        QMenu submenu(text + QStringLiteral("mm"));
        menu.addAction(&own);
        own.setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
        QCOMPARE(menu.getActionWidth(&own),
                 widthOf(text) + 10 + metrics.boundingRect(QStringLiteral("Ctrl+L")).width());
        QCOMPARE(menu.minimumWidth(), widthOf(text));
        menu.addMenu(&submenu);
        QCOMPARE(menu.minimumWidth(), widthOf(submenu.title()));
        QCOMPARE(menu.getMenuMaxWidth(), menu.getActionWidth(&own));
        menu.addAction(QIcon(), text, nullptr, nullptr);
        menu.addAction(static_cast<QAction *>(nullptr));
        menu.addActions({nullptr, nullptr});
        QVERIFY(!menu.addMenu(static_cast<QMenu *>(nullptr)));
        QCOMPARE(menu.actions().size(), 3);
        menu.addMenu(kLong);
        menu.clear();
        QCOMPARE(menu.minimumWidth(), 400);
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
        QAction *branch = menu.addMenu(QStringLiteral("Mark"))->menuAction();
        menu.setActiveAction(svg);
        for (const bool mirrored : {true, false}) {
            menu.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
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
            QCOMPARE(found(svg, 0x00ffff).size(), row);
            // The texts of all rows begin, or end, at one line; a disabled one is dim.
            const QRect text = found(svg, 0x0000ff);
            QCOMPARE(found(branch, 0x0000ff).left(), text.left());
            QCOMPARE(found(check, 0x8080ff).left(), text.left());
            QVERIFY(found(check, 0x0000ff).isEmpty());
            const int edge = mirrored ? end - kSpace : kLeft + kIcon + kSpace;
            QVERIFY(qAbs((mirrored ? text.right() : text.left()) - edge) <= 3);
        }
        menu.setLeftActionMargin(30);
        QCOMPARE(TestKit::extentOf(TestKit::renderAt(&menu), QColor(0x00ff00)).left(),
                 menu.actionGeometry(check).left() + 30);
        menu.setLeftActionMargin(std::numeric_limits<int>::max());
        menu.setRightActionMargin(std::numeric_limits<int>::min());
        menu.addAction(QStringLiteral("Mark"));
        menu.grab();
    }

    void shortcutsStandBehindTheText()
    {
        const QString gate = QStringLiteral("Gate"), key = QStringLiteral("Ctrl+L");
        const std::tuple<QString, QString, bool, QStringList> rows[] = {
            {gate, key, true, {key, gate}},
            {gate, key, false, {gate}},
            {gate + QStringLiteral("\t12 events"), {}, true, {QStringLiteral("12 events"), gate}},
            {QLatin1Char('\t') + gate, {}, true, {QLatin1Char(' ') + gate}},
        };
        for (const auto &[text, shortcut, shows, drawn] : rows) {
            CusMenu menu;
            QAction *action = menu.addAction(text);
            action->setShortcut(QKeySequence(shortcut));
            action->setShortcutVisibleInContextMenu(shows);
            menu.resize(menu.sizeHint());
            // What the base drew comes first, and is covered.
            const QStringList all = textsOf(&menu);
            QCOMPARE(all.mid(all.size() - drawn.size()), drawn);
            const int end = menu.width() - 1 - kRight - kIcon - kSpace;
            const QRect ink = TestKit::extentOf(TestKit::renderAt(&menu), Qt::blue, 80);
            QCOMPARE(qAbs(ink.right() - end) <= 4, drawn.size() == 2);
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
        // Qt makes the rows wider than the menu where their texts are.
        const auto placeIn = [&](QAction *action) {
            return menu.actionGeometry(action).topLeft() + QPoint(60, 8);
        };
        for (QAction *action : {fits, overlong}) {
            QHelpEvent event(QEvent::ToolTip, placeIn(action), menu.mapToGlobal(placeIn(action)));
            QVERIFY(QApplication::sendEvent(&menu, &event));
            QCOMPARE(shownTip(), action == fits ? QString() : kLong);
        }
        menu.close();
        QTRY_COMPARE(shownTip(), QString());

        // A submenu that opens by the timer takes the events that would ask for the tip.
        delete overlong;
        menu.popup(kPopup);
        const QPoint place = placeIn(events->menuAction());
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
        QMenu *submenu = menu.addMenu(QStringLiteral("&Stream"));
        QAction *stream = submenu->addAction(QStringLiteral("Sub stream"));
        const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&menu);
        QCOMPARE(face->role(), QAccessible::PopupMenu);
        QCOMPARE(face->child(1)->text(QAccessible::Name), QStringLiteral("Motion"));

        QSignalSpy triggered(&menu, &QMenu::triggered);
        const QVector<QPair<QAction *, QVector<Qt::Key>>> all{
            {live, {Qt::Key_Down, Qt::Key_Return}},
            {motion, {Qt::Key_M}},
            {stream, {Qt::Key_Up, Qt::Key_Right, Qt::Key_Return}}};
        for (const auto &keys : all) {
            menu.popup(kPopup);
            for (Qt::Key key : keys.second)
                QTest::keyClick(QApplication::activePopupWidget(), key);
            QVERIFY(!menu.isVisible());
            QCOMPARE(triggered.takeLast().first().value<QAction *>(), keys.first);
        }
    }

    void oddRows()
    {
        CusMenu menu;
        auto *widgetAction = new QWidgetAction(&menu);
        widgetAction->setDefaultWidget(new QFrame);
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
