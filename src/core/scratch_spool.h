#pragma once

#include "core/open_spool.h"
#include "core/spool_deletions.h"
#include "core/spool_loans.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class SpoolPlace;
class WorkQueue;

/// The private directory for files that the shelf makes itself. It exists for one run of the
/// program.
///
/// The temporary directory may be shared by all users. So a directory that exists already is used
/// only if it is a real directory, owned by this user and closed to others. Whether one is in use
/// is told by the lock that its process holds on it, not by the process number in its name, which
/// may have been given out again or belong to another container. Without a safe directory there is
/// no spool: functions return none, and callers keep their bytes in memory.
///
/// Main thread only, but for `leftoversRemoval`.
class ScratchSpool {
public:
    /// The longest name that is kept, in characters as people count them, without number and
    /// extension.
    static constexpr int maximumBasenameCharacters = 120;
    /// The longest file name, in bytes, that Linux file systems allow; number and extension
    /// included.
    static constexpr int maximumNameBytes = 255;

    /// `temporaryDirectory` is a native path. The spool's directory is made at its first use.
    /// Single files are deleted on `deletionQueue`, which must outlive this; without one they are
    /// deleted inside `discard`.
    ScratchSpool(QByteArray temporaryDirectory, qint64 processIdentifier,
                 WorkQueue *deletionQueue = nullptr);
    ~ScratchSpool();
    ScratchSpool(const ScratchSpool &) = delete;
    ScratchSpool &operator=(const ScratchSpool &) = delete;

    /// The directory's address, whether or not it could be made.
    QUrl directory() const;
    /// An address that is free now, for a file that the caller writes at once; none when there is
    /// no safe directory.
    std::optional<QUrl> reserve(const QString &basename, const QString &extension);
    /// The same for a file that is written later, perhaps on another thread: the name is not given
    /// out again while the place exists. Discarding its address gives the place up. Null when there
    /// is no safe directory.
    std::shared_ptr<SpoolPlace> keepPlace(const QString &basename, const QString &extension);
    /// Writes the bytes to a new file, which appears complete or not at all, and gives its address;
    /// none when they could not be written.
    std::optional<QUrl> store(const QByteArray &data, const QString &basename,
                              const QString &extension);
    /// Whether the address lies in the directory, by whole path components, the parent resolved.
    bool contains(const QUrl &url) const;
    /// To be called for a file that an item refers to. Its name is not given out again before it is
    /// discarded, even if the file disappears: otherwise the item would refer to another item's
    /// file, and delete that when it is removed.
    void keepName(const QUrl &url);
    /// Deletes a file of the spool, on the queue; addresses outside are left alone, failures
    /// ignored. Its name is not given out again before it is deleted. A file that is lent is
    /// deleted when the loan ends, one that was given away with the directory.
    void discard(const QUrl &url) const;
    /// To be called before another program is told of these files: as long as the loan lives, none
    /// of them is deleted, nor given up while it is still being made.
    [[nodiscard]] SpoolLoans::Loan lend(const QList<QUrl> &files);
    /// To be called when another program was told of these files and may read them at any time:
    /// they are kept until `discardAll`.
    void giveAway(const QList<QUrl> &files);
    /// To be called when the file that was to be made as `from` has become `to`: loans, gifts and a
    /// deletion that was put off are then those of `to`. A gift may follow under the old address as
    /// long as the loan lives.
    void moveLoans(const QUrl &from, const QUrl &to);
    /// Deletes the directory and everything in it. Many files are left to a child process that
    /// outlives this one (`spool_directory::removeAtEnd`).
    void discardAll();
    /// The work, for any thread, that deletes what dead processes of this user left in the
    /// temporary directory; it does not need this object. A directory that a dead process of this
    /// number left is renamed at once, so that the work never meets the one that is used here.
    [[nodiscard]] std::function<void()> leftoversRemoval() const;

    /// The name without "/" and ":", leading dots and spaces at its ends, cut to
    /// `maximumBasenameCharacters`; "Item" where nothing is left.
    static QString safeBasename(const QString &name);

private:
    bool open();
    bool stillStands() const;
    bool isKept(const QByteArray &path) const;
    void discardNow(const QByteArray &path) const;
    QByteArray freePath(const QString &basename, const QString &extension) const;

    QByteArray m_temporaryDirectory;
    QByteArray m_directory;
    /// None while it is not open.
    std::shared_ptr<const OpenSpool> m_open;
    mutable SpoolDeletions m_deletions;
    /// By native path. Entries whose place is gone are removed once there are `m_tidyPlacesAt`.
    QHash<QByteArray, std::weak_ptr<SpoolPlace>> m_places;
    qsizetype m_tidyPlacesAt = 64;
    /// Paths of the files that items refer to.
    mutable QSet<QByteArray> m_keptNames;
    mutable SpoolLoans m_loans;
};

} // namespace corvane
