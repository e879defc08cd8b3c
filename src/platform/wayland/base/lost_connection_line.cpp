#include "platform/wayland/base/lost_connection_line.h"

#include <QString>
#include <QtGlobal>

#include <atomic>

namespace corvane {

namespace {

/// Both of the toolkit's lines begin with it; neither is translated.
constexpr QLatin1String beginning("The Wayland connection ");

QtMessageHandler handlerBefore = nullptr;
std::atomic_flag isSaid;

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.startsWith(beginning) && isSaid.test_and_set())
        return;
    handlerBefore(type, context, text);
}

} // namespace

void hearLostConnectionOnce()
{
    isSaid.clear();
    const QtMessageHandler before = qInstallMessageHandler(passOn);
    if (before != passOn)
        handlerBefore = before;
}

} // namespace corvane
