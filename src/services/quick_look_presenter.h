#pragma once

#include "core/item_presenter.h"
#include "platform/preview_panel.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace corvane {

/// Shows an item in the preview panel, whatever it is: what has no file is written to a scratch
/// file first. There is at most one, and it goes with the next item, with the end of the preview
/// and with the process. Failures show nothing and say nothing.
///
/// The panel must outlive it. Main thread only.
class QuickLookPresenter : public ItemPresenter, public PreviewPanelDataSource {
public:
    /// Scratch files are written into `temporaryDirectory`, a native path.
    QuickLookPresenter(PreviewPanel &panel, QByteArray temporaryDirectory);
    QuickLookPresenter(const QuickLookPresenter &) = delete;
    QuickLookPresenter &operator=(const QuickLookPresenter &) = delete;
    /// The scratch file goes too.
    ~QuickLookPresenter() override;

    /// Shows the item, or hides the panel when it is on screen; the item becomes what the panel
    /// shows either way.
    void present(const DropItem &item) override;
    /// Removes the scratch file, where there is one.
    void discardScratch();

    /// What was presented last.
    std::optional<QUrl> previewURL() const { return m_previewURL; }
    /// The file that was written for it.
    std::optional<QUrl> scratchURL() const { return m_scratchURL; }

    int numberOfPreviewItems() const override { return m_previewURL ? 1 : 0; }
    /// The one address, whatever the index.
    std::optional<QUrl> previewItemAt(int /*index*/) const override { return m_previewURL; }
    /// The item's title, fit to be shown, while the address is a scratch file.
    std::optional<QString> previewItemTitle(int index) const override;

private:
    std::optional<QUrl> resolveURL(const DropItem &item);
    /// Writes "Corvane-Preview-", a new UUID in upper case without braces, and the extension; only
    /// the user may read it.
    std::optional<QUrl> writeScratch(const QByteArray &data, const QString &extension);

    PreviewPanel &m_panel;
    QByteArray m_temporaryDirectory;
    std::optional<QUrl> m_previewURL;
    std::optional<QUrl> m_scratchURL;
    QString m_title;
};

} // namespace corvane
