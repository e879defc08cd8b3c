#include "decoder/svg_without_references.h"

#include "decoder/picture_reader.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// The bytes of an embedded picture that is a bitmap, by its first bytes; empty for all else. An
/// embedded drawing could have references itself.
QByteArray bitmapInside(QStringView address)
{
    static constexpr std::array<QByteArrayView, 4> signatures
        = {"\x89PNG\r\n", "\xFF\xD8\xFF", "GIF8", "RIFF"};
    const QLatin1String mark("base64,");
    const qsizetype start = address.lastIndexOf(mark);
    if (start < 0 || !address.startsWith(QLatin1String("data:image/")))
        return {};
    const QByteArray bytes
        = QByteArray::fromBase64(address.mid(start + mark.size()).trimmed().toLatin1());
    const bool isBitmap = std::ranges::any_of(
        signatures, [&](QByteArrayView signature) { return bytes.startsWith(signature); });
    return isBitmap ? bytes : QByteArray();
}

/// What its pixels take; none if it is no bitmap, or does not tell.
std::optional<qint64> decodedBytes(QByteArray bitmap)
{
    QBuffer buffer(&bitmap);
    buffer.open(QIODevice::ReadOnly);
    PictureReader picture;
    if (bitmap.isEmpty() || !picture.open(buffer, PictureReader::Formats::Web))
        return std::nullopt;
    const QSize size = picture.reader().size();
    constexpr int bytesPerPixel = 4;
    return size.isEmpty() ? std::nullopt
                          : std::optional(qint64{size.width()} * size.height() * bytesPerPixel);
}

bool isHref(const QXmlStreamAttribute &attribute)
{
    return attribute.name() == QLatin1String("href");
}

/// Scripts, animations, and elements of other languages.
bool isUnwanted(QStringView element)
{
    static constexpr std::array names = {"script", "foreignObject", "set", "handler", "listener"};
    return element.startsWith(QLatin1String("animate"))
        || std::ranges::any_of(names,
                               [&](const char *name) { return element == QLatin1String(name); });
}

/// What of a drawing is written again.
class Cleaner {
public:
    /// Whether the element, along with all inside of it, is left out.
    bool leavesOut(const QXmlStreamReader &reader)
    {
        if (isUnwanted(reader.name()))
            return true;
        if (reader.name() != QLatin1String("image"))
            return false;
        const auto attributes = reader.attributes();
        return !std::ranges::all_of(attributes, [this](const QXmlStreamAttribute &attribute) {
            return !isHref(attribute) || mayStay(attribute.value());
        });
    }

    void writeStart(const QXmlStreamReader &reader)
    {
        const auto namespaces = reader.namespaceDeclarations();
        writer.writeStartElement(reader.qualifiedName().toString());
        for (const auto &declared : namespaces) {
            const QString prefix = declared.prefix().toString();
            writer.writeAttribute(prefix.isEmpty() ? QStringLiteral("xmlns")
                                                   : QLatin1String("xmlns:") + prefix,
                                  declared.namespaceUri().toString());
        }
        const bool isImage = reader.name() == QLatin1String("image");
        const auto attributes = reader.attributes();
        for (const auto &attribute : attributes) {
            const bool isElsewhere
                = isHref(attribute) && !isImage && !attribute.value().startsWith(u'#');
            if (!isElsewhere && !attribute.name().startsWith(QLatin1String("on")))
                writer.writeAttribute(attribute.qualifiedName().toString(),
                                      attribute.value().toString());
        }
    }

    QByteArray result;
    QXmlStreamWriter writer{&result};

private:
    /// Whether the address of an image is a bitmap, and there is room for one more.
    bool mayStay(QStringView address)
    {
        const auto bytes = decodedBytes(bitmapInside(address));
        if (!bytes || m_embedded + *bytes > maximumEmbeddedBytes)
            return false;
        m_embedded += *bytes;
        return true;
    }

    qint64 m_embedded = 0;
};

} // namespace

std::optional<QByteArray> svgWithoutReferences(const QByteArray &svg)
{
    if (svg.size() > maximumDrawingBytes)
        return std::nullopt;
    Cleaner cleaner;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (cleaner.leavesOut(reader))
                reader.skipCurrentElement();
            else
                cleaner.writeStart(reader);
            break;
        case QXmlStreamReader::EndElement:
            cleaner.writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            cleaner.writer.writeCharacters(reader.text().toString());
            break;
        default:
            break;
        }
        // Expanded entities can make the drawing much longer.
        if (reader.hasError() || cleaner.result.size() > 2 * maximumDrawingBytes)
            return std::nullopt;
    }
    return cleaner.result;
}

} // namespace corvane
