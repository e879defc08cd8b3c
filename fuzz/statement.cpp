// A statement of any bytes: what is read of it is written back to the same bytes, and is within the
// bounds that others rely on.

#include "app/updates/release_statement.h"

#include <cstdint>
#include <cstdlib>

using namespace corvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto read = ReleaseStatement::fromBytes(bytes);
    if (!read)
        return 0;
    if (read->toBytes() != bytes || bytes.size() > ReleaseStatement::maximumBytes
        || !bytes.startsWith(ReleaseStatement::firstLine))
        std::abort();
    if (read->number < 1 || read->number > ReleaseStatement::largestNumber || read->length < 1
        || read->digest.size() != 64 || read->notesDigest.size() != 64 || read->expiry <= read->date
        || read->address.host().isEmpty() || read->version.text().isEmpty()
        || read->shortVersion.isEmpty()
        || read->minimumSystems.size() > ReleaseStatement::mostMinimumSystems)
        std::abort();
    for (const QChar c : read->shortVersion) {
        if (c <= u' ' || c > u'~')
            std::abort();
    }
    return 0;
}
