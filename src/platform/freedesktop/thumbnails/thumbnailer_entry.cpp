#include "platform/freedesktop/thumbnails/thumbnailer_entry.h"

#include <algorithm>

namespace corvane {

namespace {

/// A value of a desktop entry as the text that it stands for.
QByteArray unescaped(const QByteArray &value)
{
    QByteArray result;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (const char code = value[++i]) {
        case 's':
            result += ' ';
            break;
        case 'n':
            result += '\n';
            break;
        case 't':
            result += '\t';
            break;
        case 'r':
            result += '\r';
            break;
        case '\\':
            result += '\\';
            break;
        default:
            result += '\\';
            result += code;
        }
    }
    return result;
}

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// Takes a quoted piece off a command line, from behind its opening quote at `at` to behind the
/// closing one; false when there is none.
bool takeQuoted(const QByteArray &line, qsizetype &at, QByteArray &argument)
{
    const char quote = line[at++];
    for (; at < line.size(); ++at) {
        if (line[at] == quote) {
            ++at;
            return true;
        }
        // Single quotes, which programs use though they are not asked for, keep everything.
        const bool escapes = quote == '"' && line[at] == '\\' && at + 1 < line.size()
            && QByteArrayView("\"`$\\").contains(line[at + 1]);
        at += escapes ? 1 : 0;
        argument += line[at];
    }
    return false;
}

/// A command line as its arguments; empty when a quote is left open.
QByteArrayList arguments(const QByteArray &line)
{
    QByteArrayList result;
    qsizetype at = 0;
    while (true) {
        while (at < line.size() && isSpace(line[at]))
            ++at;
        if (at == line.size())
            return result;
        QByteArray argument;
        while (at < line.size() && !isSpace(line[at])) {
            if (line[at] == '"' || line[at] == '\'') {
                if (!takeQuoted(line, at, argument))
                    return {};
                continue;
            }
            if (line[at] == '\\' && at + 1 < line.size())
                ++at;
            argument += line[at++];
        }
        result << argument;
    }
}

/// Calls `text` with what stands between the codes and `code` with each code, in their order.
template<typename Text, typename Code>
void visit(const QByteArray &argument, Text text, Code code)
{
    for (qsizetype i = 0; i < argument.size(); ++i) {
        if (argument[i] != '%')
            text(argument[i]);
        else if (++i < argument.size())
            code(argument[i]);
    }
}

bool hasCode(const QByteArrayList &exec, const char *wanted)
{
    bool isThere = false;
    for (const QByteArray &argument : exec) {
        visit(
            argument, [](char) {},
            [&](char code) { isThere = isThere || QByteArrayView(wanted).contains(code); });
    }
    return isThere;
}

QByteArrayList list(const QByteArray &value)
{
    QByteArrayList result;
    for (const QByteArray &part : value.split(';')) {
        if (!part.trimmed().isEmpty())
            result << part.trimmed().toLower();
    }
    return result;
}

} // namespace

std::optional<ThumbnailerEntry> ThumbnailerEntry::parse(const QByteArray &contents)
{
    ThumbnailerEntry entry;
    bool isInside = false;
    for (const QByteArray &rawLine : contents.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('['))
            isInside = line == "[Thumbnailer Entry]";
        const qsizetype equals = line.indexOf('=');
        if (!isInside || equals <= 0 || line.startsWith('#'))
            continue;
        const QByteArray key = line.first(equals).trimmed();
        const QByteArray value = unescaped(line.sliced(equals + 1).trimmed());
        if (key == "TryExec")
            entry.tryExec = value;
        else if (key == "Exec")
            entry.exec = arguments(value);
        else if (key == "MimeType")
            entry.mimeTypes = list(value);
    }
    const bool isWhole = !entry.exec.isEmpty() && !entry.exec.constFirst().isEmpty()
        && hasCode(entry.exec, "ui") && hasCode(entry.exec, "o");
    const bool hasNull = entry.tryExec.contains('\0')
        || std::any_of(entry.exec.cbegin(), entry.exec.cend(),
                       [](const QByteArray &argument) { return argument.contains('\0'); });
    return isWhole && !hasNull ? std::optional(entry) : std::nullopt;
}

QByteArrayList ThumbnailerEntry::command(const Fields &fields) const
{
    QByteArrayList result;
    for (const QByteArray &argument : exec) {
        QByteArray expanded;
        const auto expand = [&](char code) {
            if (code == 'u')
                expanded += fields.uri;
            else if (code == 'i')
                expanded += fields.inputPath;
            else if (code == 'o')
                expanded += fields.outputPath;
            else if (code == 's')
                expanded += QByteArray::number(fields.pixels);
            else if (code == '%')
                expanded += '%';
        };
        visit(
            argument, [&](char character) { expanded += character; }, expand);
        result << expanded;
    }
    return result;
}

} // namespace corvane
