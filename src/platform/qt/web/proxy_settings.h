#pragma once

#include <QByteArray>
#include <QUrl>

namespace corvane {

/// The proxies that the environment names.
///
/// Nothing is fetched where one is to be used. Past it would show the user to those from whom the
/// proxy is there to hide them; through it, nobody here would see which machine a name leads to,
/// and a page could have the proxy knock at doors behind the user's walls.
struct ProxySettings {
    QByteArray http;
    QByteArray https;
    /// Hosts that are reached without one: names, each with all below it, or "*".
    QByteArray none;

    /// Reads the variables that command-line programs read.
    static ProxySettings fromEnvironment();

    /// This machine never takes a proxy.
    bool apply(const QUrl &url) const;
};

} // namespace corvane
