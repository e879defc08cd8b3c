#pragma once

#include "app/updates/update_report.h"
#include "app/updates/update_window.h"

#include <QString>

#include <functional>

namespace corvane {

class WindowActivation;

/// Shows reports in a window, which exists only while it is open. Closing it calls `onDismiss`.
/// Main thread only; the references must outlive it.
class UpdateWindowController : public UpdateDisplay {
public:
    /// `announce` has screen readers say a text at once, wherever the keyboard is. `replaces` says
    /// whether an update takes the running version's place.
    UpdateWindowController(WindowActivation &activation, const ScreenLocator &screenLocator,
                           std::function<void(const QString &text)> announce,
                           QString runningVersion, bool replaces);
    UpdateWindowController(const UpdateWindowController &) = delete;
    UpdateWindowController &operator=(const UpdateWindowController &) = delete;
    ~UpdateWindowController() override;

    void show(const UpdateReport &report, UpdateAttention attention) override;
    void update(const UpdateReport &report) override;

    /// Null while it is closed.
    UpdateWindow *window() const { return m_window.get(); }

private:
    void act();
    void windowWillClose();

    WindowActivation &m_activation;
    const ScreenLocator &m_screenLocator;
    std::function<void(const QString &)> m_announce;
    QString m_runningVersion;
    bool m_replaces;
    UpdateReport m_report;
    ShellWindow::Pointer<UpdateWindow> m_window;
};

} // namespace corvane
