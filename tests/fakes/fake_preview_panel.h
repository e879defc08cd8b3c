#pragma once

#include "platform/preview/preview_panel.h"

#include <QStringList>

#include <functional>
#include <utility>

namespace corvane::test {

/// A preview panel without a window, which keeps a log of the calls.
class FakePreviewPanel : public PreviewPanel {
public:
    void setController(PreviewPanelController *controller) override
    {
        if (!controller)
            orderOut();
        m_controller = controller;
    }
    bool isVisible() const override { return m_isVisible; }
    void orderOut() override
    {
        if (onOrderOut)
            onOrderOut();
        log << QStringLiteral("orderOut");
        if (std::exchange(m_isVisible, false) && m_controller)
            m_controller->endPreviewPanelControl(*this);
    }
    void makeKeyAndOrderFront() override
    {
        log << QStringLiteral("orderFront");
        if (m_isVisible || (m_controller && !m_controller->acceptsPreviewPanelControl(*this)))
            return;
        m_isVisible = true;
        if (m_controller)
            m_controller->beginPreviewPanelControl(*this);
    }
    PreviewPanelDataSource *dataSource() const override { return m_dataSource; }
    void setDataSource(PreviewPanelDataSource *dataSource) override { m_dataSource = dataSource; }
    void reloadData() override
    {
        log << QStringLiteral("reload");
        shown = m_dataSource && m_dataSource->numberOfPreviewItems() > 0
            ? m_dataSource->previewItemAt(0)
            : std::nullopt;
    }

    QStringList log;
    /// The address that it got at the last reload.
    std::optional<QUrl> shown;
    /// Called at the start of `orderOut`.
    std::function<void()> onOrderOut;

private:
    PreviewPanelController *m_controller = nullptr;
    PreviewPanelDataSource *m_dataSource = nullptr;
    bool m_isVisible = false;
};

} // namespace corvane::test
