#include "app/updates/installation.h"

#include "platform/regular_file.h"

#include <QStringBuilder>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>

namespace corvane {

namespace {

/// Empty where there is nothing.
QByteArray canonical(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr),
                                                           &std::free);
    return real ? QByteArray(real.get()) : QByteArray();
}

bool isBelow(const QByteArray &path, const QByteArray &folder)
{
    const QByteArray beginning = folder + '/';
    return folder.startsWith('/') && folder != "/" && path.startsWith(beginning);
}

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
    return {canonical("/proc/self/exe"), qgetenv("APPIMAGE"), qgetenv("APPDIR"), isFlatpak};
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
    const QByteArray executable = evidence.executable;
    const bool isAbsolute = evidence.appImage.startsWith('/');
    if (isAbsolute && isBelow(executable, canonical(evidence.appImageFolder))) {
        const QByteArray path = canonical(evidence.appImage);
        return isReplaceable(path) ? Installation{Kind::AppImage, path} : Installation{Kind::Loose};
    }
    if (isBelow(executable, "/usr") && !isBelow(executable, "/usr/local"))
        return {Kind::Managed};
    return {Kind::Loose};
}

} // namespace corvane
