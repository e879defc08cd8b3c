#pragma once

#include "platform/system/file_descriptor.h"

/// Which system calls a program that reads strangers' files may make (seccomp).
namespace corvane::system_call_filter {

/// For this process and all its threads, for good: memory, threads, files that are open, opening
/// others for reading, and nothing else. Whatever else is tried fails with EPERM. New privileges
/// are given up, too. False if this system cannot do it.
bool confineDecoder();

/// What is refused to a program of somebody else that may start others: what reaches other
/// processes, other networks than its own, and the parts of the kernel that no such program needs.
/// As a file for bubblewrap's option --seccomp; not open if this system cannot do it.
FileDescriptor forForeignProgram();

} // namespace corvane::system_call_filter
