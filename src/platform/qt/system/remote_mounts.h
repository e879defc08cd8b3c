#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace corvane {

/// The remote places that the desktop (GVfs) has mounted, and the paths of their files on this
/// machine.
///
/// File managers give such a file's remote address, although programs can read it as a file: one
/// folder of the session has a folder for each place, whose name identifies it
/// ("sftp:host=example.org,user=me", "smb-share:server=nas,share=photos").
class RemoteMounts {
public:
    /// `folder` is where places are mounted, `names` are its entries; both native.
    RemoteMounts(QByteArray folder, const QList<QByteArray> &names);

    /// Reads the session's folder, without touching the places. If the folder does not answer, its
    /// last known entries are used.
    static RemoteMounts ofSession();

    /// Whether an address can belong to a mounted place at all; false for common addresses such as
    /// those of files and web pages.
    static bool mayHold(const QUrl &address);

    /// The file of an address; it need not exist. None if its place is not mounted.
    std::optional<QUrl> localFile(const QUrl &address) const;

private:
    /// A place, as a folder's name or an address describes it.
    struct Place {
        /// The part of the folder's name before the colon.
        QString kind;
        QString host;
        QString user;
        QString domain;
        QString share;
        int port = -1;
        bool isEncrypted = false;

        bool operator==(const Place &) const = default;
    };
    struct Mount {
        QByteArray name;
        Place place;
        /// The remote folder that is mounted, by its path's components.
        QList<QByteArray> prefix;
    };

    static std::optional<Mount> mountNamed(const QByteArray &name);
    static bool setValue(Mount &mount, const QByteArray &key, const QByteArray &encoded);
    static Place placeOf(const QUrl &address);
    static void forgetUsualPort(Place &place);

    QByteArray m_folder;
    std::vector<Mount> m_mounts;
};

} // namespace corvane
