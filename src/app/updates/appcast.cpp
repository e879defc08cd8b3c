#include "app/updates/appcast.h"

#include "app/updates/release_notes.h"

#include <QXmlStreamReader>

namespace corvane::appcast {

namespace {

constexpr QLatin1String sparkle("http://www.andymatuschak.org/xml-namespaces/sparkle");
constexpr qsizetype signatureBytes = 64;
/// The longest text that is kept, except for the notes.
constexpr qsizetype maximumCharacters = 1024;

class Reader {
public:
    explicit Reader(const QByteArray &feed)
        : m_xml(feed)
    {
    }

    std::optional<QList<ClaimedRelease>> read()
    {
        if (!enterRoot())
            return std::nullopt;
        while (m_xml.readNextStartElement()) {
            if (isPlain("channel"))
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            return std::nullopt;
        return m_items;
    }

private:
    bool enterRoot()
    {
        while (!m_xml.atEnd() && !m_xml.isStartElement()) {
            if (m_xml.readNext() == QXmlStreamReader::DTD)
                return false;
        }
        return m_xml.isStartElement() && isPlain("rss");
    }

    bool isPlain(const char *name) const
    {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == QLatin1String(name);
    }
    bool isSparkle(const char *name) const
    {
        return m_xml.namespaceUri() == sparkle && m_xml.name() == QLatin1String(name);
    }
    QString plain(const char *name) const
    {
        return m_xml.attributes()
            .value(QString(), QLatin1String(name))
            .left(maximumCharacters)
            .toString();
    }
    QString sparkled(const char *name) const
    {
        return m_xml.attributes()
            .value(sparkle, QLatin1String(name))
            .left(maximumCharacters)
            .toString();
    }

    /// All text of the element, its descendants' included. No recursion: a feed may nest elements
    /// a million deep.
    QString text(qsizetype limit = maximumCharacters)
    {
        QString text;
        for (int depth = 1; depth > 0 && m_xml.readNext() != QXmlStreamReader::Invalid;) {
            if (m_xml.isStartElement())
                ++depth;
            else if (m_xml.isEndElement())
                --depth;
            else if (m_xml.isCharacters())
                text += m_xml.text().left(limit - text.size());
        }
        return text;
    }

    void readChannel()
    {
        while (m_xml.readNextStartElement()) {
            if (!isPlain("item"))
                m_xml.skipCurrentElement();
            else if (m_items.size() == maximumItems)
                m_xml.raiseError();
            else
                m_items << readItem();
        }
    }

    ClaimedRelease readItem()
    {
        ClaimedRelease item;
        while (m_xml.readNextStartElement()) {
            if (isSparkle("version"))
                item.version = text().trimmed();
            else if (isSparkle("shortVersionString"))
                item.shortVersion = text().trimmed();
            else if (isSparkle("minimumSystemVersion"))
                item.minimumSystems << text().simplified();
            else if (isPlain("description"))
                readNotes(item);
            else if (isPlain("enclosure"))
                readEnclosure(item);
            else
                m_xml.skipCurrentElement();
        }
        return item;
    }

    void readNotes(ClaimedRelease &item)
    {
        const QString format = sparkled("format");
        item.notesAreMarkup = format.isEmpty() || format == QLatin1String("html");
        item.notes = text(release_notes::maximumCharacters);
    }

    void readEnclosure(ClaimedRelease &item)
    {
        ClaimedFile enclosure;
        enclosure.url = QUrl(plain("url"), QUrl::StrictMode);
        bool isNumber = false;
        const qint64 length = plain("length").toLongLong(&isNumber);
        enclosure.length = isNumber && length >= 0 ? length : -1;
        enclosure.system = sparkled("os");
        enclosure.architecture = sparkled("arch");
        const auto signature = QByteArray::fromBase64Encoding(
            sparkled("edSignature").trimmed().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        if (signature && signature.decoded.size() == signatureBytes)
            enclosure.signature = signature.decoded;
        // Both may stand here instead of in elements of the item, which count first.
        if (item.version.isEmpty())
            item.version = sparkled("version");
        if (item.shortVersion.isEmpty())
            item.shortVersion = sparkled("shortVersionString");
        item.files << enclosure;
        m_xml.skipCurrentElement();
    }

    QXmlStreamReader m_xml;
    QList<ClaimedRelease> m_items;
};

} // namespace

std::optional<QList<ClaimedRelease>> read(const QByteArray &feed)
{
    if (feed.size() > maximumBytes)
        return std::nullopt;
    return Reader(feed).read();
}

} // namespace corvane::appcast
