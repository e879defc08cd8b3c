#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/wayland/drags/delivery.h"
#include "platform/wayland/drags/pipe_notifier.h"

namespace corvane {

/// Writes into a pipe as its reader takes what is in it.
///
///     writing --all written--> closed for writing, looked at --the pipe is empty--> ended, whole
///        +--the reader has closed it--> ended
///
/// A reader that waits for the end of the pipe would wait for ever if it stayed open until all is
/// taken. So it is closed, and looked into from its other end. What is no pipe counts as taken once
/// it is written. The queue must outlive it.
class PipeDelivery : public Delivery {
public:
    /// In bytes: the most that is written in one turn of the event loop.
    static constexpr qsizetype mostAtOnce = 1024LL * 1024;
    /// In seconds: the shortest and the longest time between two looks.
    static constexpr double firstLook = 0.01;
    static constexpr double slowestLook = 0.5;

    PipeDelivery(MainQueue &queue, FileDescriptor pipe, QByteArray bytes, Events events);
    ~PipeDelivery() override;

    bool isWritten() const override { return m_isWritten; }
    void look() override;

private:
    void write();
    void allWritten();
    void lookAgain();
    void end(bool isWhole);

    MainQueue &m_queue;
    FileDescriptor m_pipe;
    QByteArray m_bytes;
    Events m_events;
    qsizetype m_written = 0;
    bool m_isWritten = false;
    int m_unread = 0;
    double m_pause = firstLook;
    PipeNotifier m_notifier;
    Lifetime m_nextLook;
    Lifetime m_lifetime;
};

} // namespace corvane
