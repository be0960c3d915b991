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

/// The protected helpers of a delegate, and the cells that it was asked to show as pressed.
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
                                    const QModelIndex &index) const override
    {
        pressed = index;
        option->state |= QStyle::State_Sunken;
    }
    void clearPaintCusRectInfo() override { ++cleared; }

    mutable QPersistentModelIndex pressed;
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

void askForTip(QAbstractItemView *view, const QPoint &pos)
{
    QHelpEvent event(QEvent::ToolTip, pos, view->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(view->viewport(), &event);
}

void press(QAbstractItemView *view, const QPoint &pos)
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, pos);
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
    void initTestCase();
    void init();
    void partsStandInTheirCell_data();
    void partsStandInTheirCell();
    void settersRefuseWhatMakesNoSense();
    void coloursComeFromRoles_data();
    void coloursComeFromRoles();
    void rowsAreHoveredAndCellsPressed();
    void twinsShowTheState_data();
    void twinsShowTheState();
    void textIsElidedWhereItsMarginsDontFit();
    void piecesAreDrawnUntilOneIsCut();
    void longTextsHaveTips_data();
    void longTextsHaveTips();
    void tipsFollowTheCursor();
    void roleTipsNeedNoPaint();
    void clicksToggleBesideTheArrow_data();
    void clicksToggleBesideTheArrow();
    void basesBehaviourIsKept();
    void onlyWhatIsInViewIsKept();
    void sharedDelegateServesBothViews();
    void editorsAreMadeByTheEditorObject();
    void clientsMayPullTheGroundAway_data();
    void clientsMayPullTheGroundAway();
    void oddInputIsNeutral();

private:
    QStandardItemModel m_model;
};

void TestStyleDelegates::initTestCase()
{
    CusColorConfig::instance()->setConfig({});
    qApp->setStyleSheet(QStringLiteral(
        "QPushButton { border: none }"
        "#btn_checkBoxChecked { background: #ff0000 } #btn_checkBoxUnchecked { background: #00ff00 "
        "}"
        "#btn_radioChecked { background: #0000ff } #btn_radioUnChecked { background: #00ffff }"
        "#pushBtn_nodeIconExpanded { background: #ffff00 }"
        "#pushBtn_nodeIconUnexpanded { background: #800000 }"));
}

