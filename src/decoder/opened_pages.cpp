#include "decoder/opened_pages.h"

#include "platform/pictures/decoder_protocol.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace corvane {

bool OpenedPages::isDocument(QFile &file)
{
    constexpr qint64 headerReach = 1024;
    return file.peek(headerReach).contains("%PDF-");
}

std::unique_ptr<OpenedPages> OpenedPages::of(std::unique_ptr<QFile> file)
{
    if (!isDocument(*file))
        return nullptr;
    auto opened = std::make_unique<OpenedPages>();
    opened->m_file = std::move(file);
    QImageReader &reader = opened->m_reader;
    reader.setDevice(opened->m_file.get());
    reader.setAutoDetectImageFormat(false);
    reader.setFormat("pdf");
    return reader.canRead() && opened->count() > 0 ? std::move(opened) : nullptr;
}

QList<QSize> OpenedPages::sizes()
{
    constexpr QSize usual{595, 842};
    constexpr QSize largest{decoder_protocol::maximumSide, decoder_protocol::maximumSide};
    QList<QSize> sizes;
    const int shown = std::min(count(), decoder_protocol::maximumPages);
    for (int page = 0; page < shown; ++page) {
        const bool isThere = m_reader.jumpToImage(page);
        const QSize size = isThere ? m_reader.size() : QSize();
        sizes.append(size.isEmpty() ? usual : size.boundedTo(largest));
    }
    return sizes;
}

std::optional<QImage> OpenedPages::read(int page, QSize pixels)
{
    if (!m_reader.jumpToImage(page))
        return std::nullopt;
    m_reader.setBackgroundColor(Qt::white);
    m_reader.setScaledSize(pixels);
    QImage image = m_reader.read();
    if (image.isNull())
        return std::nullopt;
    image.setDevicePixelRatio(1);
    return std::move(image).convertToFormat(QImage::Format_RGB32);
}

} // namespace corvane
