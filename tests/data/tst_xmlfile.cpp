#include "support/guardedtest.h"

#include <Vellum/CusDomDocument>
#include <Vellum/XmlFile>

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class TestXmlFile : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutADocumentNothingHappens();
    void unreadableFileKeepsThePreviousDocument();
    void elementValues_data();
    void elementValues();
    void attributeValues();
    void changesReachEveryMatch();
    void refusesWhatWouldExhaustAReader_data();
    void refusesWhatWouldExhaustAReader();

private:
    QString write(const QByteArray &bytes)
    {
        QFile file(m_dir.filePath(QStringLiteral("file.xml")));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            ? file.fileName()
            : QString();
    }

    QTemporaryDir m_dir;
};

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

void TestXmlFile::withoutADocumentNothingHappens()
{
    for (XmlFile file : {XmlFile(), XmlFile(m_dir.filePath(str("absent"))), XmlFile(m_dir.path()),
                         XmlFile(QString())}) {
        file.setElementValue(str("a"), str("b"));
        file.setEleAttributeValue(str("a"), str("b"), str("c"));
        file.removeAttributeValue({str("a")}, {str("b")});
        QVERIFY(file.getElementValue(str("a")).isNull());
        QVERIFY(file.getEleAttributeValue(str("a"), str("b")).isNull());
        QVERIFY(file.getEleAttributeValue({str("a")}, QStringList{str("b")}).isEmpty());
        QCOMPARE(file.toByteArray(), QByteArray());
    }
}

void TestXmlFile::unreadableFileKeepsThePreviousDocument()
{
    XmlFile file(write("<a>text</a>"));
    const QString pipe = m_dir.filePath(str("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &name :
         {m_dir.filePath(str("absent")), m_dir.path(), pipe, str("/dev/zero")}) {
        file.readFile(name);
        QCOMPARE(file.getElementValue(str("a")), str("text"));
    }
    // One that can be read replaces it, also by nothing.
    file.readFile(write("<a>new</a><a>second root</a>"));
    QVERIFY(file.getElementValue(str("a")).isEmpty());
    QCOMPARE(file.toByteArray(), QByteArray());
}

void TestXmlFile::elementValues_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("changed");
    QTest::newRow("two") << QByteArray("<r><s>1</s><b><s>2</s></b></r>") << str("1")
                         << QByteArray("<r>\n <s>new</s>\n <b>\n  <s>new</s>\n </b>\n</r>\n");
    QTest::newRow("CDATA") << QByteArray("<s><![CDATA[<1>]]></s>") << str("<1>")
                           << QByteArray("<s><![CDATA[new]]></s>\n");
    QTest::newRow("other case") << QByteArray("<S>1</S>") << QString() << QByteArray("<S>1</S>\n");
    QTest::newRow("first empty") << QByteArray("<r><s/><s>2</s></r>") << str("2")
                                 << QByteArray("<r>\n <s/>\n <s>new</s>\n</r>\n");
    QTest::newRow("branch ends at a match")
        << QByteArray("<r><s><b/><s>inner</s></s><s>2</s></r>") << str("2") << QByteArray();
}

void TestXmlFile::elementValues()
{
    QFETCH(QByteArray, xml);
    QFETCH(QByteArray, changed);
    XmlFile file(write(xml));
    QTEST(file.getElementValue(str("s")), "value");
    file.setElementValue(str("s"), str("new"));
    if (!changed.isEmpty())
        QCOMPARE(file.toByteArray(), changed);
}

void TestXmlFile::attributeValues()
{
    XmlFile file(write("<r><a x=''><a x='inside'/></a><b/><b y='1'/><a x='2' y='3'/></r>"));
    QCOMPARE(file.getEleAttributeValue(str("a"), str("x")), str("2"));
    QVERIFY(file.getEleAttributeValue(str("b"), str("x")).isEmpty());
    const QSet<QString> tags = {str("a"), str("b")};
    QCOMPARE(file.getEleAttributeValue(tags, {str("z"), str("y")}), (QStringList{{}, str("1")}));
    QCOMPARE(file.getEleAttributeValue(tags, {str("x"), str("y")}), (QStringList{{}, {}}));
    QVERIFY(file.getEleAttributeValue(tags, QStringList()).isEmpty());
}

