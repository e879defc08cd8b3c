#pragma once

#include "decoder/opened_pages.h"
#include "decoder/opened_picture.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/system/file_descriptor.h"

#include <memory>

namespace corvane {

/// Serves requests, one after the other. What was opened for a document stays open until another
/// one is asked for, so that frames and pages need not be looked for from the beginning.
class RequestHandler {
public:
    struct Answer {
        decoder_protocol::Reply reply;
        /// Sealed memory with the reply's pixels.
        FileDescriptor pixels;
    };

    /// Throws nothing: where memory does not suffice, the outcome is `OverBounds`.
    explicit RequestHandler(decoder_protocol::Room room = decoder_protocol::Room::Large);

    /// `contents` is open for reading; `target` for writing, if the task is to transcode.
    Answer serve(const decoder_protocol::Request &request, FileDescriptor contents,
                 FileDescriptor target);

private:
    using Request = decoder_protocol::Request;

    Answer served(const Request &request, FileDescriptor contents, FileDescriptor target);
    Answer open(const Request &request, std::unique_ptr<QFile> file);
    Answer openPicture(const Request &request, OpenedPicture &picture);
    std::unique_ptr<OpenedPages> pages(std::unique_ptr<QFile> file) const;
    Answer openPages();
    Answer render(const Request &request, std::unique_ptr<QFile> file);
    Answer frame(const Request &request, std::unique_ptr<QFile> file);
    void forget();

    decoder_protocol::Room m_room;
    std::uint32_t m_document = 0;
    std::unique_ptr<OpenedPicture> m_frames;
    std::unique_ptr<OpenedPages> m_pages;
};

} // namespace corvane