void TestStyleDelegates::init()
{
    GuardedTest::init();
    QCursor::setPos(700, 500);
    m_model.clear();
    for (int row = 0; row < 3; ++row) {
        auto *item = new QStandardItem(QStringLiteral("Camera %1").arg(row));
        item->setData(row == 1 ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
        item->setData(row == 1, CusItemDataRole::RoleHasChildren);
        m_model.appendRow(item);
    }
}

void TestStyleDelegates::partsStandInTheirCell_data()
{
    QTest::addColumn<QRect>("cell");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("part");

    const QRect cell(10, 20, 100, 30);
    const QSize size(14, 14);
    const QRect untouched(1, 2, 3, 4);
    QTest::newRow("centred") << cell << 0 << size << 5 << QPoint() << QRect(53, 28, 14, 14);
    QTest::newRow("left") << cell << 1 << size << 5 << QPoint() << QRect(15, 28, 14, 14);
    QTest::newRow("right") << cell << 2 << size << 5 << QPoint() << QRect(91, 28, 14, 14);
    QTest::newRow("margins just fit")
        << cell << 1 << size << 43 << QPoint() << QRect(53, 28, 14, 14);
    QTest::newRow("margins don't fit: centred")
        << cell << 2 << size << 44 << QPoint() << QRect(53, 28, 14, 14);
    QTest::newRow("at a point") << cell << 3 << size << 5 << QPoint(3, 4) << QRect(13, 24, 14, 14);
    QTest::newRow("pulled back") << cell << 3 << size << 5 << QPoint(99, 99)
                                 << QRect(96, 36, 14, 14);
    QTest::newRow("wider than the cell")
        << cell << 2 << QSize(120, 10) << 5 << QPoint() << QRect(10, 30, 100, 10);
    QTest::newRow("largest margin")
        << cell << 1 << size << INT_MAX << QPoint() << QRect(53, 28, 14, 14);
    QTest::newRow("invalid cell") << QRect() << 0 << size << 5 << QPoint() << untouched;
    QTest::newRow("unknown mode") << cell << 4 << size << 5 << QPoint() << untouched;
}

void TestStyleDelegates::partsStandInTheirCell()
{
    QFETCH(QRect, cell);
    QFETCH(int, mode);
    QFETCH(QSize, size);
    QFETCH(int, margin);
    QFETCH(QPoint, point);
    QFETCH(QRect, part);
    const QRect untouched(1, 2, 3, 4);
    QRect out = untouched;
    QCOMPARE(calcItemPartRect(cell, mode, size, margin, out, point), part != untouched);
    QCOMPARE(out, part);
}

void TestStyleDelegates::settersRefuseWhatMakesNoSense()
{
    CheckAndExpandDelegate delegate;
    const QStyleOptionViewItem option = optionOf(100);
    delegate.setSizeHintHeight(0);
    delegate.setItemMulTextSpacing(-1);
    delegate.setItemColSpacing(-5);
    delegate.setItemRowSpacing(-5);
    delegate.setSpacing(-1);
    delegate.setCheckBoxSize(QSize());
    delegate.setExpandIconSize(QSize(-1, 5));
    QCOMPARE(delegate.getItemMulTextSpacing(), 6);
    QCOMPARE(delegate.getItemColSpacing(), 0);
    QCOMPARE(delegate.getItemRowSpacing(), 0);
    QCOMPARE(delegate.getSpacing(), 5);
    QCOMPARE(delegate.getCheckBoxSize(), QSize(14, 14));
    QCOMPARE(delegate.expandIconSize(), QSize(16, 16));
    QCOMPARE(delegate.sizeHint(option, m_model.index(0, 0)).height(), 30);
    delegate.setSizeHintHeight(12);
    QCOMPARE(delegate.sizeHint(option, m_model.index(0, 0)).height(), 30);
    LongTextTipDelegate dense;
    dense.setSizeHintHeight(12);
    QCOMPARE(dense.sizeHint(option, m_model.index(0, 0)).height(), 12);
    QVERIFY(TipDelegateInfo({0, 0, 1, 1}, QStringLiteral("a")) == TipDelegateInfo({0, 0, 1, 1}));
}

void TestStyleDelegates::coloursComeFromRoles_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("activeText");

    const QColor palette = QStyleOptionViewItem().palette.color(QPalette::Highlight);
    const QColor paletteText = QStyleOptionViewItem().palette.color(QPalette::HighlightedText);
    QTest::newRow("at rest") << int(QStyle::State_None) << palette << paletteText;
    QTest::newRow("hovered") << int(QStyle::State_MouseOver) << QColor(Qt::green)
                             << QColor(Qt::blue);
    QTest::newRow("selected") << int(QStyle::State_Selected) << QColor(Qt::red) << QColor(Qt::blue);
    QTest::newRow("selected wins") << int(QStyle::State_Selected | QStyle::State_MouseOver)
                                   << QColor(Qt::red) << QColor(Qt::blue);
}

