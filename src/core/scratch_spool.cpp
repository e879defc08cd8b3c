#include "core/scratch_spool.h"

#include "core/characters.h"
#include "core/spool_directory.h"
#include "core/spool_place.h"
#include "platform/base/checked_math.h"
#include "platform/system/file_url.h"
#include "platform/system/private_file.h"
#include "platform/system/private_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace corvane {

namespace {

/// The extension without "/" and unprintable characters; empty if it is too long. It comes from
/// another program's file name and is not trusted.
QString safeExtension(QString extension)
{
    // More than any known extension has.
    constexpr qsizetype maximumBytes = 64;
    extension.replace(QLatin1Char('/'), QLatin1Char('-'));
    extension.removeIf([](QChar character) { return !character.isPrint(); });
    return extension.toUtf8().size() <= maximumBytes ? extension : QString();
}

QList<QByteArray> pathsOf(const QList<QUrl> &files)
{
    QList<QByteArray> paths;
    paths.reserve(files.size());
    for (const QUrl &file : files)
        paths << file_url::nativePath(file);
    return paths;
}

bool exists(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0;
}

} // namespace

ScratchSpool::ScratchSpool(QByteArray temporaryDirectory, qint64 processIdentifier,
                           WorkQueue *deletionQueue)
    : m_temporaryDirectory(spool_directory::withoutTrailingSlashes(std::move(temporaryDirectory)))
    , m_directory(m_temporaryDirectory + '/' + spool_directory::name(processIdentifier))
    , m_deletions(deletionQueue)
    , m_loans([this](const QByteArray &path) { discardNow(path); })
{
}

ScratchSpool::~ScratchSpool() = default;

QUrl ScratchSpool::directory() const
{
    return file_url::fromNativePath(m_directory);
}

bool ScratchSpool::stillStands() const
{
    return m_open && m_open->stillStands();
}

/// Opens the directory if it is not open or is gone; called before every use. A program that cleans
/// the temporary directory may have removed it, and a disk that was full or a directory that
/// another process held may be free now.
bool ScratchSpool::open()
{
    if (stillStands())
        return true;
    m_open.reset();
    std::error_code ignored;
    std::filesystem::create_directories(m_temporaryDirectory.constData(), ignored);
    ::mkdir(m_directory.constData(), S_IRWXU);
    const int descriptor = private_folder::openAndLock(m_directory);
    if (descriptor >= 0)
        m_open = std::make_shared<const OpenSpool>(m_directory, descriptor);
    return descriptor >= 0;
}

QByteArray ScratchSpool::freePath(const QString &basename, const QString &extension) const
{
    const QString stem = safeBasename(basename).remove(QChar::Null);
    const QByteArray dotExtension
        = extension.isEmpty() ? QByteArray() : QByteArray('.' + extension.toUtf8());
    QByteArray ending = dotExtension;
    for (qint64 number = 1;; number = checkedAdd<qint64>(number, 1)) {
        if (number > 1)
            ending = ' ' + QByteArray::number(number) + dotExtension;
        const QString fitting
            = characters::prefix(stem, maximumBasenameCharacters, maximumNameBytes - ending.size());
        // Nothing is left where the first character alone is longer than a file name may be.
        const QByteArray name = fitting.isEmpty() ? QByteArrayLiteral("Item") : fitting.toUtf8();
        QByteArray path = m_directory + '/' + name + ending;
        if (!isKept(path) && !exists(path) && !m_deletions.isPending(path))
            return path;
    }
}

bool ScratchSpool::isKept(const QByteArray &path) const
{
    return m_keptNames.contains(path) || m_loans.isKnown(path) || !m_places.value(path).expired();
}

std::optional<QUrl> ScratchSpool::reserve(const QString &basename, const QString &extension)
{
    if (!open())
        return std::nullopt;
    return file_url::fromNativePath(freePath(basename, safeExtension(extension)));
}

std::shared_ptr<SpoolPlace> ScratchSpool::keepPlace(const QString &basename,
                                                    const QString &extension)
{
    const auto url = reserve(basename, extension);
    if (!url)
        return nullptr;
    if (m_places.size() >= m_tidyPlacesAt) {
        m_places.removeIf([](const auto &kept) { return kept.value().expired(); });
        m_tidyPlacesAt = std::max<qsizetype>(2 * m_places.size(), 64);
    }
    auto place = std::make_shared<SpoolPlace>(*url);
    m_places.insert(file_url::nativePath(*url), place);
    return place;
}

std::optional<QUrl> ScratchSpool::store(const QByteArray &data, const QString &basename,
                                        const QString &extension)
{
    const auto url = reserve(basename, extension);
    if (!url || !private_file::create(file_url::nativePath(*url), data))
        return std::nullopt;
    keepName(*url);
    return url;
}

bool ScratchSpool::contains(const QUrl &url) const
{
    return m_open && m_open->contains(file_url::nativePath(url));
}

void ScratchSpool::keepName(const QUrl &url)
{
    m_keptNames.insert(file_url::nativePath(url));
}

SpoolLoans::Loan ScratchSpool::lend(const QList<QUrl> &files)
{
    return m_loans.lend(pathsOf(files));
}

void ScratchSpool::giveAway(const QList<QUrl> &files)
{
    m_loans.giveAway(pathsOf(files));
}

void ScratchSpool::moveLoans(const QUrl &from, const QUrl &to)
{
    m_loans.move(file_url::nativePath(from), file_url::nativePath(to));
}

void ScratchSpool::discard(const QUrl &url) const
{
    const QByteArray path = file_url::nativePath(url);
    if (!m_loans.putOff(path))
        discardNow(path);
}

void ScratchSpool::discardNow(const QByteArray &path) const
{
    m_keptNames.remove(path);
    if (const auto place = m_places.value(path).lock())
        place->giveUp();
    if (m_open)
        m_deletions.add(m_open, path);
}

void ScratchSpool::discardAll()
{
    for (const auto &kept : std::as_const(m_places)) {
        if (const auto place = kept.lock())
            place->giveUp();
    }
    m_deletions.stop();
    m_loans.clear();
    m_keptNames.clear();
    if (stillStands())
        spool_directory::removeAtEnd(m_directory);
    m_open.reset();
}

std::function<void()> ScratchSpool::leftoversRemoval() const
{
    if (!m_open)
        spool_directory::setAside(m_directory);
    return [folder = m_temporaryDirectory, own = m_directory] {
        for (const QByteArray &path : spool_directory::candidates(folder)) {
            if (path != own)
                spool_directory::removeLeftover(path);
        }
    };
}

QString ScratchSpool::safeBasename(const QString &name)
{
    QString safe = name;
    safe.replace(QLatin1Char('/'), QLatin1Char('-'));
    safe.replace(QLatin1Char(':'), QLatin1Char('-'));
    qsizetype dots = 0;
    while (dots < safe.size() && safe[dots] == QLatin1Char('.'))
        ++dots;
    safe = safe.mid(dots).trimmed();
    if (safe.isEmpty())
        return QStringLiteral("Item");
    return characters::prefix(safe, maximumBasenameCharacters, safe.size() * 4);
}

} // namespace corvane
