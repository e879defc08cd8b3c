#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/incoming_drag.h"
#include "platform/qt/pasteboard/fetched_pasteboard.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class MainQueue;
class WorkQueue;

/// Fetches from the source of a drop only what will be read of it, one type after the other, and
/// stops when something was found: first the addresses; if there are no files among them, the file
/// that the source promises; else the picture; else the text, unless the first address is a web
/// page. Drops are read in the same order.
class DropFetch {
public:
    /// In bytes: a larger picture or address list counts as missing.
    static constexpr qsizetype maximumBytes = 256LL * 1024 * 1024;
    /// In bytes: larger texts are decoded on another thread, because it takes longer than a frame.
    static constexpr qsizetype mostDecodedAtOnce = 1'000'000;

    /// Gives the place where a promised file of that name may be written; none if there is none.
    using FindPlace = std::function<std::optional<QUrl>(const QString &name)>;
    /// Called with everything that could be fetched.
    using Done = std::function<void(FetchedPasteboard &pasteboard)>;

    /// Where large texts are decoded; without queues on the calling thread.
    struct Threads {
        WorkQueue *workQueue = nullptr;
        MainQueue *mainQueue = nullptr;
    };

    DropFetch(std::shared_ptr<IncomingDrag> drag, FindPlace findPlace, Threads threads);
    ~DropFetch() = default;
    DropFetch(const DropFetch &) = delete;
    DropFetch &operator=(const DropFetch &) = delete;

    /// Begins. `done` is called once, perhaps before this returns, and may destroy this. Not called
    /// after this is destroyed.
    void start(Done done);

    IncomingDrag &drag() { return *m_drag; }

private:
    using Step = void (DropFetch::*)();
    using Suffices = std::function<bool()>;

    void fetchAddresses();
    void fetchPromisedFile();
    void fetchPicture();
    bool hasPicture();
    void fetchText();
    /// Fetches `types` one after the other until `suffices` holds, then calls `next`.
    struct Wish {
        QStringList types;
        qsizetype limit;
        Suffices suffices;
        Step next;
    };
    void fetchUntil(Wish wish);
    void keep(const QString &type, const QByteArray &bytes, const Wish &wish);
    void keepLargeText(const QString &type, const QByteArray &bytes, const Wish &wish);
    void goOn(const Wish &wish);
    void finish();

    std::shared_ptr<IncomingDrag> m_drag;
    FindPlace m_findPlace;
    Threads m_threads;
    Done m_done;
    FetchedPasteboard m_pasteboard;
    Lifetime m_lifetime;
};

} // namespace corvane
