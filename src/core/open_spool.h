#pragma once

#include <QByteArray>

namespace corvane {

/// A spool's directory, held open and locked. Immutable, so any thread may use it. Work on other
/// threads shares it; the lock is released when its last owner lets go.
class OpenSpool {
public:
    /// `descriptor` is the locked directory, which is closed along with this.
    OpenSpool(QByteArray directory, int descriptor);
    OpenSpool(const OpenSpool &) = delete;
    OpenSpool &operator=(const OpenSpool &) = delete;
    ~OpenSpool();

    /// Whether the directory is still at its path. A program that cleans the temporary directory
    /// may have removed it.
    bool stillStands() const;
    /// Whether the path lies in it: compared by whole components, with symbolic links in the parent
    /// resolved.
    bool contains(const QByteArray &path) const;
    /// Deletes the file or directory at the path; paths outside are left alone.
    void remove(const QByteArray &path) const;

private:
    QByteArray m_directory;
    /// With all symbolic links resolved.
    QByteArray m_resolvedDirectory;
    int m_descriptor;
};

} // namespace corvane
