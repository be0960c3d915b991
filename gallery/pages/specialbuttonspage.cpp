#include "gallerypage.h"
#include "pagekit.h"
#include "pages/buttonstate.h"

#include <Vellum/CusClickTipButton>
#include <Vellum/CusPushButtonNum>
#include <Vellum/CusRotateBtn>
#include <Vellum/CusSvgAction>
#include <Vellum/CusSvgPushButton>
#include <Vellum/DelayButton>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

namespace {

constexpr QSize kSquare(40, 40);

/// What a width does to a text beside an icon.
QWidget *widthRow()
{
    QVector<QWidget *> cells;
    for (int width : {192, 136, 88, 56}) {
        auto *button = new CusSvgPushButton;
        button->setObjectName(QStringLiteral("gallery_svgPlaced"));
        button->setText(QStringLiteral("Loading bay, north"));
        button->setFixedSize(width, 32);
        button->setLeftMargin(8);
        button->setRightMargin(8);
        cells.append(PageKit::captioned(button, QStringLiteral("%1 px").arg(width)));
    }
    auto *adjusted = new CusSvgPushButton;
    adjusted->setObjectName(QStringLiteral("gallery_svgPlaced"));
    adjusted->setText(QStringLiteral("Loading bay, north"));
    adjusted->setLeftMargin(4);
    adjusted->setRightMargin(4);
    adjusted->adjustSize();
    cells.append(PageKit::captioned(adjusted, QStringLiteral("adjustSize()")));
    for (int size : {16, 20, 24, 32}) {
        auto *button = new CusSvgPushButton;
        button->setIcon(QStringLiteral(":/Resource/icons/dome-camera.svg"), QSize(size, size),
                        QColor());
        button->setFixedSize(40, 40);
        button->setBtnFlow(CusSvgPushButton::Flow_Left);
        cells.append(PageKit::captioned(button, QStringLiteral("%1 px").arg(size)));
    }
    return PageKit::row(cells);
}

/// The widgets beside each other, their middles on one line: a small label beside buttons.
QWidget *centredRow(const QVector<QWidget *> &widgets)
{
    QWidget *row = PageKit::row(widgets, 8);
    for (QWidget *widget : widgets)
        row->layout()->setAlignment(widget, Qt::AlignVCenter);
    return row;
}

struct Badge
{
    CusPushButtonNum::SmallAreaType type;
    QSize size;
    QString text;
    QString caption;
};

QWidget *badgeCell(const Badge &badge)
{
    auto *button = new CusPushButtonNum;
    button->setObjectName(QStringLiteral("gallery_svgBell"));
    button->setFixedSize(48, 40);
    button->setBtnFlow(CusSvgPushButton::Flow_Left);
    button->setSmallVisible(true);
    button->setSmallAreaType(badge.type);
    button->setSmallSize(badge.size);
    button->setSmallPos(QPoint(13, 12 - badge.size.height() / 2));
    button->setShowTextVisible(!badge.text.isEmpty());
    button->setShowText(badge.text);
    button->setFontSize(7);
    return PageKit::captioned(button, badge.caption);
}

QWidget *badges()
{
    using N = CusPushButtonNum;
    const QVector<Badge> all{
        {N::AREA_TYPE_CIRCLE, QSize(8, 8), QString(), QStringLiteral("Dot")},
        {N::AREA_TYPE_CIRCLE, QSize(15, 15), QStringLiteral("3"), QStringLiteral("Circle")},
        {N::AREA_TYPE_CIRCLE, QSize(18, 18), QStringLiteral("27"), QStringLiteral("Circle")},
        {N::AREA_TYPE_RECT, QSize(22, 14), QStringLiteral("99+"), QStringLiteral("Rectangle")},
        {N::AREA_TYPE_ANGLE, QSize(22, 14), QStringLiteral("12"), QStringLiteral("Text alone")},
    };
    QVector<QWidget *> cells;
    for (const Badge &badge : all)
        cells.append(badgeCell(badge));
    return PageKit::row(cells);
}

CusRotateBtn *rotateButton()
{
    auto *button = new CusRotateBtn;
    button->setObjectName(QStringLiteral("gallery_svgRefresh"));
    button->setFixedSize(kSquare);
    return button;
}

QWidget *rotation()
{
    QVector<QWidget *> cells;
    cells.append(PageKit::captioned(rotateButton(), QStringLiteral("Press me")));
    for (int angle : {45, 90}) {
        auto *still = rotateButton();
        still->setEnableClickRotate(false);
        still->setAngle(angle);
        cells.append(PageKit::captioned(still, QStringLiteral("%1\u00b0").arg(angle)));
    }
    auto *endless = rotateButton();
    endless->setEnableClickRotate(false);
    endless->setRotateCount(-1);
    auto *angleLine = PageKit::caption(QStringLiteral("0\u00b0"));
    angleLine->setFixedWidth(40);
    QObject::connect(endless, &CusRotateBtn::signalAngleChanged, angleLine, [angleLine](int angle) {
        angleLine->setText(QStringLiteral("%1\u00b0").arg(angle));
    });
    auto *start = new QPushButton(QStringLiteral("Start"));
    QObject::connect(start, &QPushButton::clicked, endless, &CusRotateBtn::startRotate);
    auto *stop = new QPushButton(QStringLiteral("Stop"));
    QObject::connect(stop, &QPushButton::clicked, endless, [endless] {
        endless->stopRotate();
        endless->setAngle(0);
    });
    cells.append(PageKit::captioned(centredRow({endless, start, stop, angleLine}),
                                    QStringLiteral("startRotate() without end")));
    return PageKit::row(cells);
}

/// Shows the last signals of a button on a line, the latest at the right.
class SignalHistory
{
public:
    explicit SignalHistory(QLabel *line)
        : m_line(line)
    {
    }

