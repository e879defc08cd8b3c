#pragma once

#include "platform/base/lifetime.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <functional>
#include <memory>

namespace corvane {

/// Knows which files of the spool other programs may still read, also after their items are gone.
///
/// A file that is lent is deleted when its item is gone and its last loan has ended; one that was
/// given away is not deleted singly. Main thread only.
class SpoolLoans {
public:
    /// The file is lent as long as one of these lives. May end after the loans are gone.
    using Loan = std::shared_ptr<const void>;

    /// `discard` deletes a file whose deletion was put off while it was lent.
    explicit SpoolLoans(std::function<void(const QByteArray &path)> discard);

    [[nodiscard]] Loan lend(const QList<QByteArray> &paths);
    void giveAway(const QList<QByteArray> &paths);
    /// What was lent or given away as `from` is the file `to`. Until the last loan of it ends it
    /// may be given away under the old name, too.
    void move(const QByteArray &from, const QByteArray &to);
    /// Whether the file must not be deleted now. A lent one is then deleted when its last loan
    /// ends.
    bool putOff(const QByteArray &path);
    /// Whether another program was told of a file of that name, which must not be given to another.
    bool isKnown(const QByteArray &path) const
    {
        return m_files.contains(path) || m_moved.contains(path);
    }
    /// All files are gone.
    void clear();

private:
    struct File {
        int loans = 0;
        bool isGivenAway = false;
        bool isToGo = false;
    };
    void ended(const QList<QByteArray> &paths);
    QByteArray nowOf(const QByteArray &path) const { return m_moved.value(path, path); }

    std::function<void(const QByteArray &path)> m_discard;
    QHash<QByteArray, File> m_files;
    /// The files' paths by those that they were lent as. Entries stay until the last loan ends.
    QHash<QByteArray, QByteArray> m_moved;
    Lifetime m_lifetime;
};

} // namespace corvane
