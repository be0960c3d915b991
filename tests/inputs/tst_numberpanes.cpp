#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/AddSubBtnPane>
#include <Vellum/AngleTiPWidget>
#include <Vellum/CusCustomInputPane>
#include <Vellum/CusEllipsisLabel>
#include <Vellum/CusRadioButton>
#include <Vellum/CusSpinBoxWithUnits>
#include <Vellum/CusVerRangeInputPane>

#include <QtTest>
#include <QtWidgets>

/// AddSubBtnPane, CusCustomInputPane and CusVerRangeInputPane.
class TestNumberPanes : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsInsideItsLimits_data();
    void stepsInsideItsLimits();
    void limitsKeepTheirOrder();
    void reserveSlotsKeepToOneLimit();
    void showsTextByCallback();
    void choosesBetweenAutoAndCustomize();
    void forcesTheChoiceWithTheRadios();
    void propertiesReachTheirParts_data();
    void propertiesReachTheirParts();
    void rangeIsCheckedAsAPair_data();
    void rangeIsCheckedAsAPair();
    void invalidRangeShows();
    void rangeTellsItsHalves();
    void followsTheLanguage();
    void takesOddSizes();
};

namespace {

class Marker : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(source);
    }
    bool isEmpty() const override { return false; }
};

template <typename Part>
Part *part(const QWidget &pane, const char *name)
{
    return pane.findChild<Part *>(QLatin1String(name));
}

} // namespace

void TestNumberPanes::stepsInsideItsLimits_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("plus");
    QTest::addColumn<int>("value");
    QTest::newRow("plus") << 5 << 1 << true << 6;
    QTest::newRow("minus") << 5 << 3 << false << 2;
    QTest::newRow("plus to the limit") << 98 << 5 << true << 100;
    QTest::newRow("minus to the limit") << 2 << 5 << false << 0;
    QTest::newRow("plus at the limit") << 100 << 1 << true << 100;
    QTest::newRow("plus from beyond") << 500 << 1 << true << 100;
    QTest::newRow("minus from beyond") << 500 << 1 << false << 100;
    QTest::newRow("huge step") << 5 << INT_MAX << true << 100;
    QTest::newRow("huge negative step") << -5 << INT_MIN << true << 0;
}

