#include "common/clientthread.h"

#include <QCoreApplication>
#include <QTimer>

#include <atomic>
#include <mutex>

namespace {

constexpr unsigned long kStopWait = 3000; // ms
constexpr int kRelayInterval = 20;        // ms

// Runs the function. A QThread can't be destroyed while it runs, so a function that never ends must
// not run on the client's own thread object. This one owns all that an endless function needs.
class FunctionThread : public QThread
{
public:
    FunctionThread(std::function<void()> fun, QThread *waiter)
        : m_fun(std::move(fun))
        , m_waiter(waiter)
    {
    }

    bool isDone()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_done;
    }

    // Gives the thread to itself: it is deleted in the GUI thread after its end, and what the
    // function captured with it. False, and nothing happens, if the function has ended.
    bool abandon()
    {
        // While the lock is held the function's end can't be passed, so finished() is still to
        // come.
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_done)
            return false;
        m_waiter = nullptr;
        const QCoreApplication *application = QCoreApplication::instance();
        moveToThread(application ? application->thread() : nullptr);
        connect(this, &QThread::finished, this, &QObject::deleteLater, Qt::DirectConnection);
        return true;
    }

protected:
    void run() override
    {
        setTerminationEnabled(false); // a cancelled thread would unwind into the catch below
        try {
            m_fun();
        } catch (...) {
            // The library lets no exception through; a function that throws has ended.
        }
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
        if (m_waiter)
            m_waiter->quit();
    }

private:
    Q_DISABLE_COPY(FunctionThread)

    const std::function<void()> m_fun;
    std::mutex m_mutex;
    QThread *m_waiter;
    bool m_done = false;
};

} // namespace

struct ClientThread::Private
{
    std::mutex funMutex;
    std::function<void()> threadFun;
    std::atomic<bool> exitFlag{false};
    std::atomic<bool> abandoned{false};
    std::atomic<QThread *> functionThread{nullptr}; // compared by other threads, never followed
};

ClientThread::ClientThread(const std::function<void()> &fun, QObject *parent)
    : QThread(parent)
    , d(std::make_unique<Private>())
{
    d->threadFun = fun;
}

ClientThread::~ClientThread()
{
    killThread();
    if (isRunning()) {
        d->abandoned = true;
        quit();
        wait();
    }
}

void ClientThread::setThreadFun(const std::function<void()> &fun)
{
    // The old function dies after the lock: what it captured may call back from its destructor.
    std::function<void()> other = fun;
    const std::lock_guard<std::mutex> lock(d->funMutex);
    d->threadFun.swap(other);
}

bool ClientThread::threadExitFlag() const
{
    return d->exitFlag;
}

void ClientThread::killThread()
{
    d->exitFlag = true;
    disconnect();
    requestInterruption();
    quit();
    QThread *current = QThread::currentThread();
    if (current == d->functionThread)
        current->requestInterruption();
    else if (current != this)
        wait(kStopWait);
}

void ClientThread::run()
{
    setTerminationEnabled(false);
    std::unique_ptr<FunctionThread> function;
    {
        const std::lock_guard<std::mutex> lock(d->funMutex);
        if (!d->threadFun)
            return;
        function = std::make_unique<FunctionThread>(d->threadFun, this);
    }
    d->functionThread = function.get();
    function->setStackSize(stackSize());
    function->start(priority());
    if (!function->isRunning() && !function->isFinished()) {
        d->functionThread = nullptr;
        return; // the system has no thread left
    }

    // The requests below are not virtual in QThread and may come through any pointer to it. quit()
    // and exit() are heard by waiting in an event loop; an interruption must be asked for.
    QTimer relay;
    const auto relayInterruption = [this, &relay, &function] {
        if (!isInterruptionRequested())
            return;
        function->requestInterruption();
        relay.stop();
    };
    connect(&relay, &QTimer::timeout, &relay, relayInterruption);
    relay.start(kRelayInterval);
    while (!function->isDone() && !d->abandoned) {
        const int returnCode = exec();
        relayInterruption();
        function->exit(returnCode);
    }

    if (function->abandon())
        static_cast<void>(function.release());
    else
        function->wait();
    d->functionThread = nullptr;
}
