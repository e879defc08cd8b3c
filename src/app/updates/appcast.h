#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace corvane {

/// A file that a feed offers.
struct AppcastEnclosure {
    QUrl url;
    /// In bytes; -1 where none is given.
    qint64 length = -1;
    /// As they are written; empty where it is for all.
    QString system;
    QString architecture;
    /// 64 bytes, or none.
    QByteArray signature;
};

/// A version that a feed tells of, as it stands there.
struct AppcastItem {
    /// Compared with the program's build; empty where none is given.
    QString version;
    /// For people.
    QString shortVersion;
    /// "debian 12": the oldest release, for each distribution that is named.
    QStringList minimumSystems;
    /// What is new; empty for nothing.
    QString notes;
    bool notesAreMarkup = false;
    QList<AppcastEnclosure> enclosures;
};

/// A feed of versions: RSS 2.0 with elements and attributes of the Sparkle namespace.
namespace appcast {

/// A feed of many years is a tenth of that.
inline constexpr qint64 maximumBytes = 1024LL * 1024;
inline constexpr qsizetype maximumItems = 1000;

/// None where it is no feed, is broken off, is too large, or begins with a document type: a feed
/// needs none, and the entities that one declares grow without end. What is not known is passed
/// over. Takes time and memory linear in the feed. Any thread.
std::optional<QList<AppcastItem>> read(const QByteArray &feed);

} // namespace appcast

} // namespace corvane
