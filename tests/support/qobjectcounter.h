#pragma once

#include <QObject>

/// While it lives, counts the objects of one class that are constructed anywhere in the process.
/// One counter at a time.
///
/// It stands on the hooks that Qt keeps for introspection tools, so the library needs no test
/// hooks.
class QObjectCounter
{
public:
    explicit QObjectCounter(const QMetaObject &type);
    ~QObjectCounter();

    /// Constructed since the counter was made, counting only objects that are still alive now.
    int alive() const;
    /// QObjects of any class constructed since the counter was made.
    int constructedOfAnyClass() const;

private:
    Q_DISABLE_COPY(QObjectCounter)
    const QMetaObject &m_type;
};
