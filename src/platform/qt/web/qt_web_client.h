#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/qt/web/web_network.h"
#include "platform/web/web_client.h"
#include "platform/web/web_downloader.h"

#include <QThread>

#include <chrono>
#include <cstdint>
#include <map>

namespace corvane {

class WebFetches;
struct WebOutcome;

/// The web client on Qt's sockets: one connection for each request, no more of a body in memory
/// than is wanted, a bounded head, and no login for servers that ask for one. A request is sent
/// once and never again. What is not wanted any more is closed at once.
///
/// Names, TLS and decompression have a thread of their own. It is started by the first request and
/// sleeps between requests; there are no connections then and no timers. From https a redirection
/// may lead to http, as a link may in browsers, where the request does not say otherwise.
///
/// Destroying it ends what is under way at once; what was not completed never is.
class QtWebClient : public WebClient, public WebDownloader {
public:
    /// `mainQueue` must outlive it.
    explicit QtWebClient(MainQueue &mainQueue, WebNetwork network = {});
    QtWebClient(const QtWebClient &) = delete;
    QtWebClient &operator=(const QtWebClient &) = delete;
    ~QtWebClient() override;

    void get(const WebRequest &request, Completion completion) override;
    void download(const WebDownload &download, Completion completion) override;

    /// Ends what is under way, and waits no longer than that for the thread; whether it has ended,
    /// so that destroying this waits for nothing.
    bool finish(std::chrono::milliseconds patience);

private:
    struct Awaited {
        std::function<void(const WebRoute &)> onRoute;
        Completion completion;
    };

    template<class Task>
    void start(const Task &task, Awaited awaited);
    void startThread();
    void complete(std::uint64_t number, const WebOutcome &outcome);

    MainQueue &m_mainQueue;
    WebNetwork m_network;
    /// They belong to the main thread and do not leave it.
    std::map<std::uint64_t, Awaited> m_awaited;
    std::uint64_t m_lastNumber = 0;
    QThread m_thread;
    /// Lives on the thread, which ends it.
    WebFetches *m_fetches = nullptr;
    /// Restarted once no more answers are wanted: some may be on their way to the main thread.
    Lifetime m_lifetime;
};

} // namespace corvane
