#include "pagekit.h"
#include "pages/toolspage.h"

#include <Vellum/CusUiCommonFun>

#include <QApplication>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QTextEdit>

namespace {

constexpr int kNoteLimit = 60;
constexpr int kNoteHeight = 72;
constexpr int kLogHeight = 112;

struct Message
{
    QString level;
    QString first;
    QString second;
};

const QVector<Message> &messages()
{
    static const QVector<Message> all = {
        {QStringLiteral("Error"), QStringLiteral("storage"),
         QStringLiteral("disk-06 is read-only")},
        {QStringLiteral("Warning"), QStringLiteral("stream"),
         QStringLiteral("camera 17: 42 frames lost")},
        {QStringLiteral("Info"), QStringLiteral("login"), QStringLiteral("operator lin, desk 3")},
        {QStringLiteral("Debug"), QStringLiteral("ptz"), QStringLiteral("preset 4 reached")},
    };
    return all;
}

/// While it lives, Qt's messages go into a list instead of to the console.
class MessageCapture
{
public:
    explicit MessageCapture(QStringList *lines)
        : m_previous(qInstallMessageHandler(&MessageCapture::take))
    {
        target = lines;
    }
    ~MessageCapture()
    {
        qInstallMessageHandler(m_previous);
        target = nullptr;
    }

private:
    Q_DISABLE_COPY(MessageCapture)

    static void take(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                     const QString &message)
    {
        if (target)
            target->append(message);
    }

    static inline thread_local QStringList *target = nullptr;
    QtMessageHandler m_previous;
};

class RunLogCard : public QWidget
{
public:
    RunLogCard();

private:
    void write(int level);
    QWidget *levelRow();
    QWidget *messageRow();

    QPlainTextEdit *m_lines = new QPlainTextEdit;
    QLabel *m_count = PageKit::signalLine();
    int m_written = 0;
    int m_sent = 0;
};

RunLogCard::RunLogCard()
{
    m_lines->setReadOnly(true);
    m_lines->setFixedHeight(kLogHeight);
    m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->addWidget(PageKit::caption(QStringLiteral("Current level")), 0, 0);
    grid->addWidget(levelRow(), 0, 1);
    grid->addWidget(PageKit::caption(QStringLiteral("Write a message")), 1, 0);
    grid->addWidget(messageRow(), 1, 1);
    grid->addWidget(m_lines, 2, 0, 1, 2);
    grid->addWidget(m_count, 3, 0, 1, 2);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(1, 1);
    CusUiCommonFun::setClientRunLogLevel(RunLog_Warning);
    for (int level = 0; level < messages().size(); ++level)
        write(level);
}

QWidget *RunLogCard::levelRow()
{
    QVector<QWidget *> buttons;
    auto *group = new QButtonGroup(this);
    for (const Message &message : messages()) {
        const int level = buttons.size();
        auto *button =
            new QPushButton(QStringLiteral("%1 %2").arg(QString::number(level), message.level));
        button->setCheckable(true);
        button->setChecked(level == RunLog_Warning);
        button->setProperty("look", QStringLiteral("dense"));
        group->addButton(button, level);
        buttons.append(button);
    }
    connect(group, &QButtonGroup::idClicked, this,
            [](int level) { CusUiCommonFun::setClientRunLogLevel(ClientOutLogLevel(level)); });
    return PageKit::row(buttons, 8);
}

QWidget *RunLogCard::messageRow()
{
    QVector<QWidget *> buttons;
    for (const Message &message : messages()) {
        const int level = buttons.size();
        auto *button = new QPushButton(message.level);
        button->setProperty("look", QStringLiteral("dense"));
        connect(button, &QPushButton::clicked, this, [this, level] { write(level); });
        buttons.append(button);
    }
    return PageKit::row(buttons, 8);
}

void RunLogCard::write(int level)
{
    const Message &message = messages().at(level);
    QStringList lines;
    {
        const MessageCapture capture(&lines);
        CusUiCommonFun::outputClientRunLog(message.first, message.second, ClientOutLogLevel(level));
    }
    ++m_sent;
    m_written += lines.size();
    // Without the milliseconds, pictures of the page are the same from run to run.
    static const QRegularExpression time(QStringLiteral("\\d+$"));
    for (QString &line : lines)
        m_lines->appendPlainText(line.replace(time, QStringLiteral("…")));
    m_count->setText(QStringLiteral("%1 of %2 messages passed").arg(m_written).arg(m_sent));
}

class InputMarksCard : public QWidget
{
public:
    InputMarksCard();

private:
    void markAddress();

    QLineEdit *m_address = new QLineEdit(QStringLiteral("192.168.1.364"));
    QLabel *m_addressRemark = PageKit::caption(QString());
    QTextEdit *m_note = new QTextEdit;
    QLabel *m_noteRemark = PageKit::caption(QString());
};

InputMarksCard::InputMarksCard()
{
    auto *mark = new QPushButton(QStringLiteral("Mark as invalid"));
    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(m_address, 1);
    line->addWidget(mark);
    m_note->setFixedHeight(kNoteHeight);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(line);
    column->addWidget(m_addressRemark);
    column->addSpacing(12);
    column->addWidget(m_note);
    column->addWidget(m_noteRemark);
    column->addStretch(1);

    realCheckInvalidWithCall(m_address, [this] {
        m_addressRemark->setText(QStringLiteral("Edited: the mark is gone."));
    });
    connect(mark, &QPushButton::clicked, this, &InputMarksCard::markAddress);
    markAddress();
    bindTextEditMaxLength(m_note, kNoteLimit);
    connect(m_note, &QTextEdit::textChanged, this, [this] {
        m_noteRemark->setText(QStringLiteral("%1 of %2 characters; what is more is cut.")
                                  .arg(m_note->toPlainText().size())
                                  .arg(kNoteLimit));
    });
    m_note->setPlainText(QStringLiteral(
        "Gate opened by hand at 02:20, guard on site, barrier locked again at 02:35."));
}

void InputMarksCard::markAddress()
{
    m_address->setProperty("Invalid", true);
    if (m_address->testAttribute(Qt::WA_WState_Polished))
        m_address->setStyle(QApplication::style());
    m_addressRemark->setText(QStringLiteral("No valid address; the next edit clears the mark."));
}

} // namespace

QWidget *ToolCards::inputMarks()
{
    return new InputMarksCard;
}

QWidget *ToolCards::runLog()
{
    return new RunLogCard;
}
