#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/AddSubBtnPane>
#include <Vellum/AngleTiPWidget>
#include <Vellum/CusBasicSpinBox>
#include <Vellum/CusCustomInputPane>
#include <Vellum/CusDoubleSpinBox>
#include <Vellum/CusSpinBox>
#include <Vellum/CusSpinBoxWithUnits>
#include <Vellum/CusVerRangeInputPane>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kBoxWidth = 136;
constexpr int kPaneWidth = 216;

/// What the controls of the page report, the latest on the line below them.
class Reports
{
public:
    explicit Reports(QLabel *line)
        : m_line(line)
    {
    }

    template <typename Box>
    void watch(Box *box, const QString &name) const
    {
        QLabel *line = m_line;
        QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), line, [=](int value) {
            tell(line, name, QStringLiteral("valueChanged"), value);
        });
        QObject::connect(box, &QSpinBox::editingFinished, line, [=] {
            tell(line, name, QStringLiteral("editingFinished"), box->value());
        });
    }

    static void tell(QLabel *line, const QString &name, const QString &signal, int value)
    {
        line->setText(QStringLiteral("%1: %2, %3").arg(name, signal).arg(value));
    }

    QLabel *line() const { return m_line; }

private:
    QLabel *m_line;
};

template <typename Box>
Box *spinBox(int minimum, int maximum, int value)
{
    auto *box = new Box;
    box->setRange(minimum, maximum);
    box->setValue(value);
    box->setFixedWidth(kBoxWidth);
    return box;
}

CusSpinBox *basedBox(int base, int fieldWidth, QChar fill, int value)
{
    auto *box = spinBox<CusSpinBox>(0, 255, value);
    box->setBase(base);
    box->setFieldWidth(fieldWidth);
    box->setFillChar(fill);
    return box;
}

CusSpinBoxWithUnits *unitBox(const QString &unit, int minimum, int maximum, int value)
{
    auto *box = spinBox<CusSpinBoxWithUnits>(minimum, maximum, value);
    box->setUnitTxt(unit);
    return box;
}

/// The bubble that an entry outside the range brings up, held fast on the page.
QLabel *rangeTipPicture(const QString &text)
{
    AngleTiPWidget tip(ArrowWidget::Arrow_Left);
    tip.setTipRightBottomPoint(QPoint(400, 100));
    tip.setShowText(text);
    return PageKit::pictureOf(&tip);
}

QWidget *integers(const Reports &reports)
{
    auto *retention = spinBox<CusBasicSpinBox>(0, 100, 40);
    reports.watch(retention, QStringLiteral("Retention"));
    auto *refused = spinBox<CusBasicSpinBox>(0, 100, 40);
    refused->setIsValidStyle(false);
    auto *tipAndBox = new QWidget;
    auto *lines = new QVBoxLayout(tipAndBox);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    lines->addWidget(rangeTipPicture(QStringLiteral("Please input 0~100.")), 0, Qt::AlignLeft);
    lines->addWidget(refused, 0, Qt::AlignLeft);
    auto *disabled = spinBox<CusBasicSpinBox>(0, 100, 40);
    disabled->setEnabled(false);
    auto *empty = spinBox<CusBasicSpinBox>(1, 30, 7);
    empty->setPlaceHolderText(QStringLiteral("1 to 30"));
    empty->clear();
    auto *bare = spinBox<CusBasicSpinBox>(0, 100, 40);
    bare->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return PageKit::row({PageKit::captioned(retention, QStringLiteral("0 to 100: type 200")),
                         PageKit::captioned(tipAndBox, QStringLiteral("Invalid, with its bubble")),
                         PageKit::captioned(empty, QStringLiteral("Placeholder")),
                         PageKit::captioned(bare, QStringLiteral("No arrows")),
                         PageKit::captioned(disabled, QStringLiteral("Disabled"))});
}

QWidget *bases(const Reports &reports)
{
    auto *channel = spinBox<CusSpinBox>(1, 64, 7);
    reports.watch(channel, QStringLiteral("Channel"));
    auto *hex = basedBox(16, 4, QLatin1Char('0'), 26);
    reports.watch(hex, QStringLiteral("Device ID"));
    auto *bits = basedBox(2, 8, QLatin1Char('0'), 41);
    auto *spaced = basedBox(10, 6, QLatin1Char(' '), 88);
    auto *disabled = spinBox<CusSpinBox>(0, 23, 6);
    disabled->setEnabled(false);
    return PageKit::row({PageKit::captioned(channel, QStringLiteral("Two digits")),
                         PageKit::captioned(hex, QStringLiteral("Base 16, filled to 4")),
                         PageKit::captioned(bits, QStringLiteral("Base 2, filled to 8")),
                         PageKit::captioned(spaced, QStringLiteral("Filled with blanks to 6")),
                         PageKit::captioned(disabled, QStringLiteral("Disabled"))});
}

