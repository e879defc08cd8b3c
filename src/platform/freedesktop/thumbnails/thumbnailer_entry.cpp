#include "platform/freedesktop/thumbnails/thumbnailer_entry.h"

#include "platform/freedesktop/desktop_entry.h"

#include <algorithm>

namespace corvane {

namespace {

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

} // namespace

std::optional<ThumbnailerEntry> ThumbnailerEntry::parse(const QByteArray &contents)
{
    const auto keys = desktop_entry::group(contents, "Thumbnailer Entry");
    ThumbnailerEntry entry;
    entry.tryExec = keys.value("TryExec");
    entry.exec = desktop_entry::arguments(keys.value("Exec"));
    for (const QByteArray &type : desktop_entry::list(keys.value("MimeType")))
        entry.mimeTypes << type.toLower();
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
