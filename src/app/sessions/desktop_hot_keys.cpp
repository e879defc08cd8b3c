#include "app/sessions/desktop_hot_keys.h"

#include "app/base/app_info.h"
#include "input/hot_key_center.h"
#include "platform/system/own_command.h"

#include <QCoreApplication>

namespace corvane {

namespace {

/// What the hot keys do, as the desktop lists it and as commands.
std::vector<DesktopAction> desktopActions()
{
    using enum HotKeyCenter::Binding;
    const auto title = [](const char *text) {
        return QCoreApplication::translate("corvane::GeneralPane", text);
    };
    const QString application = AppInfo::builtIn().applicationId();
    // Starting the program once more is for the shelf; the bar is one of its actions.
    return {{.id = HotKeyCenter::idOf(Shelf),
             .name = QStringLiteral("toggle"),
             .title = title("Show or hide the shelf"),
             .command = own_command::inShell()},
            {.id = HotKeyCenter::idOf(ViewAll),
             .name = QStringLiteral("view-all"),
             .title = title("Show or hide all items"),
             .command = QStringLiteral("gapplication action %1 view-all").arg(application)}};
}

} // namespace

DesktopHotKeys::DesktopHotKeys(const KeyNaming &naming, MainQueue &queue)
    : kde(
        {.name = AppInfo::builtIn().applicationId(), .title = QCoreApplication::applicationName()},
        desktopActions(), naming)
    , portal(desktopActions(), naming, queue)
    , actions(desktopActions(),
              key_notation::settingsOf(qEnvironmentVariable("XDG_CURRENT_DESKTOP")), naming)
    , service({&kde, &portal, &actions})
{
}

bool DesktopHotKeys::areChosenHere() const
{
    const OptionalHotKeys *const chosen = service.chosen();
    return chosen && chosen->choice() == ShortcutChoice::Here;
}

} // namespace corvane
