#include "app/updates/updater_controller.h"

#include "app/base/app_info.h"
#include "app/updates/updater.h"

namespace corvane {

UpdaterController::UpdaterController(const AppInfo &info, const Installation &installation,
                                     const std::function<std::unique_ptr<Updater>()> &make)
{
    if (installation.kind == Installation::Kind::Managed
        || !isConfigured(info, AppInfo::feedAddressKey)
        || !isConfigured(info, AppInfo::updateKeyKey))
        return;
    m_updater = make();
}

UpdaterController::~UpdaterController() = default;

bool UpdaterController::isConfigured(const AppInfo &info, const QString &key)
{
    // The marker is what a template holds that nobody has filled in.
    const QString value = info.text(key);
    return !value.isEmpty() && !value.contains(QLatin1String("REPLACE_"));
}

} // namespace corvane
