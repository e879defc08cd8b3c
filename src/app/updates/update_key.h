#pragma once

#include "app/updates/claimed_release.h"
#include "app/updates/verified_download.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <utility>

namespace corvane {

/// The public half of the key that updates are signed with: Ed25519 over the file's bytes.
class UpdateKey {
public:
    /// 32 bytes in base64; none for anything else.
    static std::optional<UpdateKey> fromBase64(const QString &text);

    /// The file, if it is as long as was claimed and this key signed all of it; none otherwise.
    /// Nobody may write to the file meanwhile or afterwards. Any thread.
    std::optional<VerifiedDownload> verify(const std::shared_ptr<UpdateFile> &file,
                                           const ClaimedFile &claim) const;

private:
    /// The signature covers the whole file at once, so it is mapped and not read: only as much
    /// memory is taken as the system has to spare.
    bool hasSigned(int descriptor, qint64 length, const QByteArray &signature) const;

    explicit UpdateKey(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    QByteArray m_bytes;
};

} // namespace corvane
