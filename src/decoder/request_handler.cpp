#include "decoder/request_handler.h"

#include "decoder/given_pixels.h"
#include "decoder/picture_decoding.h"
#include "decoder/picture_writer.h"
#include "platform/pictures/fitted_size.h"
#include "platform/pictures/image_codec.h"
#include "platform/pictures/picture_memory.h"

#include <unistd.h>

#include <algorithm>
#include <new>
#include <utility>

namespace corvane {

namespace {

using decoder_protocol::Outcome;
using decoder_protocol::Request;
using decoder_protocol::Task;
using Answer = RequestHandler::Answer;

Answer failure(Outcome outcome)
{
    Answer answer;
    answer.reply.outcome = outcome;
    return answer;
}

bool fitsDecoded(QSize pixels)
{
    return qint64{pixels.width()} * pixels.height() <= ImageCodec::maximumDecodedBytes / 4;
}

bool isLarger(QSize size, QSize limit)
{
    return size.width() > limit.width() || size.height() > limit.height();
}

/// The picture in sealed memory.
Answer made(const std::optional<QImage> &image)
{
    if (!image)
        return failure(Outcome::Unreadable);
    Answer answer;
    const decoder_protocol::Pixels pixels
        = {image->size(), static_cast<int>(image->bytesPerLine()), image->format()};
    const auto bytes = decoder_protocol::byteCount(pixels);
    if (!bytes)
        return failure(Outcome::OverBounds);
    answer.pixels = picture_memory::make(
        [&](const FileDescriptor &memory) { return given_pixels::write(memory, *image, *bytes); });
    if (!answer.pixels.isOpen())
        return failure(Outcome::OverBounds);
    answer.reply.outcome = Outcome::Made;
    answer.reply.pixels = pixels;
    return answer;
}

UTType typeOf(decoder_protocol::Type type)
{
    switch (type) {
    case decoder_protocol::Type::Png:
        break;
    case decoder_protocol::Type::Jpeg:
        return UTType(QStringLiteral("image/jpeg"));
    case decoder_protocol::Type::Tiff:
        return UTType::tiff();
    case decoder_protocol::Type::WebP:
        return UTType(QStringLiteral("image/webp"));
    }
    return UTType::png();
}

bool writeAs(decoder_protocol::Type type, const QImage &image, FileDescriptor target)
{
    if (type == decoder_protocol::Type::Png) {
        // The one format whose writer never has to go back in the file.
        QFile file;
        if (!file.open(target.number(), QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
            return false;
        target.release();
        return picture_writer::write(image, UTType::png(), file) && file.flush();
    }
    const auto bytes = picture_writer::encoded(image, typeOf(type));
    return bytes && target.write(*bytes);
}

Answer transcode(const Request &request, QFile &file, FileDescriptor target)
{
    // Another decoder may have begun to write.
    if (!target.isOpen() || ::ftruncate(target.number(), 0) != 0
        || ::lseek(target.number(), 0, SEEK_SET) != 0)
        return failure(Outcome::Unreadable);
    const auto image = picture_decoding::whole(file, request.formats);
    if (!image)
        return failure(Outcome::Unreadable);
    return failure(writeAs(request.type, *image, std::move(target)) ? Outcome::Made
                                                                    : Outcome::OverBounds);
}

Answer size(const Request &request, QFile &file)
{
    const auto found = picture_decoding::pixelSize(file, request.formats);
    if (!found)
        return failure(Outcome::Unreadable);
    Answer answer = failure(Outcome::Made);
    answer.reply.pictureSize = *found;
    return answer;
}

std::unique_ptr<QFile> opened(FileDescriptor contents)
{
    auto file = std::make_unique<QFile>();
    // Who sent it may have written or read it before.
    ::lseek(contents.number(), 0, SEEK_SET);
    if (!file->open(contents.number(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return nullptr;
    contents.release();
    return file;
}

} // namespace

RequestHandler::RequestHandler(decoder_protocol::Room room)
    : m_room(room)
{
    picture_decoding::setLimits(room);
}

Answer RequestHandler::serve(const Request &request, FileDescriptor contents, FileDescriptor target)
{
    Answer answer;
    try {
        answer = served(request, std::move(contents), std::move(target));
    } catch (const std::bad_alloc &) {
        forget();
        answer = failure(Outcome::OverBounds);
    }
    answer.reply.number = request.number;
    return answer;
}

Answer RequestHandler::served(const Request &request, FileDescriptor contents,
                              FileDescriptor target)
{
    auto file = opened(std::move(contents));
    if (!file)
        return failure(Outcome::Unreadable);
    if (request.document == 0 || request.document != m_document)
        forget();
    m_document = request.document;
    switch (request.task) {
    case Task::Size:
        return size(request, *file);
    case Task::Thumbnail:
        return made(picture_decoding::thumbnail(
            *file, std::min(request.wanted.width(), request.wanted.height()), request.formats));
    case Task::Open:
        return open(request, std::move(file));
    case Task::Render:
        return render(request, std::move(file));
    case Task::Frame:
        return frame(request, std::move(file));
    case Task::Transcode:
        return transcode(request, *file, std::move(target));
    }
    return failure(Outcome::Unreadable);
}

void RequestHandler::forget()
{
    m_document = 0;
    m_frames.reset();
    m_pages.reset();
}

Answer RequestHandler::open(const Request &request, std::unique_ptr<QFile> file)
{
    // Each of the two owns its file.
    FileDescriptor again(::dup(file->handle()));
    if (const auto picture = OpenedPicture::of(std::move(file)))
        return openPicture(request, *picture);
    m_pages = pages(opened(std::move(again)));
    return m_pages ? openPages() : failure(Outcome::Unreadable);
}

std::unique_ptr<OpenedPages> RequestHandler::pages(std::unique_ptr<QFile> file) const
{
    if (!file || !OpenedPages::isDocument(*file))
        return nullptr;
    // What reads documents ends the process where memory fails.
    if (m_room == decoder_protocol::Room::Usual)
        throw std::bad_alloc();
    return OpenedPages::of(std::move(file));
}

Answer RequestHandler::openPicture(const Request &request, OpenedPicture &picture)
{
    const bool isVector = picture.isVector();
    const bool isAnimated = picture.isAnimated();
    const int repeats = isAnimated ? std::max(picture.repeats(), -1) : 0;
    const QSize size = picture.size();
    QSize pixels = size;
    if (!size.isEmpty() && (isVector || isLarger(size, request.wanted)))
        pixels = fittedSize(size, request.wanted);
    auto image = picture.read(pixels);
    const QSize decoded = image ? image->size() : QSize();
    if (image && isLarger(decoded, request.wanted))
        image = image->scaled(request.wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    Answer answer = made(image);
    answer.reply.pictureSize = size.isEmpty() ? decoded : size;
    answer.reply.isVector = isVector;
    answer.reply.isAnimated = isAnimated;
    answer.reply.repeats = repeats;
    return answer;
}

Answer RequestHandler::openPages()
{
    Answer answer = failure(Outcome::Made);
    answer.reply.pages = m_pages->count();
    answer.reply.pageSizes = m_pages->sizes();
    return answer;
}

Answer RequestHandler::render(const Request &request, std::unique_ptr<QFile> file)
{
    if (!fitsDecoded(request.wanted))
        return failure(Outcome::OverBounds);
    if (!m_pages) {
        FileDescriptor again(::dup(file->handle()));
        if (const auto picture = OpenedPicture::of(std::move(file)))
            return request.part == 0 ? made(picture->read(request.wanted))
                                     : failure(Outcome::NoSuchPart);
        m_pages = pages(opened(std::move(again)));
    }
    if (!m_pages)
        return failure(Outcome::Unreadable);
    if (request.part >= m_pages->count())
        return failure(Outcome::NoSuchPart);
    return made(m_pages->read(request.part, request.wanted));
}

Answer RequestHandler::frame(const Request &request, std::unique_ptr<QFile> file)
{
    if (!m_frames || m_frames->nextFrame() > request.part)
        m_frames = OpenedPicture::of(std::move(file));
    if (!m_frames)
        return failure(Outcome::Unreadable);
    while (m_frames->nextFrame() < request.part) {
        if (!m_frames->skipFrame())
            return failure(Outcome::NoSuchPart);
    }
    const auto image = m_frames->readFrame(request.wanted);
    if (!image)
        return failure(Outcome::NoSuchPart);
    Answer answer = made(image);
    answer.reply.milliseconds = m_frames->milliseconds();
    return answer;
}

} // namespace corvane
