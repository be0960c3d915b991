#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QStringList>

/// Base of every test class: a warning that a test function did not announce makes it fail.
///
/// A class that needs init() or cleanup() of its own calls these first and last.
class GuardedTest : public QObject
{
    Q_OBJECT

public:
    /// The next message that matches \a pattern is expected; one that doesn't come is a failure.
    void expectWarning(const QRegularExpression &pattern);

protected Q_SLOTS:
    void init();
    void cleanup();
};
