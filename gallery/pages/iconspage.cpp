#include "galleryoptions.h"
#include "gallerypage.h"
#include "iconsurvey.h"
#include "pagekit.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusSvgImage>

#include <QAbstractListModel>
#include <QButtonGroup>
#include <QCache>
#include <QColorDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QSvgRenderer>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int kMinIconSize = 16;
constexpr int kMaxIconSize = 96;
constexpr int kFirstIconSize = 32;
constexpr int kCellPadding = 12;
constexpr int kMinCellWidth = 111;
constexpr int kNameHeight = 20;
constexpr int kListHeight = 472;
constexpr int kKeptIcons = 2000;
constexpr qint64 kChunkTime = 12;
constexpr int kOutcomeRole = Qt::UserRole + 1;
constexpr int kNotJudged = -1;

QString starterIcons()
{
    return QStringLiteral(":/Resource/icons");
}

/// The files of the folder and what has become known of each.
class IconsModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_files.size();
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid))
            return QVariant();
        const QString &file = m_files.at(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return QFileInfo(file).completeBaseName();
        case Qt::ToolTipRole:
            return file;
        case kOutcomeRole:
            return m_outcomes.at(index.row());
        default:
            return QVariant();
        }
    }

    void setFiles(const QStringList &files)
    {
        beginResetModel();
        m_files = files;
        m_outcomes.fill(kNotJudged, files.size());
        endResetModel();
    }

    void setOutcomes(int first, const QVector<int> &outcomes)
    {
        if (outcomes.isEmpty())
            return;
        std::copy(outcomes.begin(), outcomes.end(), m_outcomes.begin() + first);
        Q_EMIT dataChanged(index(first), index(first + outcomes.size() - 1), {kOutcomeRole});
    }

private:
    QStringList m_files;
    QVector<int> m_outcomes;
};

/// Tints an icon when its cell is painted for the first time, so that only what was seen costs.
class IconDelegate : public QStyledItemDelegate
{
public:
    explicit IconDelegate(QObject *parent)
        : QStyledItemDelegate(parent)
    {
        m_icons.setMaxCost(kKeptIcons);
    }

    void setLook(const QColor &tint, int size)
    {
        m_tint = tint;
        m_size = size;
        m_icons.clear();
    }

    void forget() { m_icons.clear(); }

    QSize cellSize() const
    {
        return {qMax(kMinCellWidth, m_size + 2 * kCellPadding),
                m_size + 2 * kCellPadding + kNameHeight};
    }

    QSize sizeHint(const QStyleOptionViewItem & /*option*/,
                   const QModelIndex & /*index*/) const override
    {
        return cellSize();
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QImage icon(const QModelIndex &index, qreal ratio) const;
    QImage tinted(const QString &file, qreal ratio) const;

    QColor m_tint;
    int m_size = kFirstIconSize;
    mutable QCache<int, QImage> m_icons;
    const QColor m_hover = CusColorConfig::instance()->dialogHeaderColor();
    const QColor m_selected = CusColorConfig::instance()->mainColor();
    const QColor m_text = CusColorConfig::instance()->subTextColor();
    const QColor m_strongText = CusColorConfig::instance()->mainTextColor();
    const QColor m_kept = CusColorConfig::instance()->warningColor();
    const QColor m_unreadable = CusColorConfig::instance()->danger1Color();
};

QImage IconDelegate::tinted(const QString &file, qreal ratio) const
{
    const QFileInfo info(file);
    QSvgRenderer renderer;
    // Opening a pipe or a device could wait for ever.
    if (!info.isFile() || !renderer.load(CusSvgImage(file).getFillColorByteArray(m_tint)))
        return QImage();
    const QSizeF natural = renderer.defaultSize();
    const QSize pixels = QSize(m_size, m_size) * ratio;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF rect(QPointF(),
                natural.isEmpty() ? QSizeF(pixels) : natural.scaled(pixels, Qt::KeepAspectRatio));
    rect.moveCenter(QRectF(image.rect()).center());
    renderer.render(&painter, rect);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

QImage IconDelegate::icon(const QModelIndex &index, qreal ratio) const
{
    const int row = index.row();
    if (const QImage *known = m_icons.object(row))
        return *known;
    QImage made = tinted(index.data(Qt::ToolTipRole).toString(), ratio);
    m_icons.insert(row, new QImage(made));
    return made;
}

void IconDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    if (selected || hovered) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(selected ? m_selected : m_hover);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(2, 2, -2, -2), 4, 4);
    }
    const QRect box(option.rect.x() + (option.rect.width() - m_size) / 2,
                    option.rect.y() + kCellPadding, m_size, m_size);
    const QImage image = icon(index, painter->device()->devicePixelRatioF());
    if (image.isNull()) {
        painter->setPen(QPen(m_unreadable, 1, Qt::DashLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    } else {
        painter->drawImage(box.topLeft(), image);
    }

    const int outcome = index.data(kOutcomeRole).toInt();
    if (outcome >= IconVerdict::Missed && outcome <= IconVerdict::Blank) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_kept);
        painter->drawEllipse(QRectF(option.rect.right() - 14, option.rect.y() + 8, 6, 6));
    }
    QFont font = option.font;
    font.setPixelSize(12);
    painter->setFont(font);
    painter->setPen(selected || hovered ? m_strongText : m_text);
    const QRect line(option.rect.x() + 6, box.bottom() + 6, option.rect.width() - 12, kNameHeight);
    painter->drawText(
        line, Qt::AlignHCenter | Qt::AlignVCenter,
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, line.width()));
    painter->restore();
}

