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
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    if (!workingDirectory.isEmpty())
        m_process.setWorkingDirectory(workingDirectory);
    m_process.setChildProcessModifier([] {
        // In a session of its own, so that its children can be ended with it; and ended when the
        // test is.
        setsid();
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    m_process.start(name, arguments);
    m_process.closeWriteChannel();
    if (m_process.waitForStarted())
        m_pid = m_process.processId();
    else
        qWarning("%s does not start: %s", qPrintable(name), qPrintable(m_process.errorString()));
}

Program::~Program()
{
    if (m_pid == 0)
        return;
    // The process group exists as long as one of its members, even without its leader.
    const auto group = static_cast<pid_t>(m_pid);
    killpg(group, SIGTERM);
    if (!waitForEnd(std::chrono::seconds{3}))
        qWarning("%s does not end by itself", qPrintable(m_process.program()));
    killpg(group, SIGKILL);
    m_process.waitForFinished();
}

bool Program::isRunning()
{
    QCoreApplication::processEvents();
    return m_process.state() != QProcess::NotRunning;
}

void Program::signal(int number) const
{
    if (m_pid != 0)
        kill(static_cast<pid_t>(m_pid), number);
}

std::optional<int> Program::waitForEnd(std::chrono::milliseconds limit)
{
    if (!eventually([this] { return !isRunning(); }, limit))
        return std::nullopt;
    if (m_process.exitStatus() == QProcess::CrashExit)
        return 128 + m_process.exitCode();
    return m_process.exitCode();
}

QByteArray Program::output()
{
    m_output += m_process.readAll();
    return m_output;
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
