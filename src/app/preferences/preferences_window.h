#pragma once

#include "app/look/shell_window.h"
#include "app/look/window_look.h"
#include "app/preferences/preferences_context.h"
#include "app/preferences/tab_selection.h"
#include "platform/base/lifetime.h"

#include <array>

class QScrollArea;

namespace corvane {

class ChoiceButton;

/// A row of tabs above the chosen pane. The selection must outlive it.
class PreferencesWindow : public ShellWindow {
    Q_OBJECT

public:
    static constexpr QSize contentSize{480, 560};

    PreferencesWindow(PreferencesContext context, TabSelection &selection,
                      std::function<void()> onClose);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Reads the settings anew: they may have changed while it was closed.
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeTabBar();
    QWidget *makePane() const;
    void showSelectedTab();
    void stepTab(int step);

    PreferencesContext m_context;
    TabSelection &m_selection;
    WindowLook m_look;
    std::array<ChoiceButton *, allPreferencesTabs.size()> m_tabs{};
    QScrollArea *m_area;
    std::optional<PreferencesTab> m_shown;
    Lifetime m_lifetime;
};

} // namespace corvane
