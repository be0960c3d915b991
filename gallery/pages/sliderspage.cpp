#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/CusDoubleSlider>
#include <Vellum/CusSlider>
#include <Vellum/CusTickTwoSideSlider>
#include <Vellum/CusTwoSideSegSlider>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kGap = 24;
constexpr int kRoomForText = 8;
constexpr int kLineHeight = 24;
constexpr int kTextSliderHeight = 40;
constexpr int kNameWidth = 120;
constexpr int kVerticalHeight = 128;
constexpr int kVerticalWidth = 64;
constexpr int kDefaultBitrate = 40;
constexpr int kSegments = 5;
// The centred sliders' colours come from code, so a client mutes them itself.
const QColor kDisabledGroove{0x42, 0x4E, 0x64};
const QColor kDisabledFill{0x8A, 0x93, 0xA3};

/// What a card has left over in height goes below its rows.
QLayout *atTop(QLayout *rows)
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(rows);
    column->addStretch(1);
    return column;
}

/// A widget of its own for each slider, so that its text has a parent with room above.
QWidget *cell(QSlider *slider, const QString &caption)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, kRoomForText, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(slider);
    layout->addWidget(PageKit::caption(caption));
    return box;
}

QGridLayout *namedGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(12);
    grid->setColumnMinimumWidth(0, kNameWidth);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->addWidget(PageKit::caption(QStringLiteral("Enabled")), 0, 1);
    grid->addWidget(PageKit::caption(QStringLiteral("Disabled")), 0, 2);
    return grid;
}

class SlidersPage : public QWidget
{
public:
    SlidersPage();

private:
    QLayout *textPlaces();
    QLayout *limits();
    QLayout *doubles();
    QLayout *centred();
    QLayout *verticals();
    void addSegments(QGridLayout *grid);
    void addCentre(QGridLayout *grid);
    CusSlider *textSlider(CusSlider::SliderTextPos position, int value);
    void report(const QString &line) { m_line->setText(line); }
    void reportValue(CusSlider *slider, const QString &name);

    QLabel *m_line = PageKit::signalLine(QStringLiteral("Move a slider: its signal shows here."));
};

SlidersPage::SlidersPage()
{
    QVBoxLayout *column =
        PageKit::pageLayout(this, QStringLiteral("Sliders"),
                            QStringLiteral("A click takes the handle there; the handle is drawn "
                                           "from SVG images of the style sheet."));
    column->addWidget(
        PageKit::card(QStringLiteral("CusSlider: where the value stands"), textPlaces()));
    auto *pair = new QHBoxLayout;
    pair->setSpacing(16);
    pair->addWidget(PageKit::card(QStringLiteral("CusSlider: tick and valid range"), limits()), 1);
    pair->addWidget(PageKit::card(QStringLiteral("CusDoubleSlider: doubles by a step"), doubles()),
                    1);
    column->addLayout(pair);
    auto *second = new QHBoxLayout;
    second->setSpacing(16);
    second->addWidget(PageKit::card(QStringLiteral("Centred sliders"), centred()), 1);
    second->addWidget(PageKit::card(QStringLiteral("Vertical"), verticals()));
    column->addLayout(second);
    column->addWidget(PageKit::card(QString(), PageKit::row({m_line})));
}

void SlidersPage::reportValue(CusSlider *slider, const QString &name)
{
    connect(slider, &CusSlider::signalSliderValueChange, this, [this, slider, name] {
        report(QStringLiteral("%1: signalSliderValueChange(), value %2")
                   .arg(name)
                   .arg(slider->value()));
    });
}

CusSlider *SlidersPage::textSlider(CusSlider::SliderTextPos position, int value)
{
    auto *slider = new CusSlider(this);
    slider->setFixedHeight(kTextSliderHeight);
    // The text keeps its distance from the middle; the groove goes down, clear of it.
    slider->setStyleSheet(QStringLiteral("CusSlider { padding-top: 8px; }"));
    slider->setTextLabelStyleProperty("h12", true);
    slider->registerValueToTextCb([](int percent) { return QStringLiteral("%1 %").arg(percent); });
    slider->setValue(value);
    slider->setLabelTextPos(position);
    return slider;
}

