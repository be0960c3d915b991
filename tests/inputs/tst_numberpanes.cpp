#include "support/guardedtest.h"
#include "support/markingtranslator.h"
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

#include <tuple>

namespace {

template <typename Part>
Part *part(const QWidget &pane, const char *name)
{
    return pane.findChild<Part *>(QLatin1String(name));
}

using Entry = QPair<bool, int>;

} // namespace

/// AddSubBtnPane, CusCustomInputPane and CusVerRangeInputPane.
class TestNumberPanes : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsInsideItsLimits()
    {
        const char *plus = "pushButton_AddSubAdd";
        const char *minus = "pushButton_AddSubSub";
        using Row = std::tuple<int, int, const char *, int>;
        const QList<Row> rows{Row(5, 1, plus, 6),       Row(5, 3, minus, 2),
                              Row(98, 5, plus, 100),    Row(0, 1, minus, 0),
                              Row(500, 1, plus, 100),   Row(5, INT_MAX, plus, 100),
                              Row(-5, INT_MIN, plus, 0)};
        for (const auto &[start, step, button, value] : rows) {
            AddSubBtnPane pane;
            QCOMPARE(pane.size(), QSize(106, 28));
            QSignalSpy told(&pane, &AddSubBtnPane::signalValueChanged);
            QSignalSpy clicked(&pane, &AddSubBtnPane::signalValBtnClicked);
            auto *number = part<QPushButton>(pane, "pushButton_addSubVal");
            pane.setCurValue(start);
            pane.setAddStep(step);
            QCOMPARE(number->text(), QString::number(start));
            part<QPushButton>(pane, button)->click();
            QCOMPARE(pane.curValue(), value);
            QCOMPARE(number->text(), QString::number(value));
            QCOMPARE(told.count(), value == start ? 0 : 1);
            number->click();
            QCOMPARE(clicked.count(), 1);
        }
    }

    void limitsKeepTheirOrder()
    {
        AddSubBtnPane pane;
        pane.setMaxValue(0);
        pane.setMinValue(100);
        QCOMPARE(pane.maxValue(), 100);
        QCOMPARE(pane.minValue(), 0);
        pane.setMaxValue(1);
        pane.setMinValue(INT_MIN);
        QCOMPARE(pane.maxValue(), 1);
        QCOMPARE(pane.minValue(), INT_MIN);
    }

    void reserveSlotsKeepToOneLimit()
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

    void showsTextByCallback()
    {
        QPointer<AddSubBtnPane> pane = new AddSubBtnPane;
        auto *number = part<QPushButton>(*pane, "pushButton_addSubVal");
        pane->setCurValue(7);
        pane->registerNumToTextCb([&](const int &value) {
            if (value == 7)
                pane->setCurValue(5);
            return QString(value, u'x');
        });
        QCOMPARE(number->text(), QStringLiteral("xxxxx"));
        pane->registerNumToTextCb({});
        QCOMPARE(number->text(), QStringLiteral("5"));
        pane->registerNumToTextCb([&](const int &value) {
            if (value == 6)
                delete pane;
            return QString();
        });
        QTest::mouseClick(part<QWidget>(*pane, "pushButton_AddSubAdd"), Qt::LeftButton);
        QVERIFY(!pane);
    }

    void choosesBetweenAutoAndCustomize()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *pane = new CusCustomInputPane;
        layout->addWidget(pane);
        window.show();
        QApplication::setActiveWindow(&window);
        auto *customize = part<CusRadioButton>(*pane, "radioButton_customize");
        QSignalSpy changed(pane, &CusCustomInputPane::signalAutoCheckChanged);
        QSignalSpy told(pane, &CusCustomInputPane::signalCustomizeInputValChanged);
        QCOMPARE(pane->height(), 30);
        QVERIFY(!pane->getCustomizeSpinBox()->isVisible());
        pane->setCustomizeCurVal(20);
        QCOMPARE(told.takeLast(), (QVariantList{true, 20}));

        QTest::mouseClick(customize, Qt::LeftButton, {}, QPoint(8, customize->height() / 2));
        QCOMPARE(pane->height(), 66);
        QVERIFY(pane->getCustomizeSpinBox()->isVisible());
        QCOMPARE(told.takeLast(), (QVariantList{false, 20}));
        QTest::keyClick(customize, Qt::Key_Left);
        QCOMPARE(pane->height(), 30);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(told.takeLast(), (QVariantList{true, 0}));
        pane->setAutoChecked(false);
        pane->setAutoChecked(false);
        QVERIFY(customize->isChecked() && !pane->getAutoChecked());
        QCOMPARE(changed.count(), 3);
        QVERIFY(told.isEmpty());
    }

    void forcesTheChoiceWithTheRadios()
    {
        QPointer<CusCustomInputPane> pane = new CusCustomInputPane;
        pane->setCustomizeCurVal(4);
        QStringList told;
        connect(pane, &CusCustomInputPane::signalAutoCheckChanged, this,
                [&] { told += QStringLiteral("changed"); });
        connect(pane, &CusCustomInputPane::signalCustomizeInputValChanged, this,
                [&](bool isAuto, int value) {
                    told += QStringLiteral("%1 %2").arg(isAuto).arg(value);
                });
        pane->setRadiosVisible(false);
        QCOMPARE(pane->height(), 30);
        pane->setRadiosVisible(false);
        pane->setRadiosVisible(true);
        QCOMPARE(told.join(QLatin1Char(',')), QStringLiteral("changed,0 4,0 4,changed,1 0"));
        QVERIFY(part<QRadioButton>(*pane, "radioButton_auto")->isChecked());
        connect(pane, &CusCustomInputPane::signalAutoCheckChanged, this, [&] { delete pane; });
        pane->setRadiosVisible(false);
        QVERIFY(!pane);
    }

    void propertiesReachTheirParts()
    {
        const QByteArrayList rows{"customizeMaxVal cusSpinBoxWithUnits maximum",
                                  "customizeMinVal cusSpinBoxWithUnits minimum",
                                  "customizeCurVal cusSpinBoxWithUnits value",
                                  "customizeUnitTxt cusSpinBoxWithUnits unitTxt",
                                  "customizeHolderTxt cusSpinBoxWithUnits placeHolderText",
                                  "autoRadioText radioButton_auto text",
                                  "customizeRadioText radioButton_customize text",
                                  "minLabelText cusLabel_minVal text",
                                  "maxLabelText cusLabel_maxVal text",
                                  "minUnit cusCustomInputPane_minVal customizeUnitTxt",
                                  "maxUnit cusCustomInputPane_maxVal customizeUnitTxt",
                                  "minHolderTxt cusCustomInputPane_minVal customizeHolderTxt",
                                  "maxHolderTxt cusCustomInputPane_maxVal customizeHolderTxt",
                                  "minBtnTipText cusClickTipButton_minTip toolTip",
                                  "maxBtnTipText cusClickTipButton_maxTip toolTip"};
        CusCustomInputPane choice;
        CusVerRangeInputPane range;
        for (const QByteArray &row : rows) {
            const QByteArrayList names = row.split(' ');
            const char *name = names.at(0).constData();
            QWidget &pane = *name == 'm' ? static_cast<QWidget &>(range) : choice;
            QVERIFY(pane.setProperty(name, QStringLiteral("42")));
            QCOMPARE(pane.property(name).toInt(), 42);
            const auto *target = part<QWidget>(pane, names.at(1).constData());
            QCOMPARE(target->property(names.at(2).constData()).toInt(), 42);
        }
    }

    void rangeIsCheckedAsAPair()
    {
        using Row = std::tuple<Entry, Entry, bool>;
        const QList<Row> rows{Row({false, 10}, {false, 10}, true),
                              Row({false, 10}, {true, 5}, true), Row({true, 90}, {false, 10}, true),
                              Row({false, 90}, {false, 10}, false)};
        for (const auto &[low, high, valid] : rows) {
            CusVerRangeInputPane pane;
            pane.setMinValRange(0, 90);
            pane.setCurMinValInfo(low.first, low.second);
            pane.setCurMaxValInfo(high.first, high.second);
            const Entry untouched(true, -1);
            Entry min = untouched;
            Entry max = untouched;
            QCOMPARE(pane.getRangeVal(min.first, min.second, max.first, max.second), valid);
            const Entry lowTaken(low.first, low.first ? 0 : low.second);
            const Entry highTaken(high.first, high.first ? 0 : high.second);
            QCOMPARE(min, valid ? lowTaken : untouched);
            QCOMPARE(max, valid ? highTaken : untouched);
            QCOMPARE(part<QWidget>(pane, "cusCustomInputPane_minVal")->property("Invalid"),
                     QVariant(!valid));
            pane.getMinCurVal(min.first, min.second);
            pane.getMaxCurVal(max.first, max.second);
            QCOMPARE(min, lowTaken);
            QCOMPARE(max, highTaken);
        }
    }

    void invalidRangeShows()
    {
        qApp->setStyleSheet(QStringLiteral(
            "QAbstractSpinBox { border: 2px solid blue }"
            "CusCustomInputPane[Invalid=\"true\"] QAbstractSpinBox { border-color: red }"));
        CusVerRangeInputPane pane;
        pane.setCurMinValInfo(false, 90);
        pane.setCurMaxValInfo(false, 10);
        pane.show();
        const auto halves = pane.findChildren<CusCustomInputPane *>();
        bool isAuto = false;
        int value = 0;
        const QString own = QStringLiteral("Minimum Time should not be greater than Maximum Time.");
        for (const QString &text : {own, QStringLiteral("The stay is too short.")}) {
            if (text != own)
                pane.setInvalidText(text);
            QVERIFY(!pane.getRangeVal(isAuto, value, isAuto, value));
            for (CusCustomInputPane *half : halves) {
                const auto tips = half->getCustomizeSpinBox()->findChildren<AngleTiPWidget *>();
                QCOMPARE(tips.constLast()->findChild<QLabel *>()->text(), text);
                QVERIFY(TestKit::countOf(TestKit::renderAt(half), Qt::red) > 100);
            }
        }
        // The client's own way back.
        for (CusCustomInputPane *half : halves)
            half->setProperty("Invalid", false);
        QCOMPARE(TestKit::countOf(TestKit::renderAt(&pane), Qt::red), 0);
        qApp->setStyleSheet(QString());
    }

    void rangeTellsItsHalves()
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

    void followsTheLanguage()
    {
        CusVerRangeInputPane pane;
        pane.setMaxLabelText(QStringLiteral("Longest stay"));
        pane.setMaxRadiaoBtnTxt(QStringLiteral("None"), QStringLiteral("Customize"));
        MarkingTranslator marker;
        QCoreApplication::installTranslator(&marker);
        pane.resetWidgetUiLanguage();
        QCOMPARE(pane.getMinLabelText(), QStringLiteral("CusVerRangeInputPane/Min Val"));
        QCOMPARE(pane.getMaxLabelText(), QStringLiteral("Longest stay"));
        const auto *high = part<CusCustomInputPane>(pane, "cusCustomInputPane_maxVal");
        QCOMPARE(high->getAutoRadioText(), QStringLiteral("None"));
        QCOMPARE(high->getCustomizeRadioText(), QStringLiteral("CusCustomInputPane/Customize"));
    }

    void takesOddSizes()
    {
        CusVerRangeInputPane pane;
        auto *half = part<CusCustomInputPane>(pane, "cusCustomInputPane_minVal");
        for (const int size : {-1, 7, INT_MAX}) {
            const int taken = qBound(0, size, QWIDGETSIZE_MAX);
            pane.setMainItemSpacing(size);
            pane.setSubItemSpacing(size);
            half->setRadioLayoutSpacing(size);
            half->setAutoRadioSize(QSize(size, size));
            QCOMPARE(pane.getMainItemSpacing(), taken);
            QCOMPARE(pane.getSubItemSpacing(), taken);
            QCOMPARE(part<QWidget>(*half, "radioButton_auto")->maximumWidth(), taken);
        }
    }
};

QTEST_MAIN(TestNumberPanes)

#include "tst_numberpanes.moc"