QIcon colorIcon(const QColor &color)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(0, 0, 48, 48), 9, 9);
    return QIcon(pixmap);
}

QSlider *slider(int minimum, int maximum, int value)
{
    auto *widget = new QSlider(Qt::Horizontal);
    widget->setRange(minimum, maximum);
    widget->setValue(value);
    widget->setFixedSize(160, 24);
    return widget;
}

/// Any folder of SVG files, tinted while one looks, and counted in small steps on the event loop.
class IconsPage : public QWidget
{
public:
    IconsPage();

private:
    QWidget *folderRow();
    QWidget *tintRow();
    QListView *makeList();
    void chooseColor(const QColor &color);
    void applyLook();
    void open(const QString &folder);
    bool step();
    void showProgress();

    QStringList m_files;
    std::unique_ptr<IconWalker> m_walker;
    IconCounts m_counts;
    int m_judged = 0;
    QColor m_color = CusColorConfig::instance()->highlightColor();

    IconsModel *m_model = new IconsModel(this);
    IconDelegate *m_delegate = new IconDelegate(this);
    QTimer *m_timer = new QTimer(this);
    QLabel *m_path = PageKit::caption(QString());
    QLabel *m_status = PageKit::signalLine();
    QProgressBar *m_progress = new QProgressBar;
    QListView *m_list = nullptr;
    QSlider *m_opacity = slider(0, 100, 100);
    QSlider *m_size = slider(kMinIconSize, kMaxIconSize, kFirstIconSize);
    QLabel *m_opacityText = PageKit::signalLine();
    QLabel *m_sizeText = PageKit::signalLine();
};

IconsPage::IconsPage()
{
    auto *column = PageKit::pageLayout(
        this, QStringLiteral("Icons"),
        QStringLiteral("Every SVG file below a folder, tinted as a control would tint it. A file "
                       "is read when its cell comes into view."));
    m_list = makeList();
    column->addWidget(PageKit::card(QStringLiteral("Folder"), folderRow()));
    column->addWidget(PageKit::card(QStringLiteral("Tint"), tintRow()));
    column->addWidget(m_list);

    m_timer->setInterval(0);
    connect(m_timer, &QTimer::timeout, this, [this] {
        if (!step())
            m_timer->stop();
    });
    connect(m_opacity, &QSlider::valueChanged, this, &IconsPage::applyLook);
    connect(m_size, &QSlider::valueChanged, this, &IconsPage::applyLook);
    applyLook();
    const QString wanted = GalleryOptions::current().iconFolder;
    open(wanted.isEmpty() ? starterIcons() : wanted);
}

QListView *IconsPage::makeList()
{
    auto *list = new QListView;
    list->setObjectName(QStringLiteral("gallery_icons"));
    list->setModel(m_model);
    list->setItemDelegate(m_delegate);
    list->setFlow(QListView::LeftToRight);
    list->setWrapping(true);
    list->setResizeMode(QListView::Adjust);
    list->setUniformItemSizes(true);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->setMouseTracking(true);
    list->setMinimumHeight(kListHeight);
    return list;
}

QWidget *IconsPage::folderRow()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    auto *choose = new QPushButton(QStringLiteral("Choose a folder…"));
    auto *starter = new QPushButton(QStringLiteral("Starter theme"));
    m_path->setWordWrap(false);
    m_progress->setTextVisible(false);
    m_progress->setFixedSize(choose->sizeHint().width() * 2, 8);
    grid->addWidget(m_path, 0, 0);
    grid->addWidget(starter, 0, 1);
    grid->addWidget(choose, 0, 2);
    grid->addWidget(m_status, 1, 0);
    grid->addWidget(m_progress, 1, 1, 1, 2, Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnStretch(0, 1);
    connect(starter, &QPushButton::clicked, this, [this] { open(starterIcons()); });
    connect(choose, &QPushButton::clicked, this, [this] {
        const QString folder = QFileDialog::getExistingDirectory(
            this, QStringLiteral("Folder of SVG files"), QDir::homePath());
        if (!folder.isEmpty())
            open(folder);
    });
    return box;
}

