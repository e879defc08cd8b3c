#include "app/updates/update_choice.h"

#include "app/updates/release_notes.h"
#include "core/display_text.h"

#include <QSysInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

/// A file's architecture may be named as compilers, kernels and packagers do.
QString architectureOf(const QString &name)
{
    constexpr std::array<std::pair<QLatin1String, QLatin1String>, 2> others
        = {{{QLatin1String("amd64"), QLatin1String("x86_64")},
            {QLatin1String("aarch64"), QLatin1String("arm64")}}};
    const QString given = name.toLower();
    const auto *const other
        = std::ranges::find_if(others, [&given](const auto &pair) { return given == pair.first; });
    return other == others.end() ? given : QString(other->second);
}

/// A release that is no number ("sid", "rolling") is newer than any.
bool isAllowed(const QString &minimum, const UpdateSystem &system)
{
    const QStringList words = minimum.split(u' ');
    if (words.size() != 2 || words.at(0).compare(system.distribution, Qt::CaseInsensitive) != 0)
        return true;
    const auto wanted = UpdateVersion::fromText(words.at(1));
    const auto present = UpdateVersion::fromText(system.release);
    return !wanted || !present || *present >= *wanted;
}

bool fits(const ClaimedFile &file, const UpdateSystem &system)
{
    const bool isForSystem = file.system.isEmpty()
        || file.system.compare(QLatin1String("linux"), Qt::CaseInsensitive) == 0;
    const bool isForArchitecture = file.architecture.isEmpty()
        || architectureOf(file.architecture) == architectureOf(system.architecture);
    return isForSystem && isForArchitecture;
}

const ClaimedFile *fileFor(const ClaimedRelease &item, const UpdateSystem &system)
{
    const auto isTooOld = [&system](const QString &minimum) { return !isAllowed(minimum, system); };
    if (std::ranges::any_of(item.minimumSystems, isTooOld))
        return nullptr;
    const auto found = std::ranges::find_if(
        item.files, [&system](const ClaimedFile &file) { return fits(file, system); });
    return found == item.files.end() ? nullptr : &*found;
}

UpdateOffer offerOf(const ClaimedRelease &item, const ClaimedFile &file,
                    const UpdateVersion &version)
{
    const QString notes
        = item.notesAreMarkup ? release_notes::withoutMarkup(item.notes) : item.notes;
    const QString shownVersion = item.shortVersion.isEmpty() ? version.text() : item.shortVersion;
    return {version, displayText(shownVersion.left(UpdateVersion::longestText)),
            release_notes::shown(notes), file};
}

} // namespace

UpdateSystem UpdateSystem::thisOne()
{
    return {QSysInfo::buildCpuArchitecture(), QSysInfo::productType(), QSysInfo::productVersion()};
}

UpdateChoice update_choice::choose(const QList<ClaimedRelease> &items, const UpdateSystem &system)
{
    UpdateChoice choice;
    const bool hasBuilds = std::ranges::any_of(items, [&system](const ClaimedRelease &item) {
        return fileFor(item, system) && UpdateVersion::fromText(item.version);
    });
    choice.scale = hasBuilds ? VersionScale::Build : VersionScale::ShortVersion;
    const ClaimedRelease *newest = nullptr;
    std::optional<UpdateVersion> highest;
    for (const ClaimedRelease &item : items) {
        const auto version = UpdateVersion::fromText(hasBuilds ? item.version : item.shortVersion);
        if (version && (!highest || *version > *highest) && fileFor(item, system)) {
            newest = &item;
            highest = version;
        }
    }
    if (newest)
        choice.newest = offerOf(*newest, *fileFor(*newest, system), *highest);
    return choice;
}

} // namespace corvane
