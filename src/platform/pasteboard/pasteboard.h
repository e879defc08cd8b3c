#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace corvane {

/// What a drag or a copy offers. It is read lazily: `types` fetches nothing, and every other call
/// fetches only what it names. The source is another program, so these calls may take time, and may
/// give nothing for a type that was offered.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// MIME names in the source's order.
    virtual QStringList types() const = 0;
    bool offers(const QString &type) const { return types().contains(type, Qt::CaseInsensitive); }

    /// All addresses, of files and others, in their order, without those that cannot be parsed.
    virtual QList<QUrl> urls() = 0;
    /// The file addresses among them; addresses of mounted remote places count, as the files that
    /// they are on this machine.
    virtual QList<QUrl> fileUrls() = 0;
    /// None when the type is not offered or nothing came.
    virtual std::optional<QByteArray> dataFor(const UTType &type) = 0;
    /// The plain text, none when there is none.
    virtual std::optional<QString> string() = 0;

    /// The file that the source wrote where it was told to (direct save); none if it offered none,
    /// or did not write it. It belongs to the one who named the place.
    virtual std::optional<QUrl> promisedFile() = 0;
};

} // namespace corvane
