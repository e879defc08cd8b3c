// A thumbnail program's entry of any bytes: whatever is put into its command stays in its places.

#include "platform/freedesktop/thumbnails/thumbnailer_entry.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto entry = corvane::ThumbnailerEntry::parse(contents);
    if (!entry)
        return 0;
    const auto command = entry->command({"file:///in/a b", "/in/a b", "/out/\"; $(c) 'd", 128});
    if (command.size() != entry->exec.size())
        std::abort();
    for (const QByteArray &argument : command) {
        if (argument.contains('\0'))
            std::abort();
    }
    return 0;
}
