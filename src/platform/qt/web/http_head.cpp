#include "platform/qt/web/http_head.h"

#include <algorithm>
#include <array>

namespace corvane {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// "HTTP/1.x nnn", and behind a blank whatever it likes to say.
std::optional<int> statusOf(QByteArrayView line)
{
    constexpr qsizetype length = 12;
    if (line.size() < length || !line.startsWith("HTTP/1.") || !isDigit(line[7]) || line[8] != ' ')
        return std::nullopt;
    if (line.size() > length && line[length] != ' ')
        return std::nullopt;
    int status = 0;
    for (qsizetype i = 9; i < length; ++i) {
        if (!isDigit(line[i]))
            return std::nullopt;
        status = status * 10 + (line[i] - '0');
    }
    return status;
}

/// Takes a line off the front, whether it ends in CR LF or in LF alone.
QByteArrayView takeLine(QByteArrayView &bytes)
{
    const qsizetype end = bytes.indexOf('\n');
    QByteArrayView line = end < 0 ? bytes : bytes.first(end);
    bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

bool addLine(HttpHead &head, QByteArrayView line)
{
    if (line.contains('\0') || line.contains('\r'))
        return false;
    // A long value may go on in the next line.
    if (line.startsWith(' ') || line.startsWith('\t')) {
        if (head.fields.isEmpty())
            return false;
        head.fields.last().value += ' ' + line.trimmed().toByteArray();
        return true;
    }
    const qsizetype colon = line.indexOf(':');
    if (colon > 0)
        head.fields.append(
            {line.first(colon).toByteArray(), line.sliced(colon + 1).trimmed().toByteArray()});
    return true;
}

} // namespace

std::optional<HttpHead> HttpHead::parse(QByteArrayView bytes)
{
    const auto status = statusOf(takeLine(bytes));
    if (!status)
        return std::nullopt;
    HttpHead head;
    head.statusCode = *status;
    while (!bytes.isEmpty()) {
        const QByteArrayView line = takeLine(bytes);
        if (line.isEmpty())
            break;
        if (!addLine(head, line))
            return std::nullopt;
    }
    return head;
}

QList<QByteArray> HttpHead::values(QByteArrayView name) const
{
    QList<QByteArray> found;
    for (const Field &field : fields) {
        if (field.name.compare(name, Qt::CaseInsensitive) == 0)
            found.append(field.value);
    }
    return found;
}

QList<QByteArray> HttpHead::items(QByteArrayView name) const
{
    QList<QByteArray> all;
    for (const QByteArray &value : values(name)) {
        for (const QByteArray &item : value.split(',')) {
            if (const QByteArray text = item.trimmed().toLower(); !text.isEmpty())
                all.append(text);
        }
    }
    return all;
}

std::optional<QByteArray> HttpHead::redirection() const
{
    constexpr std::array statuses = {301, 302, 303, 307, 308};
    if (std::ranges::find(statuses, statusCode) == statuses.end())
        return std::nullopt;
    const QList<QByteArray> locations = values("location");
    if (locations.isEmpty() || locations.constFirst().isEmpty())
        return std::nullopt;
    return locations.constFirst();
}

} // namespace corvane
