#include "gallerypage.h"
#include "gallerywindow.h"
#include "pagekit.h"

#include <Vellum/CusColorConfig>

#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <cmath>

namespace {

constexpr int kRoleColumns = 4;
constexpr int kKeyColumns = 2;
constexpr int kGap = 12;
constexpr int kChecker = 6;

struct Role
{
    QString key;
    QString use;
    const QColor &(CusColorConfig::*color)() const;
    /// What the contrast is measured against.
    const QColor &(CusColorConfig::*partner)() const;
    QString partnerName;
};

QVector<Role> roles()
{
    using C = CusColorConfig;
    const QString text = QStringLiteral("text on it");
    const QString dialog = QStringLiteral("on dialog");
    return {
        {QStringLiteral("bakcgroundColor"), QStringLiteral("Window"), &C::bakcgroundColor,
         &C::mainTextColor, text},
        {QStringLiteral("dialogBackgroundColor"), QStringLiteral("Dialog and card"),
         &C::dialogBackgroundColor, &C::mainTextColor, text},
        {QStringLiteral("dialogHeaderColor"), QStringLiteral("Header"), &C::dialogHeaderColor,
         &C::mainTextColor, text},
        {QStringLiteral("bubbleColor"), QStringLiteral("Bubble and hover"), &C::bubbleColor,
         &C::mainTextColor, text},
        {QStringLiteral("mainTextColor"), QStringLiteral("Text"), &C::mainTextColor,
         &C::dialogBackgroundColor, dialog},
        {QStringLiteral("subTextColor"), QStringLiteral("Second text"), &C::subTextColor,
         &C::dialogBackgroundColor, dialog},
        {QStringLiteral("mainColor"), QStringLiteral("Accent"), &C::mainColor, &C::mainTextColor,
         text},
        {QStringLiteral("highlightColor"), QStringLiteral("Highlight and focus"),
         &C::highlightColor, &C::dialogBackgroundColor, dialog},
        {QStringLiteral("successColor"), QStringLiteral("Success"), &C::successColor,
         &C::dialogBackgroundColor, dialog},
        {QStringLiteral("warningColor"), QStringLiteral("Warning"), &C::warningColor,
         &C::dialogBackgroundColor, dialog},
        {QStringLiteral("danger1Color"), QStringLiteral("Danger, marks"), &C::danger1Color,
         &C::dialogBackgroundColor, dialog},
        {QStringLiteral("danger2Color"), QStringLiteral("Danger, grounds"), &C::danger2Color,
         &C::mainTextColor, text},
        {QStringLiteral("negativeBarBackgroundColor"), QStringLiteral("Ground of bars"),
         &C::negativeBarBackgroundColor, &C::mainTextColor, text},
    };
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2, from 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const double one = luminance(a);
    const double other = luminance(b);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}

QString hexOf(const QColor &color)
{
    if (!color.isValid())
        return QStringLiteral("no colour");
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toUpper();
}

/// A patch of colour; a transparent one shows a checkerboard below it, an invalid one a stroke.
class Swatch : public QWidget
{
public:
    Swatch(const QColor &color, const QSize &size)
        : m_color(color)
    {
        setFixedSize(size);
        setToolTip(hexOf(color));
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        QPainterPath outline;
        outline.addRoundedRect(frame, 4, 4);
        painter.save();
        painter.setClipPath(outline);
        if (m_color.alpha() < 255)
            drawChecker(&painter);
        if (m_color.isValid())
            painter.fillRect(rect(), m_color);
        else
            painter.drawLine(rect().bottomLeft(), rect().topRight());
        painter.restore();
        painter.setPen(QColor(255, 255, 255, 40));
        painter.drawPath(outline);
    }

private:
    void drawChecker(QPainter *painter) const
    {
        painter->fillRect(rect(), QColor(0x8a, 0x93, 0xa3));
        for (int y = 0; y < height(); y += kChecker) {
            for (int x = y / kChecker % 2 * kChecker; x < width(); x += 2 * kChecker)
                painter->fillRect(x, y, kChecker, kChecker, QColor(0x60, 0x6c, 0x80));
        }
    }

    QColor m_color;
};

QWidget *roleCell(const Role &role)
{
    const CusColorConfig *theme = CusColorConfig::instance();
    const QColor color = (theme->*role.color)();
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(0);
    grid->addWidget(new Swatch(color, QSize(52, 52)), 0, 0, 3, 1);
    grid->addWidget(new QLabel(role.use), 0, 1);
    grid->addWidget(PageKit::caption(role.key), 1, 1);
    const double ratio = contrast(color, (theme->*role.partner)());
    grid->addWidget(
        PageKit::caption(QStringLiteral("%1   %2 : 1 %3")
                             .arg(hexOf(color), QString::number(ratio, 'f', 1), role.partnerName)),
        2, 1);
    grid->setColumnStretch(1, 1);
    return box;
}

QWidget *roleGrid()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kGap + 4);
    int cell = 0;
    const QVector<Role> all = roles();
    for (const Role &role : all) {
        grid->addWidget(roleCell(role), cell / kRoleColumns, cell % kRoleColumns);
        ++cell;
    }
    for (int column = 0; column < kRoleColumns; ++column)
        grid->setColumnStretch(column, 1);
    return box;
}

