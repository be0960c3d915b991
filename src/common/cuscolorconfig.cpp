#include "common/cuscolorconfig.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

struct CusColorConfig::Private
{
    QJsonObject config;
    QVector<QColor> commonColors;
    QColor mainColor;
    QColor successColor;
    QColor warningColor;
    QColor danger1Color;
    QColor danger2Color;
    QColor highlightColor;
    QColor bakcgroundColor;
    QColor negativeBarBackgroundColor;
    QColor dialogHeaderColor;
    QColor dialogBackgroundColor;
    QColor bubbleColor;
    QColor mainTextColor;
    QColor subTextColor;

    struct ThemeColor
    {
        QString key;
        QColor Private::*field;
        QColor builtIn;
    };
    static const QVector<ThemeColor> &themeColors();

    QJsonValue given(const QString &key) const;
};

const QVector<CusColorConfig::Private::ThemeColor> &CusColorConfig::Private::themeColors()
{
    static const QVector<ThemeColor> colors = {
        {QStringLiteral("mainColor"), &Private::mainColor, QColor(0x256EB4)},
        {QStringLiteral("successColor"), &Private::successColor, QColor(0x109E5C)},
        {QStringLiteral("warningColor"), &Private::warningColor, QColor(0xFFAF14)},
        {QStringLiteral("danger1Color"), &Private::danger1Color, QColor(0xF14958)},
        {QStringLiteral("danger2Color"), &Private::danger2Color, QColor(0xC83F3F)},
        {QStringLiteral("highlightColor"), &Private::highlightColor, QColor(0x429EF6)},
        {QStringLiteral("bakcgroundColor"), &Private::bakcgroundColor, QColor(0x0F121A)},
        {QStringLiteral("negativeBarBackgroundColor"), &Private::negativeBarBackgroundColor,
         QColor(0x262F3E)},
        {QStringLiteral("dialogHeaderColor"), &Private::dialogHeaderColor, QColor(0x323C4E)},
        {QStringLiteral("dialogBackgroundColor"), &Private::dialogBackgroundColor,
         QColor(0x27303E)},
        {QStringLiteral("bubbleColor"), &Private::bubbleColor, QColor(0x424E64)},
        {QStringLiteral("mainTextColor"), &Private::mainTextColor, QColor(0xFFFFFF)},
        {QStringLiteral("subTextColor"), &Private::subTextColor, QColor(0xA0A7B4)}};
    return colors;
}

/// The value of \a key; undefined if it is absent or null, which means the same.
QJsonValue CusColorConfig::Private::given(const QString &key) const
{
    const QJsonValue value = config.value(key);
    return value.isNull() ? QJsonValue(QJsonValue::Undefined) : value;
}

CusColorConfig *CusColorConfig::instance()
{
    static CusColorConfig config;
    return &config;
}

CusColorConfig::CusColorConfig()
    : d(std::make_unique<Private>())
{
    QFile file(QStringLiteral(":/Resource/ColorConfig.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s", qUtf8Printable(file.errorString()));
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    // The built-in colours stay out here, so that a client sees at once that its theme is missing.
    if (document.isNull())
        qWarning("%s", qUtf8Printable(error.errorString()));
    else
        setConfig(document.object());
}

CusColorConfig::~CusColorConfig() = default;

QColor CusColorConfig::getColor(const QString &key, QColor defaultColor) const
{
    const QJsonValue value = d->given(key);
    if (value.isUndefined())
        return defaultColor;
    return QColor(value.toString());
}

QStringList CusColorConfig::getColorList(const QString &key) const
{
    QStringList list;
    const QJsonArray values = d->given(key).toArray();
    for (const QJsonValue &value : values)
        list.append(value.toString());
    return list;
}

QColor CusColorConfig::getCommonColorByIndex(int index) const
{
    if (d->commonColors.isEmpty())
        return QColor();
    return d->commonColors.at(qMax(0, index) % d->commonColors.size());
}

const QVector<QColor> &CusColorConfig::commonColors() const
{
    return d->commonColors;
}

const QJsonObject &CusColorConfig::config() const
{
    return d->config;
}

void CusColorConfig::setConfig(const QJsonObject &config)
{
    d->config = config;
    updateColors();
}

void CusColorConfig::updateColors()
{
    const QJsonValue palette = d->given(QStringLiteral("commonColors"));
    d->commonColors.clear();
    if (palette.isUndefined()) {
        d->commonColors = {QColor(0xEF8E2E), QColor(0x0A9FDF), QColor(0x97C21C), QColor(0xD81F36),
                           QColor(0xAC45DF), QColor(0x0BB1AB), QColor(0x464CFC), QColor(0xF14E3E),
                           QColor(0x16A169), QColor(0x1E6EE5)};
    }
    const QJsonArray colors = palette.toArray();
    for (const QJsonValue &color : colors)
        d->commonColors.append(QColor(color.toString()));
    for (const Private::ThemeColor &color : Private::themeColors())
        (*d).*color.field = getColor(color.key, color.builtIn);
}

const QColor &CusColorConfig::mainColor() const
{
    return d->mainColor;
}

const QColor &CusColorConfig::successColor() const
{
    return d->successColor;
}

const QColor &CusColorConfig::warningColor() const
{
    return d->warningColor;
}

const QColor &CusColorConfig::danger1Color() const
{
    return d->danger1Color;
}

const QColor &CusColorConfig::danger2Color() const
{
    return d->danger2Color;
}

const QColor &CusColorConfig::highlightColor() const
{
    return d->highlightColor;
}

const QColor &CusColorConfig::bakcgroundColor() const
{
    return d->bakcgroundColor;
}

const QColor &CusColorConfig::negativeBarBackgroundColor() const
{
    return d->negativeBarBackgroundColor;
}

const QColor &CusColorConfig::dialogHeaderColor() const
{
    return d->dialogHeaderColor;
}

const QColor &CusColorConfig::dialogBackgroundColor() const
{
    return d->dialogBackgroundColor;
}

const QColor &CusColorConfig::bubbleColor() const
{
    return d->bubbleColor;
}

const QColor &CusColorConfig::mainTextColor() const
{
    return d->mainTextColor;
}

const QColor &CusColorConfig::subTextColor() const
{
    return d->subTextColor;
}
