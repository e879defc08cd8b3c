#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace corvane {

class PreviewPanel;

/// What a preview panel shows.
class PreviewPanelDataSource {
public:
    virtual ~PreviewPanelDataSource() = default;

    virtual int numberOfPreviewItems() const = 0;
    /// A file address, or none.
    virtual std::optional<QUrl> previewItemAt(int index) const = 0;
    /// What to call an item whose file is only lent to the panel, so that neither its name nor
    /// opening it elsewhere means anything; none for a file of the user's.
    virtual std::optional<QString> previewItemTitle(int index) const = 0;
};

/// Who may fill the panel while it is on screen. The panel asks nothing else of its user, so the
/// data source is all that a controller sets.
class PreviewPanelController {
public:
    virtual ~PreviewPanelController() = default;

    virtual bool acceptsPreviewPanelControl(PreviewPanel &panel) = 0;
    /// The panel is about to be shown: give it a data source.
    virtual void beginPreviewPanelControl(PreviewPanel &panel) = 0;
    /// It has been hidden, by whomever: take the data source away. Called once for each beginning.
    virtual void endPreviewPanelControl(PreviewPanel &panel) = 0;
};

/// The one window of the process that shows a file at full size. Made hidden. Main thread only.
class PreviewPanel {
public:
    virtual ~PreviewPanel() = default;

    /// The controller must outlive the panel, or be taken away with null, which hides the panel.
    virtual void setController(PreviewPanelController *controller) = 0;

    virtual bool isVisible() const = 0;
    /// Hides it and ends its control. The keyboard goes back to where it was.
    virtual void orderOut() = 0;
    /// Shows it in front of other programs' windows and gives it the keyboard, in the name of the
    /// user's last event: on this desktop a program becomes active by one of its windows. Does
    /// nothing where nobody takes control.
    virtual void makeKeyAndOrderFront() = 0;

    /// The data source must stay until it is replaced.
    virtual PreviewPanelDataSource *dataSource() const = 0;
    virtual void setDataSource(PreviewPanelDataSource *dataSource) = 0;
    /// Asks the data source again and shows what it says now.
    virtual void reloadData() = 0;
};

} // namespace corvane