QWidget *units(const Reports &reports)
{
    auto *rate = unitBox(QStringLiteral("fps"), 1, 60, 25);
    reports.watch(rate, QStringLiteral("Frame rate"));
    auto *bitrate = unitBox(QStringLiteral("kbit/s"), 128, 16384, 4096);
    bitrate->setSingleStep(128);
    auto *narrow = unitBox(QStringLiteral("\u00b0C"), -20, 80, 41);
    narrow->setFixedWidth(96);
    auto *invalid = unitBox(QStringLiteral("min"), 1, 60, 15);
    invalid->setIsValidStyle(false);
    auto *disabled = unitBox(QStringLiteral("days"), 1, 365, 30);
    disabled->setEnabled(false);
    return PageKit::row({PageKit::captioned(rate, QStringLiteral("Frame rate")),
                         PageKit::captioned(bitrate, QStringLiteral("Bit rate, in steps of 128")),
                         PageKit::captioned(invalid, QStringLiteral("Invalid")),
                         PageKit::captioned(disabled, QStringLiteral("Disabled")),
                         PageKit::captioned(narrow, QStringLiteral("Narrow"))});
}

QWidget *doubles(const Reports &reports)
{
    const auto box = [](double value, int decimals) {
        auto *made = new CusDoubleSpinBox;
        made->setRange(0, 32);
        made->setDecimals(decimals);
        made->setSingleStep(0.5);
        made->setValue(value);
        made->setFixedWidth(kBoxWidth);
        return made;
    };
    auto *zoom = box(4.5, 2);
    zoom->setSuffix(QStringLiteral(" \u00d7"));
    QLabel *line = reports.line();
    QObject::connect(zoom, QOverload<double>::of(&QDoubleSpinBox::valueChanged), line,
                     [line](double value) {
                         line->setText(QStringLiteral("Zoom: valueChanged, %1").arg(value));
                     });
    auto *halves = box(2.5, 1);
    halves->setValidInputCallBack([](const QString &, const QString &text, const int &) {
        const QString digits = text.section(QLatin1Char('.'), 1);
        const bool half =
            digits.isEmpty() || digits == QLatin1String("0") || digits == QLatin1String("5");
        return half ? QValidator::Acceptable : QValidator::Invalid;
    });
    auto *disabled = box(1.25, 2);
    disabled->setEnabled(false);
    return PageKit::row({PageKit::captioned(zoom, QStringLiteral("Two decimals, suffix")),
                         PageKit::captioned(halves, QStringLiteral("Halves only, by callback")),
                         PageKit::captioned(disabled, QStringLiteral("Disabled"))});
}

QWidget *addSub(const Reports &reports)
{
    auto *speed = new AddSubBtnPane;
    speed->setCurValue(4);
    speed->setMaxValue(8);
    speed->setMinValue(1);
    QLabel *line = reports.line();
    QObject::connect(speed, &AddSubBtnPane::signalValueChanged, line, [line](int value) {
        Reports::tell(line, QStringLiteral("PTZ speed"), QStringLiteral("signalValueChanged"),
                      value);
    });
    auto *preset = new AddSubBtnPane;
    preset->setCurValue(2);
    preset->registerNumToTextCb(
        [](const int &value) { return QStringLiteral("%1 \u00d7").arg(1 << qBound(0, value, 6)); });
    auto *disabled = new AddSubBtnPane;
    disabled->setEnabled(false);
    return PageKit::row({PageKit::captioned(speed, QStringLiteral("PTZ speed")),
                         PageKit::captioned(preset, QStringLiteral("Text by callback")),
                         PageKit::captioned(disabled, QStringLiteral("Disabled"))});
}

CusCustomInputPane *choice(bool autoChecked)
{
    auto *pane = new CusCustomInputPane;
    pane->setFixedWidth(kPaneWidth);
    pane->setCustomizeMinVal(1);
    pane->setCustomizeMaxVal(120);
    pane->setCustomizeCurVal(20);
    pane->setCustomizeUnitTxt(QStringLiteral("s"));
    pane->setRadioLayoutSpacing(32);
    pane->setAutoChecked(autoChecked);
    return pane;
}

