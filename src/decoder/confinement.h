#pragma once

/// What this process gives up before it reads a stranger's first byte.
namespace corvane::confinement {

/// Of address space, in bytes: a picture of the largest size twice, and what the libraries need.
inline constexpr long long addressSpace = 1024LL * 1024 * 1024;
/// Of all requests together.
inline constexpr int processorSeconds = 120;
inline constexpr int openFiles = 64;

/// False if a limit could not be set.
bool limitResources();

} // namespace corvane::confinement
