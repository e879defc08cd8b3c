#pragma once

#include "platform/web/web_route.h"

#include <QUrl>

#include <functional>

namespace corvane {

/// Knows which way the user wants requests to go.
class WebRoutes {
public:
    using Completion = std::function<void(const WebRoute &)>;

    virtual ~WebRoutes() = default;

    /// Calls `completion` on any thread, also inside this call. It may take long, and cannot be
    /// cancelled: `completion` must not count on anything to live that long. Never asked about this
    /// machine. Any thread.
    virtual void find(const QUrl &url, Completion completion) = 0;
};

} // namespace corvane
