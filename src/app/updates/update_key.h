#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>
#include <utility>

namespace corvane {

/// The public half of a key that releases are signed with: Ed25519.
class UpdateKey {
public:
    /// 32 bytes; none for anything else.
    static std::optional<UpdateKey> fromBytes(const QByteArray &bytes);
    /// The same in base64.
    static std::optional<UpdateKey> fromBase64(const QString &text);

    /// Whether the other half signed all of these bytes. Any thread.
    bool hasSigned(const QByteArray &message, const QByteArray &signature) const;
    bool hasSigned(const unsigned char *message, std::size_t size,
                   const QByteArray &signature) const;

    const QByteArray &bytes() const { return m_bytes; }
    bool operator==(const UpdateKey &) const = default;

private:
    explicit UpdateKey(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    QByteArray m_bytes;
};

} // namespace corvane
