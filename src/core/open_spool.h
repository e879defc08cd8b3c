#pragma once

#include <QByteArray>

namespace corvane {

/// A spool's directory while it is held open and locked. Never changes, so that any thread may use
/// it; the lock goes with the last who holds one.
class OpenSpool {
public:
    /// `descriptor` is the locked directory, which is closed along with this.
    OpenSpool(QByteArray directory, int descriptor);
    OpenSpool(const OpenSpool &) = delete;
    OpenSpool &operator=(const OpenSpool &) = delete;
    ~OpenSpool();

    /// Who tidies the temporary directory may have taken it away.
    bool stillStands() const;
    /// Whether the path lies in it, by whole path components, the parent resolved.
    bool contains(const QByteArray &path) const;
    /// Deletes what is at the path; nothing outside.
    void remove(const QByteArray &path) const;

private:
    QByteArray m_directory;
    /// With links on the way to it resolved.
    QByteArray m_resolvedDirectory;
    int m_descriptor;
};

} // namespace corvane