void TestStyleDelegates::coloursComeFromRoles()
{
    QFETCH(int, state);
    QFETCH(QColor, ground);
    QFETCH(QColor, activeText);
    using namespace CusItemDataRole;
    QStandardItem *item = m_model.item(0);
    item->setData(QStringLiteral("#102030"), RoleTextColor); // a name is as good as a colour
    item->setData(QColor(Qt::blue), RoleTextColorActive);
    item->setData(QStringLiteral("no colour"), RoleBgColor);
    item->setData(QColor(Qt::red), RoleBgColorSelected);
    item->setData(QColor(Qt::green), RoleBgColorHover);

    Probe delegate;
    const auto paletteOf = [&] {
        QStyleOptionViewItem option;
        option.state = QStyle::State(state);
        delegate.initStyleOption(&option, item->index());
        return option.palette;
    };
    QCOMPARE(paletteOf().color(QPalette::Text),
             QStyleOptionViewItem().palette.color(QPalette::Text));
    delegate.setEnableColorfulText(true);
    QCOMPARE(paletteOf().color(QPalette::Highlight), ground);
    QCOMPARE(paletteOf().color(QPalette::HighlightedText), activeText);
    QCOMPARE(paletteOf().color(QPalette::Text), QColor(0x10, 0x20, 0x30));
    QVERIFY(!paletteOf().color(QPalette::Base).isValid());

    const auto draw = [&](QPaintDevice *device) {
        QPainter painter(device);
        QStyleOptionViewItem option = optionOf(400);
        option.state = QStyle::State(state);
        delegate.paintItemText(&painter, option, item->index());
    };
    const bool active = state != QStyle::State_None;
    QCOMPARE(TestKit::drawnTexts(draw, active ? QColor(Qt::blue) : QColor(0x10, 0x20, 0x30)),
             QStringList{QStringLiteral("Camera 0")});
}

