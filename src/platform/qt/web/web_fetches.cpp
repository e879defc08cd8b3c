#include "platform/qt/web/web_fetches.h"

#include <QNetworkProxy>

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
    add(number,
        [this, request] { return std::make_unique<WebFetch>(manager(), m_network, request); });
}

void WebFetches::add(std::uint64_t number, const WebDownload &download)
{
    add(number,
        [this, download] { return std::make_unique<WebFetch>(manager(), m_network, download); });
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
        fetch->onEnd = [this, id = number](std::optional<WebResponse> response) {
            ended(id, std::move(response));
        };
        WebFetch &started = *fetch;
        m_running.emplace(number, std::move(fetch));
        started.start();
    }
}

QNetworkAccessManager &WebFetches::manager()
{
    if (!m_manager) {
        m_manager = std::make_unique<QNetworkAccessManager>();
        m_manager->setProxy(QNetworkProxy::NoProxy);
    }
    return *m_manager;
}

void WebFetches::ended(std::uint64_t number, std::optional<WebResponse> response)
{
    auto fetch = m_running.extract(number);
    // It is the one that calls.
    fetch.mapped().release()->deleteLater();
    m_deliver(number, std::move(response));
    startNext();
}

} // namespace corvane
