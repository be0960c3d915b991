#include "gallerypage.h"
#include "pagekit.h"
#include "pages/buttonstate.h"

#include <Vellum/CusCheckBox>
#include <Vellum/CusPushButton>
#include <Vellum/CusRadioButton>
#include <Vellum/CusSvgPushButton>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int kLineGap = 12;
constexpr int kStateColumn = 72;
constexpr QSize kIndicator(16, 16);

QVBoxLayout *column()
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kLineGap);
    return layout;
}

/// A still picture of the hidden button named \a twin.
QWidget *indicator(const QString &twin, QStyle::State state)
{
    auto *button = new CusSvgPushButton;
    button->setObjectName(twin);
    auto *picture = new ButtonState(button, state, kIndicator);
    button->setParent(picture);
    button->hide();
    return picture;
}

QLayout *states()
{
    const QStyle::State on = QStyle::State_Enabled;
    const QStyle::State partly = QStyle::State_NoChange;
    const QVector<QPair<QString, QStyle::State>> columns{
        {QStringLiteral("Normal"), on},
        {QStringLiteral("Hover"), on | QStyle::State_MouseOver},
        {QStringLiteral("Pressed"), on | QStyle::State_Sunken},
        {QStringLiteral("Focus"), on | QStyle::State_HasFocus},
        {QStringLiteral("Disabled"), QStyle::State_None}};
    const struct
    {
        QString name, twin;
        QStyle::State extra;
    } rows[] = {
        {QStringLiteral("Unchecked"), QStringLiteral("btn_checkBoxUnchecked"), QStyle::State_None},
        {QStringLiteral("Checked"), QStringLiteral("btn_checkBoxChecked"), QStyle::State_None},
        {QStringLiteral("Partly"), QStringLiteral("btn_checkBoxUnchecked"), partly},
        {QStringLiteral("Radio, unchecked"), QStringLiteral("btn_radioUnChecked"),
         QStyle::State_None},
        {QStringLiteral("Radio, checked"), QStringLiteral("btn_radioChecked"), QStyle::State_None},
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(kLineGap);
    for (int i = 0; i < columns.size(); ++i) {
        grid->addWidget(PageKit::caption(columns.at(i).first), 0, i + 1);
        grid->setColumnMinimumWidth(i + 1, kStateColumn);
    }
    int line = 1;
    for (const auto &row : rows) {
        grid->addWidget(PageKit::caption(row.name), line, 0);
        for (int i = 0; i < columns.size(); ++i)
            grid->addWidget(indicator(row.twin, columns.at(i).second | row.extra), line, i + 1);
        ++line;
    }
    grid->setColumnMinimumWidth(0, 120);
    grid->setColumnStretch(columns.size() + 1, 1);
    grid->setRowStretch(line, 1);
    return grid;
}

CusCheckBox *checkBox(const QString &text, Qt::CheckState state, bool enabled = true)
{
    auto *box = new CusCheckBox(text);
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    box->setEnabled(enabled);
    return box;
}

QLayout *recordingPlan()
{
    auto *line = PageKit::signalLine(QStringLiteral("No signal yet."));
    auto *checks = column();
    for (CusCheckBox *box :
         {checkBox(QStringLiteral("Cameras of the north wing"), Qt::PartiallyChecked),
          checkBox(QStringLiteral("Record on motion"), Qt::Checked),
          checkBox(QStringLiteral("Record the sound"), Qt::Unchecked),
          checkBox(QStringLiteral("Encrypt the archive"), Qt::Checked, false),
          checkBox(QStringLiteral("Upload to the cloud"), Qt::Unchecked, false)}) {
        QObject::connect(box, &QCheckBox::stateChanged, line, [line, box](int state) {
            line->setText(QStringLiteral("%1: stateChanged(%2)").arg(box->text()).arg(state));
        });
        checks->addWidget(box, 0, Qt::AlignLeft);
    }

    auto *radios = column();
    const QStringList streams{QStringLiteral("Main stream, 4K"), QStringLiteral("Sub stream, 720p"),
                              QStringLiteral("Picture every 10 s"),
                              QStringLiteral("Raw sensor data")};
    for (const QString &stream : streams) {
        auto *radio = new CusRadioButton(stream);
        radio->setChecked(stream == streams.first());
        radio->setEnabled(stream != streams.last());
        QObject::connect(radio, &CusRadioButton::checked, line, [line, stream] {
            line->setText(QStringLiteral("%1: checked()").arg(stream));
        });
        radios->addWidget(radio, 0, Qt::AlignLeft);
    }
    radios->addStretch(1);

    auto *sides = new QHBoxLayout;
    sides->addLayout(checks);
    sides->addLayout(radios);
    auto *all = column();
    all->addLayout(sides);
    all->addWidget(line);
    return all;
}

QWidget *labelled(CusCheckBox *box, int width, const QString &caption)
{
    box->setChecked(true);
    box->setFixedWidth(width);
    return PageKit::captioned(box, caption);
}

QLayout *labels()
{
    const QString text = QStringLiteral("Keep the recordings of alarms until they are exported");
    const QString second = QStringLiteral("Warn the operator by a message when motion is missed");
    QVector<QWidget *> elided{
        labelled(new CusCheckBox(text), 416, QStringLiteral("416 px")),
        labelled(new CusCheckBox(text), 213, QStringLiteral("213 px, the rest as a tip")),
        labelled(new CusCheckBox(second), 190, QStringLiteral("190 px, the rest as a tip"))};

    QVector<QWidget *> wrapped;
    for (int width : {240, 160}) {
        auto *box = new CusCheckBox(text);
        box->setCheckLabelWordWrap(true);
        wrapped.append(labelled(box, width, QStringLiteral("Wraps, %1 px").arg(width)));
    }
    auto *mirrored = new CusCheckBox(QStringLiteral("الاحتفاظ بتسجيلات الإنذار حتى يتم تصديرها"));
    mirrored->setLayoutDirection(Qt::RightToLeft);
    mirrored->setCheckLabelWordWrap(true);
    wrapped.append(labelled(mirrored, 160, QStringLiteral("Right to left")));

    auto *line = PageKit::signalLine(QStringLiteral("A press on the label doesn't toggle."));
    auto *only = new CusCheckBox(QStringLiteral("Gate camera, opens its picture"));
    only->setCheckOnlyIndicator(true);
    QObject::connect(only, &CusCheckBox::signalLabelClicked, line,
                     [line] { line->setText(QStringLiteral("signalLabelClicked()")); });
    auto *onlyCell = new QWidget;
    auto *onlyLayout = new QVBoxLayout(onlyCell);
    onlyLayout->setContentsMargins(0, 0, 0, 0);
    onlyLayout->setSpacing(4);
    onlyLayout->addWidget(labelled(only, 240, QStringLiteral("Only the indicator toggles")));
    onlyLayout->addWidget(line);
    wrapped.append(onlyCell);

    auto *all = column();
    all->addWidget(PageKit::row(elided));
    QWidget *below = PageKit::row(wrapped);
    for (QWidget *cell : qAsConst(wrapped))
        below->layout()->setAlignment(cell, Qt::AlignTop);
    all->addWidget(below);
    return all;
}

CusPushButton *textButton(const QString &text, const QString &look = QString(), bool enabled = true)
{
    auto *button = new CusPushButton;
    button->setText(text);
    button->setProperty("look", look);
    button->setEnabled(enabled);
    button->setOtherFixedWidth(34);
    return button;
}

QLayout *textButtons()
{
    QVector<QWidget *> kinds{
        PageKit::captioned(textButton(QStringLiteral("Cancel")), QStringLiteral("Plain")),
        PageKit::captioned(textButton(QStringLiteral("Export"), QStringLiteral("primary")),
                           QStringLiteral("Primary")),
        PageKit::captioned(textButton(QStringLiteral("Delete"), QStringLiteral("danger")),
                           QStringLiteral("Danger")),
        PageKit::captioned(textButton(QStringLiteral("Export"), QStringLiteral("primary"), false),
                           QStringLiteral("Disabled"))};
    for (int width : {224, 152, 96}) {
        auto *button = textButton(QStringLiteral("Export the selected clips"));
        button->setFixedWidth(width);
        kinds.append(PageKit::captioned(button, QStringLiteral("%1 px").arg(width)));
    }

    auto *line = PageKit::signalLine(QStringLiteral("Hold the button for 800 ms."));
    auto *held = textButton(QStringLiteral("Hold to stop recording"));
    held->setCheckable(true);
    held->setEnableLongPress(true);
    held->setLongPressInternal(800);
    QObject::connect(held, &CusPushButton::signalBtnLongPressed, line, [line](bool clicked) {
        line->setText(QStringLiteral("signalBtnLongPressed(%1)").arg(QVariant(clicked).toString()));
    });
    auto *all = column();
    all->addWidget(PageKit::row(kinds, 16));
    all->addWidget(PageKit::row({held, line}, 16));
    return all;
}

class ChecksPage : public QWidget
{
public:
    ChecksPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Checks and text buttons"),
            QStringLiteral("Check boxes and radio buttons with SVG indicators, and the plain text "
                           "button."));
        auto *top = new QHBoxLayout;
        top->setSpacing(16);
        top->addWidget(PageKit::card(QStringLiteral("Recording plan"), recordingPlan()), 1);
        top->addWidget(PageKit::card(QStringLiteral("Indicators"), states()), 1);
        column->addLayout(top);
        column->addWidget(
            PageKit::card(QStringLiteral("Labels that are elided, and that wrap"), labels()));
        column->addWidget(PageKit::card(QStringLiteral("Text buttons"), textButtons()));
    }
};

const GalleryPage page{32, QStringLiteral("Checks and text buttons"),
                       [] { return new ChecksPage; }};

} // namespace
