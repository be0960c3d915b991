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

/// The cursor comes back after a modal window took the release.
void moveWithoutButton(QWidget *widget, int x)
{
    QMouseEvent move(QEvent::MouseMove, QPoint(x, 10), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(widget, &move);
}

void release(QWidget *widget)
{
    QTest::mouseRelease(widget, Qt::LeftButton);
}

/// QTest::mouseMove() only moves the cursor.
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
        // The last two never see the release.
        const std::function<void()> ends[] = {
            [&] { release(&slider); }, [&] { slider.setEnabled(false); }, [&] { slider.hide(); }};
        for (const auto &end : ends) {
            slider.setEnabled(true);
            press(&slider, 100);
            QVERIFY(!accepts(5));
            end();
            QCOMPARE(slider.value(), 50);
            QVERIFY(accepts(5));
        }
        press(&slider, 150, Qt::RightButton);
        QVERIFY(accepts(6));
    }

    void dragStopsOutsideTheValidRange()
    {
        Stage stage;
        stage.slider->setValidMax(70);
        for (const bool checked : {false, true}) {
            stage.slider->setCheckValidRange(checked);
            stage.slider->setValue(80);
            press(stage.slider, stage.slider->handle().center().x());
            dragTo(stage.slider, 40);
            QCOMPARE(stage.slider->value() > 70, checked);
            release(stage.slider);
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
        const QPoint middle = slider->handle().center() + slider->pos();
        const QPoint above21(stage.label->geometry().center().x(), stage.label->y() + 21);
        QVERIFY((above21 - middle).manhattanLength() <= 2);
        slider->enableLabelIsChild(true);
        QCOMPARE(stage.label->y(), 0); // as a child it stays inside
        slider->setLabelTextPos(CusSlider::TEXT_POS_NONE);
        QVERIFY(!stage.label->isVisible() && stage.label->text().isEmpty());
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
        const QString atCursor = QStringLiteral("995 km/h");
        QCOMPARE(stage.label->x(), 210 - stage.label->fontMetrics().horizontalAdvance(atCursor));
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
        slider->setLabelTextPos(CusSlider::TEXT_POS_ON_HANDLE);
        auto *label = slider->findChild<QLabel *>();
        window.show();
        TestKit::renderAt(&window);
        QCOMPARE(label->parentWidget(), &window);
        QVERIFY(label->isVisible() && label->geometry().center().y() < 115);
        slider->setParent(&elsewhere); // and the label goes along
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
        QEvent leave(QEvent::Leave);
        for (bool stays : {true, false}) {
            slider->setAllwaysShowText(stays);
            QApplication::sendEvent(slider, &leave);
            QCOMPARE(stage.label->isVisible(), stays);
        }
        slider->setAllwaysShowText(true);
        enter(slider);
        QVERIFY(stage.label->isVisible());
        for (int size : {17, 0, kIntMin})
            slider->setTextLabelFontSize(size);
        QCOMPARE(stage.label->font().pixelSize(), 17);
        // The label dies with whichever of its parent and the slider goes first.
        auto *other = new QWidget(&stage.window);
        slider->setLabelParentWidget(other);
        slider->setLabelParentWidget(nullptr);
        delete other;
        QVERIFY(!stage.label);
        slider->setValue(3);
        slider->setLabelParentWidget(&stage.window);
        stage.label = stage.window.findChild<QLabel *>();
        slider->setLabelParentWidget(stage.label);
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
        QCOMPARE(tick(60).topLeft(), QPoint(64, 0));
        QCOMPARE(tick(60).width(), 2);
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
        file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8'>"
                   "<rect width='8' height='8' fill='#ff0000'/></svg>");
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
        const auto stampAt = [&stage](int x, const QColor &color) {
            QCursor::setPos(stage.slider->mapToGlobal(QPoint(x, 10)));
            return extent(*stage.slider, color);
        };
        QCOMPARE(stampAt(20, Qt::red), place);
        QVERIFY(stage.slider->isMouseHover());
        // The ground that clears the style's handle spares the filled part.
        QCOMPARE(extent(*stage.slider, Qt::blue), QRect(0, 8, 194, 4));
        QCOMPARE(stampAt(200, Qt::green), place);
        press(stage.slider, 200);
        QCOMPARE(stampAt(200, Qt::yellow), place);
        release(stage.slider);
        stage.slider->setEnabled(false);
        QCOMPARE(stampAt(200, Qt::cyan), place);
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
            {"maximum below minimum",
             [](S &s) { s.setDoubleMinimum(10), s.setDoubleMaximum(5), s.setDoubleVal(7); },
             {1000, 1000},
             5},
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
        slider.setStyleSheet(QStringLiteral("color: red"));
        slider.setDoubleVal(12.34);
        const auto text = [&slider] {
            const auto draw = [&slider](QPaintDevice *to) { slider.render(to); };
            return TestKit::drawnTexts(draw, Qt::red).join(QLatin1Char('|'));
        };
        QCOMPARE(text(), QStringLiteral("12.3"));
        slider.registerValToTextCb([](double v) { return QStringLiteral("x%1").arg(v); });
        QCOMPARE(text(), QStringLiteral("x12.34"));
        slider.setAllwaysShowText(false);
        QCOMPARE(text(), QString());
    }

    void segmentsSnap()
    {
        CusTwoSideSegSlider slider;
        const auto snapped = [&slider](const QVector<int> &values) {
            QVector<int> shown;
            for (int value : values) {
                slider.setValue(value);
                shown.append(slider.value());
            }
            return shown;
        };
        // Until a number of segments was set, each is one value wide.
        QCOMPARE(snapped({80, 3, 50}), (QVector<int>{51, 49, 50}));
        slider.setLeftSegment(5);
        slider.setRightSegment(5);
        for (int bad : {0, kIntMin, 1000}) {
            slider.setRightSegment(qMin(bad, 0));
            slider.setMinimum(bad);
            slider.setMaximum(bad);
        }
        QCOMPARE(Limits(slider.minimum(), slider.maximum()), Limits(0, 100));
        QCOMPARE(snapped({46, 45, 44, 39, 0, 50}), (QVector<int>{50, 50, 40, 30, 0, 50}));
        QCOMPARE(snapped({54, 55, 95, 50}), (QVector<int>{50, 60, 100, 50}));
        QSignalSpy reached(&slider, &CusTwoSideSegSlider::signalSegValChanged);
        snapped({0, 1, 60, 53, 48}); // 1 is in the same segment as 0
        const QList<QVariantList> expected{{true, 5}, {false, 2}, {false, 0}, {true, 0}};
        QCOMPARE(QList<QVariantList>(reached), expected);
        const std::tuple<bool, int, int> segments[] = {
            {true, 2, 30},  {true, kIntMax, 0}, {true, -3, 50},
            {false, 2, 70}, {false, 9, 100},    {false, kIntMin, 50},
        };
        for (const auto &[isLeft, segment, value] : segments) {
            slider.setToSegment(isLeft, segment);
            QCOMPARE(slider.value(), value);
        }
        QCOMPARE(reached.count(), 4);
        // What a receiver sets meanwhile does not part the record from the value.
        connect(&slider, &CusTwoSideSegSlider::signalSegValChanged, &slider,
                [&slider](bool, int segment) { segment == 4 ? slider.setValue(50) : void(); });
        slider.setValue(85);
        QCOMPARE(slider.value(), 90);
        slider.setValue(50);
        QCOMPARE(reached.count(), 7);
    }

    void segmentsArePaintedFromTheCentre()
    {
        CusTwoSideSegSlider slider;
        slider.resize(200, 30);
        slider.setStyleSheet(kGroove);
        slider.setLeftSegment(5);
        slider.setCenterLineColor(Qt::yellow);
        slider.setDefaultGrooveBrushColor(Qt::red);
        slider.setUsedGrooveBrushColor(Qt::blue);
        slider.setUsedGrooveBrushColor(QColor());
        QCOMPARE(extent(slider, Qt::red), QRect(0, 13, 200, 4));
        // Over the handle, which is here now.
        QCOMPARE(extent(slider, Qt::yellow).size(), QSize(2, 10));
        slider.setToSegment(true, 2);
        const QRect used = extent(slider, Qt::blue);
        QCOMPARE(QSize(used.right(), used.height()), QSize(98, 2));
        QVERIFY(qAbs(used.left() - 67) <= 3); // to the handle's edge
        slider.setToSegment(false, 50);
        QCOMPARE(extent(slider, Qt::blue).left(), 101);
    }

    void aLostReleaseEndsThePress()
    {
        CusTickTwoSideSlider tick;
        CusSlider plain;
        for (CusSlider *slider : {&plain, static_cast<CusSlider *>(&tick)}) {
            slider->resize(200, 20);
            slider->setRange(0, 100);
            press(slider, 50);
            const int value = slider->value();
            moveWithoutButton(slider, 150);
            QCOMPARE(slider->value(), value);
            slider->setValue(value + 1);
            QCOMPARE(slider->value(), value + 1);
        }
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
                release(&slider);
                press(&slider, x);
                values.append(slider.value());
            }
            slider.setValue(3); // which is free even now
            values.append(slider.value());
            dragTo(&slider, 150);
            dragTo(&slider, 300); // no value there
            values.append(slider.value());
            slider.setEnabled(false);
            slider.setEnabled(true);
            dragTo(&slider, 20);
            return values << slider.value();
        };
        QCOMPARE(valuesAt(20, {0, 50, 99, 199, 100}), (QVector<int>{0, 10, 19, 99, 20, 3, 60, 60}));
        for (int unset : {0, kIntMin})
            QCOMPARE(valuesAt(unset, {50, 150}), (QVector<int>{25, 75, 3, 75, 75}));
    }

    void tickSliderIsPaintedFromTheCentre()
    {
        CusTickTwoSideSlider slider;
        slider.resize(200, 20);
        slider.setStyleSheet(kGroove);
        slider.setUsedGrooveBrushColor(Qt::blue);
        const auto fillAt = [&slider](int value, int maximum = 100) {
            slider.setMaximum(maximum);
            slider.setValue(value);
            return extent(slider, Qt::blue);
        };
        // A centre that was not set is stored at its first use.
        QCOMPARE(fillAt(50), QRect());
        QCOMPARE(fillAt(50, 1000), QRect());
        slider.setCenterVal(20);
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
        QPixmap picture(200, 20);
        for (const auto &make : makers) {
            for (const Limits &range : {Limits(0, 0), {kIntMin, kIntMax}, {kIntMin, 0}}) {
                for (int width : {0, 1, 10, 11, 12, 200}) {
                    const QScopedPointer<QSlider> slider(make());
                    slider->resize(width, width % 2 == 0 ? 20 : 1);
                    slider->setInvertedAppearance(width % 2 != 0);
                    slider->setRange(range.first, range.second);
                    for (int x : {0, 10, 199, kIntMin}) {
                        press(slider.data(), x);
                        dragTo(slider.data(), x + 3);
                        slider->render(&picture);
                        release(slider.data());
                    }
                    QVERIFY(!slider->isSliderDown());
                }
            }
        }
    }

    void signalsAndCallbacksMayDeleteTheSlider()
    {
        QPointer<QSlider> gone;
        const auto kill = [&gone] { delete gone; };
        for (int way = 0; way < 4; ++way) {
            auto *slider = way % 2 == 0 ? new CusSlider : new CusTickTwoSideSlider;
            gone = slider;
            slider->resize(200, 20);
            slider->setPageStep(0);
            slider->setLabelTextPos(CusSlider::TEXT_POS_LEFT);
            if (way % 2 == 0)
                slider->registerValueToTextCb([kill](int) { return kill(), QString(); });
            else
                connect(slider, &CusSlider::signalSliderValueChange, kill);
            way < 2 ? slider->setValue(60) : press(slider, 100);
            QVERIFY(!gone);
        }
        auto *segments = new CusTwoSideSegSlider;
        gone = segments;
        connect(segments, &CusTwoSideSegSlider::signalSegValChanged, kill);
        segments->setValue(70);
        QVERIFY(!gone);
    }

    void keepWhatASliderDoes()
    {
        CusSlider plain;
        CusDoubleSlider doubles;
        CusTickTwoSideSlider tick;
        for (QSlider *slider : std::initializer_list<QSlider *>{&plain, &doubles, &tick}) {
            slider->setMaximum(100);
            const std::pair<Qt::Key, int> keys[] = {
                {Qt::Key_Right, 1}, {Qt::Key_PageUp, 11}, {Qt::Key_End, 100}, {Qt::Key_Left, 99}};
            for (const auto &key : keys) {
                QTest::keyClick(slider, key.first);
                QCOMPARE(slider->value(), key.second);
            }
            const QPointF pos(5, 5);
            QWheelEvent wheel(pos, pos, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(slider, &wheel);
            QCOMPARE(slider->value(), 99 - QApplication::wheelScrollLines());
            auto *accessible = QAccessible::queryAccessibleInterface(slider);
            QCOMPARE(accessible->role(), QAccessible::Slider);
            accessible->valueInterface()->setCurrentValue(12);
            QCOMPARE(slider->value(), 12);
        }
        plain.setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(&plain, Qt::Key_Right);
        QCOMPARE(plain.value(), 11);
        QCOMPARE(doubles.getDoubleVal(), 0.12);
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
