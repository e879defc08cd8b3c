#pragma once

#include "app/updates/installation.h"

#include <functional>
#include <memory>

class QString;

namespace corvane {

class AppInfo;
class Updater;

/// Owns the updater. There is none, and nothing is said about it, where the build has no address of
/// a feed or no key, or where the distribution or Flatpak keeps the program up to date. Main thread
/// only.
class UpdaterController {
public:
    /// Makes the updater where there is to be one. Whoever launches the program starts it.
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
