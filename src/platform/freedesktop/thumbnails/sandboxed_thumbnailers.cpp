#include "platform/freedesktop/thumbnails/sandboxed_thumbnailers.h"

#include "platform/base/cancellation.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"

#include <QFile>
#include <QMimeDatabase>

#include <algorithm>
#include <csignal>

namespace corvane {

namespace {

using Outcome = ExternalThumbnailers::Result::Outcome;

/// What the file is, by its name and where that says nothing by its contents, and then what that is
/// a kind of, from near to far.
QByteArrayList mimeTypes(const FileVersion &version)
{
    const QMimeDatabase database;
    const QString name = file_url::lastPathComponent(version.path);
    QMimeType type = database.mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    QFile file;
    if (type.isDefault() && regular_file::open(file, version.path))
        type = database.mimeTypeForFileNameAndData(name, &file);
    if (type.isDefault())
        return {};
    QByteArrayList names = {type.name().toLatin1()};
    for (const QString &alias : type.aliases() + type.allAncestors())
        names << alias.toLatin1();
    // Every file is of this type.
    names.removeAll("application/octet-stream");
    return names;
}

/// The file's path inside: its extension, and nothing else of its name.
QByteArray neutralPath(const FileVersion &file)
{
    constexpr qsizetype longestExtension = 10;
    const QByteArray extension
        = file_url::pathExtension(file_url::lastPathComponent(file.path)).toUtf8();
    const bool isPlain = !extension.isEmpty() && extension.size() <= longestExtension
        && std::all_of(extension.cbegin(), extension.cend(), [](char byte) {
               return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
                   || (byte >= '0' && byte <= '9');
           });
    return isPlain ? "/in/file." + extension : QByteArray("/in/file");
}

/// Whether it failed because of the file. One that was killed may have lacked time or memory, and
/// what stands around it may have failed before it began.
bool hasFailed(int exitCode)
{
    constexpr int signalBase = 128;
    return exitCode == Sandbox::programFailed
        || (exitCode > signalBase && exitCode != signalBase + SIGKILL);
}

} // namespace

SandboxedThumbnailers::SandboxedThumbnailers(const ThumbnailerRegistry &registry,
                                             const Sandbox &sandbox, double seconds)
    : m_registry(registry)
    , m_sandbox(sandbox)
    , m_seconds(seconds)
{
}

ExternalThumbnailers::Result SandboxedThumbnailers::run(const FileVersion &file, int pixels,
                                                        Cancellation &cancellation)
{
    const auto thumbnailer = m_registry.find(mimeTypes(file));
    if (!thumbnailer || !m_sandbox.isAvailable())
        return {};
    const QByteArray inside = neutralPath(file);
    QByteArrayList command
        = thumbnailer->entry.command({"file://" + inside, inside, Sandbox::outputPath(), pixels});
    command.front() = thumbnailer->program;
    auto result = bounded_process::run(m_sandbox.command({command, file.path, inside}),
                                       {m_seconds, maximumBytes}, cancellation, Sandbox::filter());
    if (result.outcome == bounded_process::Result::Outcome::NotStarted)
        return {};
    if (result.outcome == bounded_process::Result::Outcome::Killed)
        return {Outcome::Stopped, {}};
    if (result.exitCode != 0)
        return {hasFailed(result.exitCode) ? Outcome::Failed : Outcome::Stopped, {}};
    return {Outcome::Made, result.output};
}

} // namespace corvane
