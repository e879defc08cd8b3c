#include "platform/qt/web/http_head.h"

namespace corvane {

namespace {

std::optional<int> statusOf(const QByteArray &line)
{
    // "HTTP/1.1 200 OK"
    constexpr qsizetype versionLength = 8;
    constexpr qsizetype statusEnd = 12;
    if (!line.startsWith("HTTP/1.") || line.size() < statusEnd || line[versionLength] != ' '
        || (line.size() > statusEnd && line[statusEnd] != ' '))
        return std::nullopt;
    bool isNumber = false;
    const int status = line.mid(versionLength + 1, 3).toInt(&isNumber);
    constexpr int first = 100;
    return isNumber && status >= first ? std::optional(status) : std::nullopt;
}

qint64 lengthOf(const QByteArray &value)
{
    bool isNumber = false;
    const qint64 length = value.toLongLong(&isNumber);
    return isNumber && length >= 0 ? length : -1;
}

void append(QByteArray &codings, const QByteArray &value)
{
    if (!codings.isEmpty() && !value.isEmpty())
        codings += ", ";
    codings += value.toLower();
}

void take(HttpHead &head, const QByteArray &name, const QByteArray &value)
{
    if (name == "location" && head.location.isEmpty())
        head.location = value;
    else if (name == "content-length" && head.contentLength < 0)
        head.contentLength = lengthOf(value);
    else if (name == "transfer-encoding")
        append(head.transferCoding, value);
    else if (name == "content-encoding")
        append(head.contentCoding, value);
}

} // namespace

std::optional<HttpHead> HttpHead::read(const QByteArray &lines)
{
    qsizetype end = lines.indexOf('\n');
    const auto status = statusOf(lines.first(end < 0 ? lines.size() : end).trimmed());
    if (!status)
        return std::nullopt;
    HttpHead head;
    head.status = *status;
    while (end >= 0) {
        const qsizetype begin = end + 1;
        end = lines.indexOf('\n', begin);
        const QByteArray line = lines.sliced(begin, (end < 0 ? lines.size() : end) - begin);
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            corvane::take(head, line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    return head;
}

bool HttpHead::isInterim() const
{
    constexpr int final = 200;
    constexpr int switchingProtocols = 101;
    return status < final && status != switchingProtocols;
}

bool HttpHead::hasNoBody() const
{
    constexpr int noContent = 204;
    constexpr int notModified = 304;
    return status == noContent || status == notModified;
}

} // namespace corvane
