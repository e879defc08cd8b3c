#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// The private directory for files of the shelf's own making. It lives for one run.
///
/// The temporary directory may belong to everybody. So a directory that stands there already is
/// used only if it is a real one, ours and closed to others, and one that lives is told by the lock
/// that its process holds on it: a process number says nothing once it was given out again, or in
/// another container. Without a safe directory there is no spool, and callers keep their bytes.
class ScratchSpool {
public:
    static constexpr int maximumBasenameCharacters = 120;
    /// What file systems allow for a name, with number and extension.
    static constexpr int maximumNameBytes = 255;

    /// `temporaryDirectory` is a native path. Nothing is made before the first use.
    ScratchSpool(QByteArray temporaryDirectory, qint64 processIdentifier);
    ~ScratchSpool();
    ScratchSpool(const ScratchSpool &) = delete;
    ScratchSpool &operator=(const ScratchSpool &) = delete;

    /// The directory's address, whether or not it could be made.
    QUrl directory() const;
    /// A free address for a new file, which the caller writes; none when there is no directory that
    /// is safe to use.
    std::optional<QUrl> reserve(const QString &basename, const QString &extension);
    /// Reserves, writes the bytes atomically and gives the address; none, and nothing left behind,
    /// when the bytes could not be written.
    std::optional<QUrl> store(const QByteArray &data, const QString &basename,
                              const QString &extension);
    /// Whether the address lies in the directory, by whole path components, the parent resolved.
    bool contains(const QUrl &url) const;
    /// Deletes one spooled file; an address outside is left alone, a failure ignored.
    void discard(const QUrl &url) const;
    /// Deletes the directory and everything in it. Where that is more than a moment's work, a
    /// process that outlives this one does the rest.
    void discardAll();
    /// Work that removes what dead processes of this user left in the temporary directory, for any
    /// thread; it does not need this object. What a dead process of this number left gets another
    /// name at once, so that the work never meets the directory that is used here.
    [[nodiscard]] std::function<void()> leftoversRemoval() const;

    static QString safeBasename(const QString &name);

private:
    bool open();
    void close();
    bool stillStands() const;
    QByteArray freePath(const QString &basename, const QString &extension) const;

    QByteArray m_temporaryDirectory;
    QByteArray m_directory;
    /// The directory with links on the way to it resolved; empty while it is not open.
    QByteArray m_resolvedDirectory;
    /// The open directory, which carries the lock; -1 while it is not open.
    int m_descriptor = -1;
};

} // namespace corvane
