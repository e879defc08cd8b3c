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

/// Fetches of a drop what will be read of it, and nothing else: its addresses; unless there are
/// files among them, the file that it promises, else its picture, else, unless the first address is
/// a page's, its text. It asks for one thing after the other, and only as long as there is nothing
/// yet. That is the order in which a drop is read.
class DropFetch {
public:
    /// A larger picture, or list of addresses, counts as none.
    static constexpr qsizetype maximumBytes = 256LL * 1024 * 1024;
    /// Decoding a larger text takes longer than a frame may.
    static constexpr qsizetype mostDecodedAtOnce = 1'000'000;

    /// Where a promised file of that name may be written; none where nowhere.
    using FindPlace = std::function<std::optional<QUrl>(const QString &name)>;
    /// Everything that could be had is here.
    using Done = std::function<void(FetchedPasteboard &pasteboard)>;

    /// Where large texts are decoded; at once where there are no queues.
    struct Threads {
        WorkQueue *workQueue = nullptr;
        MainQueue *mainQueue = nullptr;
    };

    DropFetch(std::shared_ptr<IncomingDrag> drag, FindPlace findPlace, Threads threads);
    ~DropFetch() = default;
    DropFetch(const DropFetch &) = delete;
    DropFetch &operator=(const DropFetch &) = delete;

    /// `done` is called once, perhaps before this returns, and may destroy this; not once this is
    /// gone.
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
    /// Fetches one type after the other until there is enough, and goes on with `next`.
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
