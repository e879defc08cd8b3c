#include "app/updates/update_window_controller.h"

#include "app/updates/update_texts.h"
#include "platform/desktop/window_activation.h"

#include <QWindow>

#include <utility>

namespace corvane {

UpdateWindowController::UpdateWindowController(WindowActivation &activation,
                                               const ScreenLocator &screenLocator,
                                               std::function<void(const QString &text)> announce,
                                               QString runningVersion, bool replaces)
    : m_activation(activation)
    , m_screenLocator(screenLocator)
    , m_announce(std::move(announce))
    , m_runningVersion(std::move(runningVersion))
    , m_replaces(replaces)
{
}

UpdateWindowController::~UpdateWindowController() = default;

void UpdateWindowController::show(const UpdateReport &report, UpdateAttention attention)
{
    const bool opensUnasked = !m_window && attention == UpdateAttention::Unasked;
    if (!m_window) {
        m_window.reset(
            new UpdateWindow(m_screenLocator, m_announce, [this] { windowWillClose(); }));
        m_window->onAction = [this] { act(); };
        if (opensUnasked)
            m_window->setAttribute(Qt::WA_ShowWithoutActivating);
    }
    update(report);
    m_window->present();
    if (opensUnasked)
        m_window->announce();
    if (attention == UpdateAttention::Asked)
        m_activation.bringToFront(*m_window->windowHandle());
}

void UpdateWindowController::update(const UpdateReport &report)
{
    m_report = report;
    if (m_window)
        m_window->setReport(report, UpdateTexts::of(report, m_runningVersion, m_replaces));
}

void UpdateWindowController::act()
{
    // Copies: whoever is called may delete this.
    const auto install = onInstall;
    const auto showFile = onShowFile;
    if (m_report.stage == UpdateReport::Stage::Available && install)
        install();
    else if (m_report.stage == UpdateReport::Stage::HandedOver && showFile)
        showFile();
}

void UpdateWindowController::windowWillClose()
{
    m_window.reset();
    const auto callback = onDismiss;
    if (callback)
        callback();
}

} // namespace corvane
