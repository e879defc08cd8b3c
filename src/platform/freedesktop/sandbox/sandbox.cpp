#include "platform/freedesktop/sandbox/sandbox.h"

#include "platform/base/cancellation.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/system/system_call_filter.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>

namespace corvane {

namespace {

constexpr auto outputFolder = "/out";

/// Runs its arguments and gives what they made. A constant: nothing of a file, of its name or of a
/// thumbnailer's entry becomes part of the script. A failure of the program has a status of its
/// own, so that it is not taken for one of those that shut it in; above 125 is what a shell says of
/// a program that was killed, or could not be started.
constexpr auto script = R"("$@" >/dev/null </dev/null; s=$?
if [ $s = 0 ]; then cat /out/thumbnail.png && exit 0; s=1; fi
[ $s -gt 125 ] && exit $s
exit 113)";

QByteArray find(const QByteArrayList &folders, const QByteArray &name)
{
    for (const QByteArray &folder : folders) {
        QByteArray path = folder + '/' + name;
        if (::access(path.constData(), X_OK) == 0)
            return path;
    }
    return {};
}

/// A folder of the system at the root, which is a link into /usr on nearly every system.
QByteArrayList rootFolder(const QByteArray &path)
{
    struct stat status = {};
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    if (::lstat(path.constData(), &status) != 0)
        return {};
    if (!S_ISLNK(status.st_mode))
        return {"--ro-bind-try", path, path};
    target.truncate(std::max<ssize_t>(
        ::readlink(path.constData(), target.data(), static_cast<std::size_t>(target.size())), 0));
    return {"--symlink", target, path};
}

QByteArrayList readOnly(const QByteArray &path)
{
    return {"--ro-bind-try", path, path};
}

QByteArrayList memory(const QByteArray &path)
{
    return {"--size", QByteArray::number(Sandbox::fileBytes), "--tmpfs", path};
}

} // namespace

Sandbox::Sandbox(const QByteArrayList &programFolders)
    : m_bubblewrap(find(programFolders, "bwrap"))
    , m_limiter(find(programFolders, "prlimit"))
    , m_shell(find(programFolders, "sh"))
    , m_hasFilter(filter().isOpen())
{
}

QByteArray Sandbox::outputPath()
{
    return "/out/thumbnail.png";
}

QByteArrayList Sandbox::walls() const
{
    // No --new-session: bounded_process starts it in a session of its own, and the sandbox's first
    // process has to stay in the group that is killed there.
    QByteArrayList arguments
        = {m_bubblewrap, "--unshare-all", "--cap-drop", "ALL",
           "--clearenv", "--setenv",      "PATH",       "/usr/local/bin:/usr/bin:/bin"};
    arguments << QByteArrayList{"--setenv", "LANG", "C.UTF-8", "--setenv", "HOME", "/tmp"};
    arguments << QByteArrayList{"--ro-bind", "/usr", "/usr"};
    for (const char *path : {"/bin", "/sbin", "/lib", "/lib32", "/lib64", "/libx32"})
        arguments << rootFolder(path);
    for (const char *path :
         {"/nix/store", "/gnu/store", "/etc/alternatives", "/etc/fonts", "/etc/ld.so.cache",
          "/etc/ld.so.conf", "/etc/ld.so.conf.d", "/var/cache/fontconfig"})
        arguments << readOnly(path);
    arguments << QByteArrayList{"--proc", "/proc", "--dev", "/dev"};
    for (const char *path : {"/dev/shm", "/tmp", outputFolder})
        arguments << memory(path);
    return arguments;
}

FileDescriptor Sandbox::filter()
{
    return system_call_filter::forForeignProgram();
}

QByteArrayList Sandbox::command(const OwnProgram &program) const
{
    // No --die-with-parent: what starts it in the background ends at once, sometimes only after
    // bubblewrap has asked to end with it.
    QByteArrayList arguments = walls();
    // Without one Qt would look the user up, and make a folder named after it.
    arguments << QByteArrayList{"--perms",         "0700", "--dir", "/run", "--setenv",
                                "XDG_RUNTIME_DIR", "/run"};
    for (const QByteArray &path : program.files)
        arguments << QByteArrayList{"--ro-bind", path, path};
    for (qsizetype i = 0; i + 1 < program.environment.size(); i += 2)
        arguments << QByteArrayList{"--setenv", program.environment[i], program.environment[i + 1]};
    arguments << QByteArrayList{"--remount-ro", "/dev", "--remount-ro", "/", "--chdir", "/", "--"};
    return arguments + program.command;
}

QByteArrayList Sandbox::command(const Program &program) const
{
    QByteArrayList arguments = walls();
    // Not enough by itself, for it is heard only after everything is furnished.
    arguments << "--die-with-parent";
    if (m_hasFilter)
        arguments << "--seccomp" << QByteArray::number(bounded_process::handedNumber);
    const QByteArray path = program.command.constFirst();
    // A user's own program is shown alone, without what lies beside it.
    if (!path.startsWith("/usr/"))
        arguments << QByteArrayList{"--ro-bind", path, path};
    if (!program.inputFile.isEmpty())
        arguments << QByteArrayList{"--ro-bind", program.inputFile, program.inputPath};
    // What is in memory but has no bound.
    arguments << QByteArrayList{"--remount-ro", "/dev", "--remount-ro", "/", "--chdir",
                                "/tmp",         "--"};
    arguments << m_limiter << "--as=" + QByteArray::number(addressSpace)
              << "--cpu=" + QByteArray::number(processorSeconds)
              << "--fsize=" + QByteArray::number(fileBytes)
              << "--nproc=" + QByteArray::number(processes) << "--core=0"
              << "--" << m_shell << "-c" << script << "sh";
    return arguments + program.command;
}

bool Sandbox::isAvailable() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_isAvailable)
        m_isAvailable = tryOut();
    return *m_isAvailable;
}

bool Sandbox::tryOut() const
{
    if (m_bubblewrap.isEmpty() || m_limiter.isEmpty() || m_shell.isEmpty())
        return false;
    const Program program = {{m_shell, "-c", "echo inside > /out/thumbnail.png"}, {}, {}};
    Cancellation never;
    const auto result = bounded_process::run(command(program), {5, 1024}, never, filter());
    return result.outcome == bounded_process::Result::Outcome::Ended && result.exitCode == 0
        && result.output == "inside\n";
}

} // namespace corvane
