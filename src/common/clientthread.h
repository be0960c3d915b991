#pragma once

#include "vellum_export.h"

#include <QThread>

#include <functional>
#include <memory>

/// A thread that runs one function and can be stopped.
///
/// The function stops by itself, once it sees threadExitFlag() or QThread's
/// isInterruptionRequested() (of this object or of QThread::currentThread()). If it runs an event
/// loop of its own, quit() and exit() end that loop. It runs on a helper thread that belongs to
/// this one, with this one's stack size and start priority, so an object that it makes lives on
/// that helper. An exception that leaves the function counts as its end.
///
/// A function that doesn't stop is left behind by the destructor, never terminated: it goes on with
/// its own copy of what it captured. It must not touch the ClientThread, nor anything else that may
/// be gone; QThread::currentThread()->isInterruptionRequested() is safe to ask at any time.
///
/// All functions but run() may be called from any thread; the destructor may be called by the
/// function itself. terminate() has no effect.
class VELLUM_EXPORT ClientThread : public QThread
{
    Q_OBJECT

public:
    /// The thread doesn't start by itself. An empty \a fun makes a thread that ends at once.
    explicit ClientThread(const std::function<void()> &fun, QObject *parent = nullptr);
    /// Does what killThread() does, and leaves the function behind if it still runs then.
    ~ClientThread() override;

    /// Counts from the next start on; a function that runs already goes on.
    void setThreadFun(const std::function<void()> &fun);
    /// Whether killThread() was called. It stays so, also for a thread that is started again.
    bool threadExitFlag() const;
    /// Asks the function to stop, disconnects everything from this object, finished() included, and
    /// waits at most 3000 milliseconds for the end. Called by the function itself it doesn't wait.
    void killThread();

protected:
    void run() override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
