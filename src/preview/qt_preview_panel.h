#pragma once

#include "platform/base/lifetime.h"
#include "platform/preview/preview_content.h"
#include "platform/preview/preview_panel.h"
#include "preview/held_key.h"

#include <memory>
#include <optional>

class QScreen;

namespace corvane {

class DesktopServices;
class FileIcons;
class KeyboardLoan;
class MainQueue;
class PanelWindow;
class PreviewWindow;
class WindowActivation;

/// The preview panel, as a window that the window manager manages. It opens in the middle of the
/// shelf's screen in a size that fits its content; place and size are not remembered.
///
/// The window exists only while the panel is shown. Making it takes a few milliseconds, and the
/// memory of a large text or picture is freed with it.
class QtPreviewPanel : public PreviewPanel {
public:
    /// In seconds: how long the window waits for its content before it opens without it, so that
    /// what comes sooner does not flicker. For files that may never answer, and for those that are
    /// still being written, the window opens at once.
    static constexpr double patience = 0.1;

    /// Everything must outlive the panel.
    struct Context {
        PreviewLoading &loading;
        FileIcons &icons;
        DesktopServices &desktop;
        WindowActivation &activation;
        KeyboardLoan &keyboard;
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
    const QScreen *screen() const;

    Context m_context;
    PreviewPanelController *m_controller = nullptr;
    PreviewPanelDataSource *m_dataSource = nullptr;
    bool m_isVisible = false;
    /// The content that is shown, or will be when the window opens.
    PreviewContent m_content;
    std::optional<QString> m_title;
    std::unique_ptr<PreviewWindow> m_window;
    QRect m_placed;
    HeldKey m_heldKey;
    /// Restarted when the panel is hidden, which ends what waits for opening.
    Lifetime m_showing;
};

} // namespace corvane
