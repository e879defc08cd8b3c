#pragma once

#include "platform/system/file_descriptor.h"

#include <QByteArray>
#include <QSet>

#include <functional>
#include <optional>

namespace corvane {

/// A folder that keeps files from one run of the program to the next: files that get names of its
/// own, and one record that says what they are.
///
/// The record makes a set of them. It takes the place of the earlier one in one step, once
/// everything is on disk, so whenever the process ends, there is the one set or the other, whole.
/// One process at a time holds the folder; what it finds there is not trusted. Nobody but the user
/// can read what is in it. Main thread only, but for the static functions.
class KeptFolder {
public:
    struct File {
        QByteArray name;
        qint64 size = 0;
    };

    /// `path` is native, without a slash at its end.
    explicit KeptFolder(QByteArray path);
    /// Below $XDG_DATA_HOME, or ~/.local/share.
    static QByteArray environmentPath();

    const QByteArray &path() const { return m_path; }
    QByteArray pathOf(const QByteArray &name) const;
    /// Whether the path is one of a file in the folder.
    bool contains(const QByteArray &path) const;

    /// Whether there is anything at its path.
    bool isThere() const;
    /// Keeps other processes out until `release`. False if there is no such folder, if it is not
    /// one of this user alone, or if another process holds it.
    bool hold();
    /// The same, and makes the folder where there is none.
    bool makeAndHold();
    bool isHeld() const;
    void release();

    // The following need a folder that is held.

    /// Whether there is anything in the place of a record.
    bool hasRecord() const;
    /// None if it cannot be read, or is longer than `limit`.
    std::optional<QByteArray> record(qint64 limit) const;
    /// Whether that file is there, and whole.
    bool has(const File &file) const;

    /// Adds a file to the next set: the file itself gets a second name where that can be, else it
    /// is copied, as long as `isTimeLeft` says so. The name ends in `extension` if that is a plain
    /// one. None if it could not be added.
    std::optional<File> add(const QByteArray &path, const QByteArray &extension,
                            const std::function<bool()> &isTimeLeft);
    /// The same for bytes.
    std::optional<File> addBytes(const QByteArray &bytes, const QByteArray &extension);
    /// Makes a set of the files `names`, in the place of the one before, whose other files are
    /// deleted. If that fails, what was added since is deleted instead.
    bool commit(const QByteArray &record, const QSet<QByteArray> &names);
    /// Puts another record in the place of the set's.
    bool rewrite(const QByteArray &record);
    /// Deletes what it has put there and is not among `names`: a process may have been killed while
    /// it added to a set.
    void sweep(const QSet<QByteArray> &names);
    /// Deletes the record: the set is none any more. Does not wait for the disk, as
    /// `private_folder::sync` does.
    void forget();
    /// Deletes everything that it has ever put there, for good, and the folder if nothing else is
    /// in it.
    void empty();

    /// Writes the regular file at that path to `to`; false unless it has that size. Any thread.
    static bool copy(const QByteArray &path, qint64 size, const FileDescriptor &to);
    /// Deletes a file. Any thread.
    static void remove(const QByteArray &path);

private:
    FileDescriptor create(QByteArray &name, const QByteArray &extension) const;
    bool linkInto(const QByteArray &path, const FileDescriptor &source, const QByteArray &extension,
                  QByteArray &name) const;
    bool writeRecord(const QByteArray &record) const;
    bool syncAdded() const;

    QByteArray m_path;
    FileDescriptor m_folder;
    /// Since the last set.
    QSet<QByteArray> m_added;
};

} // namespace corvane
