#include "app/commands/toolkit_start.h"

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

void holdBack(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtFatalMsg) {
        saidMeanwhile.push_back({type, context.category, text});
        return;
    }
    // The first thing that went wrong is the reason; what follows lists what else was tried.
    const QString reason = saidMeanwhile.empty() ? text : saidMeanwhile.front().text;
    std::fprintf(stderr, "corvane: the display cannot be used: %s\n",
                 reason.section(QLatin1Char('\n'), 0, 0).toLocal8Bit().constData());
    ::_exit(1);
}

} // namespace

ToolkitStart::ToolkitStart()
{
    saidMeanwhile.clear();
    handlerBefore = qInstallMessageHandler(holdBack);
}

ToolkitStart::~ToolkitStart()
{
    qInstallMessageHandler(handlerBefore);
    for (const Said &said : std::exchange(saidMeanwhile, {}))
        handlerBefore(said.type, QMessageLogContext(nullptr, 0, nullptr, said.category), said.text);
}

} // namespace corvane
