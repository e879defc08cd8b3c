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
/// Threads, and so of a decoder that was taken over. New processes are forbidden by the filter of
/// system calls. The kernel counts all that a user has, so there is no such limit where others
/// would be counted with it: outside of the sandbox, whose users are its own.
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