void TestNumberPanes::stepsInsideItsLimits()
{
    QFETCH(int, start);
    QFETCH(int, step);
    QFETCH(bool, plus);
    AddSubBtnPane pane;
    QSignalSpy told(&pane, &AddSubBtnPane::signalValueChanged);
    auto *number = part<QPushButton>(pane, "pushButton_addSubVal");
    pane.setCurValue(start);
    QCOMPARE(number->text(), QString::number(start));
    QVERIFY(told.isEmpty());
    pane.setAddStep(step);
    QTest::mouseClick(
        part<QPushButton>(pane, plus ? "pushButton_AddSubAdd" : "pushButton_AddSubSub"),
        Qt::LeftButton);
    QTEST(pane.curValue(), "value");
    QCOMPARE(number->text(), QString::number(pane.curValue()));
    QCOMPARE(told.count(), pane.curValue() == start ? 0 : 1);
    QSignalSpy clicked(&pane, &AddSubBtnPane::signalValBtnClicked);
    QTest::mouseClick(number, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void TestNumberPanes::limitsKeepTheirOrder()
{
    AddSubBtnPane pane;
    QCOMPARE(pane.size(), QSize(106, 28));
    pane.setCurValue(500);
    pane.setMaxValue(0);
    pane.setMinValue(100);
    QCOMPARE(pane.maxValue(), 100);
    QCOMPARE(pane.minValue(), 0);
    pane.setMaxValue(1);
    pane.setMinValue(INT_MIN);
    QCOMPARE(pane.maxValue(), 1);
    QCOMPARE(pane.minValue(), INT_MIN);
    QCOMPARE(pane.curValue(), 500);
    const QString text = QStringLiteral("x");
    pane.setBtnObjName(text, text, text);
    pane.setToolTip(text, text, text);
    QVERIFY(part<QPushButton>(pane, "pushButton_AddSubAdd")->toolTip().isEmpty());
    pane.setToolTip(text);
    QCOMPARE(pane.toolTip(), text);
}

void TestNumberPanes::reserveSlotsKeepToOneLimit()
{
    AddSubBtnPane pane;
    QSignalSpy told(&pane, &AddSubBtnPane::signalValueChanged);
    const auto call = [&](int start, const char *slot) {
        pane.setCurValue(start);
        QMetaObject::invokeMethod(&pane, slot, Q_ARG(bool, false));
        return pane.curValue();
    };
    QCOMPARE(call(-50, "onBtnAddClicked"), -49);
    QCOMPARE(call(100, "onBtnAddClicked"), 100);
    QCOMPARE(call(500, "onBtnSubClicked"), 499);
    QCOMPARE(call(0, "onBtnSubClicked"), 0);
    QCOMPARE(told.count(), 4);
    pane.setAddStep(INT_MIN);
    QCOMPARE(call(-5, "onBtnAddClicked"), INT_MIN);
}

void TestNumberPanes::showsTextByCallback()
{
    QPointer<AddSubBtnPane> pane = new AddSubBtnPane;
    auto *number = part<QPushButton>(*pane, "pushButton_addSubVal");
    pane->registerNumToTextCb([](const int &value) { return QStringLiteral("x%1").arg(value); });
    QCOMPARE(number->text(), QStringLiteral("x0"));
    pane->setCurValue(7);
    QCOMPARE(number->text(), QStringLiteral("x7"));
    pane->registerNumToTextCb({});
    QCOMPARE(number->text(), QStringLiteral("7"));
    pane->registerNumToTextCb([&](const int &value) {
        if (value == 8)
            delete pane;
        return QString();
    });
    auto *plus = part<QPushButton>(*pane, "pushButton_AddSubAdd");
    QTest::mouseClick(plus, Qt::LeftButton);
    QVERIFY(!pane);
}

void TestNumberPanes::choosesBetweenAutoAndCustomize()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *pane = new CusCustomInputPane;
    layout->addWidget(pane);
    window.show();
    QApplication::setActiveWindow(&window);
    auto *box = pane->getCustomizeSpinBox();
    auto *customize = part<CusRadioButton>(*pane, "radioButton_customize");
    QSignalSpy changed(pane, &CusCustomInputPane::signalAutoCheckChanged);
    QSignalSpy told(pane, &CusCustomInputPane::signalCustomizeInputValChanged);
    QCOMPARE(pane->height(), 30);
    QVERIFY(!box->isVisible());

    pane->setCustomizeCurVal(20);
    QCOMPARE(told.takeLast(), (QVariantList{true, 20}));
    QTest::mouseClick(customize, Qt::LeftButton, {}, QPoint(8, customize->height() / 2));
    QCOMPARE(pane->height(), 66);
    QVERIFY(box->isVisible());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(told.takeLast(), (QVariantList{false, 20}));
    QTest::keyClick(customize, Qt::Key_Left);
    QCOMPARE(pane->height(), 30);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(told.takeLast(), (QVariantList{true, 0}));

    for (int i = 0; i < 2; ++i) {
        pane->setAutoChecked(false);
        QVERIFY(customize->isChecked());
        QVERIFY(!pane->getAutoChecked());
        QCOMPARE(changed.count(), 3);
    }
    QVERIFY(told.isEmpty());
}

void TestNumberPanes::forcesTheChoiceWithTheRadios()
{
    CusCustomInputPane pane;
    pane.setCustomizeCurVal(4);
    QStringList told;
    connect(&pane, &CusCustomInputPane::signalAutoCheckChanged, this,
            [&] { told += QStringLiteral("changed"); });
    connect(&pane, &CusCustomInputPane::signalCustomizeInputValChanged, this,
            [&](bool isAuto, int value) {
                told += (isAuto ? QLatin1Char('a') : QLatin1Char('c')) + QString::number(value);
            });
    const auto order = [&](bool visible) {
        told.clear();
        pane.setRadiosVisible(visible);
        return told.join(QLatin1Char(' '));
    };
    QCOMPARE(order(false), QStringLiteral("changed c4"));
    QCOMPARE(pane.height(), 30);
    QVERIFY(!pane.getAutoChecked());
    QCOMPARE(order(false), QStringLiteral("c4"));
    QCOMPARE(order(true), QStringLiteral("changed a0"));
    QVERIFY(part<QRadioButton>(pane, "radioButton_auto")->isChecked());
    pane.setRadiosVisible(false);
    pane.setAutoChecked(true);
    QCOMPARE(pane.height(), 0);
    QPointer<CusCustomInputPane> doomed = new CusCustomInputPane;
    connect(doomed, &CusCustomInputPane::signalAutoCheckChanged, doomed, [&] { delete doomed; });
    doomed->setRadiosVisible(false);
    QVERIFY(!doomed);
}

void TestNumberPanes::propertiesReachTheirParts_data()
{
    QTest::addColumn<bool>("range");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("child");
    QTest::addColumn<QByteArray>("childProperty");
    const auto row = [](bool range, const char *name, const char *child, const char *childName) {
        QTest::newRow(name) << range << QByteArray(name) << QByteArray(child)
                            << QByteArray(childName);
    };
    const char *box = "cusSpinBoxWithUnits";
    row(false, "customizeMaxVal", box, "maximum");
    row(false, "customizeMinVal", box, "minimum");
    row(false, "customizeCurVal", box, "value");
    row(false, "customizeUnitTxt", box, "unitTxt");
    row(false, "customizeHolderTxt", box, "placeHolderText");
    row(false, "autoRadioText", "radioButton_auto", "text");
    row(false, "customizeRadioText", "radioButton_customize", "text");
    row(true, "minLabelText", "cusLabel_minVal", "text");
    row(true, "maxLabelText", "cusLabel_maxVal", "text");
    row(true, "minUnit", "cusCustomInputPane_minVal", "customizeUnitTxt");
    row(true, "maxUnit", "cusCustomInputPane_maxVal", "customizeUnitTxt");
    row(true, "minHolderTxt", "cusCustomInputPane_minVal", "customizeHolderTxt");
    row(true, "maxHolderTxt", "cusCustomInputPane_maxVal", "customizeHolderTxt");
    row(true, "minBtnTipText", "cusClickTipButton_minTip", "toolTip");
    row(true, "maxBtnTipText", "cusClickTipButton_maxTip", "toolTip");
}

void TestNumberPanes::propertiesReachTheirParts()
{
    QFETCH(bool, range);
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, child);
    QFETCH(QByteArray, childProperty);
    const QScopedPointer<QWidget> pane(range ? static_cast<QWidget *>(new CusVerRangeInputPane)
                                             : new CusCustomInputPane);
    const QVariant value(QStringLiteral("42"));
    QVERIFY(pane->setProperty(property.constData(), value));
    QCOMPARE(pane->property(property.constData()).toString(), value.toString());
    auto *target = part<QWidget>(*pane, child.constData());
    QCOMPARE(target->property(childProperty.constData()).toString(), value.toString());
}

