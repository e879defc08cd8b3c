#pragma once

#include "platform/web/web_route.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// How far the machine behind an address is away. A place may lead to one that is as far away or
/// farther, never to one that is nearer: strangers on the web must not reach what stands behind
/// the user's own walls.
enum class AddressSpace {
    /// This machine.
    Loopback,
    /// The network at hand: private, link-local, shared and unique local addresses.
    Private,
    /// The internet.
    Public,
};

/// One GET request.
struct WebRequest {
    /// Its user name and password are not sent.
    QUrl url;
    QByteArray userAgent;
    /// What the "Accept" header says; empty for none.
    QByteArray accept;
    /// How many bytes of the body, as they are after decompression, are wanted. The transfer ends
    /// there; it counts as complete.
    qint64 maximumBytes = 0;
    /// Where the address was found: the farthest place of the chain that led to it. None when the
    /// user gave the address, who may look wherever they like.
    std::optional<AddressSpace> foundIn;
    /// Only https will do, and http to this machine; no redirection may lead to http at all.
    bool mustBeSecure = false;
    /// Called before the completion, on the main thread, with the way that the request went last,
    /// or would have had to go. May be none.
    std::function<void(const WebRoute &)> onRoute = {};
};

struct WebResponse {
    int statusCode = 0;
    /// The body's length as the server declared it, -1 when it is not known, as with a compressed
    /// body.
    qint64 expectedContentLength = -1;
    /// The final address after redirects.
    QUrl url;
    QByteArray body;
    /// The farthest place that the request went through; what this response names is found there.
    AddressSpace foundIn = AddressSpace::Public;
};

/// Fetches from the web, the way that the user wants it to be reached: http and https alone, no
/// cookies, no cache, no stored credentials, nothing kept on disk.
class WebClient {
public:
    /// A request ends when no byte came for this long.
    static constexpr double requestTimeout = 6;
    /// And after this many seconds in all, redirects included.
    static constexpr double resourceTimeout = 10;
    static constexpr int maximumRedirects = 10;

    using Completion = std::function<void(std::optional<WebResponse>)>;

    virtual ~WebClient() = default;

    /// Calls `completion` exactly once, later, on the main thread: with whatever the server
    /// answered, or with none after a transport error, a time-out or a forbidden address. Main
    /// thread only; does not block it.
    virtual void get(const WebRequest &request, Completion completion) = 0;
};

} // namespace corvane
