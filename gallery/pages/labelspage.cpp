#include "galleryoptions.h"
#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusEllipsisLabel>
#include <Vellum/CusLabel>
#include <Vellum/RollLabel>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kMinWidth = 72;
constexpr int kMaxWidth = 220;
constexpr int kFirstWidth = 140;
constexpr int kPolicyHeight = 56;
constexpr int kGroundPadding = 8;
constexpr int kLineHeight = 32;
constexpr int kRollWidth = 216;
constexpr int kEllipsisHeight = 24;
constexpr int kMarqueeCaptionWidth = 84;
constexpr int kEllipsisCaptionWidth = 96;
constexpr QSize kPlateSize(112, 28);
constexpr int kPictureSteps = 6;

struct Policy
{
    CusLabel::LableType type;
    const char *name;
    const char *effect;
};

constexpr Policy kPolicies[] = {
    {CusLabel::LABEL_TYPE_DEFAULT, "LABEL_TYPE_DEFAULT", "the label clips"},
    {CusLabel::LABEL_TYPE_LINE_BREAK, "LABEL_TYPE_LINE_BREAK", "a new line where one is full"},
    {CusLabel::LABEL_TYPE_LONG_ELLIPSES, "LABEL_TYPE_LONG_ELLIPSES", "elided, the rest as a tip"},
    {CusLabel::LABEL_TYPE_SCROLL_SHOW, "LABEL_TYPE_SCROLL_SHOW", "scrolls, the rest as a tip"},
};

struct Sample
{
    const char *first;
    const char *second;
};

constexpr Sample kSamples[] = {
    {"North gate, inner lane 3", ""},
    {"Loading bay west", " · 08:15:30"},
    {"东区停车场出入口摄像机", ""},
    {"地下车库二层通道", " · 离线"},
};

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// \a label on a dark ground that ends with it, so that its extent can be seen.
QFrame *grounded(QLabel *label)
{
    auto *ground = new QFrame;
    ground->setObjectName(QStringLiteral("gallery_sampleGround"));
    auto *layout = new QHBoxLayout(ground);
    layout->setContentsMargins(kGroundPadding, 0, kGroundPadding, 0);
    layout->addWidget(label);
    return ground;
}

/// A grid whose first column holds captions and whose rest holds what they name.
QGridLayout *captionGrid(int captionWidth)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(12);
    grid->setColumnMinimumWidth(0, captionWidth);
    grid->setColumnStretch(1, 1);
    return grid;
}

class LabelsPage : public QWidget
{
public:
    LabelsPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLayout *policies();
    QLayout *marquees();
    QLayout *ellipses();
    QLayout *plates();
    CusLabel *plate(const QString &text, const QColor &color, QLabel *report);

    QVector<CusLabel *> m_samples;
    QVector<RollLabel *> m_rolls;
};

LabelsPage::LabelsPage()
{
    QVBoxLayout *column = PageKit::pageLayout(
        this, QStringLiteral("Labels"),
        QStringLiteral("What becomes of a text that doesn't fit, solved in three ways."));
    column->addWidget(
        PageKit::card(QStringLiteral("CusLabel: four overflow policies"), policies()));
    column->addLayout(PageKit::beside(
        {PageKit::card(QStringLiteral("RollLabel: marquee"), marquees()),
         PageKit::card(QStringLiteral("CusEllipsisLabel: grows up to maxWidth"), ellipses())}));
    column->addWidget(PageKit::card(
        QStringLiteral("CusLabel: tinted SVG background, pressed and released"), plates()));
}

/// A picture shall be the same from run to run: the marquees stand some steps after their start.
void LabelsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (GalleryOptions::current().screenshotFolder.isEmpty())
        return;
    for (int step = 0; step < kPictureSteps; ++step) {
        for (CusLabel *label : qAsConst(m_samples))
            QMetaObject::invokeMethod(label, "onTimeOut");
        for (RollLabel *label : qAsConst(m_rolls))
            label->onUpdate();
    }
    const QList<QTimer *> timers = findChildren<QTimer *>();
    for (QTimer *timer : timers)
        timer->stop();
}

QLayout *LabelsPage::policies()
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(kMinWidth, kMaxWidth);
    slider->setValue(kFirstWidth);
    slider->setFixedWidth(kMaxWidth);
    auto *value = plainLabel(QString());
    const auto applyWidth = [this, value](int width) {
        for (CusLabel *label : qAsConst(m_samples))
            label->setFixedWidth(width);
        value->setText(QStringLiteral("%1 px").arg(width));
    };

    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    int columnIndex = 0;
    for (const Policy &policy : kPolicies) {
        QLabel *name = PageKit::caption(QLatin1String(policy.name) + QLatin1Char('\n')
                                        + QLatin1String(policy.effect));
        grid->addWidget(name, 0, columnIndex);
        grid->setColumnMinimumWidth(columnIndex, kMaxWidth + 2 * kGroundPadding);
        int rowIndex = 1;
        for (const Sample &text : kSamples) {
            auto *label = new CusLabel;
            label->setLableType(policy.type);
            label->setFixedSize(kFirstWidth, kPolicyHeight);
            label->setCusText(QString::fromUtf8(text.first), QString::fromUtf8(text.second));
            m_samples.append(label);
            grid->addWidget(grounded(label), rowIndex++, columnIndex, Qt::AlignLeft);
        }
        ++columnIndex;
    }
    grid->setColumnStretch(columnIndex, 1);

    auto *layout = new QVBoxLayout;
    layout->setSpacing(12);
    layout->addWidget(
        PageKit::row({plainLabel(QStringLiteral("Width of the labels")), slider, value}, 12));
    layout->addLayout(grid);
    connect(slider, &QSlider::valueChanged, this, applyWidth);
    applyWidth(kFirstWidth);
    return layout;
}

