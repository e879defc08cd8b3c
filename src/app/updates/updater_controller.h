#pragma once

#include "app/updates/installation.h"

#include <functional>
#include <memory>

class QString;

namespace corvane {

class AppInfo;
class Updater;

/// The single owner of what keeps the program up to date. It holds nothing, and says nothing, where
/// the build does not know where to look and whom to trust, or where others keep the program up to
/// date. Main thread only.
class UpdaterController {
public:
    /// Makes the updater where there is to be one. It is started once the settings have their
    /// defaults.
    UpdaterController(const AppInfo &info, const Installation &installation,
                      const std::function<std::unique_ptr<Updater>()> &make);
    UpdaterController(const UpdaterController &) = delete;
    UpdaterController &operator=(const UpdaterController &) = delete;
    ~UpdaterController();

    /// Null where there is none.
    Updater *updater() const { return m_updater.get(); }

private:
    static bool isConfigured(const AppInfo &info, const QString &key);

    std::unique_ptr<Updater> m_updater;
};

} // namespace corvane