void TestNumberPanes::rangeIsCheckedAsAPair_data()
{
    QTest::addColumn<QPair<bool, int>>("low");
    QTest::addColumn<QPair<bool, int>>("high");
    QTest::addColumn<bool>("valid");
    using Entry = QPair<bool, int>;
    QTest::newRow("in order") << Entry(false, 10) << Entry(false, 90) << true;
    QTest::newRow("equal") << Entry(false, 10) << Entry(false, 10) << true;
    QTest::newRow("maximum on Auto") << Entry(false, 10) << Entry(true, 5) << true;
    QTest::newRow("minimum on Auto") << Entry(true, 90) << Entry(false, 10) << true;
    QTest::newRow("minimum above maximum") << Entry(false, 90) << Entry(false, 10) << false;
}

void TestNumberPanes::rangeIsCheckedAsAPair()
{
    using Entry = QPair<bool, int>;
    QFETCH(Entry, low);
    QFETCH(Entry, high);
    CusVerRangeInputPane pane;
    pane.setMinValRange(0, 90);
    pane.setMaxValRange(0, 90);
    pane.setCurMinValInfo(low.first, low.second);
    pane.setCurMaxValInfo(high.first, high.second);
    bool minAuto = true;
    bool maxAuto = true;
    int minVal = -1;
    int maxVal = -1;
    QTEST(pane.getRangeVal(minAuto, minVal, maxAuto, maxVal), "valid");
    QFETCH(bool, valid);
    QCOMPARE(minVal, valid ? (low.first ? 0 : low.second) : -1);
    QCOMPARE(maxVal, valid ? (high.first ? 0 : high.second) : -1);
    QCOMPARE(minAuto, valid ? low.first : true);
    QCOMPARE(maxAuto, valid ? high.first : true);
    const auto *minPane = part<QWidget>(pane, "cusCustomInputPane_minVal");
    QCOMPARE(minPane->property("Invalid"), QVariant(!valid));
    pane.getMinCurVal(minAuto, minVal);
    pane.getMaxCurVal(maxAuto, maxVal);
    QCOMPARE(minVal, low.first ? 0 : low.second);
    QCOMPARE(maxVal, high.first ? 0 : high.second);
}

