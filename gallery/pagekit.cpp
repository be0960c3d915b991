#include "pagekit.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kPageMargin = 24;
constexpr int kCardPadding = 16;
constexpr int kGap = 16;
constexpr int kCaptionGap = 4;

QLabel *namedLabel(const QString &text, const QString &objectName)
{
    auto *label = new QLabel(text);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

namespace PageKit {

QVBoxLayout *pageLayout(QWidget *page, const QString &title, const QString &intro)
{
    page->setObjectName(QStringLiteral("gallery_page"));
    page->setAttribute(Qt::WA_StyledBackground);
    auto *outer = new QVBoxLayout(page);
    outer->setContentsMargins(kPageMargin, kPageMargin - 4, kPageMargin, kPageMargin);
    outer->setSpacing(0);
    outer->addWidget(namedLabel(title, QStringLiteral("gallery_title")));
    if (!intro.isEmpty()) {
        auto *line = caption(intro);
        line->setObjectName(QStringLiteral("gallery_intro"));
        outer->addWidget(line);
    }
    outer->addSpacing(kGap);
    auto *column = new QVBoxLayout;
    column->setSpacing(kGap);
    outer->addLayout(column);
    outer->addStretch(1);
    return column;
}

QLabel *heading(const QString &text)
{
    return namedLabel(text, QStringLiteral("gallery_heading"));
}

QFrame *card(const QString &title, QWidget *content)
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    return card(title, layout);
}

QFrame *card(const QString &title, QLayout *content)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("gallery_card"));
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(kCardPadding, kCardPadding - 4, kCardPadding, kCardPadding);
    layout->setSpacing(kCardPadding - 4);
    if (!title.isEmpty()) {
        auto *label = namedLabel(title, QStringLiteral("gallery_cardTitle"));
        // A card beside a higher one is stretched; its title stays at the top.
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        layout->addWidget(label);
    }
    layout->addLayout(content);
    return frame;
}

QLayout *beside(const QVector<QFrame *> &cards)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(kGap);
    for (QFrame *card : cards) {
        // Keeps the titles on one line where the other card is higher.
        static_cast<QVBoxLayout *>(card->layout())->addStretch(1);
        line->addWidget(card, 1);
    }
    return line;
}

QLabel *caption(const QString &text)
{
    auto *label = namedLabel(text, QStringLiteral("gallery_caption"));
    label->setWordWrap(true);
    return label;
}

QWidget *captioned(QWidget *control, const QString &text)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kCaptionGap);
    layout->addWidget(control, 0, Qt::AlignLeft);
    // A state's name is short; wrapping would let the layout squeeze it to a column of letters.
    auto *label = namedLabel(text, QStringLiteral("gallery_caption"));
    layout->addWidget(label, 0, Qt::AlignLeft);
    return box;
}

QWidget *row(const QVector<QWidget *> &widgets, int spacing)
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    for (QWidget *widget : widgets)
        layout->addWidget(widget, 0, Qt::AlignBottom);
    layout->addStretch(1);
    return box;
}

QLabel *signalLine(const QString &text)
{
    return namedLabel(text, QStringLiteral("gallery_signal"));
}

QLabel *pictureOf(QWidget *window)
{
    // Some tips find their place at the first paint and draw all at the second.
    window->grab();
    auto *picture = new QLabel;
    picture->setPixmap(window->grab());
    return picture;
}

} // namespace PageKit
