#include "app/commands/native_paths.h"

#include <QByteArrayList>
#include <QStringBuilder>

#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <memory>

namespace corvane::native_paths {

namespace {

struct FreeLater {
    void operator()(char *text) const { std::free(text); } // NOLINT(*-no-malloc): the C library's
};

/// The path that the C library gives for it; empty if there is nothing there.
QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, FreeLater> real(::realpath(path.constData(), nullptr));
    return QByteArray(real.get());
}

bool areSame(const QByteArray &one, const QByteArray &other)
{
    struct stat first = {};
    struct stat second = {};
    return ::stat(one.constData(), &first) == 0 && ::stat(other.constData(), &second) == 0
        && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

} // namespace

QByteArray currentFolder()
{
    const QByteArray named = qgetenv("PWD");
    const QByteArray withSlash = QByteArray(named).append('/');
    const bool isExact
        = named.startsWith('/') && !withSlash.contains("/../") && !withSlash.contains("/./");
    return isExact && areSame(named, ".") ? named : resolved(".");
}

bool exists(const QByteArray &path)
{
    struct stat about = {};
    return ::lstat(path.constData(), &about) == 0;
}

QByteArray absolute(const QByteArray &path, const QByteArray &folder)
{
    if (path.isEmpty() || (!path.startsWith('/') && folder.isEmpty()))
        return {};
    QByteArray result;
    const QByteArray whole = path.startsWith('/') ? path : folder + "/" + path;
    for (const QByteArray &part : whole.split('/')) {
        if (part == "..") {
            // The folder above is that of where a link leads to, not that of the link.
            result = resolved(result + "/..");
            if (result.isEmpty())
                return {};
            if (result == "/")
                result.clear();
        } else if (!part.isEmpty() && part != ".") {
            result += "/" + part;
        }
    }
    return result.isEmpty() ? QByteArray("/") : result;
}

bool isAddress(const QByteArray &place)
{
    const qsizetype colon = place.indexOf(':');
    if (colon <= 0 || !std::isalpha(static_cast<unsigned char>(place.front())))
        return false;
    const bool isScheme = std::all_of(place.begin(), place.begin() + colon, [](unsigned char byte) {
        return byte < 0x80 && (std::isalnum(byte) || byte == '+' || byte == '-' || byte == '.');
    });
    return isScheme && (place.sliced(colon).startsWith("://") || qstrnicmp(place, "file:", 5) == 0);
}

} // namespace corvane::native_paths