void TestStyleDelegates::rowsAreHoveredAndCellsPressed()
{
    Probe delegate;
    const QModelIndex index = m_model.index(1, 0);
    const auto stateOf = [&](const QModelIndex &cell) {
        QStyleOptionViewItem option;
        option.state = QStyle::State_Sunken | QStyle::State_HasFocus;
        delegate.initStyleOption(&option, cell);
        return option.state;
    };
    QCOMPARE(int(stateOf(index)), int(QStyle::State_None));
    QCOMPARE(delegate.getHoverDrawRow(), -1);
    delegate.setCurRowHover(1);
    QCOMPARE(int(stateOf(index)), int(QStyle::State_MouseOver));
    QCOMPARE(int(stateOf(m_model.index(0, 0))), int(QStyle::State_None));
    QCOMPARE(delegate.getHoverDrawRow(), 1);

    QMouseEvent down(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent up(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
    delegate.setCurRowHover(-1);
    delegate.editorEvent(&down, &m_model, optionOf(50), index);
    m_model.removeRow(0); // the held cell moves up
    QCOMPARE(int(stateOf(m_model.index(0, 0))), int(QStyle::State_Sunken));
    QCOMPARE(QModelIndex(delegate.pressed), m_model.index(0, 0));
    delegate.editorEvent(&up, &m_model, optionOf(50), m_model.index(0, 0));
    QCOMPARE(int(stateOf(m_model.index(0, 0))), int(QStyle::State_None));
    delegate.editorEvent(&down, &m_model, optionOf(50), m_model.index(0, 0));
    delegate.cleanMousePressedIndex();
    QCOMPARE(int(stateOf(m_model.index(0, 0))), int(QStyle::State_None));
}

void TestStyleDelegates::twinsShowTheState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("box");
    QTest::addColumn<QColor>("radio");

    QTest::newRow("on") << int(QStyle::State_On) << QColor(Qt::red) << QColor(Qt::blue);
    QTest::newRow("off") << int(QStyle::State_Off) << QColor(Qt::green) << QColor(Qt::cyan);
    QTest::newRow("partly") << int(QStyle::State_NoChange) << QColor(Qt::green) << QColor(Qt::cyan);
    QTest::newRow("neither") << 0 << TestKit::unpainted << TestKit::unpainted;
}

void TestStyleDelegates::twinsShowTheState()
{
    QFETCH(int, state);
    QFETCH(QColor, box);
    QFETCH(QColor, radio);
    Probe delegate;
    QImage image(60, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(TestKit::unpainted);
    QPainter painter(&image);
    QStyleOptionButton option;
    option.state = QStyle::State(state) | QStyle::State_Enabled;
    option.rect = QRect(2, 2, 16, 16);
    delegate.drawSvgCheckBox(&painter, &option, QApplication::style());
    option.rect.translate(30, 0);
    delegate.drawSvgRadioBtn(&painter, &option, QApplication::style());
    delegate.drawSvgRadioBtn(&painter, nullptr, QApplication::style());
    delegate.drawSvgRadioBtn(nullptr, &option, QApplication::style());
    painter.end();
    QCOMPARE(image.pixelColor(10, 10), box);
    QCOMPARE(image.pixelColor(40, 10), radio);
    QCOMPARE(image.pixelColor(25, 10), TestKit::unpainted);
}

void TestStyleDelegates::textIsElidedWhereItsMarginsDontFit()
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
    QVERIFY(cut.endsWith(QChar(0x2026)));

    m_model.item(0)->setText(text);
    const auto draw = [&](QPaintDevice *device) {
        QPainter painter(device);
        painter.setPen(Qt::red);
        QVERIFY(!delegate.paintItemText(&painter, optionOf(width / 2), m_model.index(0, 0)));
        QCOMPARE(painter.pen().color(), QColor(Qt::red));
        QVERIFY(delegate.paintItemText(nullptr, optionOf(width), m_model.index(0, 0)));
    };
    QCOMPARE(TestKit::drawnTexts(draw, Qt::red), QStringList{cut});
}

void TestStyleDelegates::piecesAreDrawnUntilOneIsCut()
{
    Probe delegate;
    const QStringList texts = {QStringLiteral("<b> & \"it's\""), QStringLiteral("color:#00ff00;"),
                               QStringLiteral("third")};
    const QList<RichString> pieces = {RichString(QColor(Qt::red), texts.at(0)),
                                      RichString(texts.at(1)),
                                      RichString(QColor(Qt::red), texts.at(2))};
    m_model.item(0)->setData(QVariant::fromValue(pieces), Qt::DisplayRole);
    const auto drawn = [&](int width, bool cut, const QColor &color) {
        return TestKit::drawnTexts(
            [&](QPaintDevice *device) {
                QPainter painter(device);
                painter.setPen(Qt::blue);
                QCOMPARE(delegate.paintItemMulText(&painter, optionOf(width), m_model.index(0, 0)),
                         cut);
            },
            color);
    };
    QCOMPARE(drawn(900, false, Qt::red), (QStringList{texts.at(0).toHtmlEscaped(), texts.at(2)}));
    QCOMPARE(drawn(900, false, Qt::blue), QStringList{texts.at(1)});
    QFont font;
    font.setPixelSize(14);
    const int first = QFontMetrics(font).boundingRect(texts.at(0)).width();
    QCOMPARE(drawn(first + 30, true, Qt::red), QStringList{texts.at(0).toHtmlEscaped()});
    QCOMPARE(drawn(first / 2, true, Qt::blue), QStringList());
    m_model.item(0)->setData(QVariant::fromValue(QList<RichString>()), Qt::DisplayRole);
    QCOMPARE(drawn(900, false, Qt::blue), QStringList());
}

void TestStyleDelegates::longTextsHaveTips_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("tip");

    const QString long30 = QStringLiteral("Loading bay, east side, cam 12");
    const auto parts = [](int count, const QString &separator) {
        QStringList list;
        for (int i = 1; i <= count; ++i)
            list.append(QStringLiteral("Camera %1").arg(i));
        return list.join(separator);
    };
    const QString semicolon = QStringLiteral(";");
    const QString lines = QStringLiteral("\n");
    QTest::newRow("whole") << QStringLiteral("Gate") << QString() << QString();
    QTest::newRow("cut") << long30 << QString() << long30;
    QTest::newRow("ten parts") << parts(10, semicolon) << semicolon << parts(10, lines);
    QTest::newRow("eleven parts") << parts(11, semicolon) << semicolon
                                  << parts(10, lines) + QStringLiteral("\nTotal(11)");
    QTest::newRow("empty parts are kept")
        << long30 + QStringLiteral(";;") << semicolon << long30 + QStringLiteral("\n\n");
    QTest::newRow("separators don't overlap")
        << long30 + QStringLiteral(";;;") << QStringLiteral(";;") << long30 + QStringLiteral("\n;");
    QString wide = QStringLiteral("word ").repeated(400);
    QFont font = QListView().font();
    font.setPixelSize(12);
    QTest::newRow("wider than the screen")
        << wide << QString()
        << warpString(QFontMetrics(font), wide,
                      QGuiApplication::primaryScreen()->geometry().width() - 100, nullptr, nullptr);
}