QWidget *IconsPage::tintRow()
{
    auto *colors = new QWidget;
    auto *line = new QHBoxLayout(colors);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(4);
    auto *group = new QButtonGroup(colors);
    QVector<QColor> offered = {m_color, CusColorConfig::instance()->mainTextColor()};
    offered += CusColorConfig::instance()->commonColors();
    for (const QColor &color : qAsConst(offered)) {
        auto *button = new QToolButton;
        button->setCheckable(true);
        button->setChecked(line->count() == 0);
        button->setIconSize(QSize(16, 16));
        button->setIcon(colorIcon(color));
        button->setToolTip(color.name());
        group->addButton(button);
        line->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, color] { chooseColor(color); });
    }
    auto *other = new QPushButton(QStringLiteral("Other…"));
    line->addWidget(other);
    connect(other, &QPushButton::clicked, this, [this] {
        const QColor color = QColorDialog::getColor(m_color, this);
        if (color.isValid())
            chooseColor(color);
    });
    const auto withText = [](QSlider *control, QLabel *text) {
        text->setFixedSize(44, control->height());
        return PageKit::row({control, text}, 8);
    };
    return PageKit::row({PageKit::captioned(colors, QStringLiteral("Colour")),
                         PageKit::captioned(withText(m_opacity, m_opacityText),
                                            QStringLiteral("Opacity, written with one decimal")),
                         PageKit::captioned(withText(m_size, m_sizeText),
                                            QStringLiteral("Size, 16 to 96 pixels"))});
}

void IconsPage::chooseColor(const QColor &color)
{
    m_color = color;
    applyLook();
}

void IconsPage::applyLook()
{
    QColor tint = m_color;
    tint.setAlpha(m_opacity->value() * 255 / 100);
    m_opacityText->setText(QStringLiteral("%1 %").arg(m_opacity->value()));
    m_sizeText->setText(QStringLiteral("%1 px").arg(m_size->value()));
    m_delegate->setLook(tint, m_size->value());
    m_list->setGridSize(m_delegate->cellSize());
    m_list->viewport()->update();
}

void IconsPage::open(const QString &folder)
{
    m_files.clear();
    m_walker = std::make_unique<IconWalker>(folder);
    m_counts = IconCounts();
    m_judged = 0;
    m_model->setFiles({});
    m_delegate->forget();
    m_path->setText(folder == starterIcons() ? QStringLiteral("The starter theme's own icons")
                                             : QDir::toNativeSeparators(folder));
    // A picture is to show the result, however long the counting takes.
    if (!GalleryOptions::current().screenshotFolder.isEmpty()) {
        while (step()) { }
    } else {
        m_timer->start();
    }
}

/// Walks or judges for a few milliseconds; false when all is done.
bool IconsPage::step()
{
    QElapsedTimer clock;
    clock.start();
    while (m_walker && clock.elapsed() < kChunkTime) {
        if (!m_walker->next(&m_files)) {
            m_walker.reset();
            m_model->setFiles(m_files);
        }
    }
    QVector<int> outcomes;
    const int first = m_judged;
    while (!m_walker && m_judged < m_files.size() && clock.elapsed() < kChunkTime) {
        const IconVerdict verdict = judgeIcon(m_files.at(m_judged), Qt::magenta);
        outcomes.append(verdict.outcome);
        m_counts.add(verdict);
        ++m_judged;
    }
    m_model->setOutcomes(first, outcomes);
    showProgress();
    return m_walker || m_judged < m_files.size();
}

void IconsPage::showProgress()
{
    const bool running = m_walker || m_judged < m_files.size();
    m_progress->setVisible(running);
    m_progress->setRange(0, m_walker ? 0 : m_files.size());
    m_progress->setValue(m_judged);
    if (m_walker)
        m_status->setText(QStringLiteral("Reading folders, %1 files so far").arg(m_files.size()));
    else if (running)
        m_status->setText(QStringLiteral("%1 of %2 files counted")
                              .arg(QString::number(m_judged), QString::number(m_files.size())));
    else
        m_status->setText(m_counts.line());
}

const GalleryPage page{20, QStringLiteral("Icons"), [] { return new IconsPage; }};

} // namespace
