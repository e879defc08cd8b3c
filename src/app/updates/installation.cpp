#include "app/updates/installation.h"

#include "platform/system/app_image.h"
#include "platform/system/regular_file.h"

#include <sys/stat.h>
#include <unistd.h>

namespace corvane {

namespace {

/// An ELF file whose unused bytes say "AI" and the format's number, 1 or 2.
bool hasMark(const QByteArray &path)
{
    constexpr qsizetype markEnd = 11;
    const QByteArray bytes = regular_file::beginning(path, markEnd).value_or(QByteArray());
    return bytes.size() == markEnd
        && bytes.startsWith("\x7f"
                            "ELF")
        && bytes.mid(8, 2) == "AI" && (bytes.back() == '\1' || bytes.back() == '\2');
}

} // namespace

Installation::Evidence Installation::Evidence::ofThisProcess()
{
    const bool isFlatpak = !qEnvironmentVariableIsEmpty("FLATPAK_ID")
        || qgetenv("container") == "flatpak" || ::access("/.flatpak-info", F_OK) == 0;
    const auto process = app_image::Evidence::ofThisProcess();
    return {process.executable, process.file, process.folder, isFlatpak};
}

bool Installation::isReplaceable(const QByteArray &path)
{
    struct stat status = {};
    if (!path.startsWith('/') || ::lstat(path.constData(), &status) != 0)
        return false;
    const QByteArray folder = path.left(path.lastIndexOf('/') + 1);
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid()
        && (status.st_mode & S_IWUSR) != 0 && ::access(folder.constData(), W_OK | X_OK) == 0
        && hasMark(path);
}

Installation Installation::from(const Evidence &evidence)
{
    if (evidence.isFlatpak)
        return {Kind::Managed};
    const QByteArray appImage
        = app_image::containing({evidence.executable, evidence.appImage, evidence.appImageFolder});
    if (!appImage.isEmpty()) {
        const QByteArray path = app_image::canonical(appImage);
        return isReplaceable(path) ? Installation{Kind::AppImage, path} : Installation{Kind::Loose};
    }
    if (app_image::isBelow(evidence.executable, "/usr")
        && !app_image::isBelow(evidence.executable, "/usr/local"))
        return {Kind::Managed};
    return {Kind::Loose};
}

} // namespace corvane
