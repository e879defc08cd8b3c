// An answer of a server, however it is cut.

#include "platform/qt/web/http_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

using corvane::HttpReader;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const qsizetype step = 1 + data[0];
    const QByteArrayView bytes(data + 1, static_cast<qsizetype>(size) - 1);
    constexpr qsizetype limit = 1 << 20;
    HttpReader reader;
    qsizetype body = 0;
    for (qsizetype at = 0; at < bytes.size(); at += step) {
        const auto piece = bytes.sliced(at, std::min(step, bytes.size() - at));
        const qsizetype taken
            = reader.state() == HttpReader::State::Head ? reader.feedHead(piece) : 0;
        reader.feedBody(piece.sliced(taken), [&body](const QByteArray &part) {
            body += part.size();
            return body < limit;
        });
    }
    reader.end();
    if (reader.state() == HttpReader::State::Head || reader.state() == HttpReader::State::Body)
        __builtin_trap();
    return 0;
}
