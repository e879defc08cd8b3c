#pragma once

#include "platform/base/main_queue.h"
#include "platform/desktop/incoming_drag.h"
#include "platform/system/file_descriptor.h"
#include "platform/wayland/drags/pipe_notifier.h"

#include <memory>

namespace corvane {

/// Reads what another program writes into a pipe, until it closes it, without blocking and no more
/// than is wanted. A writer that sends nothing for a while, or takes too long in all, is given up.
/// Destroying it closes the pipe. The queue must outlive it.
class PipeIntake {
public:
    /// In seconds: a source that sends nothing for so long is given up. Some programs only now make
    /// what they offer, from a large document.
    static constexpr double patience = 30;
    /// In seconds: the most that it may take in all.
    static constexpr double longest = 600;
    /// In bytes: how much is taken in one turn of the event loop.
    static constexpr qsizetype sliceBytes = 1024LL * 1024;

    /// `done` is called once, later, and may destroy this.
    PipeIntake(MainQueue &queue, FileDescriptor pipe, qsizetype maximumBytes,
               IncomingDrag::Fetched done);
    PipeIntake(const PipeIntake &) = delete;
    PipeIntake &operator=(const PipeIntake &) = delete;

private:
    void read();
    void giveUpTheSilent();
    void finish(IncomingDrag::Outcome outcome);

    MainQueue &m_queue;
    FileDescriptor m_pipe;
    qsizetype m_maximumBytes;
    IncomingDrag::Fetched m_done;
    QByteArray m_bytes;
    double m_begun;
    double m_lastProgress;
    PipeNotifier m_notifier;
    std::unique_ptr<MainQueue::Timer> m_patienceTimer;
};

} // namespace corvane
