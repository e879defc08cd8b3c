#include "app/updates/update_installation.h"

#include "app/updates/installation.h"
#include "app/updates/installation_steps.h"
#include "app/updates/update_file.h"
#include "app/updates/verified_download.h"

#include <QStringBuilder>
#include <QUrl>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace corvane::update_installation {

namespace {

constexpr int maximumNames = 100;
/// Follows the temporary name in the one that the replacement takes away.
constexpr auto freshSuffix = ".new";
constexpr qsizetype longestName = 120;

QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/'));
}

bool isHarmless(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z')
        || c == u'-' || c == u'_' || c == u'.' || c == u'+';
}

QByteArray numbered(const QByteArray &name, int number)
{
    if (number == 1)
        return name;
    const QByteArray suffix = '-' + QByteArray::number(number);
    const qsizetype dot = name.lastIndexOf('.');
    const qsizetype end = dot > 0 ? dot : name.size();
    return name.left(end) + suffix + name.mid(end);
}

int keepOld(InstallationSteps &steps, const QByteArray &appImage)
{
    const QByteArray previous = appImage + previousSuffix;
    const int error = steps.keep(appImage, previous);
    // An earlier update has not been started yet, so the kept file is the version that runs.
    return error == EEXIST && Installation::isReplaceable(previous) ? 0 : error;
}

} // namespace

Outcome swap(InstallationSteps &steps, const VerifiedDownload &download, const QByteArray &appImage)
{
    // It may have been moved or replaced since the program was started.
    if (!Installation::isReplaceable(appImage))
        return {ENOENT};
    const QByteArray folder = folderOf(appImage);
    const QByteArray fresh = download.path() + freshSuffix;
    int error = steps.takePermissions(download.descriptor(), appImage);
    if (error == 0)
        error = steps.sync(download.descriptor());
    if (error == 0)
        error = keepOld(steps, appImage);
    if (error == 0)
        error = steps.syncFolder(folder);
    if (error == 0)
        error = steps.giveName(download.descriptor(), fresh);
    if (error != 0)
        return {error};
    error = steps.replace(fresh, appImage);
    if (error != 0) {
        steps.remove(fresh);
        return {error};
    }
    // The new file is in its place: a folder that cannot be synced now is no failure any more.
    steps.syncFolder(folder);
    return {0, appImage};
}

Outcome handOver(InstallationSteps &steps, const VerifiedDownload &download,
                 const QByteArray &folder)
{
    const QUrl address = download.statement().address;
    const QByteArray name
        = safeName(address.fileName(QUrl::FullyDecoded), download.statement().version.text());
    // The downloads folder may never have been used.
    ::mkdir(folder.constData(), S_IRWXU);
    if (const int error = steps.sync(download.descriptor()); error != 0)
        return {error};
    for (int number = 1; number <= maximumNames; ++number) {
        const QByteArray path = folder + '/' + numbered(name, number);
        const int error = steps.giveName(download.descriptor(), path);
        if (error == 0) {
            steps.syncFolder(folder);
            return {0, path};
        }
        if (error != EEXIST)
            return {error};
    }
    return {EEXIST};
}

QByteArray safeName(const QString &lastPartOfAddress, const QString &version)
{
    const bool isSafe = !lastPartOfAddress.isEmpty() && lastPartOfAddress.size() <= longestName
        && !lastPartOfAddress.startsWith(u'.') && !lastPartOfAddress.startsWith(u'-')
        && std::ranges::all_of(lastPartOfAddress, isHarmless);
    return isSafe ? lastPartOfAddress.toLatin1() : "Corvane-" + version.toLatin1();
}

void removePrevious(InstallationSteps &steps, const QByteArray &appImage)
{
    const QByteArray previous = appImage + previousSuffix;
    if (Installation::isReplaceable(previous))
        steps.remove(previous);
    UpdateFile::removeLeftovers(folderOf(appImage));
}

} // namespace corvane::update_installation
