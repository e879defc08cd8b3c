#pragma once

#include "core/item_presenter.h"
#include "platform/preview/preview_panel.h"
#include "platform/system/file_descriptor.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class MainQueue;
class WorkQueue;

/// Shows an item in the preview panel, whatever it is: what has no file is written to a scratch
/// file first. There is at most one, and it goes with the next item, with the end of the preview
/// and with the process. Failures show nothing and say nothing.
///
/// What takes long to be written is written beside the main thread: the panel shows meanwhile that
/// there is something to come.
///
/// What it is given must outlive it. Main thread only.
class QuickLookPresenter : public ItemPresenter, public PreviewPanelDataSource {
public:
    /// What has more bytes, or a text with more units, takes longer to be written than a frame may.
    static constexpr qsizetype longestAtOnce = 500'000;

    struct Context {
        PreviewPanel &panel;
        MainQueue &mainQueue;
        WorkQueue &workQueue;
    };
    /// Scratch files are written into `temporaryDirectory`, a native path.
    QuickLookPresenter(const Context &context, QByteArray temporaryDirectory);
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

    /// None also while its file is being written.
    int numberOfPreviewItems() const override { return m_previewURL && !m_isWriting ? 1 : 0; }
    /// The one address, whatever the index.
    std::optional<QUrl> previewItemAt(int /*index*/) const override { return m_previewURL; }
    /// The item's title, fit to be shown, while the address is a scratch file.
    std::optional<QString> previewItemTitle(int index) const override;

private:
    std::optional<QUrl> resolveURL(const DropItem &item);
    std::optional<QUrl> writeScratch(const std::function<QByteArray()> &data, qsizetype size,
                                     const QString &extension);
    void writeInBackground(const std::function<QByteArray()> &data, const QByteArray &path);
    void written(FileDescriptor lock);

    Context m_context;
    QByteArray m_temporaryDirectory;
    std::optional<QUrl> m_previewURL;
    std::optional<QUrl> m_scratchURL;
    FileDescriptor m_scratchLock;
    QString m_title;
    bool m_isWriting = false;
    /// Grows when a scratch file is discarded: what is being written for an older number goes.
    using Generation = std::atomic<std::uint64_t>;
    std::shared_ptr<Generation> m_generation = std::make_shared<Generation>(0);
};

} // namespace corvane
