#pragma once

#include "platform/system/login_items.h"

namespace corvane {

/// This program's entry among those that the desktop starts with the session:
/// autostart/corvane.desktop below the user's configuration folder. A link of that name is looked
/// through as desktops do, but replaced and removed itself: what it leads to is somebody else's.
///
/// Registered is what this desktop would start: an entry that another program switched off, that is
/// meant for other desktops, or whose program is gone, counts as none. Registering writes it anew.
class AutostartLoginItems : public LoginItems {
public:
    /// The program to start; the running one by default, and of an AppImage its file.
    AutostartLoginItems();
    explicit AutostartLoginItems(QString program);

    bool isRegistered() const override;
    std::optional<QString> registerItem() override;
    std::optional<QString> unregisterItem() override;

private:
    QString m_program;
};

} // namespace corvane
