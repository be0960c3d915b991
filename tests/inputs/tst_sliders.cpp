#include "support/guardedtest.h"
#include "support/render.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusDoubleSlider>
#include <Vellum/CusSlider>
#include <Vellum/CusTickTwoSideSlider>
#include <Vellum/CusTwoSideSegSlider>

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();
const QString kGroove = QStringLiteral("QSlider::groove { height: 4px; background: white }"
                                       "QSlider::handle { width: 10px; margin: -3px 0px }");

using Limits = std::pair<int, int>;

void press(QWidget *widget, int x, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(widget, button, {}, QPoint(x, widget->height() / 2));
}

void release(QWidget *widget)
{
    QTest::mouseRelease(widget, Qt::LeftButton);
}

/// QTest::mouseMove() only moves the cursor, which a widget that isn't shown never learns.
void dragTo(QWidget *widget, int x)
{
    QMouseEvent move(QEvent::MouseMove, QPoint(x, 10), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &move);
}

void enter(QWidget *widget)
{
    const QPointF pos(1, 1);
    QEnterEvent event(pos, pos, pos);
    QApplication::sendEvent(widget, &event);
}

QRect extent(QWidget &widget, const QColor &color)
{
    return TestKit::extentOf(TestKit::renderAt(&widget), color);
}

class Probe : public CusSlider
{
public:
    using CusSlider::CusSlider;
    using CusSlider::repeatAction;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

/// A slider with room above it.
struct Stage
{
    Stage()
        : slider(new Probe(&window))
    {
        window.resize(300, 200);
        slider->setGeometry(40, 100, 210, 20);
        slider->setMaximum(100);
        slider->setLabelTextPos(CusSlider::TEXT_POS_LEFT);
        label = slider->findChild<QLabel *>();
        window.show();
    }

    QWidget window;
    Probe *slider;
    QPointer<QLabel> label;
};

} // namespace