QWidget *strip(const QVector<QColor> &colors, const QSize &size, bool numbered)
{
    QVector<QWidget *> cells;
    for (const QColor &color : colors) {
        auto *swatch = new Swatch(color, size);
        if (numbered)
            cells.append(PageKit::captioned(
                swatch,
                QStringLiteral("%1   %2").arg(QString::number(cells.size()), hexOf(color))));
        else
            cells.append(swatch);
    }
    return PageKit::row(cells, numbered ? 12 : 4);
}

QWidget *keyCell(const QString &key, const QColor &color)
{
    auto *box = new QWidget;
    auto *line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    auto *name = PageKit::caption(key);
    name->setWordWrap(false);
    auto *value = PageKit::caption(hexOf(color));
    value->setWordWrap(false);
    line->addWidget(new Swatch(color, QSize(20, 20)));
    line->addWidget(name, 1);
    line->addWidget(value);
    return box;
}

/// Every string key that is neither a theme colour nor a remark, filled down the columns.
QWidget *keyGrid(const QJsonObject &config)
{
    QStringList keys;
    for (auto it = config.begin(); it != config.end(); ++it) {
        if (it.value().isString() && it.key().at(0).isUpper())
            keys.append(it.key());
    }
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(4);
    const int rows = (keys.size() + kKeyColumns - 1) / kKeyColumns;
    for (int i = 0; i < keys.size(); ++i) {
        const QColor color = CusColorConfig::instance()->getColor(keys.at(i), QColor());
        grid->addWidget(keyCell(keys.at(i), color), i % rows, i / rows);
    }
    for (int column = 0; column < kKeyColumns; ++column)
        grid->setColumnStretch(column, 1);
    return box;
}

class ThemePage : public QWidget
{
public:
    ThemePage();

private:
    QWidget *schemeRow();
    QPushButton *schemeButton(const QString &text, const QString &file);
    void load(const QString &file);

    QLabel *m_message = PageKit::signalLine();
};

ThemePage::ThemePage()
{
    auto *column = PageKit::pageLayout(
        this, QStringLiteral("Theme"),
        QStringLiteral("The colours that controls use in their own painting. A control reads them "
                       "when it is made, so another file builds every page again."));
    const CusColorConfig *theme = CusColorConfig::instance();
    column->addWidget(PageKit::card(QStringLiteral("Colour file"), schemeRow()));
    column->addWidget(PageKit::card(QStringLiteral("Colours by role"), roleGrid()));
    column->addWidget(PageKit::card(QStringLiteral("Palette for series and tags: commonColors"),
                                    strip(theme->commonColors(), QSize(84, 40), true)));
    column->addWidget(
        PageKit::card(QStringLiteral("Colours of single controls"), keyGrid(theme->config())));
    QVector<QColor> offered;
    const QStringList names = theme->getColorList(QStringLiteral("CusColorChoosePane_ColorArray"));
    for (const QString &name : names)
        offered.append(QColor(name));
    column->addWidget(
        PageKit::card(QStringLiteral("Colours on offer: CusColorChoosePane_ColorArray"),
                      strip(offered, QSize(32, 32), false)));
}

QWidget *ThemePage::schemeRow()
{
    auto *open = new QPushButton(QStringLiteral("Load a file…"));
    connect(open, &QPushButton::clicked, this, [this] {
        const QString file =
            QFileDialog::getOpenFileName(this, QStringLiteral("Colour file"), QString(),
                                         QStringLiteral("Colour files (*.json)"));
        if (!file.isEmpty())
            load(file);
    });
    return PageKit::row(
        {schemeButton(QStringLiteral("Starter"), QStringLiteral(":/Resource/ColorConfig.json")),
         schemeButton(QStringLiteral("Harbour"), QStringLiteral(":/gallery/harbour.json")), open,
         m_message},
        8);
}

QJsonObject readObject(const QString &file, QString *error)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        *error = source.errorString();
        return QJsonObject();
    }
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(source.readAll(), &parsing);
    if (!document.isObject())
        *error =
            document.isNull() ? parsing.errorString() : QStringLiteral("the file holds no object");
    return document.object();
}

QPushButton *ThemePage::schemeButton(const QString &text, const QString &file)
{
    auto *button = new QPushButton(text);
    button->setCheckable(true);
    QString error;
    button->setChecked(readObject(file, &error) == CusColorConfig::instance()->config());
    connect(button, &QPushButton::clicked, this, [this, file] { load(file); });
    return button;
}

void ThemePage::load(const QString &file)
{
    QString error;
    const QJsonObject config = readObject(file, &error);
    if (!error.isEmpty()) {
        m_message->setText(QStringLiteral("Not loaded: %1").arg(error));
        return;
    }
    CusColorConfig::instance()->setConfig(config);
    if (GalleryWindow *window = GalleryWindow::of(this))
        window->rebuildPages();
}

const GalleryPage page{10, QStringLiteral("Theme"), [] { return new ThemePage; }};

} // namespace
