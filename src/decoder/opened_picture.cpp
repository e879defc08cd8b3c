#include "decoder/opened_picture.h"

#include <utility>

namespace corvane {

std::unique_ptr<OpenedPicture> OpenedPicture::of(std::unique_ptr<QFile> file)
{
    auto opened = std::make_unique<OpenedPicture>();
    opened->m_file = std::move(file);
    return opened->m_picture.open(*opened->m_file) ? std::move(opened) : nullptr;
}

bool OpenedPicture::isTurned()
{
    return m_picture.reader().transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

QSize OpenedPicture::size()
{
    const QSize stored = m_picture.reader().size();
    if (isVector() && stored.isEmpty()) {
        constexpr QSize square{512, 512};
        return square;
    }
    return isTurned() ? stored.transposed() : stored;
}

std::optional<QImage> OpenedPicture::read(QSize pixels)
{
    if (pixels.isEmpty())
        return m_picture.read();
    // The reader scales before it turns the picture upright.
    m_picture.reader().setScaledSize(isTurned() ? pixels.transposed() : pixels);
    auto image = m_picture.read();
    if (image && image->size() != pixels)
        image = image->scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

std::optional<QImage> OpenedPicture::readFrame(QSize limit)
{
    auto image = m_picture.read();
    if (!image)
        return std::nullopt;
    ++m_nextFrame;
    if (image->width() > limit.width() || image->height() > limit.height())
        image = image->scaled(limit, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

bool OpenedPicture::skipFrame()
{
    // The frames that follow may be made of this one.
    if (!m_picture.readAsStored())
        return false;
    ++m_nextFrame;
    return true;
}

int OpenedPicture::milliseconds()
{
    const int stated = m_picture.reader().nextImageDelay();
    return stated >= shortestFrame ? stated : frameInstead;
}

} // namespace corvane
