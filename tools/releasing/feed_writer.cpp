#include "feed_writer.h"

#include "app/updates/appcast.h"

#include <QBuffer>
#include <QXmlStreamWriter>

namespace corvane::feed_writer {

namespace {

class Writer {
public:
    explicit Writer(QBuffer &buffer)
        : m_xml(&buffer)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(2);
    }

    void write(const QString &title, const QList<ClaimedRelease> &items)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(QStringLiteral("rss"));
        m_xml.writeNamespace(m_sparkle, QStringLiteral("sparkle"));
        m_xml.writeNamespace(m_ours, QStringLiteral("corvane"));
        m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.0"));
        m_xml.writeStartElement(QStringLiteral("channel"));
        m_xml.writeTextElement(QStringLiteral("title"), title);
        for (const ClaimedRelease &item : items)
            write(item);
        m_xml.writeEndDocument();
    }

private:
    void write(const ClaimedRelease &item)
    {
        m_xml.writeStartElement(QStringLiteral("item"));
        m_xml.writeTextElement(QStringLiteral("title"), item.shortVersion);
        m_xml.writeTextElement(m_sparkle, QStringLiteral("version"), item.version);
        m_xml.writeTextElement(m_sparkle, QStringLiteral("shortVersionString"), item.shortVersion);
        for (const QString &minimum : item.minimumSystems)
            m_xml.writeTextElement(m_sparkle, QStringLiteral("minimumSystemVersion"), minimum);
        m_xml.writeStartElement(QStringLiteral("description"));
        m_xml.writeAttribute(m_sparkle, QStringLiteral("format"),
                             item.notesAreMarkup ? QStringLiteral("html")
                                                 : QStringLiteral("plain-text"));
        m_xml.writeCharacters(item.notes);
        m_xml.writeEndElement();
        for (const ClaimedFile &file : item.files)
            write(file);
        for (const ClaimedStatement &statement : item.statements)
            write(statement);
        m_xml.writeEndElement();
    }

    void write(const ClaimedFile &file)
    {
        m_xml.writeEmptyElement(QStringLiteral("enclosure"));
        m_xml.writeAttribute(QStringLiteral("url"), QString::fromLatin1(file.url.toEncoded()));
        if (file.length >= 0)
            m_xml.writeAttribute(QStringLiteral("length"), QString::number(file.length));
        m_xml.writeAttribute(QStringLiteral("type"), QStringLiteral("application/octet-stream"));
        writeUnlessEmpty("os", file.system);
        writeUnlessEmpty("arch", file.architecture);
        writeUnlessEmpty("edSignature", QString::fromLatin1(file.signature.toBase64()));
    }

    void writeUnlessEmpty(const char *name, const QString &value)
    {
        if (!value.isEmpty())
            m_xml.writeAttribute(m_sparkle, QLatin1String(name), value);
    }

    void write(const ClaimedStatement &statement)
    {
        m_xml.writeStartElement(m_ours, QStringLiteral("statement"));
        m_xml.writeAttribute(QStringLiteral("signature"),
                             QString::fromLatin1(statement.signature.toBase64()));
        m_xml.writeCharacters(QString::fromLatin1(statement.bytes.toBase64()));
        m_xml.writeEndElement();
    }

    const QString m_sparkle = QString::fromLatin1(appcast::sparkleNamespace);
    const QString m_ours = QString::fromLatin1(appcast::statementNamespace);
    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray write(const QString &title, const QList<ClaimedRelease> &items)
{
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    Writer(buffer).write(title, items);
    return buffer.data();
}

} // namespace corvane::feed_writer