void TestNumberPanes::invalidRangeShows()
{
    qApp->setStyleSheet(QStringLiteral("QAbstractSpinBox { border: 2px solid blue }"
                                       "QAbstractSpinBox[Invalid=\"true\"] { border-color: red }"));
    CusVerRangeInputPane pane;
    pane.setCurMinValInfo(false, 90);
    pane.setCurMaxValInfo(false, 10);
    pane.show();
    const auto boxes = pane.findChildren<CusSpinBoxWithUnits *>();
    QCOMPARE(boxes.size(), 2);
    bool isAuto = false;
    int value = 0;
    const QString texts[] = {
        QStringLiteral("Minimum Time should not be greater than Maximum Time."),
        QStringLiteral("The stay is too short.")};
    for (const QString &text : texts) {
        QVERIFY(!pane.getRangeVal(isAuto, value, isAuto, value));
        for (CusSpinBoxWithUnits *box : boxes) {
            const auto *tip = box->findChildren<AngleTiPWidget *>().constLast();
            QCOMPARE(tip->findChild<QLabel *>()->text(), text);
            QVERIFY(TestKit::countOf(TestKit::renderAt(box), Qt::red) > 100);
        }
        pane.setInvalidText(texts[1]);
    }
    // The client's own way back.
    const auto halves = pane.findChildren<CusCustomInputPane *>();
    for (CusCustomInputPane *half : halves)
        half->setProperty("Invalid", false);
    QCOMPARE(TestKit::countOf(TestKit::renderAt(&pane), Qt::red), 0);
    qApp->setStyleSheet(QString());
}

void TestNumberPanes::rangeTellsItsHalves()
{
    CusVerRangeInputPane pane;
    pane.setMaxValRange(0, 600);
    QSignalSpy told(&pane, &CusVerRangeInputPane::signalInputValChanged);
    part<CusCustomInputPane>(pane, "cusCustomInputPane_minVal")->setRadiosVisible(false);
    pane.setCurMaxValInfo(false, 500);
    QCOMPARE(told.count(), 2);
    QCOMPARE(told.at(0), (QVariantList{true, false, 0}));
    QCOMPARE(told.at(1), (QVariantList{false, false, 500}));
    pane.resize(200, 180);
    pane.show();
    QCOMPARE(part<CusEllipsisLabel>(pane, "cusLabel_minVal")->maxWidth(), pane.width() - 30);
}

void TestNumberPanes::followsTheLanguage()
{
    CusVerRangeInputPane pane;
    pane.setMaxLabelText(QStringLiteral("Longest stay"));
    pane.setMinRadiaoBtnTxt(QStringLiteral("None"), QStringLiteral("Limit"));
    pane.setMaxRadiaoBtnTxt(QStringLiteral("None"), QStringLiteral("Customize"));
    Marker marker;
    QCoreApplication::installTranslator(&marker);
    pane.resetWidgetUiLanguage();
    QCOMPARE(pane.getMinLabelText(), QStringLiteral("CusVerRangeInputPane/Min Val"));
    QCOMPARE(pane.getMaxLabelText(), QStringLiteral("Longest stay"));
    auto *high = part<CusCustomInputPane>(pane, "cusCustomInputPane_maxVal");
    QCOMPARE(high->getAutoRadioText(), QStringLiteral("None"));
    QCOMPARE(high->getCustomizeRadioText(), QStringLiteral("CusCustomInputPane/Customize"));
    QCOMPARE(CusCustomInputPane().getAutoRadioText(), QStringLiteral("CusCustomInputPane/Auto"));
}

void TestNumberPanes::takesOddSizes()
{
    CusVerRangeInputPane pane;
    pane.show();
    for (const int size : {-1, 0, 7, INT_MAX, INT_MIN}) {
        pane.setMainItemSpacing(size);
        pane.setSubItemSpacing(size);
        auto *half = part<CusCustomInputPane>(pane, "cusCustomInputPane_minVal");
        half->setRadioLayoutSpacing(size);
        half->setAutoRadioSize(QSize(size, size));
        QCOMPARE(pane.getMainItemSpacing(), qBound(0, size, QWIDGETSIZE_MAX));
        QCOMPARE(pane.getSubItemSpacing(), pane.getMainItemSpacing());
        QCOMPARE(part<QWidget>(*half, "radioButton_auto")->maximumWidth(),
                 pane.getMainItemSpacing());
    }
    pane.setMainItemSpacing(0);
    pane.resize(0, 0);
    pane.setMinValRange(10, -10);
    pane.setCurMinValInfo(false, INT_MIN);
    bool isAuto = true;
    int value = 0;
    pane.getMinCurVal(isAuto, value);
    QCOMPARE(value, 10);
}

QTEST_MAIN(TestNumberPanes)

#include "tst_numberpanes.moc"
