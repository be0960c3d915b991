#include "gallerypage.h"
#include "pagekit.h"

#include <Vellum/CusScrollArea>
#include <Vellum/CusScrollHoverPane>
#include <Vellum/CusTabBar>
#include <Vellum/CusTabWidget>
#include <Vellum/CusWidget>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>

#include <functional>

namespace {

QPushButton *button(const QString &text, const char *look = nullptr)
{
    auto *widget = new QPushButton(text);
    widget->setProperty("look", QLatin1String(look));
    return widget;
}

QPushButton *linkButton(const QString &text)
{
    auto *widget = new QPushButton(text);
    widget->setObjectName(QStringLiteral("pushButton_link"));
    widget->setProperty("button_labelLink", true);
    return widget;
}

template <typename W>
W *disabled(W *widget)
{
    widget->setEnabled(false);
    return widget;
}

template <typename B>
B *checked(B *widget)
{
    widget->setCheckable(true);
    widget->setChecked(true);
    return widget;
}

QLayout *buttonRows()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    const QString text = QStringLiteral("Save recording");
    const QVector<QPair<QString, std::function<QPushButton *()>>> looks = {
        {QStringLiteral("Plain"), [&text] { return button(text); }},
        {QStringLiteral("look: primary"), [&text] { return button(text, "primary"); }},
        {QStringLiteral("look: danger"), [&text] { return button(text, "danger"); }},
        {QStringLiteral("look: dense"), [&text] { return button(text, "dense"); }},
        {QStringLiteral("look: primary dense"), [&text] { return button(text, "primary dense"); }},
        {QStringLiteral("pushButton_link"), [&text] { return linkButton(text); }},
    };
    const QStringList states = {QStringLiteral("Normal"), QStringLiteral("Checked"),
                                QStringLiteral("Disabled"), QStringLiteral("Checked, disabled")};
    for (int i = 0; i < states.size(); ++i)
        grid->addWidget(PageKit::caption(states.at(i)), 0, i + 1);
    for (int row = 0; row < looks.size(); ++row) {
        const auto &make = looks.at(row).second;
        grid->addWidget(PageKit::caption(looks.at(row).first), row + 1, 0);
        grid->addWidget(make(), row + 1, 1, Qt::AlignLeft);
        grid->addWidget(checked(make()), row + 1, 2, Qt::AlignLeft);
        grid->addWidget(disabled(make()), row + 1, 3, Qt::AlignLeft);
        grid->addWidget(disabled(checked(make())), row + 1, 4, Qt::AlignLeft);
    }
    grid->setColumnStretch(5, 1);
    return grid;
}

QLineEdit *edit(const QString &text, const QString &placeholder = QString())
{
    auto *widget = new QLineEdit(text);
    widget->setPlaceholderText(placeholder);
    widget->setFixedWidth(180);
    return widget;
}

template <typename W>
W *invalid(W *widget)
{
    widget->setProperty("Invalid", true);
    return widget;
}

QComboBox *combo()
{
    auto *widget = new QComboBox;
    widget->addItems({QStringLiteral("Main stream"), QStringLiteral("Sub stream")});
    widget->setFixedWidth(180);
    return widget;
}

QSpinBox *spin()
{
    auto *widget = new QSpinBox;
    widget->setRange(1, 60);
    widget->setValue(25);
    widget->setSuffix(QStringLiteral(" fps"));
    widget->setFixedWidth(180);
    return widget;
}

QLineEdit *readOnly(QLineEdit *widget)
{
    widget->setReadOnly(true);
    return widget;
}

