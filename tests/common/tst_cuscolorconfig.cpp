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
        if (!name.isEmpty() && !QResource::registerResource(m_file))
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
    void builtInColors();
    void paletteRepeatsAndClampsBelow();
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
    const RegisteredTheme theme(resource);
    expectWarning(QRegularExpression(warning));
    Config config;
    QVERIFY(!config.mainColor().isValid());
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

void TestCusColorConfig::builtInColors()
{
    struct Row
    {
        const char *key;
        const QColor &(CusColorConfig::*accessor)() const;
        QRgb builtIn;
    };
    using C = CusColorConfig;
    const Row rows[] = {{"mainColor", &C::mainColor, 0x256eb4},
                        {"successColor", &C::successColor, 0x109e5c},
                        {"warningColor", &C::warningColor, 0xffaf14},
                        {"danger1Color", &C::danger1Color, 0xf14958},
                        {"danger2Color", &C::danger2Color, 0xc83f3f},
                        {"highlightColor", &C::highlightColor, 0x429ef6},
                        {"bakcgroundColor", &C::bakcgroundColor, 0x0f121a},
                        {"negativeBarBackgroundColor", &C::negativeBarBackgroundColor, 0x262f3e},
                        {"dialogHeaderColor", &C::dialogHeaderColor, 0x323c4e},
                        {"dialogBackgroundColor", &C::dialogBackgroundColor, 0x27303e},
                        {"bubbleColor", &C::bubbleColor, 0x424e64},
                        {"mainTextColor", &C::mainTextColor, 0xffffff},
                        {"subTextColor", &C::subTextColor, 0xa0a7b4}};
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    Config config;
    for (const Row &row : rows) {
        config.setConfig({});
        QCOMPARE((config.*row.accessor)(), QColor(row.builtIn));
        config.setConfig({{QString::fromLatin1(row.key), QStringLiteral("#80010203")}});
        QCOMPARE((config.*row.accessor)(), QColor(1, 2, 3, 0x80));
    }
}

void TestCusColorConfig::paletteRepeatsAndClampsBelow()
{
    expectWarning(QRegularExpression(QStringLiteral(".+")));
    CusColorConfig *config = CusColorConfig::instance();
    QCOMPARE(CusColorConfig::instance(), config);
    const QString key = QStringLiteral("commonColors");
    config->setConfig({{key, QJsonValue::Null}});
    config->setConfig(config->config());
    QCOMPARE(config->getCommonColorByIndex(9), QColor(0x1e, 0x6e, 0xe5));
    QCOMPARE(config->getCommonColorByIndex(-5), QColor(0xef, 0x8e, 0x2e));
    QCOMPARE(config->getCommonColorByIndex(23), config->commonColors().at(3));
    for (const QJsonValue &palette : {QJsonValue(QJsonArray()), QJsonValue(5)}) {
        config->setConfig({{key, palette}});
        QVERIFY(!config->getCommonColorByIndex(3).isValid());
    }
}

QTEST_GUILESS_MAIN(TestCusColorConfig)
#include "tst_cuscolorconfig.moc"
