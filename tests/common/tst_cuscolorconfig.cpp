#include "support/guardedtest.h"

#include <Vellum/CusColorConfig>

#include <QJsonArray>
#include <QJsonObject>
#include <QResource>
#include <QtTest>

namespace {

/// The theme as a client finds it with one .rcc file, or none, compiled in.
class Config : public CusColorConfig
{
};

class RegisteredTheme
{
public:
    explicit RegisteredTheme(const QString &name)
        : m_file(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name)
    {
        if (!QResource::registerResource(m_file))
            qWarning("no resource file %s", qUtf8Printable(m_file));
    }
    ~RegisteredTheme() { QResource::unregisterResource(m_file); }

private:
    QString m_file;
};

} // namespace

class TestCusColorConfig : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingOrBrokenFileLeavesEverythingInvalid_data();
    void missingOrBrokenFileLeavesEverythingInvalid();
    void readsTheFile();
    void builtInColors_data();
    void builtInColors();
    void paletteRepeatsAndClampsBelow();
    void badPaletteIsEmpty();
    void keysComeFromTheObjectNotFromTheFields();
};

void TestCusColorConfig::missingOrBrokenFileLeavesEverythingInvalid_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("warning");
    QTest::newRow("missing") << QString() << QStringLiteral("^(?!unterminated).+");
    QTest::newRow("broken") << QStringLiteral("brokentheme.rcc") << QStringLiteral("unterminated");
}

void TestCusColorConfig::missingOrBrokenFileLeavesEverythingInvalid()
{
    QFETCH(QString, resource);
    QFETCH(QString, warning);
    std::unique_ptr<RegisteredTheme> theme;
    if (!resource.isEmpty())
        theme = std::make_unique<RegisteredTheme>(resource);
    expectWarning(QRegularExpression(warning));
    Config config;
    QVERIFY(!config.mainColor().isValid());
    QVERIFY(!config.subTextColor().isValid());
    QVERIFY(!config.getCommonColorByIndex(0).isValid());
    QVERIFY(config.config().isEmpty());
    QCOMPARE(config.getColor(QStringLiteral("any"), Qt::red), QColor(Qt::red));

    const QColor &main = config.mainColor();
    config.setConfig({});
    QCOMPARE(main, QColor(0x25, 0x6e, 0xb4));
    QCOMPARE(config.commonColors().size(), 10);
}

void TestCusColorConfig::readsTheFile()
{
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    const Config config;
    QCOMPARE(config.mainColor(), QColor(0x10, 0x20, 0x30));
    QVERIFY(!config.subTextColor().isValid());
    QCOMPARE(config.bubbleColor(), QColor(0x42, 0x4e, 0x64));
    QCOMPARE(config.commonColors(),
             (QVector<QColor>{QColor(Qt::red), QColor(), QColor(), QColor(Qt::blue)}));
    QCOMPARE(config.getColor(QStringLiteral("CusPtzRingPane_BGColor"), Qt::red),
             QColor(QStringLiteral("steelblue")));
    QVERIFY(!config.getColor(QStringLiteral("CusPtzRingPane_InnerColor"), Qt::red).isValid());
    QCOMPARE(config.getColor(QStringLiteral("bubbleColor"), Qt::red), QColor(Qt::red));
    QCOMPARE(config.getColorList(QStringLiteral("CusColorChoosePane_ColorArray")),
             (QStringList{QStringLiteral("#111111"), QStringLiteral("no colour"), QString()}));
    QVERIFY(config.getColorList(QStringLiteral("mainColor")).isEmpty());
    QVERIFY(config.getColorList(QStringLiteral("absent")).isEmpty());
}

