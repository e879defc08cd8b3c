#pragma once

#include "platform/pasteboard/pasteboard.h"

#include <QFile>
#include <QHash>

namespace corvane::test {

/// A pasteboard that a test fills. `fetched` lists what was asked of the source, in order.
class FakePasteboard : public Pasteboard {
public:
    QStringList types() const override { return offered; }
    QList<QUrl> urls() override
    {
        fetched << QStringLiteral("urls");
        return addresses;
    }
    QList<QUrl> fileUrls() override
    {
        fetched << QStringLiteral("fileUrls");
        QList<QUrl> files;
        for (const QUrl &url : addresses) {
            if (url.isLocalFile())
                files << url;
        }
        return files;
    }
    std::optional<QByteArray> dataFor(const UTType &type) override
    {
        fetched << type.identifier();
        const auto found = bytes.constFind(type.identifier());
        return found == bytes.constEnd() ? std::nullopt : std::optional(*found);
    }
    std::optional<QString> string() override
    {
        fetched << QStringLiteral("string");
        return text;
    }
    std::optional<QUrl> promisedFile() override { return savedFile; }

    void offerUrls(const QList<QUrl> &urls)
    {
        offered << QStringLiteral("text/uri-list");
        addresses << urls;
    }
    void offerText(const QString &string)
    {
        offered << QStringLiteral("text/plain");
        text = string;
    }
    void offerData(const QByteArray &data, const QString &type)
    {
        offered << type;
        bytes.insert(type, data);
    }
    /// The source has saved a file directly, at `place`.
    void saveFile(const QUrl &place, const QByteArray &contents)
    {
        offered << QStringLiteral("XdndDirectSave0");
        QFile file(place.toLocalFile());
        if (file.open(QFile::WriteOnly) && file.write(contents) == contents.size())
            savedFile = place;
    }

    QStringList offered;
    QList<QUrl> addresses;
    QHash<QString, QByteArray> bytes;
    std::optional<QString> text;
    std::optional<QUrl> savedFile;
    QStringList fetched;
};

} // namespace corvane::test
