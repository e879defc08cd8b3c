// Linked into a program, this writes the time of its event loop's first turn to standard output.

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <ctime>

static void tellFirstTurn()
{
    // Code that waits for an answer before the event loop starts may run a local event loop, which
    // does not count.
    if (QThread::currentThread()->loopLevel() == 0) {
        QTimer::singleShot(0, qApp, tellFirstTurn);
        return;
    }
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    std::printf("%.6f\n",
                static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6);
    std::fflush(stdout);
}

static void armFirstTurn()
{
    QMetaObject::invokeMethod(qApp, tellFirstTurn, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(armFirstTurn)
