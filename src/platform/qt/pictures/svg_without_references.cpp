#include "platform/qt/pictures/svg_without_references.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// Whether an embedded picture is a bitmap, by its first bytes. An embedded drawing could have
/// references itself.
bool isBitmapInside(QStringView address)
{
    static constexpr std::array<QByteArrayView, 4> signatures
        = {"\x89PNG\r\n", "\xFF\xD8\xFF", "GIF8", "RIFF"};
    constexpr qsizetype enough = 64;
    const QLatin1String mark("base64,");
    const qsizetype start = address.lastIndexOf(mark);
    if (start < 0 || !address.startsWith(QLatin1String("data:image/")))
        return false;
    const QByteArray encoded = address.mid(start + mark.size()).trimmed().left(enough).toLatin1();
    const QByteArray beginning = QByteArray::fromBase64(encoded);
    return std::ranges::any_of(
        signatures, [&](QByteArrayView signature) { return beginning.startsWith(signature); });
}

void writeStart(QXmlStreamWriter &writer, const QXmlStreamReader &reader)
{
    const auto namespaces = reader.namespaceDeclarations();
    writer.writeStartElement(reader.qualifiedName().toString());
    for (const auto &declared : namespaces) {
        const QString prefix = declared.prefix().toString();
        writer.writeAttribute(prefix.isEmpty() ? QStringLiteral("xmlns")
                                               : QLatin1String("xmlns:") + prefix,
                              declared.namespaceUri().toString());
    }
    const auto attributes = reader.attributes();
    for (const auto &attribute : attributes)
        writer.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
}

/// Whether the element is an image whose contents are not embedded.
bool isReference(const QXmlStreamReader &reader)
{
    if (reader.name() != QLatin1String("image"))
        return false;
    const auto attributes = reader.attributes();
    return std::ranges::any_of(attributes, [](const QXmlStreamAttribute &attribute) {
        return attribute.name() == QLatin1String("href") && !isBitmapInside(attribute.value());
    });
}

} // namespace

std::optional<QByteArray> svgWithoutReferences(const QByteArray &svg)
{
    if (svg.size() > maximumDrawingBytes)
        return std::nullopt;
    QByteArray result;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&result);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (isReference(reader))
                reader.skipCurrentElement();
            else
                writeStart(writer, reader);
            break;
        case QXmlStreamReader::EndElement:
            writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            writer.writeCharacters(reader.text().toString());
            break;
        default:
            break;
        }
        // Expanded entities can make the drawing much longer.
        if (reader.hasError() || result.size() > 2 * maximumDrawingBytes)
            return std::nullopt;
    }
    return result;
}

} // namespace corvane