QWidget *choices(const Reports &reports)
{
    auto *custom = choice(false);
    QLabel *line = reports.line();
    QObject::connect(custom, &CusCustomInputPane::signalCustomizeInputValChanged, line,
                     [line](bool isAuto, int value) {
                         Reports::tell(line,
                                       isAuto ? QStringLiteral("Exposure, Auto")
                                              : QStringLiteral("Exposure, Customize"),
                                       QStringLiteral("signalCustomizeInputValChanged"), value);
                     });
    auto *disabled = choice(false);
    disabled->setEnabled(false);
    auto *bare = choice(true);
    bare->setRadiosVisible(false);
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(16);
    grid->addWidget(PageKit::captioned(choice(true), QStringLiteral("On Auto")), 0, 0);
    grid->addWidget(PageKit::captioned(bare, QStringLiteral("Without radio buttons")), 0, 1);
    grid->addWidget(PageKit::captioned(custom, QStringLiteral("On Customize")), 1, 0);
    grid->addWidget(PageKit::captioned(disabled, QStringLiteral("Disabled")), 1, 1);
    return box;
}

CusVerRangeInputPane *range(int minimum, int maximum)
{
    auto *pane = new CusVerRangeInputPane;
    pane->setFixedWidth(kPaneWidth);
    pane->setMinLabelText(QStringLiteral("Shortest stay"));
    pane->setMaxLabelText(QStringLiteral("Longest stay"));
    pane->setMinBtnTipText(QStringLiteral("A shorter stay raises no event."));
    pane->setMaxBtnTipText(QStringLiteral("A longer stay raises a loitering event."));
    pane->setMinUnit(QStringLiteral("s"));
    pane->setMaxUnit(QStringLiteral("s"));
    pane->setMinValRange(1, 600);
    pane->setMaxValRange(1, 600);
    pane->setCurMinValInfo(false, minimum);
    pane->setCurMaxValInfo(false, maximum);
    return pane;
}

QWidget *ranges(const Reports &reports)
{
    auto *valid = range(10, 90);
    QLabel *line = reports.line();
    QObject::connect(valid, &CusVerRangeInputPane::signalInputValChanged, line,
                     [line](bool isMin, bool, int value) {
                         Reports::tell(line,
                                       isMin ? QStringLiteral("Shortest stay")
                                             : QStringLiteral("Longest stay"),
                                       QStringLiteral("signalInputValChanged"), value);
                     });
    auto *invalid = range(90, 10);
    for (CusVerRangeInputPane *pane : {valid, invalid}) {
        const auto halves = pane->findChildren<CusCustomInputPane *>();
        for (CusCustomInputPane *half : halves) {
            half->setRadioLayoutSpacing(32);
            half->setProperty("Invalid", pane == invalid);
        }
    }
    return PageKit::row({PageKit::captioned(valid, QStringLiteral("Dwell time")),
                         PageKit::captioned(invalid, QStringLiteral("Minimum above maximum"))},
                        16);
}

class NumbersPage : public QWidget
{
public:
    NumbersPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Numbers"),
            QStringLiteral("Spin boxes that refuse what is outside their range, and the inputs "
                           "built on them."));
        const Reports reports(PageKit::signalLine(QStringLiteral("No signal yet.")));
        auto *boxes = new QVBoxLayout;
        boxes->setSpacing(16);
        for (QWidget *row : {integers(reports), bases(reports), units(reports)})
            boxes->addWidget(row);
        column->addWidget(PageKit::card(QStringLiteral("Whole numbers, bases, units"), boxes));
        addPair(column, PageKit::card(QStringLiteral("Fractions"), doubles(reports)),
                PageKit::card(QStringLiteral("Minus, value, plus"), addSub(reports)));
        auto *left = new QWidget;
        auto *lines = new QVBoxLayout(left);
        lines->setContentsMargins(0, 0, 0, 0);
        lines->addWidget(PageKit::card(QStringLiteral("Auto or Customize"), choices(reports)));
        lines->addStretch(1);
        lines->addWidget(reports.line());
        addPair(column, left, PageKit::card(QStringLiteral("A range of two"), ranges(reports)));
    }

private:
    static void addPair(QVBoxLayout *column, QWidget *left, QWidget *right)
    {
        auto *line = new QHBoxLayout;
        line->setSpacing(16);
        line->addWidget(left, 1);
        line->addWidget(right, 1);
        column->addLayout(line);
    }
};

const GalleryPage page{85, QStringLiteral("Numbers"), [] { return new NumbersPage; }};

} // namespace
