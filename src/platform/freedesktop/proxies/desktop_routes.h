#pragma once

#include "platform/freedesktop/proxies/command_output.h"
#include "platform/web/web_routes.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace corvane {

/// The way that the session's proxies make requests go: those of the environment, else those of the
/// desktop's settings (KDE's own, else GNOME's), else what the desktop portal answers, which is
/// also the one that runs scripts. Where nobody names one, directly; `Unusable` while whoever might
/// name one does not answer.
///
/// Where Tor is in use nothing goes directly: neither what is excepted from a Tor proxy, nor
/// anything while Tor listens on this machine; an onion address goes by Tor or not at all.
///
/// Everything that is asked may hang, so each answer is looked for on a thread of its own, for
/// which nobody waits.
class DesktopRoutes : public WebRoutes {
public:
    /// While so many are looked for, a further one is `Unusable` at once.
    static constexpr int maximumSearches = 16;

    /// Where it looks; any thread.
    struct Sources {
        std::function<QByteArray(const char *name)> environment;
        /// Runs a program of the desktop.
        std::function<CommandOutput(const std::vector<QByteArray> &)> run;
        /// A whole file; empty where there is none.
        std::function<QByteArray(const QByteArray &path)> read;
        unsigned user = 0;
    };
    static Sources ofThisSession();

    explicit DesktopRoutes(Sources sources = ofThisSession());

    void find(const QUrl &url, Completion completion) override;

private:
    struct Search;

    std::shared_ptr<Search> m_search;
};

} // namespace corvane
