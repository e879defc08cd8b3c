#pragma once

#include <QString>

namespace corvane {

/// A proxy that requests go through. It looks up the names of servers; nobody here does.
struct WebProxy {
    enum class Kind { Http, Socks5 };

    Kind kind = Kind::Http;
    QString host;
    quint16 port = 0;
    QString user = {};
    QString password = {};

    bool operator==(const WebProxy &) const = default;
};

/// Which way a request goes.
struct WebRoute {
    enum class Kind {
        Direct,
        Proxied,
        /// A script decides, which nobody here runs. Nothing is sent.
        NeedsScript,
        /// By a proxy of a kind that is not spoken here, or that is not to be had. Nothing is sent.
        Unusable,
    };

    Kind kind = Kind::Direct;
    WebProxy proxy = {};

    bool isWithheld() const { return kind == Kind::NeedsScript || kind == Kind::Unusable; }
    bool operator==(const WebRoute &) const = default;
};

} // namespace corvane
