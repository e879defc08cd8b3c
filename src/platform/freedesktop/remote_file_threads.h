#pragma once

#include "platform/system/remote_files.h"

#include <deque>
#include <memory>
#include <mutex>

namespace corvane {

class MainQueue;

/// Each operation on a thread of its own, one at a time. A thread that a dead server keeps is given
/// up after a while; it holds nothing that the program needs, and the program's end does not wait
/// for it. When too many are lost, everything is answered with none until one comes back.
class RemoteFileThreads : public RemoteFiles {
public:
    static constexpr double patience = 10;
    static constexpr int maximumLost = 3;

    /// What is done with a file, which may never return. They must use nothing that ends before the
    /// process does.
    struct Operations {
        std::function<std::optional<FileVersion>(const QByteArray &path)> inspect;
        std::function<std::optional<QByteArray>(const QByteArray &path, qint64 limit)> read;
    };

    /// The queue must outlive this.
    explicit RemoteFileThreads(MainQueue &mainQueue);
    RemoteFileThreads(MainQueue &mainQueue, Operations operations);
    RemoteFileThreads(const RemoteFileThreads &) = delete;
    RemoteFileThreads &operator=(const RemoteFileThreads &) = delete;
    ~RemoteFileThreads() override;

    void inspect(const QByteArray &path,
                 std::function<void(std::optional<FileVersion>)> completion) override;
    void read(const QByteArray &path, qint64 limit,
              std::function<void(std::optional<QByteArray>)> completion) override;

private:
    /// Of both kinds of operation one is set.
    struct Result {
        std::optional<FileVersion> version;
        std::optional<QByteArray> contents;
    };
    struct Operation {
        std::function<Result()> run;
        std::function<void(const Result &)> completion;
    };
    /// What threads hold of this object: nothing of it once it is gone.
    struct Link {
        std::mutex mutex;
        RemoteFileThreads *owner = nullptr;
    };

    void add(Operation operation);
    void startNext();
    void returned(int number, const Result &result);
    void gaveUp(int number);
    void finish(const Result &result);

    MainQueue &m_mainQueue;
    Operations m_operations;
    std::deque<Operation> m_waiting;
    /// The completion of what runs.
    std::function<void(const Result &)> m_completion;
    int m_number = 0;
    bool m_isRunning = false;
    int m_lost = 0;
    std::shared_ptr<Link> m_link = std::make_shared<Link>();
};

} // namespace corvane
