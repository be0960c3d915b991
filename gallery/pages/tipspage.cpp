#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/AngleTiPWidget>
#include <Vellum/AngleWidgte>
#include <Vellum/CusColorConfig>
#include <Vellum/NoContentTipLabel>
#include <Vellum/ToolTipLabel>
#include <Vellum/WarningTipAndJumpLink>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QWidget>

namespace {

constexpr int kGap = 16;

QString tr(const char *text)
{
    return QCoreApplication::translate("TipsPage", text);
}

QLabel *toolTipPicture(const QString &text)
{
    ToolTipLabel tip;
    tip.updateSize(text);
    return PageKit::pictureOf(&tip);
}

/// Shows its tip when the cursor rests on it.
class HoverCard : public QFrame
{
public:
    HoverCard(const QString &title, const QString &tip)
        : m_tip(tip)
    {
        setObjectName(QStringLiteral("gallery_well"));
        setFixedSize(144, 40);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(12, 0, 12, 0);
        layout->addWidget(new QLabel(title));
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QFrame::event(event);
        ToolTipLabel::showLabelText(static_cast<QHelpEvent *>(event)->globalPos(), m_tip, this);
        return true;
    }

private:
    const QString m_tip;
};

/// A line of time whose notes point at their moment and stay inside the line's ends.
class LimitsStrip : public QWidget
{
public:
    LimitsStrip()
    {
        setFixedHeight(kLine + 16);
        setMouseTracking(true);
        for (const char *text : {"07:02  Gate open", "Move the cursor here", "23:51  Offline"}) {
            auto *note = new AngleWidgte(ArrowWidget::Arrow_Bottom, false, this);
            note->setShowText(tr(text));
            m_notes.append(note);
        }
    }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        place(0, 20);
        place(1, width() / 2);
        place(2, width() - 14);
    }
    void mouseMoveEvent(QMouseEvent *event) override { place(1, event->x()); }
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(0, kLine + 4, width(), 4, CusColorConfig::instance()->mainColor());
        for (const int x : qAsConst(m_moments))
            painter.fillRect(x - 1, kLine, 2, 12, CusColorConfig::instance()->highlightColor());
    }

private:
    void place(int index, int x)
    {
        m_moments[index] = x;
        m_notes.at(index)->moveByBeginEndPoint(QPoint(x, kLine), QPoint(0, 0), QPoint(width(), 0));
        update();
    }

    static constexpr int kLine = 44;
    QVector<ArrowWidget *> m_notes;
    QVector<int> m_moments{0, 0, 0};
};

/// An empty list with the text that stands in for its rows.
class EmptyList : public QWidget
{
public:
    EmptyList(const QString &text, NoContentTipLabel::ShowType type, int y)
        : m_text(text)
        , m_type(type)
        , m_y(y)
        , m_list(new QListWidget(this))
        , m_label(new NoContentTipLabel(this))
    {
        setFixedSize(312, 128);
        m_list->setGeometry(0, 0, width(), type == NoContentTipLabel::Show_Below ? 92 : height());
    }

protected:
    void showEvent(QShowEvent *) override
    {
        m_label->showTipContent(m_text, m_list, m_type, 0, m_y);
    }

private:
    const QString m_text;
    const NoContentTipLabel::ShowType m_type;
    const int m_y;
    QListWidget *m_list;
    NoContentTipLabel *m_label;
};

QWidget *toolTips()
{
    struct Row
    {
        const char *title;
        const char *tip;
        const char *caption;
    };
    constexpr Row rows[] = {
        {"Camera 03", "Loading bay, north", "Plain"},
        {"Camera 07", "Car park, level 2\nRecording since 06:00\n25 fps, 4 Mbit/s",
         "Several lines"},
        {"Camera 12", "<b>Main gate</b><br>Lost at <font color='#FFAF14'>13:40:12</font>",
         "Rich text"},
    };
    QVector<QWidget *> columns;
    for (const Row &row : rows) {
        auto *column = new QWidget;
        auto *layout = new QVBoxLayout(column);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(8);
        layout->addWidget(
            PageKit::captioned(new HoverCard(tr(row.title), tr(row.tip)), tr(row.caption)));
        layout->addWidget(toolTipPicture(tr(row.tip)), 0, Qt::AlignLeft);
        layout->addStretch(1);
        column->setFixedHeight(136);
        columns.append(column);
    }
    return PageKit::row(columns, kGap);
}

QLineEdit *bitRateEdit(const QString &value)
{
    auto *edit = new QLineEdit(value);
    edit->setFixedWidth(200);
    edit->setProperty("Invalid", true);
    return edit;
}

/// The bubble at work above an input, as it stands on the screen.
QWidget *bubblePicture()
{
    AngleTiPWidget bubble(ArrowWidget::Arrow_Left);
    bubble.setTipRightBottomPoint(QPoint(500, 500));
    bubble.setShowText(tr("Please input 64~8192."));
    QLabel *picture = PageKit::pictureOf(&bubble);

    auto *box = new QWidget;
    QLineEdit *edit = bitRateEdit(QStringLiteral("12000"));
    edit->setParent(box);
    edit->ensurePolished();
    edit->setGeometry(0, 36, 200, 30);
    picture->setParent(box);
    picture->adjustSize();
    picture->move(edit->x() + edit->width() - picture->width() + 1,
                  edit->y() + 8 - picture->height());
    box->setFixedSize(edit->geometry().right() + 1, edit->geometry().bottom() + 1);
    return box;
}

