// Drawings (SVG) as they are handed to the renderer: nothing of them runs, moves, or refers to
// anything outside.

#include "decoder/svg_without_references.h"

#include <QXmlStreamReader>

#include <cstdint>
#include <cstdlib>

namespace {

bool isAllowed(const QXmlStreamReader &element)
{
    const auto name = element.name();
    if (name == QLatin1String("script") || name == QLatin1String("foreignObject")
        || name == QLatin1String("set") || name.startsWith(QLatin1String("animate")))
        return false;
    const auto attributes = element.attributes();
    for (const auto &attribute : attributes) {
        if (attribute.name().startsWith(QLatin1String("on")))
            return false;
        if (attribute.name() != QLatin1String("href") || attribute.value().startsWith(u'#'))
            continue;
        const bool isBitmap
            = name == QLatin1String("image") && attribute.value().startsWith(u"data:image/");
        if (!isBitmap || attribute.value().contains(u"svg+xml;base64,PD"))
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray drawing(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto cleaned = corvane::svgWithoutReferences(drawing);
    if (!cleaned)
        return 0;
    if (cleaned->size() > 3 * corvane::maximumDrawingBytes)
        std::abort();
    QXmlStreamReader reader(*cleaned);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::ProcessingInstruction)
            std::abort();
        if (token == QXmlStreamReader::StartElement && !isAllowed(reader))
            std::abort();
    }
    return 0;
}
