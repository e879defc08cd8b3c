#include "services/preview_loader.h"

#include "platform/base/cancellation.h"
#include "platform/base/checked_math.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/preview/preview_documents.h"
#include "platform/system/file_locality.h"
#include "platform/system/file_url.h"
#include "services/preview_file.h"

#include <utility>

namespace corvane {

namespace {

/// The same document, but destroyed on a thread of that queue: closing its file may block.
void endOn(WorkQueue &queue, std::shared_ptr<PreviewDocument> &document)
{
    if (PreviewDocument *const raw = document.get()) {
        document = std::shared_ptr<PreviewDocument>(
            raw, [&queue, kept = std::move(document)](PreviewDocument *) mutable {
                queue.run([kept = std::move(kept)] {});
            });
    }
}

void endOn(WorkQueue &queue, PreviewContent &content)
{
    if (auto *const picture = std::get_if<PreviewContent::Picture>(&content.body))
        endOn(queue, picture->document);
    else if (auto *const pages = std::get_if<PreviewContent::Pages>(&content.body))
        endOn(queue, pages->document);
}

} // namespace

PreviewLoader::PreviewLoader(const Context &context)
    : m_context(context)
    , m_workQueue(&context.workQueue)
{
}

PreviewLoader::~PreviewLoader()
{
    PreviewLoader::cancel();
}

PreviewDetails PreviewLoader::placeholder(const QUrl &url) const
{
    PreviewDetails details;
    details.name = preview_file::shownName(url);
    return details;
}

bool PreviewLoader::mayNeverAnswer(const QUrl &url) const
{
    const QByteArray path = file_url::nativePath(url);
    return !path.isEmpty() && m_context.locality.isRemote(path);
}

template<class Result>
void PreviewLoader::inBackground(std::function<Result(Cancellation &)> work,
                                 std::function<void(Result)> completion)
{
    // Work reaches only what outlives it; the loader may be gone when it ends.
    m_workQueue->run([&mainQueue = m_context.mainQueue, weak = std::weak_ptr(m_generation),
                      asked = m_generation->load(), cancellation = begun(), work = std::move(work),
                      completion = std::move(completion)] {
        const auto isForgotten = [weak, asked] {
            const auto generation = weak.lock();
            return !generation || generation->load() != asked;
        };
        if (isForgotten())
            return;
        auto result = std::make_shared<Result>(work(*cancellation));
        mainQueue.async([isForgotten, result, completion] {
            if (!isForgotten())
                completion(std::move(*result));
        });
    });
}

void PreviewLoader::load(const QUrl &url, QSize wanted,
                         std::function<void(PreviewContent)> completion)
{
    cancel();
    const bool isRemote = mayNeverAnswer(url);
    m_workQueue = isRemote ? &m_context.remoteWorkQueue : &m_context.workQueue;
    inBackground<PreviewContent>(
        [&documents = m_context.documents, isRemote, &queue = *m_workQueue, url,
         wanted](Cancellation &cancellation) {
            PreviewContent content = preview_file::read(url, wanted, documents, cancellation);
            if (isRemote)
                endOn(queue, content);
            return content;
        },
        std::move(completion));
}

void PreviewLoader::cancel()
{
    m_generation->store(checkedAdd<std::uint64_t>(m_generation->load(), 1));
    for (const auto &weak : std::exchange(m_underWay, {})) {
        if (const auto cancellation = weak.lock())
            cancellation->cancel();
    }
}

std::shared_ptr<Cancellation> PreviewLoader::begun()
{
    std::erase_if(m_underWay, [](const auto &weak) { return weak.expired(); });
    auto cancellation = std::make_shared<Cancellation>();
    m_underWay.push_back(cancellation);
    return cancellation;
}

void PreviewLoader::render(std::shared_ptr<PreviewDocument> document, int page, QSize pixels,
                           std::function<void(std::optional<QImage>)> completion)
{
    inBackground<std::optional<QImage>>(
        [document = std::move(document), page, pixels](Cancellation &cancellation) {
            return document->render(page, pixels, cancellation);
        },
        std::move(completion));
}

void PreviewLoader::nextFrame(std::shared_ptr<PreviewDocument> document, QSize limit,
                              std::function<void(std::optional<PreviewDocument::Frame>)> completion)
{
    inBackground<std::optional<PreviewDocument::Frame>>(
        [document = std::move(document), limit](Cancellation &cancellation) {
            return document->nextFrame(limit, cancellation);
        },
        std::move(completion));
}

} // namespace corvane
