#include "support/qobjectcounter.h"

#include <QMutex>
#include <QSet>

// As in Qt's qhooks_p.h, whose layout is fixed for tools: [3] is called for each new QObject, [4]
// for each destroyed one.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {

constexpr int kAddQObject = 3;
constexpr int kRemoveQObject = 4;

QMutex hookMutex;
QSet<QObject *> living;
int constructed = 0;

void added(QObject *object)
{
    QMutexLocker locker(&hookMutex);
    living.insert(object);
    ++constructed;
}

void removed(QObject *object)
{
    QMutexLocker locker(&hookMutex);
    living.remove(object);
}

} // namespace

QObjectCounter::QObjectCounter(const QMetaObject &type)
    : m_type(type)
{
    living.clear();
    constructed = 0;
    qtHookData[kAddQObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[kRemoveQObject] = reinterpret_cast<quintptr>(&removed);
}

QObjectCounter::~QObjectCounter()
{
    qtHookData[kAddQObject] = 0;
    qtHookData[kRemoveQObject] = 0;
}

int QObjectCounter::alive() const
{
    QMutexLocker locker(&hookMutex);
    int count = 0;
    for (QObject *object : qAsConst(living)) {
        if (m_type.cast(object))
            ++count;
    }
    return count;
}

int QObjectCounter::constructedOfAnyClass() const
{
    QMutexLocker locker(&hookMutex);
    return constructed;
}