QLayout *SlidersPage::textPlaces()
{
    const struct
    {
        CusSlider::SliderTextPos position;
        QString name;
        int value;
    } places[] = {
        {CusSlider::TEXT_POS_NONE, QStringLiteral("TEXT_POS_NONE"), 35},
        {CusSlider::TEXT_POS_LEFT, QStringLiteral("TEXT_POS_LEFT"), 60},
        {CusSlider::TEXT_POS_RIGHT, QStringLiteral("TEXT_POS_RIGHT"), 60},
        {CusSlider::TEXT_POS_ON_HANDLE, QStringLiteral("TEXT_POS_ON_HANDLE"), 75},
        {CusSlider::TEXT_POS_FOLLOW_MOUSE, QStringLiteral("TEXT_POS_FOLLOW_MOUSE"), 45},
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (const auto &place : places) {
        CusSlider *slider = textSlider(place.position, place.value);
        QWidget *box = cell(slider, place.name);
        slider->enableLabelIsChild(place.position == CusSlider::TEXT_POS_FOLLOW_MOUSE);
        reportValue(slider, place.name);
        row->addWidget(box, 1, Qt::AlignTop);
    }
    return row;
}

QLayout *SlidersPage::limits()
{
    auto *grid = namedGrid();
    const auto addRow = [&](const QString &name, const std::function<void(CusSlider *)> &setUp) {
        const int row = grid->rowCount();
        grid->addWidget(PageKit::caption(name), row, 0);
        for (int column : {1, 2}) {
            auto *slider = new CusSlider(this);
            slider->setFixedHeight(kLineHeight);
            setUp(slider);
            slider->setEnabled(column == 1);
            reportValue(slider, name);
            grid->addWidget(slider, row, column);
        }
    };
    addRow(QStringLiteral("Bitrate, plain"), [](CusSlider *slider) { slider->setValue(70); });
    addRow(QStringLiteral("Tick on the default"), [](CusSlider *slider) {
        slider->setTickMark(kDefaultBitrate);
        slider->setValue(70);
    });
    addRow(QStringLiteral("Stops outside 20 to 70"), [](CusSlider *slider) {
        slider->setValidMin(20);
        slider->setValidMax(70);
        slider->setCheckValidRange(true);
        slider->setValue(50);
    });
    return atTop(grid);
}

QLayout *SlidersPage::doubles()
{
    auto *grid = namedGrid();
    const auto addRow = [&](const QString &name,
                            const std::function<void(CusDoubleSlider *)> &setUp) {
        const int row = grid->rowCount();
        grid->addWidget(PageKit::caption(name), row, 0, Qt::AlignBottom);
        for (int column : {1, 2}) {
            auto *slider = new CusDoubleSlider(this);
            setUp(slider);
            slider->setEnabled(column == 1);
            connect(slider, &CusDoubleSlider::signalValueChanged, this, [this, name](double value) {
                report(QStringLiteral("%1: signalValueChanged(%2)").arg(name).arg(value));
            });
            connect(slider, &CusDoubleSlider::signalMouseReleased, this,
                    [this, name](double value) {
                        report(QStringLiteral("%1: signalMouseReleased(%2)").arg(name).arg(value));
                    });
            grid->addWidget(slider, row, column);
        }
    };
    addRow(QStringLiteral("Exposure, one decimal"),
           [](CusDoubleSlider *slider) { slider->setDoubleVal(62.5); });
    addRow(QStringLiteral("Zoom 1 to 8 by 0.25"), [](CusDoubleSlider *slider) {
        slider->setDoubleValueRange(1.0, 8.0);
        slider->setValueStep(0.25);
        slider->registerValToTextCb(
            [](double zoom) { return QStringLiteral("%1\u00d7").arg(zoom, 0, 'f', 2); });
        slider->setDoubleVal(3.25);
    });
    return atTop(grid);
}

void SlidersPage::addSegments(QGridLayout *grid)
{
    const int row = grid->rowCount();
    grid->addWidget(PageKit::caption(QStringLiteral("Playback speed\n5 and 5 segments")), row, 0);
    for (int column : {1, 2}) {
        auto *slider = new CusTwoSideSegSlider(this);
        slider->setFixedHeight(kLineHeight);
        slider->setLeftSegment(kSegments);
        slider->setRightSegment(kSegments);
        slider->setToSegment(column == 2, column + 1);
        if (column == 2) {
            slider->setDefaultGrooveBrushColor(kDisabledGroove);
            slider->setUsedGrooveBrushColor(kDisabledFill);
            slider->setCenterLineColor(kDisabledFill);
        }
        slider->setEnabled(column == 1);
        connect(slider, &CusTwoSideSegSlider::signalSegValChanged, this,
                [this](bool isLeft, int segment) {
                    report(QStringLiteral("Playback speed: signalSegValChanged(%1, %2)")
                               .arg(isLeft ? QStringLiteral("left") : QStringLiteral("right"))
                               .arg(segment));
                });
        grid->addWidget(slider, row, column);
    }
}

void SlidersPage::addCentre(QGridLayout *grid)
{
    const struct
    {
        QString name;
        int center;
        int value;
    } rows[] = {
        {QStringLiteral("Gain\ncentre at 20 of 100"), 20, 10},
        {QStringLiteral("Balance\ncentre left unset"), 0, 30},
    };
    for (const auto &sample : rows) {
        const int row = grid->rowCount();
        grid->addWidget(PageKit::caption(sample.name), row, 0);
        for (int column : {1, 2}) {
            auto *slider = new CusTickTwoSideSlider(this);
            slider->setFixedHeight(kLineHeight);
            slider->setMaximum(100);
            slider->setCenterVal(sample.center);
            slider->setValue(column == 1 ? sample.value : 80);
            if (column == 2)
                slider->setUsedGrooveBrushColor(kDisabledFill);
            slider->setEnabled(column == 1);
            reportValue(slider, sample.name.section(QLatin1Char('\n'), 0, 0));
            grid->addWidget(slider, row, column);
        }
    }
}

QLayout *SlidersPage::centred()
{
    auto *grid = namedGrid();
    addSegments(grid);
    addCentre(grid);
    return atTop(grid);
}

QLayout *SlidersPage::verticals()
{
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    int column = 0;
    for (const char *name : {"Pan", "Tilt", "Disabled"}) {
        auto *slider = new CusSlider(Qt::Vertical, this);
        slider->setFixedHeight(kVerticalHeight);
        slider->setValue(column == 0 ? 30 : 65);
        slider->setEnabled(column < 2);
        reportValue(slider, QLatin1String(name));
        grid->addWidget(slider, 0, column, Qt::AlignHCenter);
        grid->addWidget(PageKit::caption(QLatin1String(name)), 1, column, Qt::AlignHCenter);
        grid->setColumnMinimumWidth(column++, kVerticalWidth);
    }
    return atTop(grid);
}

const GalleryPage page{90, QStringLiteral("Sliders"), [] { return new SlidersPage; }};

} // namespace
