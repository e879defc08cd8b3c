#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace corvane {

class PreviewPanel;

/// The items that a preview panel shows.
class PreviewPanelDataSource {
public:
    virtual ~PreviewPanelDataSource() = default;

    virtual int numberOfPreviewItems() const = 0;
    /// The address of the file to show; none if there is none.
    virtual std::optional<QUrl> previewItemAt(int index) const = 0;
    /// The title for an item whose file is only lent to the panel: its name is not shown, and it
    /// cannot be opened elsewhere. None for a file of the user's.
    virtual std::optional<QString> previewItemTitle(int index) const = 0;
};

/// Fills the panel while it is on screen, by setting its data source.
class PreviewPanelController {
public:
    virtual ~PreviewPanelController() = default;

    virtual bool acceptsPreviewPanelControl(PreviewPanel &panel) = 0;
    /// The panel is about to be shown: give it a data source.
    virtual void beginPreviewPanelControl(PreviewPanel &panel) = 0;
    /// The panel was hidden, for whatever reason: remove the data source. Called once for each
    /// `beginPreviewPanelControl`.
    virtual void endPreviewPanelControl(PreviewPanel &panel) = 0;
};

/// The one window of the process that shows a file at full size. Made hidden. Main thread only.
class PreviewPanel {
public:
    virtual ~PreviewPanel() = default;

    /// The controller must outlive the panel, or be removed with null, which hides the panel.
    virtual void setController(PreviewPanelController *controller) = 0;

    virtual bool isVisible() const = 0;
    /// Hides the panel and ends the control. The keyboard goes back to the window that had it.
    virtual void orderOut() = 0;
    /// Shows the panel in front of other programs' windows and gives it the keyboard, on behalf of
    /// the user's last event. Does nothing without a controller that accepts control.
    virtual void makeKeyAndOrderFront() = 0;

    /// The data source must exist until it is replaced.
    virtual PreviewPanelDataSource *dataSource() const = 0;
    virtual void setDataSource(PreviewPanelDataSource *dataSource) = 0;
    /// Asks the data source again and shows the result.
    virtual void reloadData() = 0;
};

} // namespace corvane