    void add(const QString &name)
    {
        constexpr int kShown = 4;
        m_names.append(name);
        while (m_names.size() > kShown)
            m_names.removeFirst();
        m_line->setText(m_names.join(QStringLiteral("  \u203a  ")));
    }

private:
    QLabel *m_line;
    QStringList m_names;
};

QWidget *longPress()
{
    const QVector<QPair<QString, QString>> directions{
        {QStringLiteral("left"), QStringLiteral("Pan left")},
        {QStringLiteral("up"), QStringLiteral("Tilt up")},
        {QStringLiteral("down"), QStringLiteral("Tilt down")},
        {QStringLiteral("right"), QStringLiteral("Pan right")}};
    auto *line = PageKit::signalLine(
        QStringLiteral("No signal yet: tap an arrow, or hold it longer than 500 ms."));
    const auto history = std::make_shared<SignalHistory>(line);
    QVector<QWidget *> arrows;
    for (const auto &direction : directions) {
        auto *button = new DelayButton;
        button->setObjectName(QStringLiteral("gallery_svgArrow"));
        button->setIconImage(QStringLiteral(":/Resource/icons/arrow-%1.svg").arg(direction.first));
        button->setFixedSize(kSquare);
        button->setToolTip(direction.second);
        const QString name = direction.first;
        QObject::connect(button, &QPushButton::pressed, line,
                         [=] { history->add(QStringLiteral("%1 pressed").arg(name)); });
        QObject::connect(button, &QPushButton::released, line,
                         [=] { history->add(QStringLiteral("%1 released").arg(name)); });
        QObject::connect(button, &DelayButton::signalDelayReleased, line,
                         [=] { history->add(QStringLiteral("signalDelayReleased")); });
        arrows.append(button);
    }
    auto *box = new QWidget;
    auto *lines = new QVBoxLayout(box);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(8);
    lines->addWidget(PageKit::row(arrows, 8));
    lines->addWidget(line);
    return box;
}

QWidget *clickTip()
{
    auto *field = new QLineEdit(QStringLiteral("rtsp://10.4.0.17:554/main"));
    field->setFixedWidth(240);
    auto *button = new CusClickTipButton;
    button->setFixedSize(30, 30);
    button->setToolTip(QStringLiteral("The address of the camera's main stream.\n"
                                      "A click shows this tip at once."));
    return PageKit::row({field, button}, 4);
}

QWidget *menuActions(QWidget *owner)
{
    const QVector<QPair<QString, QString>> all{
        {QStringLiteral("gallery_actionSnapshot"), QStringLiteral("Take a snapshot")},
        {QStringLiteral("gallery_actionExport"), QStringLiteral("Export the clip")},
        {QStringLiteral("gallery_actionLock"), QStringLiteral("Lock the recording")}};
    QVector<QWidget *> cells;
    for (const auto &one : all) {
        auto *action = new CusSvgAction(one.first, one.second, owner);
        auto *icon =
            new ButtonState(action->getSvgActionBtn(), QStyle::State_Enabled, QSize(24, 24));
        cells.append(centredRow({icon, new QLabel(action->text())}));
    }
    return PageKit::row(cells, 16);
}

class SpecialButtonsPage : public QWidget
{
public:
    SpecialButtonsPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Special buttons"),
            QStringLiteral("SVG buttons that do more: badges, rotation, long press, tips."));
        column->addWidget(PageKit::card(QStringLiteral("Widths and icon sizes"), widthRow()));
        column->addLayout(
            PageKit::beside({PageKit::card(QStringLiteral("Badges"), badges()),
                             PageKit::card(QStringLiteral("Tap and long press"), longPress())}));
        column->addWidget(
            PageKit::card(QStringLiteral("Rotation, by a press or by code"), rotation()));
        column->addLayout(PageKit::beside(
            {PageKit::card(QStringLiteral("Tip on a click"), clickTip()),
             PageKit::card(QStringLiteral("Icons of menu actions"), menuActions(this))}));
    }
};

const GalleryPage page{31, QStringLiteral("Special buttons"),
                       [] { return new SpecialButtonsPage; }};

} // namespace
