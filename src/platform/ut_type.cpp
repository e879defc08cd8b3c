#include "platform/ut_type.h"

#include <QHash>
#include <QMimeDatabase>
#include <QMimeType>
#include <QMutex>
#include <QStringList>

#include <utility>

namespace corvane {

namespace {

/// A drop of many files has few extensions, and a look-up costs more than a file's `stat`.
class ExtensionCache {
public:
    QString identifier(const QString &extension)
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_identifiers.constFind(extension);
        if (found != m_identifiers.constEnd())
            return *found;
        // Extensions are a stranger's text: ten thousand different ones are not kept.
        if (m_identifiers.size() >= maximumSize)
            m_identifiers.clear();
        return *m_identifiers.insert(extension, lookUp(extension));
    }

private:
    static constexpr qsizetype maximumSize = 512;

    static QString lookUp(const QString &extension)
    {
        const QString name = QStringLiteral("x.") + extension;
        const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
        return type.isDefault() ? QString() : type.name();
    }

    QMutex m_mutex;
    QHash<QString, QString> m_identifiers;
};

const QString tiffIdentifier = QStringLiteral("image/tiff");

} // namespace

UTType::UTType(QString identifier)
    : m_identifier(std::move(identifier))
{
}

UTType UTType::forFilenameExtension(const QString &extension)
{
    static ExtensionCache cache;
    // Most drops are of one kind, and then even the cache is worth going past.
    thread_local QString lastExtension;
    thread_local QString lastIdentifier;
    if (extension.isEmpty() || extension.contains(QLatin1Char('/')))
        return {};
    if (extension != lastExtension) {
        lastIdentifier = cache.identifier(extension);
        lastExtension = extension;
    }
    return UTType(lastIdentifier);
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
