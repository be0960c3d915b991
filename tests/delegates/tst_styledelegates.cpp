#include "support/guardedtest.h"
#include "support/paintcounter.h"
#include "support/render.h"

#include <Vellum/BasicDelegateEditor>
#include <Vellum/CheckAndExpandDelegate>
#include <Vellum/CusColorConfig>
#include <Vellum/CusItemDataRole>
#include <Vellum/CusLineEdit>
#include <Vellum/CusUiCommonFun>
#include <Vellum/LongTextTipDelegate>
#include <Vellum/RichString>
#include <Vellum/StyleDelegateComFun>
#include <Vellum/ToolTipLabel>

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

const QSize kView(200, 180);

/// The protected helpers of a delegate that shows a pressed cell sunken.
class Probe : public LongTextTipDelegate
{
public:
    using LongTextTipDelegate::delStyleOptionStateAndFeature;
    using LongTextTipDelegate::drawSvgCheckBox;
    using LongTextTipDelegate::drawSvgRadioBtn;
    using LongTextTipDelegate::editorEvent;
    using LongTextTipDelegate::initStyleOption;
    using LongTextTipDelegate::paintItemMulText;
    using LongTextTipDelegate::paintItemText;
    using LongTextTipDelegate::textBoundingRect;
    using LongTextTipDelegate::textElidedText;

    void dealIndexPressedStyleState(QStyleOptionViewItem *option,
                                    const QModelIndex &) const override
    {
        option->state |= QStyle::State_Sunken;
    }
    void clearPaintCusRectInfo() override { ++cleared; }

    int cleared = 0;
};

/// A list whose cells share one text, so that every copy that is kept can be counted.
class SharedTextModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : 20000;
    }
    QVariant data(const QModelIndex &, int role) const override
    {
        return role == Qt::DisplayRole ? text : QVariant();
    }
    int copies() const { return const_cast<QString &>(text).data_ptr()->ref.atomic.loadRelaxed(); }

    const QString text =
        QStringLiteral("Loading bay, east side, behind the second gate, camera 12");
};

QString shownTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        const auto *tip = qobject_cast<ToolTipLabel *>(window);
        if (tip && tip->isVisible())
            return tip->text();
    }
    return QString();
}

QString tipAt(QAbstractItemView *view, const QPoint &pos)
{
    QHelpEvent event(QEvent::ToolTip, pos, view->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(view->viewport(), &event);
    return shownTip();
}

/// A view with \a delegate over \a model, shown and painted.
template <typename View>
void show(View &view, QAbstractItemModel *model, QAbstractItemDelegate *delegate)
{
    view.setFrameStyle(QFrame::NoFrame);
    view.setModel(model);
    view.setItemDelegate(delegate);
    view.resize(kView);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.viewport()->repaint();
}

QStyleOptionViewItem optionOf(int width, int height = 30)
{
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, width, height);
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    return option;
}

} // namespace

