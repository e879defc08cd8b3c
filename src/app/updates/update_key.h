#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

namespace corvane {

/// The public half of the key that updates are signed with: Ed25519 over the file's bytes.
class UpdateKey {
public:
    /// 32 bytes in base64; none for anything else.
    static std::optional<UpdateKey> fromBase64(const QString &text);

    /// Whether the first `length` bytes of the file, which are all, were signed with this key. The
    /// signature covers the whole file at once, so it is mapped and not read: only as much memory
    /// is taken as the system has to spare. Nobody may shorten the file meanwhile. Any thread.
    bool hasSigned(int descriptor, qint64 length, const QByteArray &signature) const;

private:
    explicit UpdateKey(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    QByteArray m_bytes;
};

} // namespace corvane
