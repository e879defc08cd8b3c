#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace corvane {

/// What a drag or a copy offers, read lazily: asking for the types fetches nothing, and each other
/// call fetches from the source just what it names. The source is another program, so every call
/// but `types` may take time, and may come back empty for a type that was offered.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// MIME names, the source's order.
    virtual QStringList types() const = 0;
    bool offers(const QString &type) const { return types().contains(type, Qt::CaseInsensitive); }

    /// Every address on it in order, files and others alike, without those that do not parse.
    virtual QList<QUrl> urls() = 0;
    /// The file addresses among them, and those of mounted remote places as the files they are
    /// here.
    virtual QList<QUrl> fileUrls() = 0;
    /// None when the type is not offered or nothing came.
    virtual std::optional<QByteArray> dataFor(const UTType &type) = 0;
    /// The plain text, none when there is none.
    virtual std::optional<QString> string() = 0;

    /// The file that the source wrote where it was told to (direct save); none when it offered no
    /// such thing, or did not deliver. It belongs to whoever named the place.
    virtual std::optional<QUrl> promisedFile() = 0;
};

} // namespace corvane
