// A record of any bytes: what is read of it is written back to the same bytes, in the size that its
// items say.

#include "core/kept_record.h"

#include <cstdint>
#include <cstdlib>

using namespace corvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto items = kept_record::decode(bytes);
    if (!items)
        return 0;
    qint64 expected = kept_record::sizeOfEmpty();
    for (const kept_record::Item &item : *items)
        expected += kept_record::sizeOf(item);
    if (kept_record::encode(*items) != bytes || expected != bytes.size())
        std::abort();
    return 0;
}
