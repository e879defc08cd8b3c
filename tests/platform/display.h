#pragma once

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/hands.h"
#include "e2e/desktop/x_server.h"

namespace corvane::test {

using e2e::eventually;

/// The desktop that these tests run on, seen and touched from outside.
struct Display {
    e2e::XServer server{qgetenv("DISPLAY")};
    e2e::Hands hands{server};
};

/// Runs the event loop until nothing has happened for a moment: for what must NOT come.
inline void settle()
{
    eventually([] { return false; }, std::chrono::milliseconds{120});
}

/// So many bytes of text that a piece missing or repeated would be seen.
inline QByteArray numberedBytes(qsizetype size)
{
    QByteArray bytes;
    bytes.reserve(size + 16);
    for (qsizetype line = 0; bytes.size() < size; ++line)
        bytes += QByteArray::number(line) + '\n';
    bytes.truncate(size);
    return bytes;
}

} // namespace corvane::test
