#include "core/scratch_spool.h"

#include "core/characters.h"
#include "core/spool_directory.h"
#include "platform/checked_math.h"
#include "platform/file_url.h"
#include "platform/private_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace corvane {

namespace {

QByteArray withoutTrailingSlashes(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

/// Every link on the way resolved; empty when there is no such path.
QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr),
                                                           &std::free);
    return real ? QByteArray(real.get()) : QByteArray();
}

/// An extension comes from a stranger's file name too.
QString safeExtension(QString extension)
{
    // Long enough for any that means something.
    constexpr qsizetype maximumBytes = 64;
    extension.replace(QLatin1Char('/'), QLatin1Char('-'));
    extension.removeIf([](QChar character) { return !character.isPrint(); });
    return extension.toUtf8().size() <= maximumBytes ? extension : QString();
}

bool exists(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0;
}

} // namespace

ScratchSpool::ScratchSpool(QByteArray temporaryDirectory, qint64 processIdentifier)
    : m_temporaryDirectory(withoutTrailingSlashes(std::move(temporaryDirectory)))
    , m_directory(m_temporaryDirectory + '/' + spool_directory::name(processIdentifier))
{
}

ScratchSpool::~ScratchSpool()
{
    close();
}

QUrl ScratchSpool::directory() const
{
    return file_url::fromNativePath(m_directory);
}

bool ScratchSpool::stillStands() const
{
    return m_descriptor >= 0 && spool_directory::isAt(m_directory, m_descriptor);
}

/// Asked before every use: who tidies the temporary directory may have taken it away, and what was
/// full or in somebody's hands may be free now.
bool ScratchSpool::open()
{
    if (stillStands())
        return true;
    close();
    std::error_code ignored;
    std::filesystem::create_directories(m_temporaryDirectory.constData(), ignored);
    ::mkdir(m_directory.constData(), S_IRWXU);
    m_descriptor = spool_directory::openAndLock(m_directory);
    if (m_descriptor >= 0)
        m_resolvedDirectory = resolved(m_directory);
    return m_descriptor >= 0;
}

void ScratchSpool::close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
    m_resolvedDirectory.clear();
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
        // A single character can be longer than a file name may be.
        const QByteArray name = fitting.isEmpty() ? QByteArrayLiteral("Item") : fitting.toUtf8();
        QByteArray path = m_directory + '/' + name + ending;
        if (!exists(path))
            return path;
    }
}

std::optional<QUrl> ScratchSpool::reserve(const QString &basename, const QString &extension)
{
    if (!open())
        return std::nullopt;
    return file_url::fromNativePath(freePath(basename, safeExtension(extension)));
}

std::optional<QUrl> ScratchSpool::store(const QByteArray &data, const QString &basename,
                                        const QString &extension)
{
    const auto url = reserve(basename, extension);
    const bool isWritten = url && private_file::create(file_url::nativePath(*url), data);
    return isWritten ? url : std::nullopt;
}

bool ScratchSpool::contains(const QUrl &url) const
{
    const QByteArray path = withoutTrailingSlashes(file_url::nativePath(url));
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray name = path.mid(slash + 1);
    // The last component is taken as it stands, and these two would lead out again.
    if (!stillStands() || slash < 0 || name.isEmpty() || name == "." || name == "..")
        return false;
    const QByteArray parent = resolved(path.left(slash + 1));
    return parent == m_resolvedDirectory
        || parent.startsWith(QByteArray(m_resolvedDirectory + '/'));
}

void ScratchSpool::discard(const QUrl &url) const
{
    if (contains(url))
        spool_directory::remove(withoutTrailingSlashes(file_url::nativePath(url)));
}

void ScratchSpool::discardAll()
{
    if (stillStands())
        spool_directory::removeAtEnd(m_directory);
    close();
}

std::function<void()> ScratchSpool::leftoversRemoval() const
{
    if (m_descriptor < 0)
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
