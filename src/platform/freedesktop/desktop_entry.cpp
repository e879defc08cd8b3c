#include "platform/freedesktop/desktop_entry.h"

namespace corvane::desktop_entry {

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

} // namespace

QHash<QByteArray, QByteArray> group(const QByteArray &contents, const QByteArray &name)
{
    QHash<QByteArray, QByteArray> keys;
    bool isInside = false;
    for (const QByteArray &rawLine : contents.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('['))
            isInside = line == '[' + name + ']';
        const qsizetype equals = line.indexOf('=');
        if (!isInside || equals <= 0 || line.startsWith('#'))
            continue;
        keys.insert(line.first(equals).trimmed(), unescaped(line.sliced(equals + 1).trimmed()));
    }
    return keys;
}

QByteArrayList arguments(const QByteArray &command)
{
    QByteArrayList result;
    qsizetype at = 0;
    while (true) {
        while (at < command.size() && isSpace(command[at]))
            ++at;
        if (at == command.size())
            return result;
        QByteArray argument;
        while (at < command.size() && !isSpace(command[at])) {
            if (command[at] == '"' || command[at] == '\'') {
                if (!takeQuoted(command, at, argument))
                    return {};
                continue;
            }
            if (command[at] == '\\' && at + 1 < command.size())
                ++at;
            argument += command[at++];
        }
        result << argument;
    }
}

QByteArrayList list(const QByteArray &value)
{
    QByteArrayList result;
    for (const QByteArray &part : value.split(';')) {
        if (!part.trimmed().isEmpty())
            result << part.trimmed();
    }
    return result;
}

} // namespace corvane::desktop_entry
