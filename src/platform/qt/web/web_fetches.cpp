#include "platform/qt/web/web_fetches.h"

#include <utility>

namespace corvane {

WebFetches::WebFetches(WebNetwork network, Deliver deliver)
    : m_network(std::move(network))
    , m_deliver(std::move(deliver))
{
}

WebFetches::~WebFetches() = default;

void WebFetches::add(std::uint64_t number, const WebRequest &request)
{
    add(number, [this, request] { return std::make_unique<WebFetch>(m_network, request); });
}

void WebFetches::add(std::uint64_t number, const WebDownload &download)
{
    add(number, [this, download] { return std::make_unique<WebFetch>(m_network, download); });
}

void WebFetches::add(std::uint64_t number, Make make)
{
    m_waiting.emplace_back(number, std::move(make));
    startNext();
}

void WebFetches::startNext()
{
    while (!m_waiting.empty() && m_running.size() < maximumAtOnce) {
        auto [number, make] = std::move(m_waiting.front());
        m_waiting.pop_front();
        auto fetch = make();
        fetch->onEnd = [this, id = number](const WebOutcome &outcome) { ended(id, outcome); };
        WebFetch &started = *fetch;
        m_running.emplace(number, std::move(fetch));
        started.start();
    }
}

void WebFetches::ended(std::uint64_t number, const WebOutcome &outcome)
{
    auto fetch = m_running.extract(number);
    // Deleted later, because the fetch is what calls this function.
    fetch.mapped().release()->deleteLater();
    m_deliver(number, outcome);
    startNext();
}

} // namespace corvane