void TestStyleDelegates::longTextsHaveTips()
{
    QFETCH(QString, text);
    QFETCH(QString, separator);
    QFETCH(QString, tip);
    m_model.item(0)->setText(text);
    LongTextTipDelegate delegate;
    delegate.setLineBreakDisplay({0}, separator, !separator.isEmpty());
    QListView view;
    show(view, &m_model, &delegate);
    askForTip(&view, view.visualRect(m_model.index(0, 0)).center());
    QCOMPARE(shownTip(), tip);
}

void TestStyleDelegates::tipsFollowTheCursor()
{
    LongTextTipDelegate delegate;
    QListView view;
    show(view, &m_model, &delegate);
    const QModelIndex index = m_model.index(0, 0);
    const TipDelegateInfo icon({0, 0, 20, 20}, QStringLiteral("Icon"));
    delegate.addTipDeleteInfos(index, {icon, {{0, 0, 60, 20}, QStringLiteral("Name")}});
    delegate.addTipDeleteInfo(QModelIndex(), icon);
    askForTip(&view, {10, 10});
    QCOMPARE(shownTip(), QStringLiteral("Icon"));
    askForTip(&view, {40, 10});
    QCOMPARE(shownTip(), QStringLiteral("Name"));
    askForTip(&view, {80, 10});
    QCOMPARE(shownTip(), QString());
    delegate.addTipDeleteInfo(index, {{0, 0, 60, 20}, QStringLiteral("Only")});
    askForTip(&view, {10, 10});
    QCOMPARE(shownTip(), QStringLiteral("Only"));
    view.viewport()->repaint(); // the text is whole: the paint leaves no tip
    askForTip(&view, {10, 10});
    QCOMPARE(shownTip(), QString());
}

void TestStyleDelegates::roleTipsNeedNoPaint()
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
    askForTip(&other, {5, 5});
    QCOMPARE(shownTip(), QStringLiteral("North gate"));
    m_model.clear();
    askForTip(&other, {5, 5});
    delete delegate;
    QCOMPARE(shownTip(), QString());
}

void TestStyleDelegates::clicksToggleBesideTheArrow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("fromLeft");
    QTest::addColumn<bool>("toggles");
    QTest::addColumn<bool>("expands");

    const int arrow = kView.width() - 12;
    QTest::newRow("box, unchecked") << 0 << 12 << true << false;
    QTest::newRow("text, checked") << 1 << 60 << true << false;
    QTest::newRow("arrow") << 1 << arrow << false << true;
    QTest::newRow("place of a missing arrow") << 0 << arrow << false << false;
    QTest::newRow("no check") << 2 << 60 << false << false;
}

void TestStyleDelegates::clicksToggleBesideTheArrow()
{
    QFETCH(int, row);
    QFETCH(int, fromLeft);
    QFETCH(bool, toggles);
    QFETCH(bool, expands);
    m_model.item(2)->setData(QVariant(), Qt::CheckStateRole);
    CheckAndExpandDelegate delegate;
    QListView view;
    show(view, &m_model, &delegate);
    const QImage picture = TestKit::renderAt(view.viewport());
    QCOMPARE(TestKit::extentOf(picture, Qt::red).size(), QSize(14, 14));
    QCOMPARE(TestKit::extentOf(picture, Qt::green).x(), 5);
    QCOMPARE(TestKit::extentOf(picture, QColor(0x80, 0, 0)).right(), kView.width() - 6);

    QSignalSpy checks(&delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged);
    QSignalSpy folds(&delegate, &ExpandStyleDelegate::signalCusIndexExpandState);
    const QModelIndex index = m_model.index(row, 0);
    const QPoint pos(fromLeft, view.visualRect(index).center().y());
    const int before = index.data(Qt::CheckStateRole).toInt();
    const int after = before == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    press(&view, pos);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, pos);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, pos);
    QCOMPARE(checks.count(), toggles ? 1 : 0);
    QCOMPARE(folds.count(), expands ? 1 : 0);
    if (toggles) {
        QCOMPARE(checks.first().at(0).value<Qt::CheckState>(), Qt::CheckState(after));
        QCOMPARE(index.data(Qt::CheckStateRole).toInt(), after);
    }
    if (expands)
        QCOMPARE(folds.first().at(1).toBool(), true);
}

