#pragma once

#include "platform/preview/preview_content.h"

#include <atomic>
#include <cstdint>
#include <vector>

namespace corvane {

class Cancellation;
class FileLocality;
class MainQueue;
class PreviewDocuments;
class WorkQueue;

/// Makes the contents of previews on other threads: whatever touches the file happens there, so
/// that a disk which does not answer keeps nobody waiting but the preview. Files behind a network
/// have threads of their own, and their documents are closed there, too: that asks the server
/// again.
///
/// What it is given must outlive it and all work that is under way. Once it is gone, or has been
/// told to forget, nothing is answered, and decoding that is under way ends.
class PreviewLoader : public PreviewLoading {
public:
    struct Context {
        PreviewDocuments &documents;
        const FileLocality &locality;
        MainQueue &mainQueue;
        WorkQueue &workQueue;
        /// For files that may never be answered for.
        WorkQueue &remoteWorkQueue;
    };
    explicit PreviewLoader(const Context &context);
    PreviewLoader(const PreviewLoader &) = delete;
    PreviewLoader &operator=(const PreviewLoader &) = delete;
    ~PreviewLoader() override;

    PreviewDetails placeholder(const QUrl &url) const override;
    bool mayNeverAnswer(const QUrl &url) const override;
    void load(const QUrl &url, QSize wanted,
              std::function<void(PreviewContent)> completion) override;
    void cancel() override;
    void render(std::shared_ptr<PreviewDocument> document, int page, QSize pixels,
                std::function<void(std::optional<QImage>)> completion) override;
    void nextFrame(std::shared_ptr<PreviewDocument> document, QSize limit,
                   std::function<void(std::optional<PreviewDocument::Frame>)> completion) override;

private:
    template<class Result>
    void inBackground(std::function<Result(Cancellation &)> work,
                      std::function<void(Result)> completion);
    std::shared_ptr<Cancellation> begun();

    Context m_context;
    /// For what was loaded last.
    WorkQueue *m_workQueue;
    /// What was asked for before the last `cancel` holds an older number. Held weakly by all work.
    using Generation = std::atomic<std::uint64_t>;
    std::shared_ptr<Generation> m_generation = std::make_shared<Generation>(0);
    /// Of the work that has not ended, one each.
    std::vector<std::weak_ptr<Cancellation>> m_underWay;
};

} // namespace corvane
