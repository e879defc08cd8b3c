#pragma once

#include <QObject>

#include <functional>

namespace corvane {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread, where there is more to do than
/// a signal handler may. One at a time; destroying it restores what the signals did before. A
/// second signal ends the process at once, in case the first one's work never comes to its end; the
/// first one begins the deadline of the end where there is one.
class UnixSignals : public QObject {
public:
    explicit UnixSignals(std::function<void()> onTerminate);
    ~UnixSignals() override;

private:
    std::function<void()> m_onTerminate;
    int m_descriptor = -1;
};

} // namespace corvane