void TestStyleDelegates::basesBehaviourIsKept()
{
    m_model.item(0)->setCheckable(true);
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

void TestStyleDelegates::onlyWhatIsInViewIsKept()
{
    SharedTextModel model;
    LongTextTipDelegate longTexts;
    QListView view;
    show(view, &model, &longTexts);
    for (int i = 0; i < 3000; i += 7) {
        view.verticalScrollBar()->setValue(i);
        view.viewport()->repaint();
    }
    QVERIFY2(model.copies() < 40, qPrintable(QString::number(model.copies())));
    askForTip(&view, {10, 10});
    QCOMPARE(shownTip(), model.text);

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
    press(&view, {cell.right() - 12, cell.center().y()});
    QCOMPARE(folds.count(), 1);

    // Pictures come without a round of their own.
    Probe probe;
    QImage image(50, 30, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    for (int row = 0; row < 20000; ++row)
        probe.paint(&painter, optionOf(50), model.index(row));
    QCOMPARE(probe.cleared, 1);
}

void TestStyleDelegates::sharedDelegateServesBothViews()
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
    press(&second, {60, 10});
    QCOMPARE(other.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

void TestStyleDelegates::editorsAreMadeByTheEditorObject()
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
    QCOMPARE(edit->text(), longName);
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

void TestStyleDelegates::clientsMayPullTheGroundAway_data()
{
    QTest::addColumn<int>("deed");
    QTest::newRow("reset the model") << 0;
    QTest::newRow("remove the row") << 1;
    QTest::newRow("delete the model") << 2;
    QTest::newRow("delete the delegate") << 3;
    QTest::newRow("delete the view's delegate and model") << 4;
}

void TestStyleDelegates::clientsMayPullTheGroundAway()
{
    QFETCH(int, deed);
    for (const int x : {60, kView.width() - 12}) {
        auto *model = new QStandardItemModel;
        auto *item = new QStandardItem(QStringLiteral("Camera"));
        item->setData(Qt::Unchecked, Qt::CheckStateRole);
        item->setData(true, CusItemDataRole::RoleHasChildren);
        model->appendRow(item);
        auto *delegate = new CheckAndExpandDelegate;
        QPointer<QObject> alive[] = {model, delegate};
        int deeds = 0;
        const auto act = [&] {
            ++deeds;
            if (deed == 0)
                model->clear();
            else if (deed == 1)
                model->removeRow(0);
            if (deed == 2 || deed == 4)
                delete model;
            if (deed == 3 || deed == 4)
                delete delegate;
        };
        connect(delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged, act);
        connect(delegate, &CheckAndExpandDelegate::signalCusIndexExpandState, act);
        QListView view;
        show(view, model, delegate);
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(x, 10), Qt::LeftButton, Qt::LeftButton,
                          {});
        QStyleOptionViewItem option = optionOf(kView.width());
        static_cast<QAbstractItemDelegate *>(delegate)->editorEvent(&event, model, option,
                                                                    model->index(0, 0));
        QCOMPARE(deeds, 1);
        view.viewport()->repaint();
        delete alive[0];
        delete alive[1];
    }
}

void TestStyleDelegates::oddInputIsNeutral()
{
    CheckAndExpandDelegate delegate;
    delegate.setLeftMargin(INT_MAX);
    delegate.setSpacing(INT_MAX);
    Probe probe;
    probe.setItemMulTextSpacing(INT_MAX);
    probe.setCurRowHover(INT_MAX);
    const QString endless = QString(1000000, QLatin1Char('w'));
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

QTEST_MAIN(TestStyleDelegates)
#include "tst_styledelegates.moc"
