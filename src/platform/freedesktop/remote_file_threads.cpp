#include "platform/freedesktop/remote_file_threads.h"

#include "platform/base/main_queue.h"
#include "platform/system/regular_file.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

RemoteFileThreads::RemoteFileThreads(MainQueue &mainQueue)
    : RemoteFileThreads(mainQueue, {FileVersion::at, regular_file::contents})
{
}

RemoteFileThreads::RemoteFileThreads(MainQueue &mainQueue, Operations operations)
    : m_mainQueue(mainQueue)
    , m_operations(std::move(operations))
{
    m_link->owner = this;
}

RemoteFileThreads::~RemoteFileThreads()
{
    const std::lock_guard lock(m_link->mutex);
    m_link->owner = nullptr;
}

void RemoteFileThreads::inspect(const QByteArray &path,
                                std::function<void(std::optional<FileVersion>)> completion)
{
    add({[inspect = m_operations.inspect, path] {
             return Result{inspect(path), std::nullopt};
         },
         [completion = std::move(completion)](const Result &result) {
             completion(result.version);
         }});
}

void RemoteFileThreads::read(const QByteArray &path, qint64 limit,
                             std::function<void(std::optional<QByteArray>)> completion)
{
    add({[read = m_operations.read, path, limit] {
             return Result{std::nullopt, read(path, limit)};
         },
         [completion = std::move(completion)](const Result &result) {
             completion(result.contents);
         }});
}

void RemoteFileThreads::add(Operation operation)
{
    m_waiting.push_back(std::move(operation));
    // Later, so that no completion is called inside its caller's own call.
    m_mainQueue.async([link = m_link] {
        // Only the main thread ends the owner.
        if (link->owner)
            link->owner->startNext();
    });
}

void RemoteFileThreads::startNext()
{
    if (m_isRunning || m_waiting.empty())
        return;
    Operation operation = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_isRunning = true;
    m_completion = std::move(operation.completion);
    const int number = ++m_number;
    if (m_lost >= maximumLost) {
        finish({});
        return;
    }
    try {
        std::thread([link = m_link, number, run = std::move(operation.run)] {
            Result result = run();
            const std::lock_guard lock(link->mutex);
            if (!link->owner)
                return;
            link->owner->m_mainQueue.async([link, number, result = std::move(result)] {
                if (link->owner)
                    link->owner->returned(number, result);
            });
        }).detach();
    } catch (const std::system_error &) {
        // There are no more threads to be had.
        finish({});
        return;
    }
    m_mainQueue.asyncAfter(patience, [link = m_link, number] {
        if (link->owner)
            link->owner->gaveUp(number);
    });
}

void RemoteFileThreads::returned(int number, const Result &result)
{
    const bool isAwaited = m_isRunning && number == m_number;
    if (isAwaited)
        finish(result);
    else
        --m_lost;
}

void RemoteFileThreads::gaveUp(int number)
{
    if (!m_isRunning || number != m_number)
        return;
    ++m_lost;
    finish({});
}

void RemoteFileThreads::finish(const Result &result)
{
    m_isRunning = false;
    const auto completion = std::exchange(m_completion, nullptr);
    if (!m_waiting.empty()) {
        m_mainQueue.async([link = m_link] {
            if (link->owner)
                link->owner->startNext();
        });
    }
    completion(result);
}

} // namespace corvane
