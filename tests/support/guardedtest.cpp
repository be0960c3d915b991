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

GuardedTest::~GuardedTest()
{
    if (previousHandler)
        qInstallMessageHandler(nullptr);
    previousHandler = nullptr;
}

void GuardedTest::expectWarning(const QRegularExpression &pattern)
{
    QMutexLocker locker(&messageMutex);
    expectedWarnings.append(pattern);
}

void GuardedTest::init()
{
    // QtTest installs its own handler before each function, so ours goes on top of it each time.
    const QtMessageHandler handler = qInstallMessageHandler(guardMessages);
    if (handler != guardMessages)
        previousHandler = handler;
    QMutexLocker locker(&messageMutex);
    expectedWarnings.clear();
    strayWarnings.clear();
}

void GuardedTest::cleanup()
{
    QMutexLocker locker(&messageMutex);
    const QStringList stray = strayWarnings;
    const int missing = expectedWarnings.size();
    locker.unlock();
    QVERIFY2(stray.isEmpty(),
             qPrintable(QStringLiteral("stray warning: ") + stray.join(QLatin1Char('\n'))));
    QVERIFY2(missing == 0, "an expected warning did not come");
}
