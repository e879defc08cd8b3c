#pragma once

#include "app/updates/update_notices.h"
#include "app/updates/updater.h"

#include <optional>

namespace corvane::test {

/// Notes what is wanted of it; a test decides what is wrong with updates.
class FakeUpdater : public Updater {
public:
    void start() override { ++starts; }
    void checkForUpdates() override { ++checks; }
    bool automaticallyChecksForUpdates() const override { return automatic.value_or(false); }
    void setAutomaticallyChecksForUpdates(bool on) override { automatic = on; }
    UpdateNotices &notices() override { return wrong; }
    void showNotice() override { ++noticesShown; }

    int starts = 0;
    int checks = 0;
    std::optional<bool> automatic;
    UpdateNotices wrong;
    int noticesShown = 0;
};

} // namespace corvane::test
