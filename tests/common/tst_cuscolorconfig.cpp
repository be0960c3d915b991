#include "support/guardedtest.h"

#include <Vellum/CusColorConfig>

#include <QtTest>

namespace {

class Config : public CusColorConfig
{
};

/// The theme as a client finds it with one .rcc file, or none, compiled in.
class RegisteredTheme
{
public:
    explicit RegisteredTheme(const QString &name)
        : m_file(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name)
    {
        QResource::registerResource(m_file);
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
    void missingOrBrokenFileLeavesEverythingInvalid();
    void readsTheFile();
    void builtInColors();
    void paletteRepeatsAndClampsBelow();
};

void TestCusColorConfig::missingOrBrokenFileLeavesEverythingInvalid()
{
    for (const char *resource : {"", "brokentheme.rcc"}) {
        const RegisteredTheme theme(QString::fromLatin1(resource));
        expectWarning(QRegularExpression(*resource ? QStringLiteral("unterminated")
                                                   : QStringLiteral("^(?!unterminated).+")));
        Config config;
        QVERIFY2(!config.mainColor().isValid(), resource);
        QVERIFY2(!config.getCommonColorByIndex(0).isValid(), resource);
        QVERIFY2(config.config().isEmpty(), resource);
        QCOMPARE(config.getColor(QStringLiteral("any"), Qt::red), QColor(Qt::red));

        const QColor &main = config.mainColor();
        config.setConfig({});
        QCOMPARE(main, QColor(0x25, 0x6e, 0xb4));
        QCOMPARE(config.commonColors().size(), 10);
    }
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
    const RegisteredTheme theme(QStringLiteral("theme.rcc"));
    Config config;
    using C = CusColorConfig;
    const auto check = [&](const char *key, const QColor &(C::*accessor)() const, QRgb builtIn) {
        config.setConfig({});
        QCOMPARE((config.*accessor)(), QColor(builtIn));
        config.setConfig({{QString::fromLatin1(key), QStringLiteral("#80010203")}});
        QCOMPARE((config.*accessor)(), QColor(1, 2, 3, 0x80));
    };
    check("mainColor", &C::mainColor, 0x256eb4);
    check("successColor", &C::successColor, 0x109e5c);
    check("warningColor", &C::warningColor, 0xffaf14);
    check("danger1Color", &C::danger1Color, 0xf14958);
    check("danger2Color", &C::danger2Color, 0xc83f3f);
    check("highlightColor", &C::highlightColor, 0x429ef6);
    check("bakcgroundColor", &C::bakcgroundColor, 0x0f121a);
    check("negativeBarBackgroundColor", &C::negativeBarBackgroundColor, 0x262f3e);
    check("dialogHeaderColor", &C::dialogHeaderColor, 0x323c4e);
    check("dialogBackgroundColor", &C::dialogBackgroundColor, 0x27303e);
    check("bubbleColor", &C::bubbleColor, 0x424e64);
    check("mainTextColor", &C::mainTextColor, 0xffffff);
    check("subTextColor", &C::subTextColor, 0xa0a7b4);
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
