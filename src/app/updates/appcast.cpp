#include "app/updates/appcast.h"

#include "app/updates/feed_bounds.h"
#include "app/updates/release_notes.h"
#include "app/updates/release_statement.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

namespace corvane::appcast {

namespace {

const QLatin1String sparkle(sparkleNamespace);
const QLatin1String ours(statementNamespace);
constexpr qsizetype signatureBytes = 64;
/// The longest text that is kept, except for the notes and statements.
constexpr qsizetype maximumCharacters = 1024;
/// A statement in base64, and the line ends in it.
constexpr qsizetype maximumStatement = 2 * ReleaseStatement::maximumBytes;

QByteArray decoded(const QString &base64)
{
    QByteArray text = base64.toLatin1();
    text.removeIf([](char c) { return c == '\n' || c == ' ' || c == '\t' || c == '\r'; });
    const auto result
        = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return result ? result.decoded : QByteArray();
}

QByteArray signatureFrom(const QString &base64)
{
    const QByteArray signature = decoded(base64);
    return signature.size() == signatureBytes ? signature : QByteArray();
}

/// The feed as text. Which bytes are markup must be clear before it is read, so only two encodings
/// will do, in which those are the same.
std::optional<QString> textOf(const QByteArray &feed)
{
    if (feed.contains('\0'))
        return std::nullopt;
    const QByteArray declaration
        = feed.startsWith("<?xml") ? feed.left(feed.indexOf("?>")).toLower() : QByteArray();
    if (declaration.contains("iso-8859-1"))
        return QString::fromLatin1(feed);
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(feed);
    return utf8.hasError() ? std::nullopt : std::optional(text);
}

class Reader {
public:
    explicit Reader(const QString &feed)
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
    bool isStatement() const
    {
        return m_xml.namespaceUri() == ours && m_xml.name() == QLatin1String("statement");
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
            else if (isStatement())
                readStatement(item);
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
        enclosure.signature = signatureFrom(sparkled("edSignature"));
        // Both may stand here instead of in elements of the item, which count first.
        if (item.version.isEmpty())
            item.version = sparkled("version");
        if (item.shortVersion.isEmpty())
            item.shortVersion = sparkled("shortVersionString");
        item.files << enclosure;
        m_xml.skipCurrentElement();
    }

    void readStatement(ClaimedRelease &item)
    {
        if (m_statements++ == maximumStatements)
            return m_xml.raiseError();
        const QByteArray signature = signatureFrom(plain("signature"));
        const QByteArray bytes = decoded(text(maximumStatement));
        if (!signature.isEmpty() && !bytes.isEmpty())
            item.statements << ClaimedStatement{bytes, signature};
    }

    QXmlStreamReader m_xml;
    qsizetype m_statements = 0;
    QList<ClaimedRelease> m_items;
};

} // namespace

std::optional<QList<ClaimedRelease>> read(const QByteArray &feed)
{
    if (feed.size() > maximumBytes)
        return std::nullopt;
    const auto text = textOf(feed);
    if (!text || !feed_bounds::holds(*text))
        return std::nullopt;
    return Reader(*text).read();
}

} // namespace corvane::appcast
