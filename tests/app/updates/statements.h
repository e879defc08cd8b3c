#pragma once

#include "app/updates/test_key.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>

namespace corvane::test {

inline QByteArray sha512(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha512);
}

/// What the makers state about a file, written out here a second time, so that the program and the
/// tests can differ about the format.
struct Statement {
    /// About a file of a release whose number, version and version for people go together.
    static Statement of(const QByteArray &build, const QByteArray &file)
    {
        Statement statement;
        statement.number = build;
        statement.version = build;
        statement.shortVersion = build + ".0";
        statement.length = QByteArray::number(file.size());
        statement.digest = sha512(file).toHex();
        statement.notes = "Notes of " + build;
        return statement;
    }

    QByteArray bytes() const
    {
        QByteArray text = firstLine + "\nnumber " + number + "\napplication " + application
            + "\nversion " + version + "\nshort-version " + shortVersion + "\nchannel " + channel
            + "\nsystem " + system + "\narchitecture " + architecture + "\nkind " + kind
            + "\naddress " + address + "\nlength " + length + "\nsha512 " + digest + '\n';
        for (const QByteArray &minimum : minimums)
            text += "minimum-system " + minimum + '\n';
        text += "notes plain-text " + sha512(notes).toHex() + "\ndate " + date + "\nexpiry "
            + expiry + '\n';
        if (!nextKey.isEmpty())
            text += "next-key " + nextKey.toBase64() + '\n';
        return text;
    }

    /// As it stands in a feed.
    QByteArray element(const TestKey &key) const { return element(bytes(), key.sign(bytes())); }
    static QByteArray element(const QByteArray &bytes, const QByteArray &signature)
    {
        return "<corvane:statement signature='" + signature.toBase64() + "'>" + bytes.toBase64()
            + "</corvane:statement>";
    }
    /// The rest of an item, as programs read it that know no statements.
    QByteArray attributes(const QByteArray &fileSignature) const
    {
        return "<sparkle:version>" + version + "</sparkle:version><sparkle:shortVersionString>"
            + shortVersion + "</sparkle:shortVersionString><description "
            + "sparkle:format='plain-text'>" + notes + "</description>" + enclosure(fileSignature);
    }
    QByteArray enclosure(const QByteArray &fileSignature) const
    {
        return "<enclosure url='" + address + "' length='" + length
            + "' sparkle:os='linux' sparkle:edSignature='" + fileSignature.toBase64() + "'/>";
    }
    /// A whole item, where one key signs both.
    QByteArray item(const TestKey &key, const QByteArray &file) const
    {
        return "<item>" + attributes(key.sign(file)) + element(key) + "</item>";
    }

    QByteArray firstLine = "Corvane release statement 1";
    QByteArray number = "1";
    QByteArray application = "example.corvane.Corvane";
    QByteArray version;
    QByteArray shortVersion;
    QByteArray channel = "stable";
    QByteArray system = "linux";
    QByteArray architecture = "x86_64";
    QByteArray kind = "appimage";
    QByteArray address = "https://corvane.example/new.AppImage";
    QByteArray length;
    QByteArray digest;
    QList<QByteArray> minimums;
    QByteArray notes;
    QByteArray date = "2026-11-01T00:00:00Z";
    QByteArray expiry = "2099-01-01T00:00:00Z";
    /// 32 bytes.
    QByteArray nextKey;
};

} // namespace corvane::test
