#pragma once

#include "platform/preview/preview_content.h"
#include "platform/preview/preview_panel.h"
#include "preview/held_key.h"

#include <QPointer>
#include <QWindow>

#include <memory>

namespace corvane {

class DesktopServices;
class FileIcons;
class MainQueue;
class PanelWindow;
class PreviewWindow;
class WindowActivation;

/// The preview panel as a window of the window manager's. It opens in the middle of the screen that
/// the shelf is on, as large as its content wants it, and remembers nothing.
///
/// The window lives from showing to hiding only: making it takes a few milliseconds, and what a
/// large text or picture took goes with it.
class QtPreviewPanel : public PreviewPanel {
public:
    /// Seconds that the content may take before the window opens without it: what comes sooner
    /// would only be seen as a flicker. What has to be waited for anyway, because its disk may
    /// never answer or because it is still being written, opens the window at once.
    static constexpr double patience = 0.1;

    /// Everything must outlive the panel.
    struct Context {
        PreviewLoading &loading;
        FileIcons &icons;
        DesktopServices &desktop;
        WindowActivation &activation;
        MainQueue &queue;
        const PanelWindow &shelf;
    };
    explicit QtPreviewPanel(const Context &context);
    QtPreviewPanel(const QtPreviewPanel &) = delete;
    QtPreviewPanel &operator=(const QtPreviewPanel &) = delete;
    ~QtPreviewPanel() override;

    void setController(PreviewPanelController *controller) override;
    bool isVisible() const override { return m_isVisible; }
    void orderOut() override;
    void makeKeyAndOrderFront() override;
    PreviewPanelDataSource *dataSource() const override { return m_dataSource; }
    void setDataSource(PreviewPanelDataSource *dataSource) override { m_dataSource = dataSource; }
    void reloadData() override;

private:
    void load(const QUrl &url);
    void openSoon();
    void open();
    void loaded(PreviewContent content);
    void setContent();
    void place();
    void closeWindow();
    void giveKeyboardBack();
    const QScreen *screen() const;

    Context m_context;
    PreviewPanelController *m_controller = nullptr;
    PreviewPanelDataSource *m_dataSource = nullptr;
    bool m_isVisible = false;
    /// What is shown, or will be.
    PreviewContent m_content;
    std::optional<QString> m_title;
    std::unique_ptr<PreviewWindow> m_window;
    QRect m_placed;
    /// Who had the keyboard, where that was a window of ours.
    QPointer<QWindow> m_previous;
    HeldKey m_heldKey;
    /// Of this showing: held weakly by what waits for its turn.
    std::shared_ptr<bool> m_showing;
};

} // namespace corvane
