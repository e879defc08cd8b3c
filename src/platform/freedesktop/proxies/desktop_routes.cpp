#include "platform/freedesktop/proxies/desktop_routes.h"

#include "platform/freedesktop/proxies/proxy_sources.h"
#include "platform/system/regular_file.h"

#include <unistd.h>

#include <cstdlib>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;
using Mode = ProxySettings::Mode;

/// How long settings are kept: the requests for a page and its picture follow each other.
constexpr std::chrono::seconds settingsAge{5};
/// How long a portal that did not answer is not asked again.
constexpr std::chrono::seconds portalPause{60};
constexpr std::chrono::milliseconds patience{2000};

WebRoute unusable()
{
    return {WebRoute::Kind::Unusable};
}

bool isOnion(const QUrl &url)
{
    QString host = url.host(QUrl::FullyEncoded);
    if (host.endsWith(QLatin1Char('.')))
        host.chop(1);
    return host.endsWith(QLatin1String(".onion"), Qt::CaseInsensitive);
}

/// The settings of the desktop, none where they are not to be had; what another desktop left behind
/// does not count.
std::optional<ProxySettings> desktopSettings(const DesktopRoutes::Sources &sources)
{
    if (sources.environment("XDG_CURRENT_DESKTOP").split(':').contains("KDE")) {
        QByteArrayList files;
        for (const QByteArray &path : proxy_sources::kdePaths(sources.environment))
            files.append(sources.read(path));
        return proxy_sources::fromKde(files, sources.environment);
    }
    const auto listing = sources.run({"gsettings", "list-recursively", "org.gnome.system.proxy"});
    if (listing.end == CommandOutput::End::Unknown)
        return std::nullopt;
    return proxy_sources::fromGnome(listing.text);
}

} // namespace

/// What the searching threads share; they may outlive the object.
struct DesktopRoutes::Search {
    explicit Search(Sources places)
        : m_sources(std::move(places))
    {
    }

    WebRoute routeFor(const QUrl &url)
    {
        const auto settings = current();
        // Settings that cannot be read may name a proxy, so the request is withheld.
        const WebRoute route = settings ? routeBy(*settings, url) : unusable();
        return withTor(url, route, settings.value_or(ProxySettings()));
    }

    std::atomic<int> running = 0;

private:
    /// None where they are not to be had.
    std::optional<ProxySettings> current()
    {
        const auto asked = Clock::now();
        const std::lock_guard lock(m_mutex);
        // A failed reading counts only for threads that were waiting for it.
        if (m_settings ? Clock::now() - m_readAt > settingsAge : m_readAt <= asked) {
            m_settings = proxy_sources::fromEnvironment(m_sources.environment);
            if (m_settings->mode == Mode::None)
                m_settings = desktopSettings(m_sources);
            m_readAt = Clock::now();
        }
        return m_settings;
    }

    WebRoute routeBy(const ProxySettings &settings, const QUrl &url)
    {
        const WebRoute route = settings.routeFor(url);
        if (settings.mode == Mode::Manual)
            return route;
        // The portal runs the desktop's script, and knows settings that are not read here.
        const auto answer = askPortal(url);
        const bool isProxied = answer && answer->kind != WebRoute::Kind::Direct;
        return isProxied ? *answer : route;
    }

    /// None where there is no portal or it knows no answer; unusable while it is silent.
    std::optional<WebRoute> askPortal(const QUrl &url)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (m_portalFailedAt && Clock::now() - *m_portalFailedAt < portalPause)
                return std::nullopt;
        }
        // The portal is told the server and nothing of the path.
        const QUrl origin = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery
                                         | QUrl::RemoveFragment);
        const auto reply = m_sources.run(
            {"gdbus", "call", "--session", "--dest", "org.freedesktop.portal.Desktop",
             "--object-path", "/org/freedesktop/portal/desktop", "--method",
             "org.freedesktop.portal.ProxyResolver.Lookup", origin.toEncoded() + '/'});
        if (reply.end == CommandOutput::End::Unknown)
            return unusable();
        if (reply.end == CommandOutput::End::Well)
            return proxy_sources::fromPortal(reply.text);
        const std::lock_guard lock(m_mutex);
        m_portalFailedAt = Clock::now();
        return std::nullopt;
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
        return isOnion(url) ? unusable() : route;
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
    if (m_search->running.fetch_add(1) >= maximumSearches) {
        m_search->running.fetch_sub(1);
        return completion(unusable());
    }
    try {
        std::thread([search = m_search, url, completion] {
            const WebRoute route = search->routeFor(url);
            search->running.fetch_sub(1);
            completion(route);
        }).detach();
    } catch (const std::system_error &) {
        m_search->running.fetch_sub(1);
        completion(unusable());
    }
}

} // namespace corvane
