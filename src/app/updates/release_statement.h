#pragma once

#include "app/updates/update_version.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace corvane {

/// What the makers of a program state about one file of a release. They sign its bytes:
///
///     Corvane release statement 1
///     number 57
///     application example.corvane.Corvane
///     version 12
///     short-version 1.2
///     channel stable
///     system linux
///     architecture x86_64
///     kind appimage
///     address https://corvane.example/Corvane-1.2-x86_64.AppImage
///     length 98304000
///     sha512 (128 hexadecimal digits, of the file)
///     minimum-system debian 12
///     notes plain-text (128 hexadecimal digits, of the notes in UTF-8)
///     date 2026-11-22T10:00:00Z
///     expiry 2027-02-20T10:00:00Z
///     next-key (32 bytes in base64)
///
/// The first line keeps the signature from being one of anything else. `minimum-system` may stand
/// several times or not at all, `next-key` once or not at all. There is one way to write a
/// statement: bytes that differ from it in anything are none.
struct ReleaseStatement {
    static constexpr qsizetype maximumBytes = 4096;
    static constexpr qint64 largestNumber = 1'000'000'000'000'000;
    static constexpr qsizetype mostMinimumSystems = 16;
    static constexpr auto firstLine = "Corvane release statement 1";

    static inline const QString stable = QStringLiteral("stable");
    static inline const QString beta = QStringLiteral("beta");
    static inline const QString appImage = QStringLiteral("appimage");

    /// Of the statement itself: each one that is signed has a higher one.
    qint64 number = 0;
    /// The id of the program that the file is.
    QString application;
    /// Compared with the program's build.
    UpdateVersion version;
    /// For people; letters, digits and a few marks.
    QString shortVersion;
    QString channel;
    QString system;
    QString architecture;
    QString kind;
    /// Of http or https.
    QUrl address;
    qint64 length = 0;
    /// The file's SHA-512.
    QByteArray digest;
    /// "debian 12": the oldest release, for each distribution that is named.
    QStringList minimumSystems;
    bool notesAreMarkup = false;
    QByteArray notesDigest;
    /// In UTC, to the second.
    QDateTime date;
    QDateTime expiry;
    /// The key that signs whatever follows; empty where this one stays.
    QByteArray nextKey;

    /// None for bytes that are no statement. Says nothing about who wrote them. Any thread.
    static std::optional<ReleaseStatement> fromBytes(const QByteArray &bytes);
    QByteArray toBytes() const;

    /// SHA-512 of the notes as the feed has them.
    static QByteArray digestOfNotes(const QString &notes);
};

} // namespace corvane
