#include "platform/qt/web/qt_web_client.h"

#include "platform/qt/web/web_fetches.h"

#include <QDeadlineTimer>

#include <utility>

namespace corvane {

QtWebClient::QtWebClient(MainQueue &mainQueue, WebNetwork network)
    : m_mainQueue(mainQueue)
    , m_network(std::move(network))
{
    m_thread.setObjectName(QStringLiteral("web"));
}

QtWebClient::~QtWebClient()
{
    m_thread.quit();
    m_thread.wait();
}

bool QtWebClient::finish(std::chrono::milliseconds patience)
{
    m_lifetime.restart();
    m_thread.quit();
    return m_thread.wait(QDeadlineTimer(patience));
}

void QtWebClient::get(const WebRequest &request, Completion completion)
{
    WebRequest task = request;
    task.onRoute = nullptr;
    start(task, {request.onRoute, std::move(completion)});
}

void QtWebClient::download(const WebDownload &download, Completion completion)
{
    WebDownload task = download;
    task.request.onRoute = nullptr;
    start(task, {download.request.onRoute, std::move(completion)});
}

template<class Task>
void QtWebClient::start(const Task &task, Awaited awaited)
{
    if (!m_fetches)
        startThread();
    const std::uint64_t number = ++m_lastNumber;
    m_awaited.emplace(number, std::move(awaited));
    QMetaObject::invokeMethod(
        m_fetches, [fetches = m_fetches, number, task] { fetches->add(number, task); },
        Qt::QueuedConnection);
}

void QtWebClient::startThread()
{
    const auto answered = m_lifetime.guard(
        [this](std::uint64_t number, const WebOutcome &outcome) { complete(number, outcome); });
    m_fetches = new WebFetches(
        std::move(m_network),
        [&mainQueue = m_mainQueue, answered](std::uint64_t number, const WebOutcome &outcome) {
            mainQueue.async([answered, number, outcome] { answered(number, outcome); });
        });
    m_fetches->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_fetches, &QObject::deleteLater);
    m_thread.start();
}

void QtWebClient::complete(std::uint64_t number, const WebOutcome &outcome)
{
    // Taken out first: a completion may start another request or destroy this object.
    const auto awaited = m_awaited.extract(number);
    if (awaited.mapped().onRoute)
        awaited.mapped().onRoute(outcome.route);
    awaited.mapped().completion(outcome.response);
}

} // namespace corvane
