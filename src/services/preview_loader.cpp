#include "services/preview_loader.h"

#include "platform/checked_math.h"
#include "platform/main_queue.h"
#include "platform/preview_documents.h"
#include "platform/work_queue.h"
#include "services/preview_file.h"

#include <utility>

namespace corvane {

PreviewLoader::PreviewLoader(PreviewDocuments &documents, MainQueue &mainQueue,
                             WorkQueue &workQueue)
    : m_documents(documents)
    , m_mainQueue(mainQueue)
    , m_workQueue(workQueue)
{
}

PreviewLoader::~PreviewLoader() = default;

PreviewDetails PreviewLoader::placeholder(const QUrl &url) const
{
    PreviewDetails details;
    details.name = preview_file::shownName(url);
    return details;
}

template<class Result>
void PreviewLoader::inBackground(std::function<Result()> work,
                                 std::function<void(Result)> completion)
{
    // Work reaches only what outlives it; the loader may be gone when it ends.
    m_workQueue.run([&mainQueue = m_mainQueue, weak = std::weak_ptr(m_generation),
                     asked = m_generation->load(), work = std::move(work),
                     completion = std::move(completion)] {
        const auto isForgotten = [weak, asked] {
            const auto generation = weak.lock();
            return !generation || generation->load() != asked;
        };
        if (isForgotten())
            return;
        auto result = std::make_shared<Result>(work());
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
    inBackground<PreviewContent>([&documents = m_documents, url,
                                  wanted] { return preview_file::read(url, wanted, documents); },
                                 std::move(completion));
}

void PreviewLoader::cancel()
{
    m_generation->store(checkedAdd<std::uint64_t>(m_generation->load(), 1));
}

void PreviewLoader::render(std::shared_ptr<PreviewDocument> document, int page, QSize pixels,
                           std::function<void(std::optional<QImage>)> completion)
{
    inBackground<std::optional<QImage>>(
        [document = std::move(document), page, pixels] { return document->render(page, pixels); },
        std::move(completion));
}

void PreviewLoader::nextFrame(std::shared_ptr<PreviewDocument> document, QSize limit,
                              std::function<void(std::optional<PreviewDocument::Frame>)> completion)
{
    inBackground<std::optional<PreviewDocument::Frame>>(
        [document = std::move(document), limit] { return document->nextFrame(limit); },
        std::move(completion));
}

} // namespace corvane
