#include "platform/freedesktop/proxies/desktop_routes.h"

#include "platform/freedesktop/proxies/command_output.h"
#include "platform/freedesktop/proxies/proxy_sources.h"
#include "platform/regular_file.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;
using Mode = ProxySettings::Mode;

/// A page, its picture and the pages in between ask one after the other.
constexpr std::chrono::seconds settingsAge{5};
/// A portal that did not answer is left alone for a while.
constexpr std::chrono::seconds portalPause{60};
constexpr std::chrono::milliseconds patience{2000};

bool isOnion(const QUrl &url)
{
    QString host = url.host(QUrl::FullyEncoded);
    if (host.endsWith(QLatin1Char('.')))
        host.chop(1);
    return host.endsWith(QLatin1String(".onion"), Qt::CaseInsensitive);
}

/// The settings of the desktop; what another desktop left behind does not count.
ProxySettings desktopSettings(const DesktopRoutes::Sources &sources)
{
    if (sources.environment("XDG_CURRENT_DESKTOP").split(':').contains("KDE")) {
        QByteArray folder = sources.environment("XDG_CONFIG_HOME");
        if (folder.isEmpty())
            folder = sources.environment("HOME") + "/.config";
        return proxy_sources::fromKde(sources.read(folder + "/kioslaverc"), sources.environment);
    }
    const auto listing = sources.run({"gsettings", "list-recursively", "org.gnome.system.proxy"});
    return proxy_sources::fromGnome(listing.value_or(QByteArray()));
}

} // namespace

/// Kept by the threads that search.
struct DesktopRoutes::Search {
    explicit Search(Sources places)
        : m_sources(std::move(places))
    {
    }

    WebRoute routeFor(const QUrl &url)
    {
        const ProxySettings settings = current();
        WebRoute route = settings.routeFor(url);
        // The desktop's own answer for its script, and for what nobody here knows of.
        if (settings.mode != Mode::Manual) {
            const auto answer = askPortal(url);
            const bool isProxied = answer && answer->kind != WebRoute::Kind::Direct;
            if (isProxied)
                route = *answer;
        }
        return withTor(url, route, settings);
    }

    std::atomic<int> running = 0;

private:
    ProxySettings current()
    {
        const std::lock_guard lock(m_mutex);
        if (!m_settings || Clock::now() - m_readAt > settingsAge) {
            m_settings = proxy_sources::fromEnvironment(m_sources.environment);
            if (m_settings->mode == Mode::None)
                m_settings = desktopSettings(m_sources);
            m_readAt = Clock::now();
        }
        return *m_settings;
    }

    std::optional<WebRoute> askPortal(const QUrl &url)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (m_portalFailedAt && Clock::now() - *m_portalFailedAt < portalPause)
                return std::nullopt;
        }
        // Where on the server something is, is nobody's business.
        const QUrl origin = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery
                                         | QUrl::RemoveFragment);
        const auto reply = m_sources.run(
            {"gdbus", "call", "--session", "--timeout", "2", "--dest",
             "org.freedesktop.portal.Desktop", "--object-path", "/org/freedesktop/portal/desktop",
             "--method", "org.freedesktop.portal.ProxyResolver.Lookup", origin.toEncoded() + '/'});
        const std::lock_guard lock(m_mutex);
        if (!reply)
            m_portalFailedAt = Clock::now();
        return reply ? proxy_sources::fromPortal(*reply) : std::nullopt;
    }

    WebRoute withTor(const QUrl &url, const WebRoute &route, const ProxySettings &settings) const
    {
        const bool isByTor
            = route.kind == WebRoute::Kind::Proxied && proxy_address::isTor(route.proxy);
        const bool needsTor = isOnion(url) || route.kind == WebRoute::Kind::Direct;
        if (isByTor || !needsTor)
            return route;
        auto tor = settings.tor();
        for (const char *table : {"/proc/net/tcp", "/proc/net/tcp6"}) {
            if (!tor)
                tor = proxy_sources::listeningTor(m_sources.read(table), m_sources.user);
        }
        if (tor)
            return {WebRoute::Kind::Proxied, *tor};
        return isOnion(url) ? WebRoute{WebRoute::Kind::Unusable} : route;
    }

    Sources m_sources;
    std::mutex m_mutex;
    std::optional<ProxySettings> m_settings;
    Clock::time_point m_readAt;
    std::optional<Clock::time_point> m_portalFailedAt;
};

DesktopRoutes::Sources DesktopRoutes::ofThisSession()
{
    return {
        [](const char *name) { return qgetenv(name); },
        [](const std::vector<QByteArray> &arguments) { return commandOutput(arguments, patience); },
        [](const QByteArray &path) {
            constexpr qint64 maximumBytes = 4'000'000;
            return regular_file::beginning(path, maximumBytes).value_or(QByteArray());
        },
        ::geteuid()};
}

DesktopRoutes::DesktopRoutes(Sources sources)
    : m_search(std::make_shared<Search>(std::move(sources)))
{
}

void DesktopRoutes::find(const QUrl &url, Completion completion)
{
    const WebRoute none{WebRoute::Kind::Unusable};
    if (m_search->running.fetch_add(1) >= maximumSearches) {
        m_search->running.fetch_sub(1);
        return completion(none);
    }
    try {
        std::thread([search = m_search, url, completion] {
            const WebRoute route = search->routeFor(url);
            search->running.fetch_sub(1);
            completion(route);
        }).detach();
    } catch (const std::system_error &) {
        m_search->running.fetch_sub(1);
        completion(none);
    }
}

} // namespace corvane
