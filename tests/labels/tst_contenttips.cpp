#include "support/guardedtest.h"
#include "support/markingtranslator.h"

#include <Vellum/NoContentTipLabel>
#include <Vellum/WarningTipAndJumpLink>

#include <QtTest>
#include <QtWidgets>

/// NoContentTipLabel and WarningTipAndJumpLink: the tips that stand in a page.
class TestContentTips : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void standsWhereItsTypeSays_data();
    void standsWhereItsTypeSays();
    void followsItsWidget();
    void showsAsChildUntilToldNothing();
    void followsTheLanguage();
    void lineTellsChangesAndClicks();

private:
    QScopedPointer<QWidget> m_page;
    QWidget *m_list = nullptr;
    NoContentTipLabel *m_label = nullptr;
    const QString m_text = QStringLiteral("No cameras");
};

void TestContentTips::init()
{
    GuardedTest::init();
    m_page.reset(new QWidget);
    m_page->resize(400, 300);
    m_list = new QWidget(m_page.data());
    m_list->setGeometry(50, 20, 300, 200);
    m_label = new NoContentTipLabel(m_page.data());
    m_page->show();
}

void TestContentTips::standsWhereItsTypeSays_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("top") << int(NoContentTipLabel::Show_Top) << QPoint(57, 29);
    QTest::newRow("centre ignores y") << int(NoContentTipLabel::Show_Center) << QPoint(57, 120);
    QTest::newRow("below") << int(NoContentTipLabel::Show_Below) << QPoint(57, 229);
    QTest::newRow("unknown counts as top") << 9 << QPoint(57, 29);
}

void TestContentTips::standsWhereItsTypeSays()
{
    QFETCH(int, type);
    m_label->showTipContent(m_text, m_list, NoContentTipLabel::ShowType(type), 7, 9);
    QCOMPARE(m_label->width(), 300);
    QTEST(m_label->pos(), "pos");

    NoContentTipLabel orphan;
    orphan.showTipContent(m_text, m_list, NoContentTipLabel::ShowType(type), 7, 9);
    QVERIFY(!orphan.isVisible());
    orphan.setParent(m_page.data());
    // No type was stored, so the place is that of Show_Top.
    orphan.resetPosition(m_list, 7, 9);
    orphan.resetPosition(nullptr, 0, 0);
    QCOMPARE(orphan.pos(), QPoint(57, 29));
    m_label->showTipContent(m_text, m_list, NoContentTipLabel::ShowType(type), INT_MAX, INT_MAX);
    QVERIFY(m_label->x() > 10000);
}

void TestContentTips::followsItsWidget()
{
    m_label->showTipContent(m_text, m_list, NoContentTipLabel::Show_Below, 7, 9);
    m_list->move(60, 30);
    QCOMPARE(m_label->pos(), QPoint(80, 270));
    m_list->resize(200, 100);
    QCOMPARE(m_label->geometry().topLeft(), QPoint(80, 170));
    m_page->resize(500, 300);
    QCOMPARE(m_label->width(), 200);

    // Another widget takes the first one's place.
    auto *other = new QWidget(m_page.data());
    other->resize(100, 100);
    m_label->showTipContent(QString(99, QLatin1Char('x')).replace(10, 1, QLatin1Char(' ')), other,
                            NoContentTipLabel::Show_Top, 0, 0);
    QVERIFY(m_label->height() >= m_label->heightForWidth(100));
    m_list->move(0, 0);
    QCOMPARE(m_label->pos(), QPoint(0, 0));
    delete other;
    m_page->resize(600, 300);
    QCOMPARE(m_label->pos(), QPoint(0, 0));
}

void TestContentTips::showsAsChildUntilToldNothing()
{
    const auto top = NoContentTipLabel::Show_Top;
    const QList<std::function<void()>> nothings = {
        [&] { m_label->showTipContent(QString(), m_list, top, 0, 0); },
        [&] { m_label->showTipContent(m_text, nullptr, top, 0, 0); },
        [&] { m_label->showTipContent(m_text, m_label, top, 0, 0); },
        [&] { m_label->showTipContentAsChild(QString(), m_list, 0, 0); },
        [&] { m_label->showTipContentAsChild(m_text, m_label, 0, 0); }};
    for (const auto &nothing : nothings) {
        m_label->showTipContentAsChild(m_text, m_list, 3, 4);
        QCOMPARE(m_label->parentWidget(), m_list);
        QCOMPARE(m_label->pos(), QPoint(3, 4));
        nothing();
        m_label->updateTipContentAsChild(QString());
        QVERIFY(!m_label->isVisible());
    }
    m_label->updateTipContentAsChild(QStringLiteral("No events"));
    QVERIFY(m_label->isVisible());
    QCOMPARE(m_label->text(), QStringLiteral("No events"));
}

void TestContentTips::followsTheLanguage()
{
    m_label->showTipContent(m_text, m_list, NoContentTipLabel::Show_Top, 0, 0);
    QCOMPARE(m_label->text(), m_text);
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    m_label->resetWidgetUiLanguage();
    QCOMPARE(m_label->text(), QStringLiteral("NoContentTipLabel/No cameras"));
}

void TestContentTips::lineTellsChangesAndClicks()
{
    WarningTipAndJumpLink line;
    const QSignalSpy pressed(&line, &WarningTipAndJumpLink::signalJumpLinkPressed);
    const QSignalSpy text(&line, &WarningTipAndJumpLink::labelTipTextChanged);
    const QSignalSpy jumpText(&line, &WarningTipAndJumpLink::labelJumpTextChanged);
    const QSignalSpy visible(&line, &WarningTipAndJumpLink::labelTipTextVisibleChanged);
    const QSignalSpy jumpVisible(&line, &WarningTipAndJumpLink::labelJumpTextVisibleChanged);
    const auto setTwice = [&] {
        for (int i = 0; i < 2; ++i) {
            line.setLabelTipText(m_text);
            line.setLabelJumpText(m_text);
            line.setLabelTipTextVisible(false);
            line.setLabelJumpTextVisible(true);
        }
    };
    // Before the line is shown no part counts as visible.
    setTwice();
    QCOMPARE(jumpVisible.count(), 2);
    line.show();
    setTwice();
    QCOMPARE(jumpVisible.count(), 2);
    QCOMPARE(visible, (QList<QVariantList>{{false}}));
    QCOMPARE(text, (QList<QVariantList>{{m_text}}));
    QCOMPARE(jumpText, (QList<QVariantList>{{m_text}}));
    auto *link = line.findChild<QPushButton *>(QStringLiteral("pushButton_link"));
    QTest::mouseClick(link, Qt::LeftButton);
    QCOMPARE(pressed, (QList<QVariantList>{{false}}));
}

QTEST_MAIN(TestContentTips)
#include "tst_contenttips.moc"
