#include "platform/system/ut_type.h"

#include <QMimeDatabase>
#include <QMimeType>
#include <QStringList>

#include <map>
#include <utility>

namespace corvane {

namespace {

QString lookUp(const QString &extension)
{
    const QString name = QStringLiteral("x.") + extension;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    return type.isDefault() ? QString() : type.name();
}

const QString tiffIdentifier = QStringLiteral("image/tiff");

} // namespace

UTType::UTType(QString identifier)
    : m_identifier(std::move(identifier))
{
}

UTType UTType::forFilenameExtension(const QString &extension)
{
    if (extension.isEmpty() || extension.contains(QLatin1Char('/')))
        return {};
    // Cached, because a look-up takes longer than a `stat`, and a drop of many files has few
    // extensions. For so few a map is faster than a hash table; one for each thread needs no lock.
    thread_local std::map<QString, UTType> known;
    auto found = known.find(extension);
    if (found == known.end()) {
        // Extensions come from other programs' file names, so the cache is bounded.
        constexpr std::size_t maximumSize = 512;
        if (known.size() >= maximumSize)
            known.clear();
        found = known.emplace(extension, UTType(lookUp(extension))).first;
    }
    return found->second;
}

UTType UTType::png()
{
    return UTType(QStringLiteral("image/png"));
}

UTType UTType::tiff()
{
    return UTType(tiffIdentifier);
}

QString UTType::preferredFilenameExtension() const
{
    return isValid() ? QMimeDatabase().mimeTypeForName(m_identifier).preferredSuffix() : QString();
}

bool UTType::isTiff() const
{
    static const QStringList aliases = QMimeDatabase().mimeTypeForName(tiffIdentifier).aliases();
    return m_identifier == tiffIdentifier || aliases.contains(m_identifier);
}

} // namespace corvane
