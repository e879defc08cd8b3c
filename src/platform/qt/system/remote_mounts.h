#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace corvane {

/// The remote places that the desktop has mounted, and their files' paths on this machine.
///
/// A file manager names such a file by its remote address, although every program could read it:
/// below one folder of the session stands a folder for each place, and its name says which one
/// ("sftp:host=example.org,user=me", "smb-share:server=nas,share=photos").
class RemoteMounts {
public:
    /// `folder` is where the places are mounted, `names` what it lists; both as bytes.
    RemoteMounts(QByteArray folder, const QList<QByteArray> &names);

    /// Reads the session's folder, and asks none of the places anything. Where the folder itself
    /// does not answer, it is what it was when it last did.
    static RemoteMounts ofSession();

    /// Whether an address can be one of a mounted place at all; everything that is common cannot.
    static bool mayHold(const QUrl &address);

    /// The file behind an address, which need not exist; none when its place is not mounted.
    std::optional<QUrl> localFile(const QUrl &address) const;

private:
    /// One place, whether it is read from a folder's name or from an address.
    struct Place {
        /// What the folder's name begins with.
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
        /// The remote folder that the mount's top stands for.
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
