#include "platform/wayland/windows/toolkit_screen.h"

#include "platform/desktop/screens.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace corvane {

QScreen *toolkitScreen(const Screen &screen)
{
    const auto all = QGuiApplication::screens();
    const auto found = std::ranges::find_if(all, [&](const QScreen *candidate) {
        return candidate->geometry().topLeft() == screen.nativeFrame.topLeft()
            && (screen.name.isEmpty() || candidate->name() == screen.name);
    });
    return found == all.end() ? nullptr : *found;
}

} // namespace corvane
