#pragma once

#include "platform/pasteboard.h"

#include <QFile>
#include <QHash>

#include <functional>

namespace corvane::test {

/// A pasteboard that a test fills. `fetched` tells what was asked of the source, in order.
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
    std::optional<QString> promisedFileName() override
    {
        fetched << QStringLiteral("promisedFileName");
        return promisedName;
    }
    bool receivePromisedFile(const QUrl &destination) override
    {
        fetched << QStringLiteral("promisedFile");
        return writePromisedFile && writePromisedFile(destination);
    }

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
    /// Offers to save a file directly, and does so when asked.
    void promiseFile(const QString &name, const QByteArray &contents)
    {
        refuseFile(name);
        writePromisedFile = [contents](const QUrl &destination) {
            QFile file(destination.toLocalFile());
            return file.open(QFile::WriteOnly) && file.write(contents) == contents.size();
        };
    }
    /// Offers to save a file directly, and refuses when asked.
    void refuseFile(const QString &name)
    {
        offered << QStringLiteral("XdndDirectSave0");
        promisedName = name;
    }

    QStringList offered;
    QList<QUrl> addresses;
    QHash<QString, QByteArray> bytes;
    std::optional<QString> text;
    std::optional<QString> promisedName;
    std::function<bool(const QUrl &)> writePromisedFile;
    QStringList fetched;
};

} // namespace corvane::test
