#pragma once

#include "platform/base/main_queue.h"
#include "platform/qt/base/work_inbox.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

#include <deque>
#include <memory>

class QSocketNotifier;

namespace corvane {

/// The main queue on Qt's event loop, nested loops included. Must be made on the main thread, after
/// the application object.
///
/// Waiting work runs in slices of limited time, between which the event loop handles painting and
/// input, so that thousands of results that arrive at once do not delay a frame. Without work or
/// timers nothing wakes the process up.
class QtMainQueue : public QObject, public MainQueue {
public:
    /// In nanoseconds: about a quarter of a frame at 60 Hz.
    static constexpr qint64 sliceNanoseconds = 4'000'000;

    QtMainQueue();
    ~QtMainQueue() override;

    void async(Work work) override;
    void asyncAfter(double seconds, Work work) override;
    [[nodiscard]] std::unique_ptr<Timer> repeating(double seconds, Work work) override;
    double now() const override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void wokenUp();
    void runSlice();
    bool takeNext(Work &work);

    /// Work taken over from `m_waiting`, in its order.
    std::deque<Work> m_ready;
    WorkInbox m_waiting;
    /// An eventfd that other threads write to and the event loop watches. Not a posted event,
    /// because posting takes a lock that the main thread takes in every turn.
    int m_wakeUp = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QBasicTimer m_nextSlice;
    QElapsedTimer m_clock;
};

} // namespace corvane
