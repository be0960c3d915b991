#include "support/qobjectcounter.h"

#include <QMutex>
#include <QSet>

// As in Qt's qhooks_p.h, whose layout is fixed for tools: [3] is called for each new QObject, [4]
// for each destroyed one.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {

constexpr int kAddQObject = 3;
constexpr int kRemoveQObject = 4;
using Hook = void (*)(QObject *);

QMutex hookMutex;
QSet<QObject *> living;
int constructed = 0;
quintptr previousAdd = 0;
quintptr previousRemove = 0;

void added(QObject *object)
{
    {
        QMutexLocker locker(&hookMutex);
        living.insert(object);
        ++constructed;
    }
    if (previousAdd)
        reinterpret_cast<Hook>(previousAdd)(object);
}

void removed(QObject *object)
{
    {
        QMutexLocker locker(&hookMutex);
        living.remove(object);
    }
    if (previousRemove)
        reinterpret_cast<Hook>(previousRemove)(object);
}

} // namespace

QObjectCounter::QObjectCounter(const QMetaObject &type)
    : m_type(type)
{
    living.clear();
    constructed = 0;
    previousAdd = qtHookData[kAddQObject];
    previousRemove = qtHookData[kRemoveQObject];
    qtHookData[kAddQObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[kRemoveQObject] = reinterpret_cast<quintptr>(&removed);
}

QObjectCounter::~QObjectCounter()
{
    qtHookData[kAddQObject] = previousAdd;
    qtHookData[kRemoveQObject] = previousRemove;
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
