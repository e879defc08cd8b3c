#include "preview/qt_preview_documents.h"

#include "platform/pictures/image_codec.h"
#include "platform/qt/pictures/picture_reader.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <mutex>
#include <utility>

namespace corvane {

namespace {

bool fitsDecoded(QSize pixels)
{
    return !pixels.isEmpty()
        && qint64{pixels.width()} * pixels.height() <= ImageCodec::maximumDecodedBytes / 4;
}

QSize fittedInto(QSize limit, QSize size)
{
    return size.scaled(limit, Qt::KeepAspectRatio).expandedTo({1, 1});
}

bool isLarger(QSize size, QSize limit)
{
    return size.width() > limit.width() || size.height() > limit.height();
}

/// A picture file that is open and ready to be decoded.
struct OpenPicture {
    QFile file;
    PictureReader picture;

    bool open(const QUrl &url)
    {
        return regular_file::open(file, file_url::nativePath(url)) && picture.open(file)
            && (picture.isVector() || picture.fits());
    }
    bool isTurned()
    {
        return picture.reader().transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }
    /// The picture's size, upright; invalid if the format does not tell it.
    QSize size()
    {
        const QSize stored = picture.reader().size();
        return isTurned() ? stored.transposed() : stored;
    }
    /// The reader scales before it turns the picture upright.
    std::optional<QImage> read(QSize pixels)
    {
        picture.reader().setScaledSize(isTurned() ? pixels.transposed() : pixels);
        auto image = picture.read();
        if (image && image->size() != pixels)
            image = image->scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return image;
    }
};

class PictureDocument : public PreviewDocument {
public:
    explicit PictureDocument(QUrl url)
        : m_url(std::move(url))
    {
    }

    std::optional<QImage> render(int /*page*/, QSize pixels) override
    {
        OpenPicture opened;
        if (!fitsDecoded(pixels) || !opened.open(m_url))
            return std::nullopt;
        return opened.read(pixels);
    }

    std::optional<Frame> nextFrame(QSize limit) override
    {
        const std::lock_guard lock(m_mutex);
        if (auto frame = readFrame(limit))
            return frame;
        // A file with a single frame is no animation; one that is broken after its first frame is
        // not started again.
        if (m_framesOfRound < 2 || m_roundsLeft == 0)
            return std::nullopt;
        if (m_roundsLeft > 0)
            --m_roundsLeft;
        m_opened.reset();
        return readFrame(limit);
    }

private:
    std::optional<Frame> readFrame(QSize limit)
    {
        if (!m_opened && !openFrames())
            return std::nullopt;
        auto image = m_opened->picture.read();
        if (!image)
            return std::nullopt;
        ++m_framesOfRound;
        if (isLarger(image->size(), limit))
            image = image->scaled(limit, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const double delay = m_opened->picture.reader().nextImageDelay() / 1000.0;
        const bool isMeant = delay >= QtPreviewDocuments::shortestFrame;
        return Frame{*image, isMeant ? delay : QtPreviewDocuments::frameInstead};
    }

    bool openFrames()
    {
        m_framesOfRound = 0;
        auto opened = std::make_unique<OpenPicture>();
        if (!opened->open(m_url))
            return false;
        if (!std::exchange(m_isBegun, true))
            m_roundsLeft = opened->picture.reader().loopCount();
        m_opened = std::move(opened);
        return true;
    }

    QUrl m_url;
    std::mutex m_mutex;
    std::unique_ptr<OpenPicture> m_opened;
    int m_framesOfRound = 0;
    bool m_isBegun = false;
    /// How often the animation still repeats; negative for ever.
    int m_roundsLeft = 0;
};

class PagesDocument : public PreviewDocument {
public:
    bool open(const QUrl &url)
    {
        constexpr qint64 headerReach = 1024;
        if (!regular_file::open(m_file, file_url::nativePath(url))
            || !m_file.peek(headerReach).contains("%PDF-"))
            return false;
        m_reader.setDevice(&m_file);
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setFormat("pdf");
        return m_reader.canRead() && m_reader.imageCount() > 0;
    }

    int count() const { return m_reader.imageCount(); }

    QList<QSize> sizes()
    {
        QList<QSize> sizes;
        const int shown = std::min(count(), QtPreviewDocuments::maximumPages);
        for (int page = 0; page < shown; ++page) {
            const bool isThere = m_reader.jumpToImage(page);
            const QSize size = isThere ? m_reader.size() : QSize();
            constexpr QSize usual{595, 842};
            sizes.append(size.isEmpty() ? usual : size);
        }
        return sizes;
    }

    std::optional<QImage> render(int page, QSize pixels) override
    {
        const std::lock_guard lock(m_mutex);
        if (!fitsDecoded(pixels) || !m_reader.jumpToImage(page))
            return std::nullopt;
        m_reader.setBackgroundColor(Qt::white);
        m_reader.setScaledSize(pixels);
        QImage image = m_reader.read();
        if (image.isNull())
            return std::nullopt;
        image.setDevicePixelRatio(1);
        return std::move(image).convertToFormat(QImage::Format_RGB32);
    }

    std::optional<Frame> nextFrame(QSize /*limit*/) override { return std::nullopt; }

private:
    std::mutex m_mutex;
    QFile m_file;
    QImageReader m_reader;
};

std::optional<PreviewContent::Picture> openPicture(const QUrl &url, QSize wanted)
{
    OpenPicture opened;
    if (!opened.open(url))
        return std::nullopt;
    PreviewContent::Picture picture;
    picture.isVector = opened.picture.isVector();
    picture.isAnimated = opened.picture.reader().supportsAnimation();
    picture.pixelSize = opened.size();
    if (picture.isVector && picture.pixelSize.isEmpty()) {
        constexpr QSize square{512, 512};
        picture.pixelSize = square;
    }
    std::optional<QImage> image;
    if (picture.pixelSize.isEmpty())
        image = opened.picture.read();
    else if (picture.isVector || isLarger(picture.pixelSize, wanted))
        image = opened.read(fittedInto(wanted, picture.pixelSize));
    else
        image = opened.read(picture.pixelSize);
    if (!image)
        return std::nullopt;
    if (picture.pixelSize.isEmpty())
        picture.pixelSize = image->size();
    picture.fitted = isLarger(image->size(), wanted)
        ? image->scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : *image;
    picture.document = std::make_shared<PictureDocument>(url);
    return picture;
}

std::optional<PreviewContent::Pages> openPages(const QUrl &url)
{
    auto document = std::make_shared<PagesDocument>();
    if (!document->open(url))
        return std::nullopt;
    PreviewContent::Pages pages;
    pages.count = document->count();
    pages.sizes = document->sizes();
    pages.document = std::move(document);
    return pages;
}

} // namespace

std::optional<PreviewDocuments::Opened> QtPreviewDocuments::open(const QUrl &url, QSize wanted)
{
    if (wanted.isEmpty())
        return std::nullopt;
    if (auto picture = openPicture(url, wanted))
        return *picture;
    if (auto pages = openPages(url))
        return *pages;
    return std::nullopt;
}

} // namespace corvane