void TestCusColorConfig::builtInColors_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("builtIn");
    const QStringList rows = QStringLiteral("mainColor #256EB4,successColor #109E5C,"
                                            "warningColor #FFAF14,danger1Color #F14958,"
                                            "danger2Color #C83F3F,highlightColor #429EF6,"
                                            "bakcgroundColor #0F121A,"
                                            "negativeBarBackgroundColor #262F3E,"
                                            "dialogHeaderColor #323C4E,"
                                            "dialogBackgroundColor #27303E,bubbleColor #424E64,"
                                            "mainTextColor #FFFFFF,subTextColor #A0A7B4")
                                 .split(QLatin1Char(','));
    for (const QString &row : rows)
        QTest::newRow(qPrintable(row))
            << row.section(QLatin1Char(' '), 0, 0) << row.section(QLatin1Char(' '), 1);
}

void TestCusColorConfig::builtInColors()
{
    using Accessor = const QColor &(CusColorConfig::*)() const;
    static const QHash<QString, Accessor> accessors = {
        {QStringLiteral("mainColor"), &CusColorConfig::mainColor},
        {QStringLiteral("successColor"), &CusColorConfig::successColor},
        {QStringLiteral("warningColor"), &CusColorConfig::warningColor},
        {QStringLiteral("danger1Color"), &CusColorConfig::danger1Color},
        {QStringLiteral("danger2Color"), &CusColorConfig::danger2Color},
        {QStringLiteral("highlightColor"), &CusColorConfig::highlightColor},
        {QStringLiteral("bakcgroundColor"), &CusColorConfig::bakcgroundColor},
        {QStringLiteral("negativeBarBackgroundColor"), &CusColorConfig::negativeBarBackgroundColor},
        {QStringLiteral("dialogHeaderColor"), &CusColorConfig::dialogHeaderColor},
        {QStringLiteral("dialogBackgroundColor"), &CusColorConfig::dialogBackgroundColor},
        {QStringLiteral("bubbleColor"), &CusColorConfig::bubbleColor},
        {QStringLiteral("mainTextColor"), &CusColorConfig::mainTextColor},
        {QStringLiteral("subTextColor"), &CusColorConfig::subTextColor}};
    QFETCH(QString, key);
    QFETCH(QString, builtIn);
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    Config config;
    const Accessor accessor = accessors.value(key);
    config.setConfig({});
    QCOMPARE((config.*accessor)(), QColor(builtIn));
    config.setConfig({{key, QStringLiteral("#80010203")}});
    QCOMPARE((config.*accessor)(), QColor(1, 2, 3, 0x80));
}

void TestCusColorConfig::paletteRepeatsAndClampsBelow()
{
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    Config config;
    config.setConfig({});
    QCOMPARE(config.getCommonColorByIndex(0), QColor(0xef, 0x8e, 0x2e));
    QCOMPARE(config.getCommonColorByIndex(9), QColor(0x1e, 0x6e, 0xe5));
    QCOMPARE(config.getCommonColorByIndex(-5), config.commonColors().at(0));
    QCOMPARE(config.getCommonColorByIndex(23), config.commonColors().at(3));
}

void TestCusColorConfig::badPaletteIsEmpty()
{
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    Config config;
    const QString key = QStringLiteral("commonColors");
    for (const QJsonValue &palette : {QJsonValue(QJsonArray()), QJsonValue(5)}) {
        config.setConfig({{key, palette}});
        QVERIFY(config.commonColors().isEmpty());
        QVERIFY(!config.getCommonColorByIndex(3).isValid());
    }
    config.setConfig({{key, QJsonValue::Null}});
    QCOMPARE(config.commonColors().size(), 10);
}

void TestCusColorConfig::keysComeFromTheObjectNotFromTheFields()
{
    expectWarning(QRegularExpression(QStringLiteral(".+")));
    CusColorConfig *config = CusColorConfig::instance();
    QCOMPARE(CusColorConfig::instance(), config);
    config->setConfig({});
    QVERIFY(config->mainColor().isValid());
    QVERIFY(!config->getColor(QStringLiteral("mainColor"), QColor()).isValid());
    config->setConfig(config->config());
    QVERIFY(config->mainColor().isValid());
}

QTEST_GUILESS_MAIN(TestCusColorConfig)
#include "tst_cuscolorconfig.moc"
