#include "app/updates/verified_download.h"

#include "app/updates/app_image_bytes.h"

#include <sodium.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace corvane {

namespace {

/// A file's bytes. It is mapped and not read: only as much memory is taken as the system has to
/// spare.
class Mapping {
public:
    Mapping(int descriptor, qint64 length)
        : m_size(static_cast<std::size_t>(length))
    {
        struct stat status = {};
        if (length <= 0 || ::fstat(descriptor, &status) != 0 || status.st_size != length)
            return;
        void *const mapped = ::mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE, descriptor, 0);
        if (mapped == MAP_FAILED)
            return;
        m_bytes = static_cast<const unsigned char *>(mapped);
        // Read from beginning to end, so the system need not keep what was read.
        ::madvise(mapped, m_size, MADV_SEQUENTIAL);
    }
    Mapping(const Mapping &) = delete;
    Mapping &operator=(const Mapping &) = delete;
    ~Mapping()
    {
        if (m_bytes)
            ::munmap(const_cast<unsigned char *>(m_bytes), m_size);
    }

    /// Null where the file is of another length.
    const unsigned char *bytes() const { return m_bytes; }
    std::size_t size() const { return m_size; }

private:
    const unsigned char *m_bytes = nullptr;
    std::size_t m_size;
};

bool hasDigest(const Mapping &file, const QByteArray &digest)
{
    std::array<unsigned char, crypto_hash_sha512_BYTES> actual = {};
    return digest.size() == qsizetype{crypto_hash_sha512_BYTES}
    && ::crypto_hash_sha512(actual.data(), file.bytes(), file.size()) == 0
        && std::memcmp(actual.data(), digest.constData(), actual.size()) == 0;
}

} // namespace

std::optional<VerifiedDownload> VerifiedDownload::of(const std::shared_ptr<UpdateFile> &file,
                                                     const VerifiedRelease &release,
                                                     const QList<UpdateKey> &keys,
                                                     const QByteArray &signature)
{
    const ReleaseStatement &statement = release.statement();
    const Mapping mapping(file->descriptor(), statement.length);
    if (!mapping.bytes() || !hasDigest(mapping, statement.digest))
        return std::nullopt;
    const auto hasSigned = [&](const UpdateKey &key) {
        return key.hasSigned(mapping.bytes(), mapping.size(), signature);
    };
    if (std::ranges::none_of(keys, hasSigned))
        return std::nullopt;
    return VerifiedDownload(file, release);
}

bool VerifiedDownload::isAppImage() const
{
    const ReleaseStatement &statement = m_release.statement();
    const Mapping mapping(descriptor(), statement.length);
    return mapping.bytes() && statement.kind == ReleaseStatement::appImage
        && app_image_bytes::isOf({mapping.bytes(), mapping.size()}, statement.application,
                                 statement.architecture);
}

} // namespace corvane
