#pragma once

#include <QObject>

#include <functional>

namespace corvane {

/// Turns SIGTERM, SIGINT and SIGHUP into a call of `onTerminate` on the main thread, where more is
/// allowed than in a signal handler. The first signal also starts the deadline of the end
/// (`end_deadline`). A second one ends the process at once, in case the end hangs. At most one
/// object at a time; the destructor restores the signals' former actions.
class UnixSignals : public QObject {
public:
    explicit UnixSignals(std::function<void()> onTerminate);
    ~UnixSignals() override;

private:
    std::function<void()> m_onTerminate;
    int m_descriptor = -1;
};

} // namespace corvane
