#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QVector>

/// A paint device, 1,000 pixels square, that keeps what texts are drawn on it, where and in what
/// colour; all else is ignored.
class TextRecorder : public QPaintDevice
{
public:
    struct Text
    {
        QString text;
        QPointF baseline;
        QColor color;
    };

    QVector<Text> texts;

    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 1000;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        default:
            return 1;
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(TextRecorder *owner)
            : QPaintEngine(AllFeatures)
            , m_owner(owner)
        {
        }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState &) override { }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
        void drawPath(const QPainterPath &) override { }
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
        void drawTextItem(const QPointF &at, const QTextItem &item) override
        {
            m_owner->texts.append({item.text(), at, painter()->pen().color()});
        }

    private:
        TextRecorder *m_owner;
    };

    mutable Engine m_engine{this};
};
