#include "app/commands/toolkit_start.h"

#include "app/commands/command_problem.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <unistd.h>

#include <cstdio>
#include <utility>
#include <vector>

namespace corvane {

namespace {

struct Said {
    QtMsgType type;
    /// The toolkit's categories live as long as the process.
    const char *category;
    QString text;
};

std::vector<Said> saidMeanwhile;
QtMessageHandler handlerBefore = nullptr;
/// In two halves, between which the reason stands.
QByteArray lineBefore;
QByteArray lineBehind;

void holdBack(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtFatalMsg) {
        saidMeanwhile.push_back({type, context.category, text});
        return;
    }
    // The first thing that went wrong is the reason; what follows lists what else was tried.
    const QString reason = saidMeanwhile.empty() ? text : saidMeanwhile.front().text;
    std::fprintf(stderr, "corvane: %s%s%s\n", lineBefore.constData(),
                 reason.section(QLatin1Char('\n'), 0, 0).toLocal8Bit().constData(),
                 lineBehind.constData());
    ::_exit(1);
}

} // namespace

ToolkitStart::ToolkitStart()
{
    saidMeanwhile.clear();
    const QByteArray line = command_problem::line(CommandProblem::DisplayUnusable, {"\n"});
    lineBefore = line.left(line.indexOf('\n'));
    lineBehind = line.mid(line.indexOf('\n') + 1);
    handlerBefore = qInstallMessageHandler(holdBack);
}

ToolkitStart::~ToolkitStart()
{
    qInstallMessageHandler(handlerBefore);
    for (const Said &said : std::exchange(saidMeanwhile, {}))
        handlerBefore(said.type, QMessageLogContext(nullptr, 0, nullptr, said.category), said.text);
}

} // namespace corvane
