#include "e2e/desktop/program.h"

#include "e2e/desktop/eventually.h"

#include <QStandardPaths>

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

namespace corvane::e2e {

Program::Program(const QString &name, const QStringList &arguments,
                 const QProcessEnvironment &environment, const QString &workingDirectory)
{
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    if (!workingDirectory.isEmpty())
        process_.setWorkingDirectory(workingDirectory);
    process_.setChildProcessModifier([] {
        // A session of its own, so that its children can be ended with it; and nothing is left over
        // if the test itself is ended.
        setsid();
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    process_.start(name, arguments);
    process_.closeWriteChannel();
    if (process_.waitForStarted())
        pid_ = process_.processId();
    else
        qWarning("%s does not start: %s", qPrintable(name), qPrintable(process_.errorString()));
}

Program::~Program()
{
    if (pid_ == 0)
        return;
    // The group is there as long as one of its members is, even after its leader.
    const auto group = static_cast<pid_t>(pid_);
    killpg(group, SIGTERM);
    if (!waitForEnd(std::chrono::seconds{3}))
        qWarning("%s does not end by itself", qPrintable(process_.program()));
    killpg(group, SIGKILL);
    process_.waitForFinished();
}

bool Program::isRunning()
{
    QCoreApplication::processEvents();
    return process_.state() != QProcess::NotRunning;
}

void Program::signal(int number) const
{
    if (pid_ != 0)
        kill(static_cast<pid_t>(pid_), number);
}

std::optional<int> Program::waitForEnd(std::chrono::milliseconds limit)
{
    if (!eventually([this] { return !isRunning(); }, limit))
        return std::nullopt;
    if (process_.exitStatus() == QProcess::CrashExit)
        return 128 + process_.exitCode();
    return process_.exitCode();
}

QByteArray Program::output()
{
    output_ += process_.readAll();
    return output_;
}

std::optional<QByteArray> outputOf(const QString &name, const QStringList &arguments,
                                   const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(name, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(10000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

bool isInstalled(const QString &name)
{
    return !QStandardPaths::findExecutable(name).isEmpty();
}

} // namespace corvane::e2e
