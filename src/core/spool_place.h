#pragma once

#include <QByteArray>
#include <QUrl>

#include <atomic>

namespace corvane {

/// A name in the spool, kept for a file that is still being made: nobody else is given it while
/// this lives. Any thread.
class SpoolPlace {
public:
    explicit SpoolPlace(QUrl url);

    const QUrl &url() const { return m_url; }
    /// False once the file was discarded: whoever makes it can stop.
    bool isWanted() const { return m_isWanted; }
    void giveUp() { m_isWanted = false; }
    /// Writes the whole file, at once for all who read it. False, and nothing left behind, when it
    /// is not wanted any more or cannot be written.
    bool write(const QByteArray &data) const;

private:
    const QUrl m_url;
    std::atomic<bool> m_isWanted = true;
};

} // namespace corvane
