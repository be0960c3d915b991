#include "pagekit.h"
#include "pages/toolspage.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusUiCommonFun>
#include <Vellum/RichString>

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

namespace {

constexpr int kCodeSize = 232;
constexpr int kMostBytes = 2331;
constexpr int kPaperPadding = 12;
constexpr int kPaperHeight = 176;
constexpr int kNarrowest = 24;
constexpr int kWidest = 440;

QString grouped(int number)
{
    return QLocale(QLocale::English).toString(number);
}

/// A row of buttons of which one is checked; \a picked is called with its index.
QWidget *choice(const QStringList &names, int checked, const std::function<void(int)> &picked)
{
    QVector<QWidget *> buttons;
    auto *group = new QButtonGroup;
    for (const QString &name : names) {
        auto *button = new QPushButton(name);
        button->setCheckable(true);
        button->setProperty("look", QStringLiteral("dense"));
        group->addButton(button, buttons.size());
        buttons.append(button);
    }
    group->button(checked)->setChecked(true);
    QWidget *row = PageKit::row(buttons, 8);
    group->setParent(row);
    QObject::connect(group, QOverload<int>::of(&QButtonGroup::idClicked), row, picked);
    return row;
}

/// Typed text as a QR code, at the ratio of the screen.
class QrCodeCard : public QWidget
{
public:
    QrCodeCard();

private:
    void showCode();

