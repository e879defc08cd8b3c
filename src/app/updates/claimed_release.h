#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace corvane {

/// What a feed gives out as a statement of the makers, and a signature of it. Anybody may have
/// written both; `VerifiedRelease` tells what is genuine.
struct ClaimedStatement {
    QByteArray bytes;
    /// 64 bytes.
    QByteArray signature;

    bool operator==(const ClaimedStatement &) const = default;
};

/// A file that a feed offers. Nothing of it is verified: anybody who can answer for the feed's
/// machine may have written it.
struct ClaimedFile {
    QUrl url;
    /// In bytes; -1 where none is given.
    qint64 length = -1;
    /// As they are written; empty where it is for all.
    QString system;
    QString architecture;
    /// 64 bytes, or none. `VerifiedDownload` checks it once the file is there.
    QByteArray signature;
};

/// A version that a feed tells of, as it stands there; as unverified as its files.
struct ClaimedRelease {
    /// Compared with the program's build; empty where none is given.
    QString version;
    /// For people.
    QString shortVersion;
    /// "debian 12": the oldest release, for each distribution that is named.
    QStringList minimumSystems;
    /// What is new; empty for nothing.
    QString notes;
    bool notesAreMarkup = false;
    QList<ClaimedFile> files;
    /// One for each file.
    QList<ClaimedStatement> statements;
};

} // namespace corvane
