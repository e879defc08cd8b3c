#pragma once

#include "platform/qt/web/web_fetch.h"
#include "platform/qt/web/web_network.h"

#include <QObject>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace corvane {

/// The fetches that are under way and those that wait for their turn. Lives on the web client's
/// thread.
class WebFetches : public QObject {
public:
    /// A page is a few megabytes at most, and somebody may drop hundreds of links at once. The
    /// time of a fetch begins with its turn.
    static constexpr size_t maximumAtOnce = 6;

    using Deliver = std::function<void(std::uint64_t, const WebOutcome &)>;

    WebFetches(WebNetwork network, Deliver deliver);
    WebFetches(const WebFetches &) = delete;
    WebFetches &operator=(const WebFetches &) = delete;
    ~WebFetches() override;

    void add(std::uint64_t number, const WebRequest &request);
    void add(std::uint64_t number, const WebDownload &download);

private:
    using Make = std::function<std::unique_ptr<WebFetch>()>;

    void add(std::uint64_t number, Make make);
    void startNext();
    void ended(std::uint64_t number, const WebOutcome &outcome);

    WebNetwork m_network;
    Deliver m_deliver;
    std::deque<std::pair<std::uint64_t, Make>> m_waiting;
    std::map<std::uint64_t, std::unique_ptr<WebFetch>> m_running;
};

} // namespace corvane
