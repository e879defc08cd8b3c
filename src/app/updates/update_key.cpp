#include "app/updates/update_key.h"

#include <sodium.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <cstddef>

namespace corvane {

namespace {

const unsigned char *bytesOf(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

} // namespace

std::optional<UpdateKey> UpdateKey::fromBase64(const QString &text)
{
    const auto result = QByteArray::fromBase64Encoding(text.trimmed().toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!result || result.decoded.size() != crypto_sign_PUBLICKEYBYTES)
        return std::nullopt;
    return UpdateKey(result.decoded);
}

std::optional<VerifiedDownload> UpdateKey::verify(const std::shared_ptr<UpdateFile> &file,
                                                  const ClaimedFile &claim) const
{
    if (!hasSigned(file->descriptor(), claim.length, claim.signature))
        return std::nullopt;
    return VerifiedDownload(file);
}

bool UpdateKey::hasSigned(int descriptor, qint64 length, const QByteArray &signature) const
{
    struct stat status = {};
    if (signature.size() != crypto_sign_BYTES || ::fstat(descriptor, &status) != 0
        || status.st_size != length || length <= 0 || ::sodium_init() < 0)
        return false;
    const auto size = static_cast<std::size_t>(length);
    void *const file = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    if (file == MAP_FAILED)
        return false;
    // Read from beginning to end, so the system need not keep what was read.
    ::madvise(file, size, MADV_SEQUENTIAL);
    const bool isSigned
        = ::crypto_sign_verify_detached(bytesOf(signature), static_cast<unsigned char *>(file),
                                        size, bytesOf(m_bytes))
        == 0;
    ::munmap(file, size);
    return isSigned;
}

} // namespace corvane