class TestSliders : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // There is no colour file here, which is told once.
        CusColorConfig::instance()->setConfig(
            {{QStringLiteral("highlightColor"), QStringLiteral("#00ff00")}});
    }

    void clickSetsTheValueFromX()
    {
        const auto clicked = [](const QSize &size, const Limits &range, int x,
                                bool mirrored = false) {
            const bool vertical = size.height() > size.width();
            Probe slider(vertical ? Qt::Vertical : Qt::Horizontal);
            slider.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            slider.resize(size);
            slider.setPageStep(0); // as if the base did nothing
            slider.setRange(range.first, range.second);
            slider.setValue(7);
            press(&slider, x);
            // Else the base would page on from here while the button is held.
            return slider.repeatAction() == QAbstractSlider::SliderNoAction ? slider.value() : -1;
        };
        const QSize wide(110, 20);
        QCOMPARE(clicked(wide, {0, 10}, 59), 5);
        QCOMPARE(clicked(wide, {0, 10}, 59, true), 5);
        QCOMPARE(clicked(wide, {0, 100}, 100), 100);
        QCOMPARE(clicked(wide, {0, 100}, 109), 100);
        QCOMPARE(clicked(wide, {0, 100}, 109, true), 0);
        QCOMPARE(clicked(wide, {-50, 50}, 25), -25);
        QCOMPARE(clicked(wide, {kIntMin, kIntMax}, 100), kIntMax);
        QCOMPARE(clicked({20, 110}, {0, 100}, 5), 50); // vertical, by x too
        QCOMPARE(clicked({8, 20}, {0, 100}, 5), 0);
        QCOMPARE(clicked({10, 20}, {0, 100}, 0), 7); // no way that could be divided
    }

    void setValueIsDroppedDuringAPressOnly()
    {
        Stage stage;
        CusSlider &slider = *stage.slider;
        const auto accepts = [&slider](int value) {
            slider.setValue(value);
            return slider.value() == value;
        };
        press(&slider, 100);
        QVERIFY(!accepts(5));
        release(&slider);
        QCOMPARE(slider.value(), 50);
        QVERIFY(accepts(5));
        press(&slider, 150, Qt::RightButton);
        QVERIFY(accepts(6));
        // A release that never comes.
        press(&slider, 100);
        slider.hide();
        QVERIFY(accepts(7));
        slider.show();
        press(&slider, 100);
        slider.setEnabled(false);
        QVERIFY(accepts(8));
    }

    void dragStopsOutsideTheValidRange()
    {
        for (const bool checked : {false, true}) {
            Stage stage;
            stage.slider->setValidMax(70);
            stage.slider->setCheckValidRange(checked);
            stage.slider->setValue(80);
            press(stage.slider, stage.slider->handle().center().x());
            const int pressed = stage.slider->value();
            QVERIFY(pressed > 70);
            dragTo(stage.slider, 40);
            QVERIFY(checked ? stage.slider->value() == pressed : stage.slider->value() < 30);
        }
    }

    void textStandsByItsPlace()
    {
        Stage stage;
        Probe *slider = stage.slider;
        slider->registerValueToTextCb([](int v) { return QStringLiteral("<%1>").arg(v); });
        slider->setValue(50);
        slider->enableLabelIsChild(false);
        QCOMPARE(stage.label->text(), QStringLiteral("<50>"));
        const QRect text = slider->fontMetrics().boundingRect(QStringLiteral("<50>"));
        const int above = slider->y() - slider->handle().height() / 2 - text.height();
        QCOMPARE(stage.label->pos(), QPoint(slider->x(), above));
        slider->setOffsetY(3);
        slider->setLabelTextPos(CusSlider::TEXT_POS_RIGHT);
        QCOMPARE(stage.label->pos(),
                 QPoint(slider->geometry().right() + 1 - text.width(), above + 3));
        for (int offset : {kIntMin, kIntMax})
            slider->setOffsetY(offset);
        slider->setLabelTextPos(CusSlider::TEXT_POS_ON_HANDLE);
        slider->setValue(20);
        const QPoint middle = slider->handle().center() + slider->pos();
        QVERIFY(qAbs(stage.label->geometry().center().x() - middle.x()) <= 1);
        QVERIFY(qAbs(stage.label->y() + 21 - middle.y()) <= 1);
        slider->enableLabelIsChild(true);
        QCOMPARE(stage.label->parentWidget(), slider);
        QCOMPARE(stage.label->y(), 0); // as a child it stays inside
        slider->setLabelTextPos(CusSlider::TEXT_POS_NONE);
        QVERIFY(!stage.label->isVisible());
        enter(slider);
        QVERIFY(stage.label->text().isEmpty());
    }

    void textFollowsTheMouse()
    {
        Stage stage;
        CusSlider *slider = stage.slider;
        slider->move(0, 100);
        slider->setMaximum(1000);
        slider->enableLabelIsChild(true);
        QCursor::setPos(slider->mapToGlobal(QPoint(105, 10)));
        slider->setLabelTextPos(CusSlider::TEXT_POS_FOLLOW_MOUSE);
        QVector<int> asked;
        slider->registerValueToTextCb([&asked](int value) {
            asked.append(value);
            return QStringLiteral("%1 km/h").arg(value);
        });
        QCOMPARE(asked.mid(0, 2), (QVector<int>{0, 500})); // the value, then the cursor's
        const int half = slider->fontMetrics().boundingRect(QStringLiteral("0 km/h")).width() / 2;
        QCOMPARE(stage.label->x(), 105 - half);
        // Where the cursor's text would not fit, it is moved left by the excess.
        QCursor::setPos(slider->mapToGlobal(QPoint(209, 10)));
        dragTo(slider, 209);
        const auto metrics = stage.label->fontMetrics();
        QCOMPARE(stage.label->x(), 210 - metrics.horizontalAdvance(QStringLiteral("995 km/h")));
        QCursor::setPos(slider->mapToGlobal(QPoint(105, -50)));
        slider->setValue(30);
        QCOMPARE(stage.label->pos(), QPoint(0, 0));
    }

    void labelLooksForRoomAboveTheHandle()
    {
        QWidget window, elsewhere;
        auto *box = new QWidget(&window);
        auto *slider = new CusSlider(box);
        box->setGeometry(0, 100, 300, 30);
        slider->setGeometry(40, 5, 210, 20);
        slider->setLabelTextPos(CusSlider::TEXT_POS_ON_HANDLE);
        auto *label = slider->findChild<QLabel *>();
        window.show();
        TestKit::renderAt(&window);
        QCOMPARE(label->parentWidget(), &window);
        QVERIFY(label->isVisible());
        QVERIFY(label->geometry().center().y() < 115);
        // It goes along into another window.
        slider->setParent(&elsewhere);
        slider->setGeometry(40, 50, 210, 20);
        elsewhere.show();
        slider->show();
        TestKit::renderAt(&elsewhere);
        QCOMPARE(label->window(), &elsewhere);
    }

    void labelComesAndGoes()
    {
        Stage stage;
        CusSlider *slider = stage.slider;
        slider->hide();
        QVERIFY(!stage.label->isVisible());
        slider->show();
        QVERIFY(stage.label->isVisible());
        slider->setAllwaysShowText(false);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(slider, &leave);
        QVERIFY(!stage.label->isVisible());
        slider->setAllwaysShowText(true);
        enter(slider);
        QVERIFY(stage.label->isVisible());
        QCOMPARE(slider->cursor().shape(), Qt::PointingHandCursor);
        for (int size : {17, 0, kIntMin})
            slider->setTextLabelFontSize(size);
        QCOMPARE(stage.label->font().pixelSize(), 17);

        // The label dies with whichever of its parent and the slider goes first.
        auto *other = new QWidget(&stage.window);
        for (QWidget *parent : {other, static_cast<QWidget *>(nullptr)})
            slider->setLabelParentWidget(parent);
        QCOMPARE(stage.label->parentWidget(), other);
        delete other;
        QVERIFY(!stage.label);
        slider->setValue(3);
        slider->setLabelParentWidget(&stage.window);
        stage.label = stage.window.findChild<QLabel *>();
        slider->setLabelParentWidget(stage.label);
        QCOMPARE(stage.label->parentWidget(), &stage.window);
        delete slider;
        QVERIFY(!stage.label);
    }

    void tickMarksItsValue()
    {
        CusSlider slider;
        slider.resize(111, 40);
        const auto tick = [&slider](int value) {
            slider.setTickMark(value);
            return extent(slider, Qt::green);
        };
        QCOMPARE(tick(60).left(), 64);
        QCOMPARE(tick(60).width(), 2);
        QCOMPARE(tick(60).top(), 0);
        QVERIFY(qAbs(tick(60).bottom() - 14) <= 1);
        slider.setValue(60);
        for (int hidden : {60, kIntMin, kIntMax, -1000})
            QCOMPARE(tick(hidden), QRect());
        slider.setRange(kIntMin, kIntMax);
        QVERIFY(qAbs(tick(5).center().x() - 55) <= 1);
        slider.setRange(3, 3);
        QCOMPARE(tick(5), QRect());
    }

    void handleShowsTheImagesOfItsState()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">"
                   "<rect width=\"8\" height=\"8\" fill=\"#ff0000\"/></svg>");
        file.close();
        const QString handle =
            QStringLiteral("CusSvgPushButton#btn_sliderHandle { background: transparent;"
                           " border: none; qproperty-svgBorderImage: url(%1);"
                           " qproperty-svgHoverColor: #00ff00; qproperty-svgPressedColor: #ffff00;"
                           " qproperty-svgDisableColor: #00ffff }")
                .arg(file.fileName());
        const QString slider =
            QStringLiteral("CusSlider { qproperty-textPos: TEXT_POS_NONE; background: #ffffff }"
                           "CusSlider::groove { height: 4px; background: #000000 }"
                           "CusSlider::handle { width: 16px; margin: -6px 0px }"
                           "CusSlider::sub-page { background: #0000ff }");
        qApp->setStyleSheet(handle + slider);
        Stage stage;
        stage.slider->ensurePolished();
        QCOMPARE(stage.slider->sliderTextPos(), CusSlider::TEXT_POS_NONE);
        stage.slider->setValue(100);
        enter(stage.slider);
        const QRect place(194, 2, 16, 16);
        const auto underCursorAt = [&stage](int x) {
            QCursor::setPos(stage.slider->mapToGlobal(QPoint(x, 10)));
        };
        underCursorAt(20);
        QVERIFY(stage.slider->isMouseHover());
        QCOMPARE(extent(*stage.slider, Qt::red), place);
        // The ground that clears the style's handle spares the filled part.
        QCOMPARE(extent(*stage.slider, Qt::blue), QRect(0, 8, 194, 4));
        underCursorAt(200);
        QCOMPARE(extent(*stage.slider, Qt::green), place);
        press(stage.slider, 200);
        QCOMPARE(extent(*stage.slider, Qt::yellow), place);
        release(stage.slider);
        stage.slider->setEnabled(false);
        QCOMPARE(extent(*stage.slider, Qt::cyan), place);

        qApp->setStyleSheet(QString());
    }

    void doublesFollowTheirLimits()
    {
        using S = CusDoubleSlider;
        const auto setNothing = [](S &s) {
            for (double bad : {kNan, kInfinite, -kInfinite}) {
                for (auto setter : {&S::setDoubleMinimum, &S::setDoubleMaximum, &S::setValueStep})
                    (s.*setter)(bad);
                s.setDoubleValueRange(bad, 5);
                s.setDoubleValueRange(5, bad);
            }
            s.setDoubleVal(kNan);
        };
        const auto turnOver = [](S &s) {
            s.setDoubleMinimum(10);
            s.setDoubleMaximum(5);
            s.setDoubleVal(7);
        };
        const struct // each begins with 0 to 100 by 0.01 at 20
        {
            const char *name;
            std::function<void(S &)> change;
            Limits range;
            double value;
        } rows[] = {
            {"limits count steps", [](S &s) { s.setDoubleMinimum(0.5); }, {50, 10000}, 20},
            {"limits round up", [](S &s) { s.setDoubleMaximum(30.001); }, {0, 3001}, 20},
            {"minimum moves the value", [](S &s) { s.setDoubleMinimum(30); }, {3000, 10000}, 30},
            {"no negative minimum", [](S &s) { s.setDoubleMinimum(-1); }, {0, 10000}, 20},
            {"both limits", [](S &s) { s.setDoubleValueRange(1, 2); }, {100, 200}, 2},
            {"step keeps the value", [](S &s) { s.setValueStep(0.5); }, {0, 200}, 20},
            {"step as large as the range", [](S &s) { s.setValueStep(100); }, {0, 10000}, 20},
            {"step too small", [](S &s) { s.setValueStep(1e-300); }, {0, kIntMax}, 20},
            {"huge maximum", [](S &s) { s.setDoubleMaximum(1e300); }, {0, kIntMax}, 20},
            {"maximum below minimum", turnOver, {1000, 1000}, 5},
            {"value is kept within", [](S &s) { s.setDoubleVal(kInfinite); }, {0, 10000}, 100},
            {"no numbers", setNothing, {0, 10000}, 20},
        };
        for (const auto &row : rows) {
            CusDoubleSlider slider;
            QSignalSpy changes(&slider, &CusDoubleSlider::signalValueChanged);
            slider.setDoubleVal(20);
            QCOMPARE(slider.value(), 2000);
            row.change(slider);
            QVERIFY2(Limits(slider.minimum(), slider.maximum()) == row.range, row.name);
            QVERIFY2(slider.getDoubleVal() == row.value, row.name);
            QVERIFY2(changes.isEmpty() || row.value != 20, row.name);
        }
    }

    void doubleIsSetByPressAndDrag()
    {
        CusDoubleSlider slider;
        slider.resize(200, 20);
        slider.setPageStep(1000);
        QSignalSpy changes(&slider, &CusDoubleSlider::signalValueChanged);
        QSignalSpy releases(&slider, &CusDoubleSlider::signalMouseReleased);
        // The second press is one page on, which the base must not take from the signal.
        for (int x : {50, 70}) {
            press(&slider, x);
            QCOMPARE(changes.count(), 1);
            QCOMPARE(changes.takeFirst().at(0).toDouble(), x / 2.0);
            release(&slider);
            QCOMPARE(releases.takeFirst().at(0).toDouble(), x / 2.0);
        }
        press(&slider, 160, Qt::RightButton);
        press(&slider, 72); // on the handle
        QVERIFY(changes.isEmpty());
        dragTo(&slider, 100);
        QCOMPARE(changes.count(), 2);
        slider.setTracking(false);
        dragTo(&slider, 150);
        QCOMPARE(changes.count(), 3);
        QVERIFY(slider.getDoubleVal() > 70);
    }

    void doublePaintsItsText()
    {
        CusDoubleSlider slider;
        slider.resize(200, 20);
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::red);
        slider.setPalette(palette);
        slider.setDoubleVal(12.34);
        const auto texts = [&slider] {
            return TestKit::drawnTexts([&](QPaintDevice *to) { slider.render(to); }, Qt::red);
        };
        QCOMPARE(texts(), QStringList{QStringLiteral("12.3")});
        slider.registerValToTextCb([](double v) { return QStringLiteral("x%1").arg(v); });
        QCOMPARE(texts(), QStringList{QStringLiteral("x12.34")});
        slider.setAllwaysShowText(false);
        QCOMPARE(texts(), QStringList());
        QVERIFY(slider.findChild<QLabel *>(QStringLiteral("label_sliderText"))->isHidden());
    }

    void segmentsSnap()
    {
        CusTwoSideSegSlider slider;
        const auto valuesAfter = [&slider](const QVector<int> &values) {
            QVector<int> shown;
            for (int value : values) {
                slider.setValue(50);
                slider.setValue(value);
                shown.append(slider.value());
            }
            return shown;
        };
        // Until a number of segments was set, each is one value wide.
        QCOMPARE(valuesAfter({50, 80, 3}), (QVector<int>{50, 51, 49}));
        slider.setLeftSegment(5);
        slider.setRightSegment(5);
        for (int bad : {0, -3, kIntMin}) {
            slider.setLeftSegment(bad);
            slider.setRightSegment(bad);
            slider.setMinimum(bad);
            slider.setMaximum(1000);
        }
        QCOMPARE(Limits(slider.minimum(), slider.maximum()), Limits(0, 100));
        QCOMPARE(valuesAfter({46, 45, 44, 40, 39, 0}), (QVector<int>{50, 50, 40, 30, 30, 0}));
        QCOMPARE(valuesAfter({54, 55, 60, 95, 100}), (QVector<int>{50, 60, 70, 100, 100}));
        QSignalSpy reached(&slider, &CusTwoSideSegSlider::signalSegValChanged);
        for (int value : {0, 1, 60, 53, 48}) // 1 is in the same segment as 0
            slider.setValue(value);
        const QList<QVariantList> expected{{true, 5}, {false, 2}, {false, 0}, {true, 0}};
        QCOMPARE(QList<QVariantList>(reached), expected);
        const auto valueAt = [&slider](bool isLeft, int segment) {
            slider.setToSegment(isLeft, segment);
            return slider.value();
        };
        QCOMPARE(valueAt(true, 2), 30);
        QCOMPARE(valueAt(true, kIntMax), 0);
        QCOMPARE(valueAt(true, -3), 50);
        QCOMPARE(valueAt(false, 2), 70);
        QCOMPARE(valueAt(false, 9), 100);
        QCOMPARE(valueAt(false, kIntMin), 50);
        QCOMPARE(reached.count(), 4);
    }

    void segmentsArePaintedFromTheCentre()
    {
        CusTwoSideSegSlider slider;
        slider.resize(200, 30);
        slider.setStyleSheet(kGroove);
        slider.setLeftSegment(5);
        slider.setCenterLineColor(Qt::yellow);
        for (bool valid : {true, false}) {
            slider.setDefaultGrooveBrushColor(valid ? QColor(Qt::red) : QColor());
            slider.setUsedGrooveBrushColor(valid ? QColor(Qt::blue) : QColor());
        }
        QCOMPARE(extent(slider, Qt::red), QRect(0, 13, 200, 4));
        // Over the handle, which is here now.
        QCOMPARE(extent(slider, Qt::yellow).width(), 2);
        QCOMPARE(extent(slider, Qt::yellow).height(), 10);
        QCOMPARE(extent(slider, Qt::blue), QRect());
        slider.setToSegment(true, 2);
        QCOMPARE(extent(slider, Qt::blue).right(), 98);
        QCOMPARE(extent(slider, Qt::blue).height(), 2);
        QVERIFY(qAbs(extent(slider, Qt::blue).left() - 67) <= 3); // to the handle's edge
        slider.setToSegment(false, 50);
        QCOMPARE(extent(slider, Qt::blue).left(), 101);
    }

    void tickSliderHasAScaleForEachHalf()
    {
        const auto valuesAt = [](int center, const QVector<int> &places) {
            QVector<int> values;
            CusTickTwoSideSlider slider;
            slider.resize(200, 20);
            slider.setStyleSheet(kGroove);
            slider.setMaximum(100);
            slider.setPageStep(0);
            slider.setCenterVal(center);
            for (int x : places) {
                press(&slider, x);
                values.append(slider.value());
                release(&slider);
            }
            press(&slider, 100);
            slider.setValue(3); // which is free even now
            values.append(slider.value());
            dragTo(&slider, 150);
            dragTo(&slider, 300); // no value there
            values.append(slider.value());
            slider.hide();
            slider.setEnabled(false);
            dragTo(&slider, 20);
            return values << slider.value();
        };
        QCOMPARE(valuesAt(20, {0, 50, 99, 100, 199}), (QVector<int>{0, 10, 19, 20, 99, 3, 60, 60}));
        QCOMPARE(valuesAt(80, {50, 150}), (QVector<int>{40, 90, 3, 90, 90}));
        for (int unset : {0, -5, kIntMin})
            QCOMPARE(valuesAt(unset, {50, 150}), (QVector<int>{25, 75, 3, 75, 75}));
    }

    void tickSliderIsPaintedFromTheCentre()
    {
        CusTickTwoSideSlider slider;
        slider.resize(200, 20);
        slider.setStyleSheet(kGroove);
        slider.setMaximum(100);
        slider.setUsedGrooveBrushColor(Qt::blue);
        const auto fillAt = [&slider](int value) {
            slider.setValue(value);
            return extent(slider, Qt::blue);
        };
        // A centre that was not set is stored at its first use.
        QCOMPARE(fillAt(50), QRect());
        slider.setMaximum(1000);
        QCOMPARE(fillAt(50), QRect());
        slider.setMaximum(100);
        slider.setCenterVal(20);
        QCOMPARE(fillAt(20), QRect());
        QCOMPARE(fillAt(10).right(), 99);
        QCOMPARE(fillAt(60).height(), 4);
        QCOMPARE(extent(slider, Qt::green).left(), 99);
        slider.setCenterVal(100); // no right half
        QCOMPARE(fillAt(10), QRect());
    }

    void narrowWidthsAndExtremeRangesAreHarmless()
    {
        const std::function<QSlider *()> makers[] = {
            [] { return new CusSlider; }, [] { return new CusDoubleSlider; },
            [] { return new CusTwoSideSegSlider; }, [] { return new CusTickTwoSideSlider; }};
        const QVector<Limits> ranges{{0, 0}, {kIntMin, kIntMax}, {kIntMax, kIntMin}};
        for (const auto &make : makers) {
            for (int width : {0, 1, 10, 11, 12, 200}) {
                for (const Limits &range : ranges) {
                    const QScopedPointer<QSlider> slider(make());
                    slider->resize(width, width % 2 == 0 ? 20 : 1);
                    slider->setRange(range.first, range.second);
                    for (int x : {0, 10, 199, -5000}) {
                        press(slider.data(), x);
                        dragTo(slider.data(), x + 3);
                        QPixmap picture(200, 20);
                        slider->render(&picture);
                        release(slider.data());
                        QVERIFY(!slider->isSliderDown());
                    }
                }
            }
        }
    }

    void signalsAndCallbacksMayDeleteTheSlider()
    {
        QPointer<QSlider> gone;
        const auto kill = [&gone] { delete gone; };
        const std::function<void(CusSlider *)> changes[] = {
            [](CusSlider *slider) { slider->setValue(60); },
            [](CusSlider *slider) { QTest::keyClick(slider, Qt::Key_End); },
            [](CusSlider *slider) { press(slider, 100); },
        };
        for (const auto &change : changes) {
            for (bool byText : {false, true}) {
                auto *slider = byText ? new CusSlider : new CusTickTwoSideSlider;
                gone = slider;
                slider->resize(200, 20);
                slider->setPageStep(0);
                slider->setLabelTextPos(CusSlider::TEXT_POS_LEFT);
                if (byText)
                    slider->registerValueToTextCb([kill](int) { return kill(), QString(); });
                else
                    connect(slider, &CusSlider::signalSliderValueChange, kill);
                change(slider);
                QVERIFY(!gone);
            }
        }
        auto *segments = new CusTwoSideSegSlider;
        gone = segments;
        connect(segments, &CusTwoSideSegSlider::signalSegValChanged, kill);
        segments->setValue(70);
        QVERIFY(!gone);
        auto *doubles = new CusDoubleSlider;
        gone = doubles;
        connect(doubles, &CusDoubleSlider::signalValueChanged, kill);
        doubles->setDoubleValueRange(5, 6);
        QVERIFY(!gone);
    }

    void keepWhatASliderDoes()
    {
        CusSlider plain;
        CusDoubleSlider doubles;
        CusTickTwoSideSlider tick;
        for (QSlider *slider : {static_cast<QSlider *>(&plain), static_cast<QSlider *>(&doubles),
                                static_cast<QSlider *>(&tick)}) {
            slider->setMaximum(100);
            const auto after = [slider](Qt::Key key) {
                QTest::keyClick(slider, key);
                return slider->value();
            };
            QCOMPARE(after(Qt::Key_Right), 1);
            QCOMPARE(after(Qt::Key_PageUp), 11);
            QCOMPARE(after(Qt::Key_PageDown), 1);
            QCOMPARE(after(Qt::Key_End), 100);
            QCOMPARE(after(Qt::Key_Left), 99);
            const QPointF pos(5, 5);
            QWheelEvent wheel(pos, pos, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(slider, &wheel);
            QCOMPARE(slider->value(), 99 - QApplication::wheelScrollLines());
            auto *accessible = QAccessible::queryAccessibleInterface(slider);
            QCOMPARE(accessible->role(), QAccessible::Slider);
            accessible->valueInterface()->setCurrentValue(12);
            QCOMPARE(slider->value(), 12);
            QMetaObject::invokeMethod(slider, "setValue", Q_ARG(int, 13));
            QCOMPARE(slider->value(), 13);
        }
        plain.setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(&plain, Qt::Key_Right);
        QCOMPARE(plain.value(), 12);
        QCOMPARE(doubles.getDoubleVal(), 0.13);
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
