#include "app/updates/update_key.h"

#include <sodium.h>

namespace corvane {

namespace {

const unsigned char *bytesOf(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

} // namespace

std::optional<UpdateKey> UpdateKey::fromBytes(const QByteArray &bytes)
{
    if (bytes.size() != crypto_sign_PUBLICKEYBYTES)
        return std::nullopt;
    return UpdateKey(bytes);
}

std::optional<UpdateKey> UpdateKey::fromBase64(const QString &text)
{
    const auto result = QByteArray::fromBase64Encoding(text.trimmed().toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    return result ? fromBytes(result.decoded) : std::nullopt;
}

bool UpdateKey::hasSigned(const QByteArray &message, const QByteArray &signature) const
{
    return hasSigned(bytesOf(message), static_cast<std::size_t>(message.size()), signature);
}

bool UpdateKey::hasSigned(const unsigned char *message, std::size_t size,
                          const QByteArray &signature) const
{
    return signature.size() == crypto_sign_BYTES && ::sodium_init() >= 0
        && ::crypto_sign_verify_detached(bytesOf(signature), message, size, bytesOf(m_bytes)) == 0;
}

} // namespace corvane
