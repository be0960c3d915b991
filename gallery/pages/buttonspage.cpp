#include "gallerypage.h"
#include "pagekit.h"
#include "pages/buttonstate.h"

#include <Vellum/CusSvgPushButton>

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kGap = 12;
constexpr int kStateWidth = 96;
constexpr int kEdgeMargin = 8;
constexpr QSize kPlacedSize(144, 48);

struct State
{
    QString name;
    QStyle::State state;
};

QVector<State> states()
{
    const QStyle::State enabled = QStyle::State_Enabled;
    return {
        {QStringLiteral("Normal"), enabled | QStyle::State_Raised},
        {QStringLiteral("Hover"), enabled | QStyle::State_Raised | QStyle::State_MouseOver},
        {QStringLiteral("Pressed"), enabled | QStyle::State_Sunken | QStyle::State_MouseOver},
        {QStringLiteral("Checked"), enabled | QStyle::State_On},
        {QStringLiteral("Selected"), enabled | QStyle::State_Selected},
        {QStringLiteral("Disabled"), QStyle::State_Off},
    };
}

/// One look of the SVG button; its pictures and colours stand in the sheet, by its object name.
struct Look
{
    QString objectName;
    QString text;
    QSize size;
    QString title;
    QString remark;
};

QVector<Look> looks()
{
    return {
        {QStringLiteral("gallery_svgCamera"), QString(), QSize(32, 32), QStringLiteral("Icon"),
         QStringLiteral("one file, a colour for each state")},
        {QStringLiteral("gallery_svgRecord"), QStringLiteral("Record"), QSize(96, 32),
         QStringLiteral("Icon and text"), QStringLiteral("on the base that the sheet draws")},
        {QStringLiteral("gallery_svgEye"), QStringLiteral("Preview"), QSize(96, 32),
         QStringLiteral("A file for each state"), QStringLiteral("eye, crossed eye, lock")},
        {QStringLiteral("gallery_svgDisc"), QString(), QSize(44, 44),
         QStringLiteral("Three layers"), QStringLiteral("disc, ring and icon; no base")},
        {QStringLiteral("gallery_svgText"), QStringLiteral("Gate 3"), QSize(96, 32),
         QStringLiteral("Text alone"), QStringLiteral("all layers empty")},
    };
}

CusSvgPushButton *lookButton(const Look &look, QWidget *parent)
{
    auto *button = new CusSvgPushButton(parent);
    button->setObjectName(look.objectName);
    button->setText(look.text);
    button->setFixedSize(look.size);
    button->setCheckable(true);
    return button;
}

QWidget *nameOf(const Look &look)
{
    auto *box = new QWidget;
    auto *lines = new QVBoxLayout(box);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    lines->addWidget(new QLabel(look.title));
    lines->addWidget(PageKit::caption(look.remark));
    return box;
}

QWidget *stateTable()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    const QVector<State> allStates = states();
    const QVector<Look> allLooks = looks();
    grid->addWidget(PageKit::caption(QStringLiteral("Try it")), 0, 1);
    for (int column = 0; column < allStates.size(); ++column)
        grid->addWidget(PageKit::caption(allStates.at(column).name), 0, column + 2);
    for (int row = 0; row < allLooks.size(); ++row) {
        const Look &look = allLooks.at(row);
        grid->addWidget(nameOf(look), row + 1, 0);
        grid->addWidget(lookButton(look, box), row + 1, 1);
        auto *twin = lookButton(look, box);
        twin->hide();
        for (int column = 0; column < allStates.size(); ++column)
            grid->addWidget(new ButtonState(twin, allStates.at(column).state, look.size), row + 1,
                            column + 2);
    }
    grid->setColumnStretch(0, 1);
    for (int column = 1; column < allStates.size() + 2; ++column)
        grid->setColumnMinimumWidth(column, kStateWidth);
    return box;
}

CusSvgPushButton *placedButton(CusSvgPushButton::BtnFlow flow, CusSvgPushButton::BtnTxtPos position)
{
    auto *button = new CusSvgPushButton;
    button->setObjectName(QStringLiteral("gallery_svgPlaced"));
    button->setFixedSize(kPlacedSize);
    button->setText(QStringLiteral("Gate 3"));
    button->setBtnFlow(flow);
    button->setTxtPos(position);
    if (flow == CusSvgPushButton::Flow_Left)
        button->setLeftMargin(kEdgeMargin);
    else if (flow == CusSvgPushButton::Flow_Right)
        button->setRightMargin(kEdgeMargin);
    return button;
}

QWidget *placementTable()
{
    using B = CusSvgPushButton;
    const QVector<QPair<B::BtnFlow, QString>> flows{
        {B::Flow_Left, QStringLiteral("Flow_Left")},
        {B::Flow_Right, QStringLiteral("Flow_Right")},
        {B::Flow_Top, QStringLiteral("Flow_Top")},
        {B::Flow_Bottom, QStringLiteral("Flow_Bottom")},
        {B::Flow_Center, QStringLiteral("Flow_Center")}};
    const QVector<QPair<B::BtnTxtPos, QString>> positions{
        {B::Txt_Pos_Left, QStringLiteral("Txt_Pos_Left")},
        {B::Txt_Pos_Right, QStringLiteral("Txt_Pos_Right")},
        {B::Txt_Pos_Center, QStringLiteral("Txt_Pos_Center")},
        {B::Txt_Pos_Top, QStringLiteral("Txt_Pos_Top")},
        {B::Txt_Pos_Bottom, QStringLiteral("Txt_Pos_Bottom")}};
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(8);
    for (int column = 0; column < positions.size(); ++column)
        grid->addWidget(PageKit::caption(positions.at(column).second), 0, column + 1);
    for (int row = 0; row < flows.size(); ++row) {
        grid->addWidget(PageKit::caption(flows.at(row).second), row + 1, 0);
        for (int column = 0; column < positions.size(); ++column)
            grid->addWidget(placedButton(flows.at(row).first, positions.at(column).first), row + 1,
                            column + 1);
    }
    grid->setColumnMinimumWidth(0, 88);
    grid->setColumnStretch(positions.size() + 1, 1);
    return box;
}

class ButtonsPage : public QWidget
{
public:
    ButtonsPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Buttons"),
            QStringLiteral("Buttons drawn from tinted SVG layers over the style sheet's base."));
        column->addWidget(PageKit::card(QStringLiteral("Six states"), stateTable()));
        column->addWidget(
            PageKit::card(QStringLiteral("Flow and place of the text"), placementTable()));
    }
};

const GalleryPage page{30, QStringLiteral("Buttons"), [] { return new ButtonsPage; }};

} // namespace
