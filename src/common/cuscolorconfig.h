#pragma once

#include "vellum_export.h"

#include <QColor>
#include <QStringList>
#include <QVector>

#include <memory>

class QJsonObject;

/// The theme: thirteen named colours, a palette for data, and colours by key for single controls.
///
/// The one object reads the client's resource ":/Resource/ColorConfig.json" when it is first asked
/// for: a JSON object with the theme colours by the names of their accessors, the palette as the
/// array "commonColors", and any further keys. A colour is a string that QColor understands. If the
/// file is missing or malformed, one warning is written, every theme colour is invalid and the
/// palette is empty until setConfig() is called.
///
/// Controls read their colours when they are constructed and keep them, so the theme is set first.
/// Making the object is thread-safe; all else belongs to the GUI thread.
class VELLUM_EXPORT CusColorConfig
{
public:
    static CusColorConfig *instance();
    virtual ~CusColorConfig();

    /// The colour of \a key, invalid if it isn't one; \a defaultColor if the key is absent or null.
    /// Keys are looked up in config(), also those of theme colours, whose built-in defaults don't
    /// show here.
    QColor getColor(const QString &key, QColor defaultColor) const;
    /// The strings of the array \a key, unchecked; empty if there is none.
    QStringList getColorList(const QString &key) const;
    /// The palette repeated without end. A negative \a index counts as 0; invalid if the palette is
    /// empty.
    QColor getCommonColorByIndex(int index) const;

    const QVector<QColor> &commonColors() const;
    const QJsonObject &config() const;
    /// Replaces the whole theme. A theme colour or palette that is absent or null takes its
    /// built-in default; one that isn't a colour is invalid, a palette that isn't an array empty.
    void setConfig(const QJsonObject &config);

    // The references stay good for the life of the process.
    const QColor &mainColor() const;
    const QColor &successColor() const;
    const QColor &warningColor() const;
    const QColor &danger1Color() const;
    const QColor &danger2Color() const;
    const QColor &highlightColor() const;
    const QColor &bakcgroundColor() const;
    const QColor &negativeBarBackgroundColor() const;
    const QColor &dialogHeaderColor() const;
    const QColor &dialogBackgroundColor() const;
    const QColor &bubbleColor() const;
    const QColor &mainTextColor() const;
    const QColor &subTextColor() const;

protected:
    CusColorConfig();

    /// Takes theme colours and palette from config().
    void updateColors();

private:
    Q_DISABLE_COPY(CusColorConfig)

    struct Private;
    const std::unique_ptr<Private> d;
};
