#pragma once

#include "decoder/request_handler.h"

#include <cstddef>
#include <cstdint>

/// What the decoder does with a stranger's bytes, without its process around it: neither its
/// confinement nor its bounds of time are there, and pictures are bounded to a few megabytes, so
/// that a run gets to many of them.
namespace corvane::fuzz {

/// Where pictures of a format are accepted from.
enum class Origin { WebAndDisk, DiskAlone };

/// All that the program may ask about a file of these bytes, one after the other. Aborts where an
/// answer is none that the program accepts, or a picture comes from where its format must not.
void decode(const std::uint8_t *data, std::size_t size, Origin origin);

/// The handler's answer to a request, checked as the program checks it.
RequestHandler::Answer served(RequestHandler &handler, const decoder_protocol::Request &request,
                              const QByteArray &contents);

/// Bounds pictures as described. To be called after a handler is made, which sets its own bounds.
void boundPictures();

} // namespace corvane::fuzz