QWidget *validation()
{
    QLineEdit *edit = bitRateEdit(QStringLiteral("9999"));
    auto *show = new QPushButton(tr("Check"));
    auto *hide = new QPushButton(tr("Hide the bubble"));
    QObject::connect(show, &QPushButton::clicked, edit, [edit] {
        AngleTiPWidget::hideAngleTip(edit);
        AngleTiPWidget::showAngleTipText(edit, tr("Please input 64~8192."),
                                         ArrowWidget::Arrow_Right);
    });
    QObject::connect(hide, &QPushButton::clicked, edit,
                     [edit] { AngleTiPWidget::hideAngleTip(edit); });
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(PageKit::captioned(bubblePicture(), tr("Bit rate, kbit/s")));
    layout->addWidget(PageKit::row({edit, show, hide}, 8));
    layout->addStretch(1);
    return box;
}

QLabel *note(const QString &text)
{
    auto *label = new QLabel(text);
    label->setContentsMargins(12, 8, 12, 8);
    return label;
}

/// A frame around a centre widget of its own size.
ArrowWidget *frameAround(ArrowWidget::ArrowType type, QWidget *centre, int angleHeight)
{
    auto *frame = new ArrowWidget(type);
    frame->setAngleHeight(angleHeight);
    frame->addCenterWidget(centre);
    centre->ensurePolished();
    frame->setCenterWidgetSize(centre->sizeHint());
    return frame;
}

QWidget *arrowFrames()
{
    const CusColorConfig *theme = CusColorConfig::instance();
    auto *text = new AngleWidgte(ArrowWidget::Arrow_Bottom, false);
    text->setShowText(tr("Entrance, 12 people"));

    ArrowWidget *top =
        frameAround(ArrowWidget::Arrow_Top, note(tr("Recording\n25 fps, 4 Mbit/s")), 12);
    top->setBorderRadius(8);
    top->setBorderWidth(2);
    top->setBorderColor(theme->highlightColor());

    ArrowWidget *left = frameAround(ArrowWidget::Arrow_Left, note(tr("Preset 4: car park")), 6);
    left->setBorderWidth(0);
    left->setBorderRadius(0);
    left->setBGColor(theme->mainColor());

    auto *open = new QWidget;
    auto *layout = new QHBoxLayout(open);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->addWidget(new QLabel(tr("Motion in zone 3")));
    layout->addWidget(new QPushButton(tr("Open")));
    ArrowWidget *right = frameAround(ArrowWidget::Arrow_Right, open, 10);
    right->setBorderColor(theme->warningColor());

    return PageKit::row({PageKit::captioned(text, tr("Bottom: radius 4, border 1, angle 8")),
                         PageKit::captioned(top, tr("Top: 8, 2, 12")),
                         PageKit::captioned(left, tr("Left: 0, no border, 6")),
                         PageKit::captioned(right, tr("Right: 4, 1, 10"))},
                        40);
}

QWidget *warningLine()
{
    auto *line = new WarningTipAndJumpLink;
    line->setLabelTipText(tr("Storage is full in 2 days."));
    line->setLabelJumpText(tr("Storage settings"));
    QLabel *told = PageKit::signalLine(tr("Click the link."));
    QObject::connect(line, &WarningTipAndJumpLink::signalJumpLinkPressed, told,
                     [told, count = 0](bool) mutable {
                         told->setText(tr("signalJumpLinkPressed, %1 times").arg(++count));
                     });
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(line);
    layout->addWidget(told);
    layout->addStretch(1);
    return box;
}

QWidget *emptyLists()
{
    return PageKit::row(
        {PageKit::captioned(
             new EmptyList(tr("No cameras in this group"), NoContentTipLabel::Show_Top, 16),
             tr("Top")),
         PageKit::captioned(new EmptyList(tr("No events today"), NoContentTipLabel::Show_Center, 0),
                            tr("Centre")),
         PageKit::captioned(new EmptyList(tr("Add a camera to see its recordings"),
                                          NoContentTipLabel::Show_Below, 6),
                            tr("Below"))},
        kGap);
}

QWidget *tipsPage()
{
    auto *page = new QWidget;
    QVBoxLayout *column = PageKit::pageLayout(
        page, tr("Tips"), tr("What a control says beside itself, and what stands in for content."));
    column->addLayout(
        PageKit::beside({PageKit::card(tr("Tool tips: rest the cursor on a camera"), toolTips()),
                         PageKit::card(tr("Validation bubble"), validation())}));
    column->addWidget(PageKit::card(tr("Arrow frames"), arrowFrames()));
    column->addLayout(
        PageKit::beside({PageKit::card(tr("Between two limits"), new LimitsStrip),
                         PageKit::card(tr("A warning and the way out"), warningLine())}));
    column->addWidget(PageKit::card(tr("No content"), emptyLists()));
    return page;
}

const GalleryPage page{50, QStringLiteral("Tips"), tipsPage};

} // namespace
