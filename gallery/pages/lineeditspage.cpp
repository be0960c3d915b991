#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/ActionLineEdit>
#include <Vellum/CusLineEdit>
#include <Vellum/CusSvgPushButton>

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <functional>

namespace {

constexpr int kFieldWidth = 224;
constexpr int kStateWidth = 132;
constexpr int kRowCaptionWidth = 100;
constexpr QSize kSideButton(24, 24);

const QString kCamera = QStringLiteral("Gate 17");

CusLineEdit *field(const QString &text, int width = kFieldWidth)
{
    auto *edit = new CusLineEdit;
    edit->setFixedWidth(width);
    edit->setText(text);
    return edit;
}

void addLeadButton(CusLineEdit *edit, const QString &name, const QString &tip)
{
    edit->setSurpotLeadBtn(true);
    edit->setLeadBtnObjName(name);
    edit->setLeadBtnTips(tip);
}

void addTrailButton(CusLineEdit *edit, const QString &name, const QString &tip)
{
    edit->setSurpotTrailBtn(true);
    edit->setTrailBtnObjName(name);
    edit->setTrailBtnTips(tip);
}

CusLineEdit *searchField(const QString &text, int width = kFieldWidth)
{
    CusLineEdit *edit = field(text, width);
    edit->setPlaceholderText(QStringLiteral("Search cameras…"));
    addLeadButton(edit, QStringLiteral("gallery_editSearch"), QStringLiteral("Search"));
    addTrailButton(edit, QStringLiteral("gallery_editClear"), QStringLiteral("Clear"));
    edit->registerTrailFun([edit](bool) { edit->clear(); });
    edit->setEnableNoTextNotShowTrailBtn(true);
    return edit;
}

CusLineEdit *passwordField()
{
    CusLineEdit *edit = field(QStringLiteral("harbour-7"));
    edit->setEchoMode(QLineEdit::Password);
    addTrailButton(edit, QStringLiteral("gallery_editEye"), QStringLiteral("Show the password"));
    edit->findChild<CusSvgPushButton *>()->setCheckable(true);
    edit->registerTrailFun(
        [edit](bool shown) { edit->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
    return edit;
}

QLayout *buttonsInside()
{
    QLabel *report = PageKit::signalLine(QStringLiteral("Press a button or type in a field."));
    CusLineEdit *search = searchField(kCamera);
    search->registerLeadFun(
        [report](bool) { report->setText(QStringLiteral("registerLeadFun: search")); });
    auto *path = field(QStringLiteral("/recordings/may"));
    addLeadButton(path, QStringLiteral("gallery_editFolder"), QStringLiteral("Folder"));
    addLeadButton(path, QStringLiteral("gallery_editFilter"), QStringLiteral("Filter"));
    for (CusLineEdit *edit : {search, path}) {
        QObject::connect(edit, &CusLineEdit::textEditedSimpled, report,
                         [report](const QString &text) {
                             report->setText(QStringLiteral("textEditedSimpled: \"%1\"").arg(text));
                         });
        QObject::connect(edit, &CusLineEdit::signalMousePressed, report,
                         [report] { report->setText(QStringLiteral("signalMousePressed")); });
    }
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    layout->addWidget(PageKit::row(
        {PageKit::captioned(search, QStringLiteral("Leading and trailing button")),
         PageKit::captioned(searchField(QString()), QStringLiteral("No text, no trailing button")),
         PageKit::captioned(passwordField(), QStringLiteral("Checkable trailing button")),
         PageKit::captioned(path, QStringLiteral("Several leading buttons"))},
        16));
    layout->addWidget(report);
    return layout;
}

/// \a edit with a caption that is told anew at each change of the text.
QWidget *told(CusLineEdit *edit, const std::function<QString(CusLineEdit *)> &tell)
{
    QWidget *cell = PageKit::captioned(edit, tell(edit));
    auto *caption = cell->findChild<QLabel *>();
    QObject::connect(edit, &QLineEdit::textChanged, caption,
                     [edit, caption, tell] { caption->setText(tell(edit)); });
    return cell;
}

QWidget *limits()
{
    const auto countTo = [](int limit, const QString &what) {
        return [limit, what](CusLineEdit *edit) {
            return QStringLiteral("%1: %2 of %3")
                .arg(what)
                .arg(edit->QLineEdit::text().size())
                .arg(limit);
        };
    };
    CusLineEdit *longText = field(QStringLiteral(
        "Camera 17, north gate, inner lane, left pole, facing the parking entrance"));
    longText->setCursorPosition(0);
    CusLineEdit *shortText = field(kCamera);
    shortText->setMaxLength(16);
    CusLineEdit *noDigits = field(QStringLiteral("Lane"));
    noDigits->setFilterKeys({Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5,
                             Qt::Key_6, Qt::Key_7, Qt::Key_8, Qt::Key_9});
    return PageKit::row(
        {told(longText, countTo(64, QStringLiteral("Kept whole, typing stopped"))),
         told(shortText, countTo(16, QStringLiteral("setMaxLength"))),
         PageKit::captioned(noDigits, QStringLiteral("setFilterKeys: digits are swallowed")),
         told(field(QStringLiteral("  Loading   bay  ")),
              [](CusLineEdit *edit) {
                  return QStringLiteral("text() gives \"%1\"").arg(edit->text());
              })},
        16);
}

ActionLineEdit *framed(const QString &text, int width)
{
    auto *frame = new ActionLineEdit;
    frame->setFixedWidth(width);
    frame->setText(text);
    return frame;
}

QLabel *unit(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("unit", true);
    return label;
}

/// Still pictures of the states, in columns; a control is live again once it is touched.
QLayout *states()
{
    struct State
    {
        const char *name;
        std::function<void(QWidget *)> apply;
    };
    const QVector<State> columns{
        {"Normal", [](QWidget *) {}},
        {"Hover", [](QWidget *edit) { edit->setAttribute(Qt::WA_UnderMouse); }},
        {"Invalid", [](QWidget *edit) { edit->setProperty("Invalid", true); }},
        {"Read-only",
         [](QWidget *edit) {
             if (auto *frame = qobject_cast<ActionLineEdit *>(edit))
                 frame->setReadOnly(true);
             else
                 static_cast<CusLineEdit *>(edit)->setReadOnly(true);
         }},
        {"Disabled", [](QWidget *edit) { edit->setDisabled(true); }},
        {"Focus", [](QWidget *edit) { edit->setProperty("hasfocus", true); }},
    };
    const QVector<QPair<QString, std::function<QWidget *()>>> rows{
        {QStringLiteral("CusLineEdit"), [] { return searchField(kCamera, kStateWidth); }},
        {QStringLiteral("ActionLineEdit"),
         [] {
             ActionLineEdit *frame = framed(QStringLiteral("25"), kStateWidth);
             frame->addAction(unit(QStringLiteral("fps")), ActionLineEdit::TrailingPosition);
             return frame;
         }},
        {QStringLiteral("Right to left"),
         [] {
             CusLineEdit *edit = searchField(QString::fromUtf8("البوابة"), kStateWidth);
             edit->setLayoutDirection(Qt::RightToLeft);
             return edit;
         }},
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->setColumnMinimumWidth(0, kRowCaptionWidth);
    grid->setColumnStretch(columns.size() + 1, 1);
    for (int row = 0; row < rows.size(); ++row) {
        grid->addWidget(PageKit::caption(rows.at(row).first), row + 1, 0);
        for (int column = 0; column < columns.size(); ++column) {
            QWidget *edit = rows.at(row).second();
            columns.at(column).apply(edit);
            // Only a frame is told by a property that its edit has the focus.
            if (column + 1 == columns.size() && !qobject_cast<ActionLineEdit *>(edit))
                delete edit;
            else
                grid->addWidget(edit, row + 1, column + 1);
        }
    }
    for (int column = 0; column < columns.size(); ++column)
        grid->addWidget(PageKit::caption(QLatin1String(columns.at(column).name)), 0, column + 1);
    return grid;
}

CusSvgPushButton *sideButton(const QString &name, const QString &tip)
{
    auto *button = new CusSvgPushButton;
    button->setObjectName(name);
    button->setFixedSize(kSideButton);
    button->setToolTip(tip);
    return button;
}

/// Tells what the hooks of the frame hear.
class StreamEdit : public ActionLineEdit
{
public:
    explicit StreamEdit(QLabel *report)
        : m_report(report)
    {
    }

protected:
    void lineEditFocusIn() override { m_report->setText(QStringLiteral("lineEditFocusIn")); }
    void lineEidtFocusOut() override { m_report->setText(QStringLiteral("lineEidtFocusOut")); }

private:
    QLabel *m_report;
};

ActionLineEdit *streamField(QLabel *report)
{
    auto *stream = new StreamEdit(report);
    stream->setFixedWidth(kFieldWidth);
    stream->setText(QStringLiteral("10.4.0.17:554/main"));
    stream->addAction(unit(QStringLiteral("rtsp://")), ActionLineEdit::LeadingPosition);
    CusSvgPushButton *copy =
        sideButton(QStringLiteral("gallery_editLink"), QStringLiteral("Copy the address"));
    QObject::connect(copy, &QPushButton::clicked, stream, [stream] {
        QGuiApplication::clipboard()->setText(QStringLiteral("rtsp://") + stream->text());
    });
    stream->addAction(copy, ActionLineEdit::TrailingPosition);
    return stream;
}

QLayout *besideTheEdit()
{
    QLabel *report = PageKit::signalLine(QStringLiteral("Give a field the focus, or paste."));
    ActionLineEdit *rate = framed(QStringLiteral("25"), kFieldWidth);
    rate->addAction(unit(QStringLiteral("frames a second")), ActionLineEdit::TrailingPosition);
    ActionLineEdit *password = framed(QStringLiteral("abcd"), kFieldWidth);
    password->lineedit()->setEchoMode(QLineEdit::Password);
    password->addAction(
        sideButton(QStringLiteral("gallery_editLock"), QStringLiteral("Kept on the recorder")),
        ActionLineEdit::LeadingPosition);
    QObject::connect(password->lineedit(), &CusLineEdit::textChangedSimpled, report,
                     [report](const QString &text) {
                         report->setText(QStringLiteral("The password is \"%1\".").arg(text));
                     });
    auto *sample = new QPushButton(QStringLiteral("Copy \"x东区 ab cd\""));
    QObject::connect(sample, &QPushButton::clicked, password, [password] {
        QGuiApplication::clipboard()->setText(QStringLiteral("x东区 ab cd"));
        password->setFocus();
    });
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    layout->addWidget(PageKit::row(
        {PageKit::captioned(streamField(report), QStringLiteral("Protocol before, button behind")),
         PageKit::captioned(rate, QStringLiteral("Unit behind")),
         PageKit::captioned(password, QStringLiteral("Ctrl+V leaves out blanks and Chinese")),
         PageKit::captioned(sample, QStringLiteral("To be pasted as a password"))},
        16));
    layout->addWidget(report);
    return layout;
}

/// The menu that \a edit would open, standing still; \a edit is used up.
QWidget *menuPicture(CusLineEdit *edit, int leaveOut, const QString &caption)
{
    const QScopedPointer<QMenu> menu(edit->createStandardContextMenu());
    menu->setObjectName(QStringLiteral("RightMenuPane"));
    const QList<QAction *> entries = menu->actions().mid(0, leaveOut);
    for (QAction *entry : entries)
        menu->removeAction(entry);
    // Left to itself, it would be cut to fit a small screen.
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    QWidget *cell = PageKit::captioned(PageKit::pictureOf(menu.data()), caption);
    edit->deleteLater();
    return cell;
}

QWidget *contextMenu()
{
    CusLineEdit *live = field(QStringLiteral("Right-click here"), kStateWidth);
    live->setContextMenuPolicy(Qt::DefaultContextMenu);
    const auto selected = [] {
        CusLineEdit *edit = field(QString());
        edit->insert(kCamera);
        edit->setSelection(0, 4);
        return edit;
    };
    CusLineEdit *readOnly = field(kCamera);
    readOnly->setReadOnly(true);
    QWidget *row =
        PageKit::row({PageKit::captioned(live, QStringLiteral("Switched on by the client")),
                      menuPicture(selected(), 0, QStringLiteral("Some text selected")),
                      menuPicture(selected(), 3, QStringLiteral("setRedoUndoMenuEnable(false)")),
                      menuPicture(readOnly, 0, QStringLiteral("Read-only"))},
                     24);
    for (int i = 0; i < row->layout()->count(); ++i)
        row->layout()->itemAt(i)->setAlignment(Qt::AlignTop);
    return row;
}

class LineEditsPage : public QWidget
{
public:
    LineEditsPage()
    {
        QVBoxLayout *column = PageKit::pageLayout(
            this, QStringLiteral("Line edits"),
            QStringLiteral("The one text input, alone and in a frame that shows its states."));
        column->addWidget(
            PageKit::card(QStringLiteral("CusLineEdit: buttons inside"), buttonsInside()));
        column->addWidget(PageKit::card(QStringLiteral("CusLineEdit: limits and keys"), limits()));
        column->addWidget(PageKit::card(QStringLiteral("States"), states()));
        column->addWidget(PageKit::card(QStringLiteral("ActionLineEdit: widgets beside the edit"),
                                        besideTheEdit()));
        column->addWidget(PageKit::card(QStringLiteral("Context menu"), contextMenu()));
    }
};

const GalleryPage page{80, QStringLiteral("Line edits"), [] { return new LineEditsPage; }};

} // namespace
