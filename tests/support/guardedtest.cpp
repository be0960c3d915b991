#include "support/guardedtest.h"

#include <QMutex>
#include <QtTest>

namespace {

QtMessageHandler previousHandler = nullptr;
QMutex messageMutex;
QList<QRegularExpression> expectedWarnings;
QStringList strayWarnings;

void guardMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The offscreen platform says so of every window hint that it leaves aside.
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        QMutexLocker locker(&messageMutex);
        for (int i = 0; i < expectedWarnings.size(); ++i) {
            if (expectedWarnings.at(i).match(message).hasMatch()) {
                expectedWarnings.removeAt(i);
                return;
            }
        }
        strayWarnings.append(message);
    }
    if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

void GuardedTest::expectWarning(const QRegularExpression &pattern)
{
    QMutexLocker locker(&messageMutex);
    expectedWarnings.append(pattern);
}

void GuardedTest::init()
{
    QMutexLocker locker(&messageMutex);
    expectedWarnings.clear();
    strayWarnings.clear();
    previousHandler = qInstallMessageHandler(guardMessages);
}

void GuardedTest::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QMutexLocker locker(&messageMutex);
    const QString stray = strayWarnings.join(QLatin1Char('\n'));
    const bool allCame = expectedWarnings.isEmpty();
    locker.unlock();
    QVERIFY2(stray.isEmpty(), qPrintable(QStringLiteral("stray warning: ") + stray));
    QVERIFY2(allCame, "an expected warning did not come");
}
