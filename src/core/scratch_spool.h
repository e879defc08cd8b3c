#pragma once

#include "core/open_spool.h"
#include "core/spool_deletions.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class SpoolPlace;
class WorkQueue;

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

    /// `temporaryDirectory` is a native path. Nothing is made before the first use. Single files
    /// are deleted on the queue, which must outlive this; at once where there is none.
    ScratchSpool(QByteArray temporaryDirectory, qint64 processIdentifier,
                 WorkQueue *deletionQueue = nullptr);
    ~ScratchSpool();
    ScratchSpool(const ScratchSpool &) = delete;
    ScratchSpool &operator=(const ScratchSpool &) = delete;

    /// The directory's address, whether or not it could be made.
    QUrl directory() const;
    /// A free address for a new file, which the caller writes; none when there is no directory that
    /// is safe to use.
    std::optional<QUrl> reserve(const QString &basename, const QString &extension);
    /// The same for a file that will be written later, perhaps on another thread: its name is kept
    /// for it. Discarding that name before gives the file up.
    std::shared_ptr<SpoolPlace> keepPlace(const QString &basename, const QString &extension);
    /// Reserves, writes the bytes atomically and gives the address; none, and nothing left behind,
    /// when the bytes could not be written.
    std::optional<QUrl> store(const QByteArray &data, const QString &basename,
                              const QString &extension);
    /// Whether the address lies in the directory, by whole path components, the parent resolved.
    bool contains(const QUrl &url) const;
    /// Has one spooled file deleted; an address outside is left alone, a failure ignored. Its name
    /// is not given out again before it is gone.
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
    bool stillStands() const;
    bool isKept(const QByteArray &path) const;
    QByteArray freePath(const QString &basename, const QString &extension) const;

    QByteArray m_temporaryDirectory;
    QByteArray m_directory;
    /// None while it is not open.
    std::shared_ptr<const OpenSpool> m_open;
    mutable SpoolDeletions m_deletions;
    /// By their paths; those that are gone are dropped from time to time.
    QHash<QByteArray, std::weak_ptr<SpoolPlace>> m_places;
    qsizetype m_tidyPlacesAt = 64;
};

} // namespace corvane