class TestStyleDelegates : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CusColorConfig::instance()->setConfig({});
        qApp->setStyleSheet(QStringLiteral(
            "QPushButton { border: none }"
            "#btn_checkBoxChecked { background: red } #btn_checkBoxUnchecked { background: lime }"
            "#btn_radioChecked { background: blue } #btn_radioUnChecked { background: cyan }"
            "#pushBtn_nodeIconUnexpanded { background: #800000 }"));
    }

    void init()
    {
        GuardedTest::init();
        QCursor::setPos(700, 500);
        m_model.clear();
        for (int row = 0; row < 3; ++row) {
            auto *item = new QStandardItem(QStringLiteral("Camera %1").arg(row));
            item->setData(row == 1 ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
            item->setData(row == 1, CusItemDataRole::RoleHasChildren);
            item->setCheckable(true); // Qt's own toggle must not undo the delegate's
            m_model.appendRow(item);
        }
    }

    void partsStandInTheirCell()
    {
        const QRect untouched(1, 2, 3, 4);
        const QSize size(14, 14);
        const auto place = [&](int mode, int margin, const QPoint &point = {},
                               const QSize &part = {14, 14},
                               const QRect &cell = {10, 20, 100, 30}) {
            QRect out = untouched;
            const bool placed = calcItemPartRect(cell, mode, part, margin, out, point);
            return placed == (out != untouched) ? out : QRect();
        };
        QCOMPARE(place(0, 5), QRect({53, 28}, size));
        QCOMPARE(place(1, 5), QRect({15, 28}, size));
        QCOMPARE(place(2, 5), QRect({91, 28}, size));
        QCOMPARE(place(1, 42), QRect({52, 28}, size));
        QCOMPARE(place(2, 44), QRect({53, 28}, size)); // the margins don't fit: centred
        QCOMPARE(place(1, INT_MAX), QRect({53, 28}, size));
        QCOMPARE(place(3, 5, {3, 4}), QRect({13, 24}, size));
        QCOMPARE(place(3, 5, {99, 99}), QRect({96, 36}, size));
        QCOMPARE(place(2, 5, {}, {120, 10}), QRect(10, 30, 100, 10));
        QCOMPARE(place(0, 5, {}, size, {}), untouched);
        QCOMPARE(place(4, 5), untouched);
        QVERIFY(place(3, 5, {INT_MIN, INT_MIN}).x() < 0);
    }

    void settersRefuseWhatMakesNoSense()
    {
        CheckAndExpandDelegate delegate;
        delegate.setSizeHintHeight(0);
        delegate.setItemMulTextSpacing(-1);
        delegate.setItemColSpacing(-5);
        delegate.setCheckBoxSize(QSize());
        QCOMPARE(delegate.getSizeHintHeight(), 30);
        QCOMPARE(delegate.getItemMulTextSpacing(), 6);
        QCOMPARE(delegate.getItemColSpacing(), 0);
        QCOMPARE(delegate.getCheckBoxSize(), QSize(14, 14));
        delegate.setSizeHintHeight(12);
        QCOMPARE(delegate.sizeHint(optionOf(100), m_model.index(0, 0)).height(), 30);
        LongTextTipDelegate dense;
        dense.setSizeHintHeight(12);
        QCOMPARE(dense.sizeHint(optionOf(100), m_model.index(0, 0)).height(), 12);
    }

    void coloursComeFromRoles()
    {
        using namespace CusItemDataRole;
        QStandardItem *item = m_model.item(0);
        item->setData(QStringLiteral("#102030"), RoleTextColor); // a name is as good as a colour
        item->setData(QColor(Qt::blue), RoleTextColorActive);
        item->setData(QStringLiteral("no colour"), RoleBgColor);
        item->setData(QColor(Qt::red), RoleBgColorSelected);
        item->setData(QColor(Qt::green), RoleBgColorHover);

        const QPalette plain = QStyleOptionViewItem().palette;
        for (const QStyle::State state : {QStyle::State(), QStyle::State(QStyle::State_MouseOver),
                                          QStyle::State(QStyle::State_Selected),
                                          QStyle::State_Selected | QStyle::State_MouseOver}) {
            const QColor own(0x10, 0x20, 0x30);
            const QColor ground = state & QStyle::State_Selected ? Qt::red : Qt::green;
            Probe delegate;
            QStyleOptionViewItem option = optionOf(400);
            option.state = state;
            QStyleOptionViewItem look = option;
            delegate.initStyleOption(&look, item->index());
            QCOMPARE(look.palette.color(QPalette::Text), plain.color(QPalette::Text));
            delegate.setEnableColorfulText(true);
            delegate.initStyleOption(&look, item->index());
            QCOMPARE(look.palette.color(QPalette::Highlight),
                     state ? ground : plain.color(QPalette::Highlight));
            QCOMPARE(look.palette.color(QPalette::HighlightedText),
                     state ? QColor(Qt::blue) : plain.color(QPalette::HighlightedText));
            QCOMPARE(look.palette.color(QPalette::Text), own);
            QVERIFY(!look.palette.color(QPalette::Base).isValid());
            const auto draw = [&](QPaintDevice *device) {
                QPainter painter(device);
                delegate.paintItemText(&painter, option, item->index());
            };
            QCOMPARE(TestKit::drawnTexts(draw, state ? QColor(Qt::blue) : own),
                     QStringList{QStringLiteral("Camera 0")});
        }
    }

    void selectedTextTakesItsColourUnderTheCursor()
    {
        m_model.item(0)->setData(QColor(Qt::red), CusItemDataRole::RoleTextColor);
        m_model.item(0)->setData(QColor(Qt::blue), CusItemDataRole::RoleTextColorActive);
        LongTextTipDelegate delegate;
        delegate.setEnableColorfulText(true);
        QListView view;
        show(view, &m_model, &delegate);
        QStyleOptionViewItem option = optionOf(kView.width());
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        option.widget = &view;
        const auto draw = [&](QPaintDevice *device) {
            QPainter painter(device);
            delegate.paint(&painter, option, m_model.index(0, 0));
        };
        QCOMPARE(TestKit::drawnTexts(draw, Qt::red), QStringList{QStringLiteral("Camera 0")});
        QCursor::setPos(view.viewport()->mapToGlobal({90, 15}));
        QCOMPARE(TestKit::drawnTexts(draw, Qt::blue), QStringList{QStringLiteral("Camera 0")});
    }

    void rowsAreHoveredAndCellsPressed()
    {
        Probe delegate;
        const auto stateOf = [&](int row) {
            QStyleOptionViewItem option;
            option.state = QStyle::State_Sunken | QStyle::State_HasFocus;
            delegate.initStyleOption(&option, m_model.index(row, 0));
            return int(option.state);
        };
        QCOMPARE(stateOf(1), int(QStyle::State_None));
        delegate.setCurRowHover(1);
        QCOMPARE(stateOf(1), int(QStyle::State_MouseOver));
        QCOMPARE(stateOf(0), int(QStyle::State_None));
        QCOMPARE(delegate.getHoverDrawRow(), 1);

        QMouseEvent down(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        QMouseEvent up(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        delegate.setCurRowHover(-1);
        delegate.editorEvent(&down, &m_model, optionOf(50), m_model.index(1, 0));
        m_model.removeRow(0); // the held cell moves up
        QCOMPARE(stateOf(0), int(QStyle::State_Sunken));
        delegate.editorEvent(&up, &m_model, optionOf(50), m_model.index(0, 0));
        QCOMPARE(stateOf(0), int(QStyle::State_None));
    }

    void twinsShowTheState()
    {
        Probe delegate;
        const auto stamp = [&delegate](QStyle::State state) {
            QImage image(60, 20, QImage::Format_ARGB32_Premultiplied);
            image.fill(TestKit::unpainted);
            QPainter painter(&image);
            QStyleOptionButton option;
            option.state = state | QStyle::State_Enabled;
            option.rect = QRect(2, 2, 16, 16);
            delegate.drawSvgCheckBox(&painter, &option, QApplication::style());
            option.rect.translate(30, 0);
            delegate.drawSvgRadioBtn(&painter, &option, QApplication::style());
            delegate.drawSvgRadioBtn(nullptr, &option, QApplication::style());
            painter.end();
            return QList<QColor>{image.pixelColor(10, 10), image.pixelColor(25, 10),
                                 image.pixelColor(40, 10)};
        };
        const QColor none = TestKit::unpainted;
        QCOMPARE(stamp(QStyle::State_On), (QList<QColor>{Qt::red, none, Qt::blue}));
        QCOMPARE(stamp(QStyle::State_Off), (QList<QColor>{Qt::green, none, Qt::cyan}));
        QCOMPARE(stamp(QStyle::State_NoChange), (QList<QColor>{Qt::green, none, Qt::cyan}));
        QCOMPARE(stamp(QStyle::State_None), (QList<QColor>{none, none, none}));
    }

    void textIsElidedWhereItsMarginsDontFit()
    {
        Probe delegate;
        const QString text = QStringLiteral("Loading bay, east side");
        const QFont font;
        const int width = delegate.textBoundingRect(text, font, nullptr).width();
        const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        QCOMPARE(width, QFontMetrics(font).boundingRect(text).width() + 2 * margin);
        QCOMPARE(delegate.textElidedText(text, optionOf(width)), text);
        // One pixel less: the text alone still fits, so the cut takes nothing off it.
        QCOMPARE(delegate.textElidedText(text, optionOf(width - 1)), text);
        const QString cut = delegate.textElidedText(text, optionOf(width / 2));
        m_model.item(0)->setText(text);
        const auto draw = [&](QPaintDevice *device) {
            QPainter painter(device);
            painter.setPen(Qt::red);
            QVERIFY(!delegate.paintItemText(&painter, optionOf(width / 2), m_model.index(0, 0)));
            QCOMPARE(painter.pen().color(), QColor(Qt::red));
        };
        QCOMPARE(TestKit::drawnTexts(draw, Qt::red), QStringList{cut});
        QVERIFY(cut.endsWith(QChar(0x2026)));
    }

    void piecesAreDrawnUntilOneIsCut()
    {
        Probe delegate;
        const QStringList texts = {QStringLiteral("<b> & \"it's\""),
                                   QStringLiteral("color:#00ff00;"), QStringLiteral("third")};
        const QColor red(Qt::red);
        const QList<RichString> pieces = {{red, texts.at(0)}, {texts.at(1)}, {red, texts.at(2)}};
        m_model.item(0)->setData(QVariant::fromValue(pieces), Qt::DisplayRole);
        bool cut = false;
        const auto drawn = [&](int width, const QColor &color) {
            const auto draw = [&](QPaintDevice *device) {
                QPainter painter(device);
                painter.setPen(Qt::blue);
                cut = delegate.paintItemMulText(&painter, optionOf(width), m_model.index(0, 0));
            };
            return TestKit::drawnTexts(draw, color);
        };
        QCOMPARE(drawn(900, red), (QStringList{texts.at(0).toHtmlEscaped(), texts.at(2)}));
        QCOMPARE(drawn(900, Qt::blue), QStringList{texts.at(1)});
        QVERIFY(!cut);
        QFont font;
        font.setPixelSize(14);
        const int first = QFontMetrics(font).boundingRect(texts.at(0)).width();
        QCOMPARE(drawn(first + 30, red), QStringList{texts.at(0).toHtmlEscaped()});
        QCOMPARE(drawn(first / 2, Qt::blue), QStringList());
        QVERIFY(cut);
        m_model.item(0)->setData(QVariant::fromValue(QList<RichString>()), Qt::DisplayRole);
        QCOMPARE(drawn(900, Qt::blue), QStringList());
        QVERIFY(!cut);
    }

    void longTextsHaveTips()
    {
        const QString long30 = QStringLiteral("Loading bay, east side, cam 12");
        QStringList names;
        for (int i = 1; i <= 11; ++i)
            names.append(QStringLiteral("Camera %1").arg(i));
        const QString lines = names.mid(0, 10).join(QLatin1Char('\n'));
        const auto tipOf = [this](const QString &text, const char *separator = "") {
            m_model.item(0)->setText(text);
            LongTextTipDelegate delegate;
            delegate.setLineBreakDisplay({0}, QLatin1String(separator), *separator != 0);
            QListView view;
            show(view, &m_model, &delegate);
            return tipAt(&view, view.visualRect(m_model.index(0, 0)).center());
        };
        QCOMPARE(tipOf(QStringLiteral("Gate")), QString());
        QCOMPARE(tipOf(long30), long30);
        QCOMPARE(tipOf(names.mid(0, 10).join(QLatin1Char(';')), ";"), lines);
        QCOMPARE(tipOf(names.join(QLatin1Char(';')), ";"), lines + QLatin1String("\nTotal(11)"));
        QCOMPARE(tipOf(long30 + QLatin1String(";;"), ";"), long30 + QLatin1String("\n\n"));
        QCOMPARE(tipOf(long30 + QLatin1String(";;;"), ";;"), long30 + QLatin1String("\n;"));
        const QString wide = QStringLiteral("word ").repeated(400);
        QFont font = QListView().font();
        font.setPixelSize(12);
        const int screen = QGuiApplication::primaryScreen()->geometry().width();
        QCOMPARE(tipOf(wide), warpString(QFontMetrics(font), wide, screen - 100, nullptr, nullptr));
    }

    void tipsFollowTheCursor()
    {
        LongTextTipDelegate delegate;
        QListView view;
        show(view, &m_model, &delegate);
        const QModelIndex index = m_model.index(0, 0);
        const TipDelegateInfo icon({0, 0, 20, 20}, QStringLiteral("Icon"));
        delegate.addTipDeleteInfos(index, {icon, {{0, 0, 60, 20}, QStringLiteral("Name")}});
        QCOMPARE(tipAt(&view, {10, 10}), QStringLiteral("Icon"));
        QCOMPARE(tipAt(&view, {40, 10}), QStringLiteral("Name"));
        QCOMPARE(tipAt(&view, {80, 10}), QString());
        delegate.addTipDeleteInfo(index, {{0, 0, 60, 20}, QStringLiteral("Only")});
        QCOMPARE(tipAt(&view, {10, 10}), QStringLiteral("Only"));
        view.viewport()->repaint(); // the text is whole: the paint leaves no tip
        QCOMPARE(tipAt(&view, {10, 10}), QString());
    }

    void roleTipsNeedNoPaint()
    {
        auto *delegate = new TipStyleDelegate;
        auto view = std::make_unique<QListView>();
        m_model.item(0)->setToolTip(QStringLiteral("North gate"));
        show(*view, &m_model, delegate);
        QHelpEvent event(QEvent::ToolTip, {5, 5}, view->mapToGlobal({5, 5}));
        QStyleOptionViewItem option = optionOf(50);
        QVERIFY(delegate->helpEvent(&event, view.get(), option, m_model.index(0, 0)));
        QCOMPARE(shownTip(), QStringLiteral("North gate"));
        QVERIFY(!delegate->helpEvent(nullptr, view.get(), option, m_model.index(0, 0)));
        QVERIFY(!delegate->helpEvent(&event, nullptr, option, m_model.index(0, 0)));
        view.reset();
        QCOMPARE(shownTip(), QString());
        QListView other;
        show(other, &m_model, delegate);
        QCOMPARE(tipAt(&other, {5, 5}), QStringLiteral("North gate"));
        m_model.clear();
        tipAt(&other, {5, 5});
        delete delegate;
        QCOMPARE(shownTip(), QString());
    }

    void clicksToggleBesideTheArrow()
    {
        m_model.item(2)->setData(QVariant(), Qt::CheckStateRole);
        CheckAndExpandDelegate delegate;
        QListView view;
        show(view, &m_model, &delegate);
        const QImage picture = TestKit::renderAt(view.viewport());
        QCOMPARE(TestKit::extentOf(picture, Qt::red).size(), QSize(14, 14));
        QCOMPARE(TestKit::extentOf(picture, Qt::green).x(), 5);
        QCOMPARE(TestKit::extentOf(picture, QColor(0x80, 0, 0)).right(), kView.width() - 6);

        const int arrow = kView.width() - 12;
        QSignalSpy checks(&delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged);
        QSignalSpy folds(&delegate, &ExpandStyleDelegate::signalCusIndexExpandState);
        // The check state after a click, and how often was checked and folded until then.
        const auto click = [&](int row, int x) {
            const QModelIndex index = m_model.index(row, 0);
            const QPoint pos(x, view.visualRect(index).center().y());
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, pos);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, pos);
            QTest::mouseClick(view.viewport(), Qt::RightButton, {}, pos);
            return QVariantList{index.data(Qt::CheckStateRole), checks.count(), folds.count()};
        };
        QCOMPARE(click(0, 12), (QVariantList{Qt::Checked, 1, 0}));
        QCOMPARE(int(checks.last().at(0).value<Qt::CheckState>()), int(Qt::Checked));
        QCOMPARE(click(0, arrow), (QVariantList{Qt::Checked, 1, 0})); // there is none
        QCOMPARE(click(1, 60), (QVariantList{Qt::Unchecked, 2, 0}));
        QCOMPARE(click(1, arrow), (QVariantList{Qt::Unchecked, 2, 1}));
        QCOMPARE(folds.last().at(1).toBool(), true);
        QCOMPARE(click(2, 60), (QVariantList{QVariant(), 2, 1}));
    }

    void basesBehaviourIsKept()
    {
        m_model.item(0)->setEditable(false);
        CheckAndExpandDelegate delegate;
        QListView view;
        show(view, &m_model, &delegate);
        QSignalSpy checks(&delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged);
        view.setCurrentIndex(m_model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(m_model.item(0)->checkState(), Qt::Checked);
        QCOMPARE(checks.count(), 0);
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.currentIndex().row(), 1);
        QTest::keyClick(&view, Qt::Key_C); // the search by typing reads the model, not the option
        QCOMPARE(view.currentIndex().row(), 2);
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&view);
        QCOMPARE(list->child(1)->text(QAccessible::Name), QStringLiteral("Camera 1"));
    }

    void onlyWhatIsInViewIsKept()
    {
        SharedTextModel model;
        LongTextTipDelegate longTexts;
        QListView view;
        show(view, &model, &longTexts);
        for (int i = 0; i < 700; i += 7) {
            view.verticalScrollBar()->setValue(i);
            view.viewport()->repaint();
        }
        QVERIFY2(model.copies() < 40, qPrintable(QString::number(model.copies())));
        QCOMPARE(tipAt(&view, {10, 10}), model.text);

        // A held button keeps what it hit, but one that was let go beside all cells does not; nor
        // does it matter that a scroll area shows a part of the view only.
        Probe probe;
        QScrollArea area;
        auto *clipped = new QListView;
        show(*clipped, &model, &probe);
        area.setWidget(clipped);
        area.resize(kView / 2);
        area.show();
        const auto scroll = [&] {
            for (int i = 0; i < 300; i += 7) {
                clipped->verticalScrollBar()->setValue(i);
                QCoreApplication::processEvents();
            }
        };
        QTest::mousePress(clipped->viewport(), Qt::LeftButton, {}, {10, 10});
        probe.cleared = 0;
        scroll();
        QCOMPARE(probe.cleared, 0);
        QTest::mouseRelease(clipped->viewport(), Qt::LeftButton, {}, {-50, 10});
        scroll();
        QVERIFY(probe.cleared > 0);

        // Hits move with the cells, though a view moves most of its pixels when it scrolls.
        QStandardItemModel rows(1000, 1);
        rows.setData(rows.index(4, 0), true, CusItemDataRole::RoleHasChildren);
        CheckAndExpandDelegate checkRows;
        show(view, &rows, &checkRows);
        PaintCounter paints(view.viewport());
        view.verticalScrollBar()->setValue(3);
        QTRY_VERIFY(paints.count() > 0);
        QSignalSpy folds(&checkRows, &ExpandStyleDelegate::signalCusIndexExpandState);
        const QRect cell = view.visualRect(rows.index(4, 0));
        QCOMPARE(cell.y(), 30);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          {cell.right() - 12, cell.center().y()});
        QCOMPARE(folds.count(), 1);

        // Pictures come without a round of their own.
        Probe pictures;
        QImage image(50, 30, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (int row = 0; row < 20000; ++row)
            pictures.paint(&painter, optionOf(50), model.index(row));
        QCOMPARE(pictures.cleared, 1);
    }

    void sharedDelegateServesBothViews()
    {
        QStandardItemModel other(1, 1);
        other.setData(other.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        CheckAndExpandDelegate delegate;
        QListView first;
        QListView second;
        show(first, &m_model, &delegate);
        show(second, &other, &delegate);
        first.viewport()->repaint();
        first.viewport()->repaint();
        QTest::mouseClick(second.viewport(), Qt::LeftButton, {}, {60, 10});
        QCOMPARE(other.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }

    void editorsAreMadeByTheEditorObject()
    {
        class SpinEditor : public BasicDelegateEditor
        {
        public:
            QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                  const QModelIndex &) const override
            {
                return new QSpinBox(parent);
            }
        };
        auto delegate = std::make_unique<TipStyleDelegate>();
        QTableView view;
        show(view, &m_model, delegate.get());
        QSignalSpy active(delegate.get(), &TipStyleDelegate::signalEditorActive);
        const QString longName = QStringLiteral("Camera ").repeated(30).trimmed();
        m_model.item(0)->setText(longName);
        view.edit(m_model.index(0, 0));
        auto *edit = view.viewport()->findChild<CusLineEdit *>();
        QVERIFY(edit);
        QCOMPARE(edit->geometry(), view.visualRect(m_model.index(0, 0)));
        QTest::keyClick(edit, Qt::Key_End);
        QTest::keyClicks(edit, QStringLiteral("!"));
        QTest::keyClick(edit, Qt::Key_Enter);
        QCOMPARE(active.first().first().toBool(), true);
        QTRY_COMPARE(active.last().first().toBool(), false);
        QCOMPARE(m_model.item(0)->text(), longName + QLatin1Char('!'));

        // The editor object changes while a line edit of the old one is open.
        view.edit(m_model.index(1, 0));
        edit = view.viewport()->findChild<CusLineEdit *>();
        const QPointer<BasicDelegateEditor> old = delegate->getCustomDelegateEditor();
        delegate->setCustomDelegateEditor(nullptr);
        delegate->setCustomDelegateEditor(old);
        QCOMPARE(delegate->getCustomDelegateEditor(), old.data());
        const QPointer<BasicDelegateEditor> spins = new SpinEditor;
        delegate->setCustomDelegateEditor(spins);
        QTRY_VERIFY(!old);
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_COMPARE(active.count(), 5);
        view.edit(m_model.index(2, 0));
        QVERIFY(view.viewport()->findChild<QSpinBox *>());
        delete spins; // nobody makes or reads editors now
        QVERIFY(!delegate->createEditor(&view, QStyleOptionViewItem(), m_model.index(0, 0)));
        m_model.clear();
        delegate.reset();
        view.viewport()->repaint();
    }

    void clientsMayPullTheGroundAway()
    {
        // What a client does at the signals: 1 resets the model, 2 removes the row, 4 deletes the
        // model, 8 the delegate, 16 the view; 32 resets the model while the check is written.
        for (const int deed : {1, 2, 4, 8, 16, 4 + 8 + 16, 32, -1, -2, -4, -8, -16, -4 - 8 - 16}) {
            const int what = qAbs(deed);
            const int x = deed > 0 ? 60 : kView.width() - 12; // beside the arrow, or on it
            QPointer<QStandardItemModel> model = new QStandardItemModel;
            auto *item = new QStandardItem(QStringLiteral("Camera"));
            item->setData(Qt::Unchecked, Qt::CheckStateRole);
            item->setData(true, CusItemDataRole::RoleHasChildren);
            item->setCheckable(true);
            model->appendRow(item);
            QPointer<CheckAndExpandDelegate> delegate = new CheckAndExpandDelegate;
            QPointer<QListView> view = new QListView;
            int deeds = 0;
            const auto act = [&] {
                ++deeds;
                if (what & 1)
                    model->clear();
                if (what & 2)
                    model->removeRow(0);
                if (what & 4)
                    delete model;
                if (what & 8)
                    delete delegate;
                if (what & 16)
                    delete view;
            };
            connect(delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged, act);
            connect(delegate, &CheckAndExpandDelegate::signalCusIndexExpandState, act);
            show(*view, model, delegate);
            if (what & 32)
                connect(model, &QAbstractItemModel::dataChanged, model, [&] { model->clear(); });
            QMouseEvent event(QEvent::MouseButtonPress, QPointF(x, 10), Qt::LeftButton,
                              Qt::LeftButton, {});
            QStyleOptionViewItem option = optionOf(kView.width());
            option.widget = view;
            static_cast<QAbstractItemDelegate *>(delegate)->editorEvent(&event, model, option,
                                                                        model->index(0, 0));
            QCOMPARE(deeds, 1);
            if (view)
                view->viewport()->repaint();
            delete view;
            delete model;
            delete delegate;
        }
    }

    void oddInputIsNeutral()
    {
        CheckAndExpandDelegate delegate;
        delegate.setLeftMargin(INT_MAX);
        delegate.setSpacing(INT_MAX);
        Probe probe;
        probe.setItemMulTextSpacing(INT_MAX);
        probe.setCurRowHover(INT_MAX);
        const QString endless(1000000, QLatin1Char('w'));
        m_model.item(0)->setText(endless);
        m_model.item(0)->setData(99, Qt::CheckStateRole);
        QImage image(50, 30, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (const QRect &rect : {QRect(0, 0, 50, 30), QRect(), QRect(0, 0, -5, 3)}) {
            QStyleOptionViewItem option;
            option.rect = rect;
            for (const QModelIndex &index : {m_model.index(0, 0), QModelIndex()}) {
                delegate.paint(&painter, option, index);
                delegate.paint(nullptr, option, index);
                probe.paint(&painter, option, index);
                probe.paintItemMulText(nullptr, option, index);
            }
        }
        QVERIFY(probe.textElidedText(endless, optionOf(50)).size() < 10);
        QVERIFY(!probe.cursorInRect(nullptr, QRect(0, 0, 9999, 9999)));
        QVERIFY(!probe.cursorInRect(optionOf(50), QRect(0, 0, 9999, 9999)));
        probe.initStyleOption(nullptr, m_model.index(0, 0));
        probe.delStyleOptionStateAndFeature(nullptr, QStyle::State_None, {});
        QVERIFY(!probe.editorEvent(nullptr, &m_model, optionOf(50), m_model.index(0, 0)));
        QMouseEvent down(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        QVERIFY(!probe.editorEvent(&down, nullptr, optionOf(50), m_model.index(0, 0)));
    }

private:
    QStandardItemModel m_model;
};

QTEST_MAIN(TestStyleDelegates)
#include "tst_styledelegates.moc"