void TestXmlFile::changesReachEveryMatch()
{
    XmlFile file(write("<a x='1'><b x='1'><a y='1'/></b><c x='1'/></a>"));
    file.setEleAttributeValue(str("a"), str("x"), str("2"));
    QCOMPARE(file.toByteArray().count("x=\"2\""), 2);
    file.setEleAttributeValue({str("a"), str("b")}, str("x"), str("3"));
    QCOMPARE(file.toByteArray().count("x=\"3\""), 3);
    file.removeAttributeValue({str("a"), str("b")}, {str("x"), str("y"), str("absent")});
    QCOMPARE(file.toByteArray(), QByteArray("<a>\n <b>\n  <a/>\n </b>\n <c x=\"1\"/>\n</a>\n"));
}

void TestXmlFile::refusesWhatWouldExhaustAReader_data()
{
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QByteArray>("xml");
    const auto row = [](const char *name, bool readable, const QByteArray &xml) {
        QTest::newRow(name) << readable << xml;
    };
    const auto levels = [](const QByteArray &begin, const QByteArray &end, int count = 300) {
        return begin.repeated(count) + "<s>text</s>" + end.repeated(count);
    };
    const QByteArray deep = levels("<g>", "</g>");
    const QByteArray utf7 = levels("+ADw-g+AD4-", "+ADw-/g+AD4-");
    const QByteArray open = QByteArray("<g>").repeated(300);
    QByteArray attributes;
    for (int i = 0; i < 257; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";

    row("depth 256", true, levels("<g a='/>'>", "</g>", 255));
    row("depth 257", false, levels("<g a='/>'>", "</g>", 256));
    row("depth behind a comment", false, "<a><!-- <b> ' --><?p '?>" + deep + "</a>");
    row("markup in comments and CDATA", true,
        "<a><!--" + open + "--><![CDATA[" + open + "]]><s>text</s></a>");
    row("siblings", true,
        "<a>" + QByteArray("<g a=\"/>\">x</g>").repeated(2000) + "<s>text</s></a>");
    row("UTF-16", true, QByteArray("\xfe\xff\0<\0s\0>\0t\0e\0x\0t\0<\0/\0s\0>", 24));
    row("depth in UTF-16", false,
        "\xff\xfe" + QByteArray("<\0g\0>\0", 6).repeated(300)
            + QByteArray("<\0/\0g\0>\0", 8).repeated(300));
    row("Latin-1", true, "<?xml version='1.0' encoding='ISO8859_1'?><a b='\xe4'><s>text</s></a>");
    row("depth in UTF-7", false, "<?xml version='1.0' encoding='UTF-7'?>" + utf7);
    row("depth in UTF-7, two encodings named", false,
        "<?xml version='encoding \"UTF-7\" =\"utf-8\"' encoding='utf-8'?>" + utf7);
    row("entity for a name space", true,
        "<!DOCTYPE a PUBLIC '-//X//Y' 'http://x/y.dtd' [<!-- don't --><!ENTITY ns "
        "\"http://x/\">]><a xmlns='&ns;'><s>text</s></a>");
    row("depth in an entity", false, "<!DOCTYPE a [<!ENTITY x '" + deep + "'>]><a>&x;</a>");
    row("entities of entities", false,
        "<!DOCTYPE a [<!ENTITY x 'hahaha'><!ENTITY y '&x;&x;'>]><a>&y;</a>");
    row("one entity too often", false,
        "<!DOCTYPE a [<!ENTITY x '" + QByteArray(4000, 'x') + "'>]><a>"
            + QByteArray("&x;").repeated(50000) + "</a>");
    row("huge document type", false,
        "<!DOCTYPE a [" + QByteArray("<!ENTITY x 'y'>").repeated(1000) + "]><a/>");
    row("attributes", false, "<a" + attributes + "/>");
    row("references in one text", false, "<a>" + QByteArray("&amp;").repeated(100000) + "</a>");
    row("more than 64 MiB", false, "<a>" + QByteArray(64 * 1024 * 1024, ' ') + "</a>");
    row("zero bytes", false, QByteArray("<a>\0</a>", 8));
}

void TestXmlFile::refusesWhatWouldExhaustAReader()
{
    QFETCH(bool, readable);
    QFETCH(QByteArray, xml);
    XmlFile file(write(xml));
    QCOMPARE(file.getElementValue(str("s")), readable ? str("text") : QString());
    QCOMPARE(file.toByteArray().isEmpty(), !readable);
    // The length is the file's to judge, the rest that of the bytes' holder.
    if (xml.size() < 64 * 1024 * 1024)
        QCOMPARE(CusDomDocument(xml).document().isNull(), !readable);
}

QTEST_GUILESS_MAIN(TestXmlFile)
#include "tst_xmlfile.moc"