QLayout *fieldRows()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    const QStringList states = {QStringLiteral("Normal"), QStringLiteral("Empty, read-only"),
                                QStringLiteral("Invalid"), QStringLiteral("Disabled")};
    for (int i = 0; i < states.size(); ++i)
        grid->addWidget(PageKit::caption(states.at(i)), 0, i);
    const QString name = QStringLiteral("North gate");
    const QVector<QVector<QWidget *>> rows = {
        {edit(name), edit(QString(), QStringLiteral("Camera name")), invalid(edit(name)),
         disabled(edit(name))},
        {spin(), readOnly(edit(QStringLiteral("192.0.2.17"))), invalid(spin()), disabled(spin())},
        {combo(), nullptr, invalid(combo()), disabled(combo())},
    };
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows.at(row).size(); ++column) {
            if (QWidget *widget = rows.at(row).at(column))
                grid->addWidget(widget, row + 1, column);
        }
    }
    auto *notes = new QPlainTextEdit(QStringLiteral("Gate opened by the night shift."));
    notes->setFixedHeight(98);
    grid->addWidget(notes, 1, 4, 3, 1);
    return grid;
}

QLayout *choices()
{
    auto *partly = new QCheckBox(QStringLiteral("Some cameras"));
    partly->setTristate(true);
    partly->setCheckState(Qt::PartiallyChecked);
    auto *radio = new QRadioButton(QStringLiteral("Continuous"));
    radio->setChecked(true);
    const QVector<QWidget *> boxes = {new QCheckBox(QStringLiteral("Motion")),
                                      checked(new QCheckBox(QStringLiteral("Line crossing"))),
                                      partly,
                                      disabled(checked(new QCheckBox(QStringLiteral("Audio"))))};
    const QVector<QWidget *> radios = {radio, new QRadioButton(QStringLiteral("On event")),
                                       disabled(new QRadioButton(QStringLiteral("Never")))};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    for (int row = 0; row < boxes.size(); ++row)
        grid->addWidget(boxes.at(row), row, 0);
    for (int row = 0; row < radios.size(); ++row)
        grid->addWidget(radios.at(row), row, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(boxes.size(), 1);
    return grid;
}

QSlider *slider(int value)
{
    auto *widget = new QSlider(Qt::Horizontal);
    widget->setValue(value);
    widget->setFixedSize(160, 24);
    return widget;
}

QLayout *barsAndMenus()
{
    auto *progress = new CusProgressBar;
    progress->setValue(62);
    progress->setFixedWidth(160);
    auto *menus = new CusMenuBar;
    for (const char *name : {"View", "Playback"})
        menus->addMenu(QString::fromLatin1(name))->addAction(QStringLiteral("Close"));
    menus->setFixedWidth(170);
    auto *tools = new CusToolBar;
    for (const char *name : {"Live", "Replay", "Map"})
        tools->addAction(QString::fromLatin1(name));
    tools->insertSeparator(tools->actions().at(1));
    tools->actions().constFirst()->setCheckable(true);
    tools->actions().constFirst()->setChecked(true);
    auto *line = new QHBoxLayout;
    line->setSpacing(24);
    const QVector<QWidget *> widgets = {slider(40), disabled(slider(70)), progress, menus, tools};
    for (QWidget *widget : widgets)
        line->addWidget(widget, 0, Qt::AlignVCenter);
    line->addStretch(1);
    return line;
}

QWidget *panes()
{
    auto *tabs = new CusTabWidget;
    for (const char *name : {"Events", "Recordings", "Health"})
        tabs->addTab(new QLabel(QStringLiteral("  No event in this hour")),
                     QString::fromLatin1(name));
    auto *group = new CusGroupBox(QStringLiteral("Schedule"));
    auto *column = new QVBoxLayout(group);
    column->addWidget(checked(new QCheckBox(QStringLiteral("Weekdays"))));
    column->addWidget(new QCheckBox(QStringLiteral("Weekend")));
    auto *list = new QListWidget;
    list->addItems({QStringLiteral("North gate"), QStringLiteral("Car park"),
                    QStringLiteral("Loading bay"), QStringLiteral("Server room"),
                    QStringLiteral("Lobby")});
    list->setCurrentRow(1);
    auto *splitter = new QSplitter;
    splitter->addWidget(tabs);
    splitter->addWidget(group);
    splitter->addWidget(list);
    splitter->setFixedHeight(132);
    return splitter;
}

/// A small client window: menus and tools on top, a list that scrolls below a hovering pane.
QWidget *smallWindow()
{
    auto *window = new CusMainWindow(nullptr, Qt::Widget);
    auto *menus = new CusMenuBar;
    for (const char *name : {"File", "View"})
        menus->addMenu(QString::fromLatin1(name));
    window->setMenuBar(menus);
    auto *cameras = new QLabel;
    QStringList names;
    for (int number = 1; number <= 12; ++number)
        names.append(QStringLiteral("  Camera %1").arg(number));
    cameras->setText(names.join(QLatin1Char('\n')));
    auto *area = new CusScrollArea;
    area->setWidget(cameras);
    area->setWidgetResizable(true);
    auto *pane = new CusScrollHoverPane(area, true);
    auto *line = new QHBoxLayout(pane);
    line->setContentsMargins(8, 4, 8, 4);
    line->addWidget(button(QStringLiteral("Add a camera"), "dense"));
    pane->setObjectName(QStringLiteral("gallery_hoverPane"));
    pane->show();
    window->setCentralWidget(area);
    window->setFixedSize(280, 168);
    return window;
}

/// A dialog as part of a page.
QWidget *smallDialog()
{
    auto *dialog = new CusDialog(nullptr, Qt::Widget);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(new QLabel(QStringLiteral("Delete 3 recordings?")));
    column->addStretch(1);
    auto *answers = new QHBoxLayout;
    answers->addStretch(1);
    answers->addWidget(button(QStringLiteral("Keep")));
    answers->addWidget(button(QStringLiteral("Delete"), "danger"));
    column->addLayout(answers);
    dialog->setFixedSize(280, 168);
    return dialog;
}

/// A frame with tabs of its own and a status line.
QWidget *smallFrame()
{
    auto *frame = new CusFrame;
    auto *column = new QVBoxLayout(frame);
    auto *tabs = new CusTabBar(frame);
    for (const char *name : {"Day", "Week", "Month"})
        tabs->addTab(QString::fromLatin1(name));
    tabs->setFixedHeight(36);
    column->addWidget(tabs);
    column->addWidget(new QLabel(QStringLiteral("42 events")));
    column->addStretch(1);
    auto *status = new CusWidget;
    auto *line = new QHBoxLayout(status);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(new QLabel(QStringLiteral("Storage")));
    auto *used = new CusProgressBar;
    used->setValue(81);
    line->addWidget(used);
    column->addWidget(status);
    frame->setFixedSize(280, 168);
    return frame;
}

QLayout *stylableBases()
{
    auto *line = new QHBoxLayout;
    line->setSpacing(24);
    for (QWidget *widget : {smallWindow(), smallDialog(), smallFrame()})
        line->addWidget(widget);
    line->addStretch(1);
    return line;
}

class QtBasesPage : public QWidget
{
public:
    QtBasesPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Qt bases"),
            QStringLiteral("What the starter theme's sheet makes of Qt's own widgets, on which "
                           "the controls stand."));
        auto *first = new QHBoxLayout;
        first->setSpacing(16);
        first->addWidget(PageKit::card(QStringLiteral("Push buttons"), buttonRows()), 1);
        first->addWidget(PageKit::card(QStringLiteral("Choices"), choices()));
        column->addLayout(first);
        column->addWidget(PageKit::card(QStringLiteral("Fields"), fieldRows()));
        column->addWidget(PageKit::card(QStringLiteral("Sliders, bars and menus"), barsAndMenus()));
        column->addWidget(PageKit::card(QStringLiteral("Panes and lists"), panes()));
        column->addWidget(PageKit::card(
            QStringLiteral("Window, dialog and frame: CusMainWindow, CusDialog, CusFrame"),
            stylableBases()));
    }
};

const GalleryPage page{15, QStringLiteral("Qt bases"), [] { return new QtBasesPage; }};

} // namespace
