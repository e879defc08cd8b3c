#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/// What this process says when it crashes, or has taken all its time: otherwise the program could
/// not tell a picture that is too much for its reader from a process that the kernel ended for want
/// of memory. Most readers crash where they get no memory, and then it was the memory that was not
/// enough.
namespace corvane::last_words {

/// From now on a crash is told to the other end of the socket, which stays open. `memory` is what
/// this process may take, in bytes. Once, by the thread that reads pictures.
void prepare(int socket, std::int64_t memory);

/// A request with that number is being served from now on; a crash is the answer to it.
void begin(std::uint32_t number);
/// It was answered. Between requests there is nothing to say.
void end();

} // namespace corvane::last_words
