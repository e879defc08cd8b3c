#pragma once

#include "app/preferences/preferences_tab.h"
#include "platform/base/callback_list.h"

#include <functional>
#include <utility>

namespace corvane {

/// Which pane is shown. Setting it from anywhere switches the window at once. Main thread only.
class TabSelection {
public:
    PreferencesTab tab() const { return m_tab; }

    void setTab(PreferencesTab tab)
    {
        m_tab = tab;
        m_observers.notify();
    }
    void observe(std::function<void()> callback) { m_observers.add(std::move(callback)); }

private:
    PreferencesTab m_tab = PreferencesTab::General;
    CallbackList<> m_observers;
};

} // namespace corvane
