#pragma once

#include <QSocketNotifier>

#include <memory>

namespace corvane {

/// Tells nothing any more, and goes away once it is not telling something just now.
struct RetireNotifier {
    void operator()(QSocketNotifier *notifier) const
    {
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
};

/// A socket notifier that may be reset by what it tells.
using PipeNotifier = std::unique_ptr<QSocketNotifier, RetireNotifier>;

} // namespace corvane
