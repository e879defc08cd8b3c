// A feed of any bytes: what is chosen of it fits, and what is shown of it is bounded and harmless.

#include "app/updates/appcast.h"

#include "app/updates/release_notes.h"
#include "app/updates/update_choice.h"

#include <cstdint>
#include <cstdlib>

using namespace corvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray feed(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto items = appcast::read(feed);
    if (!items)
        return 0;
    if (items->size() > appcast::maximumItems)
        std::abort();
    const UpdateSystem system{QStringLiteral("x86_64"), QStringLiteral("debian"),
                              QStringLiteral("12")};
    const UpdateChoice choice = update_choice::choose(*items, system);
    if (!choice.newest)
        return 0;
    const QString shown = choice.newest->notes + choice.newest->shownVersion;
    for (const QChar c : shown) {
        if ((c < u' ' && c != u'\n') || c == u'\u202E')
            std::abort();
    }
    if (choice.newest->notes.size() > release_notes::maximumCharacters
        || choice.newest->shownVersion.size() > UpdateVersion::longestText + 1)
        std::abort();
    for (const ClaimedRelease &item : *items) {
        const auto other = UpdateVersion::fromText(
            choice.scale == VersionScale::Build ? item.version : item.shortVersion);
        const UpdateChoice alone = update_choice::choose({item}, system);
        if (other && alone.newest && alone.scale == choice.scale && choice.newest->version < *other)
            std::abort();
    }
    return 0;
}
