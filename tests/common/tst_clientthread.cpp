#include "support/guardedtest.h"

#include <Vellum/ClientThread>

#include <QtTest>

#include <stdexcept>

class TestClientThread : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void runsAtEachStart();
    void stops();
    void killingDisconnectsAndKeepsTheFlag();
    void anEndlessFunctionIsLeftBehind();
    void theFunctionMayKillAndDeleteItsThread();
};

void TestClientThread::runsAtEachStart()
{
    QSemaphore runs;
    ClientThread thread(nullptr);
    thread.start();
    QVERIFY(thread.wait());
    thread.setThreadFun([&] {
        runs.release();
        throw std::runtime_error("counts as the end");
    });
    for (int run = 0; run < 2; ++run) {
        thread.start();
        thread.start();
        QVERIFY(thread.wait());
    }
    QCOMPARE(runs.available(), 2);
    QVERIFY(!thread.threadExitFlag());
}

void TestClientThread::stops()
{
    using Step = std::function<void(ClientThread &)>;
    const auto until = [](bool (*asked)(const ClientThread &)) {
        return Step([asked](ClientThread &thread) {
            while (!asked(thread))
                QThread::yieldCurrentThread();
        });
    };
    const auto check = [](const char *name, const Step &function, const Step &stop) {
        QSemaphore running;
        ClientThread thread(nullptr);
        thread.setThreadFun([&] {
            running.release();
            function(thread);
        });
        thread.start();
        running.acquire();
        stop(thread);
        QVERIFY2(thread.wait(20000), name);
        thread.start();
        stop(thread); // perhaps before the function has begun
        QVERIFY2(thread.wait(20000), name);
    };
    const Step flag = until([](const ClientThread &thread) { return thread.threadExitFlag(); });
    const Step own = until([](const ClientThread &t) { return t.isInterruptionRequested(); });
    const Step current = until(
        [](const ClientThread &) { return QThread::currentThread()->isInterruptionRequested(); });
    const Step eventLoop = [](ClientThread &) { QEventLoop().exec(); };
    const Step kill = [](ClientThread &thread) { thread.killThread(); };
    check("exit flag", flag, kill);
    check("interruption of the object", own, kill);
    check("interruption of the current thread", current, kill);
    check("event loop", eventLoop, kill);
    check("asked of the base", current, [](QThread &thread) { thread.requestInterruption(); });
    check("quit asked of the base", eventLoop, &QThread::quit);
}

void TestClientThread::killingDisconnectsAndKeepsTheFlag()
{
    ClientThread thread([] { QEventLoop().exec(); });
    QSignalSpy finished(&thread, &QThread::finished);
    thread.start();
    thread.killThread();
    QVERIFY(thread.isFinished());
    QCOMPARE(finished.size(), 0);
    thread.setThreadFun(nullptr);
    thread.start();
    QVERIFY(thread.threadExitFlag());
}

void TestClientThread::anEndlessFunctionIsLeftBehind()
{
    const auto gate = std::make_shared<QSemaphore>();
    QPointer<QThread> worker;
    QSemaphore running;
    {
        ClientThread thread([gate, &worker, &running] {
            worker = QThread::currentThread();
            running.release();
            gate->acquire();
        });
        thread.start();
        running.acquire();
    }
    QVERIFY(worker->isRunning() && worker->isInterruptionRequested());
    gate->release();
    QTRY_VERIFY(worker.isNull());
    QCOMPARE(gate.use_count(), 1L);
}

void TestClientThread::theFunctionMayKillAndDeleteItsThread()
{
    const auto after = std::make_shared<QSemaphore>();
    auto *const thread = new ClientThread(nullptr);
    thread->setThreadFun([after, thread] {
        thread->killThread();
        after->release(QThread::currentThread()->isInterruptionRequested() ? 2 : 1);
        delete thread;
        after->release();
    });
    thread->start();
    QTRY_COMPARE(after->available(), 3);
    QTRY_COMPARE(after.use_count(), 1L);
}

QTEST_MAIN(TestClientThread)
#include "tst_clientthread.moc"
