#pragma once

#include <QHash>
#include <QMetaType>
#include <QString>

/// A number and its text. As meta type also known as "keyValueData".
struct KeyValueData
{
    int key = 0;
    QString value;
};
Q_DECLARE_METATYPE(KeyValueData)

inline bool operator==(const KeyValueData &left, const KeyValueData &right)
{
    return left.key == right.key && left.value == right.value;
}

inline bool operator!=(const KeyValueData &left, const KeyValueData &right)
{
    return !(left == right);
}

inline uint qHash(const KeyValueData &data, uint seed = 0)
{
    return qHash(data.value, seed) * 31 + qHash(data.key, seed);
}