    QLineEdit *m_edit = new QLineEdit;
    QLabel *m_code = new QLabel;
    QLabel *m_remark = PageKit::caption(QString());
};

QrCodeCard::QrCodeCard()
{
    static const QStringList texts = {
        QStringLiteral("https://nvr.example.org/device?sn=IPC-2043-0917"),
        QString::fromUtf8("北门停车场入口 3 号摄像机"),
        QStringLiteral("Gate 4; ").repeated(300),
    };
    m_code->setFixedSize(kCodeSize, kCodeSize);
    m_code->setAlignment(Qt::AlignCenter);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    grid->addWidget(m_code, 0, 0, 4, 1, Qt::AlignTop);
    grid->addWidget(m_edit, 0, 1);
    grid->addWidget(
        choice({QStringLiteral("Address"), QString::fromUtf8("中文"), QStringLiteral("Too long")},
               0, [this](int index) { m_edit->setText(texts.at(index)); }),
        1, 1);
    grid->addWidget(m_remark, 2, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(1, 1);
    connect(m_edit, &QLineEdit::textChanged, this, &QrCodeCard::showCode);
    m_edit->setText(texts.first());
    m_edit->setCursorPosition(0);
}

void QrCodeCard::showCode()
{
    const int bytes = m_edit->text().toUtf8().size();
    QPixmap code = generateQRCode(m_edit->text(), m_code->size() * devicePixelRatioF());
    code.setDevicePixelRatio(devicePixelRatioF());
    m_code->setPixmap(code);
    if (code.isNull()) {
        m_code->setText(QStringLiteral("No code"));
        m_remark->setText(
            QStringLiteral("%1 bytes: too long, the result is a null pixmap. A code of medium "
                           "correction level holds %2 bytes.")
                .arg(grouped(bytes), grouped(kMostBytes)));
        return;
    }
    m_remark->setText(
        QStringLiteral("%1 bytes of UTF-8, medium error correction, a border of one module.")
            .arg(grouped(bytes)));
}

/// The wrapped text on a paper that shows where its width ends.
class Paper : public QWidget
{
public:
    Paper() { setFixedHeight(kPaperHeight); }

    void setText(const QString &text, int lineWidth)
    {
        m_text = text;
        m_lineWidth = lineWidth;
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const CusColorConfig *theme = CusColorConfig::instance();
        QPainter painter(this);
        painter.fillRect(rect(), theme->bakcgroundColor());
        const int end = kPaperPadding + m_lineWidth;
        painter.fillRect(QRect(kPaperPadding, 0, m_lineWidth, height()),
                         theme->negativeBarBackgroundColor());
        painter.fillRect(QRect(end, 0, 1, height()), theme->highlightColor());
        painter.setPen(theme->mainTextColor());
        painter.drawText(rect().adjusted(kPaperPadding, kPaperPadding, 0, -4),
                         Qt::AlignLeft | Qt::AlignTop, m_text);
    }

private:
    QString m_text;
    int m_lineWidth = 0;
};

class WrapCard : public QWidget
{
public:
    WrapCard();

private:
    void wrap();

    QString m_text;
    QSlider *m_slider = new QSlider(Qt::Horizontal);
    Paper *m_paper = new Paper;
    QLabel *m_remark = PageKit::signalLine();
};

WrapCard::WrapCard()
{
    static const QStringList texts = {
        QStringLiteral("Camera 17 at the north gate lost its picture at 02:14; recording went on "
                       "from the edge storage, and the playback of that hour is complete."),
        QString::fromUtf8("北门停车场入口摄像机于凌晨两点十四分信号丢失，录像由前端存储继续，"
                          "该时段回放完整，无需补录。请值班人员确认。"),
        QString::fromUtf8("报警 IO-04 (north gate): 移动侦测, 区域 3; 录像已保存到 "
                          "NVR-2/disk-06, 保留 30 天."),
    };
    m_slider->setRange(kNarrowest, kWidest);
    m_slider->setValue(228);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto *line = new QHBoxLayout;
    line->setSpacing(16);
    line->addWidget(
        choice({QStringLiteral("Latin"), QString::fromUtf8("中文"), QStringLiteral("Mixed")}, 2,
               [this](int index) {
                   m_text = texts.at(index);
                   wrap();
               }));
    line->addWidget(m_remark);
    column->addLayout(line);
    column->addWidget(m_slider);
    column->addWidget(m_paper);
    column->addStretch(1);
    connect(m_slider, &QSlider::valueChanged, this, &WrapCard::wrap);
    m_text = texts.last();
    wrap();
}

void WrapCard::wrap()
{
    bool wrapped = false;
    int lineCount = 0;
    m_paper->ensurePolished();
    m_paper->setText(
        warpString(m_paper->fontMetrics(), m_text, m_slider->value(), &wrapped, &lineCount),
        m_slider->value());
    m_remark->setText(wrapped
                          ? QStringLiteral("%1 px, %2 lines").arg(m_slider->value()).arg(lineCount)
                          : QStringLiteral("%1 px, fits").arg(m_slider->value()));
}

class RichStringCard : public QWidget
{
public:
    RichStringCard();

private:
    void showText();

    QLineEdit *m_edit = new QLineEdit;
    QLabel *m_plain = new QLabel;
    QLabel *m_colored = new QLabel;
    QLabel *m_html = PageKit::caption(QString());
};

RichStringCard::RichStringCard()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    const QVector<QPair<QString, QWidget *>> rows = {
        {QStringLiteral("Text"), m_edit},
        {QStringLiteral("Without a colour"), m_plain},
        {QStringLiteral("With a colour"), m_colored},
        {QStringLiteral("Its HTML"), m_html},
    };
    for (int row = 0; row < rows.size(); ++row) {
        auto *name = PageKit::caption(rows.at(row).first);
        name->setWordWrap(false);
        grid->addWidget(name, row, 0, row < rows.size() - 1 ? Qt::AlignVCenter : Qt::AlignTop);
        grid->addWidget(rows.at(row).second, row, 1);
    }
    grid->setRowStretch(rows.size(), 1);
    grid->setColumnStretch(1, 1);
    for (QLabel *label : {m_plain, m_colored})
        label->setTextFormat(Qt::RichText);
    connect(m_edit, &QLineEdit::textChanged, this, &RichStringCard::showText);
    m_edit->setText(QStringLiteral("Zone 3 <b>armed</b> & \"quiet\""));
}

void RichStringCard::showText()
{
    const RichString colored(CusColorConfig::instance()->warningColor(), m_edit->text());
    m_plain->setText(RichString(m_edit->text()).toHtmlText());
    m_colored->setText(colored.toHtmlText());
    m_html->setText(colored.toHtmlText());
}

} // namespace

QWidget *ToolCards::qrCode()
{
    return new QrCodeCard;
}

QWidget *ToolCards::wordWrap()
{
    return new WrapCard;
}

QWidget *ToolCards::richString()
{
    return new RichStringCard;
}
