#pragma once

#include "platform/base/cancellation.h"
#include "platform/web/web_client.h"

#include <functional>
#include <memory>

namespace corvane {

/// A file to be fetched that is too large to be held in memory.
struct WebDownload {
    WebRequest request;
    /// Is given the body of an answer of status 200, piece by piece, on the client's thread, and
    /// stores it; whatever it keeps is kept until the end. False ends the transfer.
    std::function<bool(const QByteArray &)> take;
    /// Ends the transfer from any thread; may be none.
    std::shared_ptr<Cancellation> cancellation;
};

/// Fetches files from the web, by the rules of `WebClient`, but with more patience.
class WebDownloader {
public:
    /// A download ends when no byte came for this many seconds.
    static constexpr double silenceTimeout = 30;
    /// And after this many in all.
    static constexpr double wholeTimeout = 3600;

    virtual ~WebDownloader() = default;

    /// Calls `completion` exactly once, later, on the main thread: with the answer, whose body is
    /// empty, or with none after a transport error, a time-out, a forbidden address, a body that is
    /// shorter than declared, a cancellation, or a piece that was not taken. Main thread only; does
    /// not block it.
    virtual void download(const WebDownload &download, WebClient::Completion completion) = 0;
};

} // namespace corvane