QLayout *LabelsPage::marquees()
{
    QGridLayout *grid = captionGrid(kMarqueeCaptionWidth);
    const auto addRoll = [this, grid](RollLabel::RollLabelType type, const char *name,
                                      const char *text) {
        auto *label = new RollLabel(QString::fromUtf8(text));
        label->setFixedSize(kRollWidth, kLineHeight);
        label->setRollType(type);
        m_rolls.append(label);
        const int row = grid->rowCount();
        grid->addWidget(PageKit::caption(QLatin1String(name)), row, 0);
        grid->addWidget(grounded(label), row, 1, Qt::AlignLeft);
        return label;
    };
    addRoll(RollLabel::Roll_Auto, "Roll_Auto",
            "存储服务器三号磁盘空间不足，请尽快处理 Storage server 3 is nearly full");
    addRoll(RollLabel::Roll_Auto, "Roll_Auto, fits", "All cameras online");
    RollLabel *manual = addRoll(RollLabel::Roll_Manual, "Roll_Manual",
                                "Export of 24 recordings finished, 2 cameras had no recording");
    auto *start = new QPushButton(QStringLiteral("Start"));
    auto *stop = new QPushButton(QStringLiteral("Stop"));
    connect(start, &QPushButton::clicked, manual, &RollLabel::startRoll);
    connect(stop, &QPushButton::clicked, manual, &RollLabel::stopRoll);
    grid->addWidget(start, grid->rowCount() - 1, 2);
    grid->addWidget(stop, grid->rowCount() - 1, 3);
    auto *layout = new QVBoxLayout;
    layout->addLayout(grid);
    layout->addStretch(1);
    return layout;
}

QLayout *LabelsPage::ellipses()
{
    const QString path = QStringLiteral("/recordings/2024-05-18/north-gate-0815.mp4");
    auto *edit = new QLineEdit(path);
    QGridLayout *grid = captionGrid(kEllipsisCaptionWidth);
    grid->addWidget(PageKit::caption(QStringLiteral("Text")), 0, 0);
    grid->addWidget(edit, 0, 1);
    for (const int width : {120, 240, 65535}) {
        auto *label = new CusEllipsisLabel;
        label->setFixedHeight(kEllipsisHeight);
        label->set_maxWidth(width);
        label->setText(path);
        connect(edit, &QLineEdit::textChanged, label, &QLabel::setText);
        const int row = grid->rowCount();
        grid->addWidget(PageKit::caption(QStringLiteral("maxWidth %1").arg(width)), row, 0);
        grid->addWidget(grounded(label), row, 1, Qt::AlignLeft);
    }
    return grid;
}

QLayout *LabelsPage::plates()
{
    QLabel *report = PageKit::signalLine(QStringLiteral("Press a plate to see its signals."));
    report->setContentsMargins(0, 0, 0, 4);
    const CusColorConfig *theme = CusColorConfig::instance();
    auto *camera = new CusLabel;
    camera->setFixedSize(kPlateSize.height(), kPlateSize.height());
    camera->setSvgBGImage(QStringLiteral(":/Resource/icons/dome-camera.svg"));
    camera->setSvgBGColor(theme->highlightColor());
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    layout->addWidget(
        PageKit::row({camera, plate(QStringLiteral("Online"), theme->successColor(), report),
                      plate(QStringLiteral("Degraded"), theme->warningColor(), report),
                      plate(QStringLiteral("离线"), theme->subTextColor(), report), report},
                     16));
    return layout;
}

CusLabel *LabelsPage::plate(const QString &text, const QColor &color, QLabel *report)
{
    auto *label = new CusLabel(text);
    label->setObjectName(QStringLiteral("gallery_plateLabel"));
    label->setFixedSize(kPlateSize);
    label->setAlignment(Qt::AlignCenter);
    label->setMouseArrowHoverEnabled(true);
    label->setSvgBGImage(QStringLiteral(":/gallery/images/plate.svg"));
    label->setSvgBGColor(color);
    connect(label, &CusLabel::signalPressed, report, [report, text] {
        report->setText(QStringLiteral("signalPressed from “%1”").arg(text));
    });
    connect(label, &CusLabel::signalReleased, report, [report, text] {
        report->setText(QStringLiteral("signalReleased from “%1”").arg(text));
    });
    return label;
}

const GalleryPage page{40, QStringLiteral("Labels"), [] { return new LabelsPage; }};

} // namespace
