#pragma once

#include "platform/pictures/decoder_protocol.h"

/// What this process gives up before it reads a stranger's first byte.
namespace corvane::confinement {

/// Of address space, in bytes. What is mapped for reading counts, too, and what libraries only
/// reserve: 16 GB at a time for documents, with newer versions of Qt.
inline constexpr long long addressSpace = 128LL * 1024 * 1024 * 1024;
/// Of each thread but the first one.
inline constexpr long long threadStack = 512LL * 1024;
/// Of all requests together.
inline constexpr int processorSeconds = 120;
/// After these, the kernel ends the process without a word.
inline constexpr int lastProcessorSeconds = processorSeconds + 2;
inline constexpr int openFiles = 64;
/// In the sandbox: a decoder that was taken over could otherwise begin as many as its user may
/// have. (It cannot start processes at all: the filter of system calls forbids that.) There is no
/// such limit outside of the sandbox, because the kernel counts all threads of the same user.
inline constexpr int threads = 512;

/// The memory of sanitizers is above any bound, and they tell of a crash themselves.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif

/// Of one file that is written, which is a picture's pixels, or what they are converted to.
constexpr long long fileBytes(decoder_protocol::Room room)
{
    return decoder_protocol::decodedBytesIn(room) / 4 * 5;
}

/// False if a limit could not be set.
bool limitResources(decoder_protocol::Room room);

} // namespace corvane::confinement
