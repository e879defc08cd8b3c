#include "platform/wayland/base/lost_connection_line.h"

#include <QString>
#include <QtGlobal>

#include <mutex>
#include <utility>

namespace corvane {

namespace {

/// Both of the toolkit's lines begin with it; neither is translated.
constexpr QLatin1String beginning("The Wayland connection ");

QtMessageHandler handlerBefore = nullptr;
std::mutex saying;
bool isSaid = false;

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(beginning)) {
        handlerBefore(type, context, text);
        return;
    }
    // Whoever is not heard waits until the other one is: each ends the process right after it.
    const std::scoped_lock lock(saying);
    if (!std::exchange(isSaid, true))
        handlerBefore(type, context, text);
}

} // namespace

void hearLostConnectionOnce()
{
    const std::scoped_lock lock(saying);
    isSaid = false;
    const QtMessageHandler before = qInstallMessageHandler(passOn);
    if (before != passOn)
        handlerBefore = before;
}

} // namespace corvane
