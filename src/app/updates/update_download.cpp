#include "app/updates/update_download.h"

#include "app/updates/update_file.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/web/web_downloader.h"

#include <atomic>
#include <cerrno>
#include <utility>

namespace corvane {

namespace {

UpdateFailure failureOf(int error)
{
    const bool isFull = error == ENOSPC || error == EDQUOT || error == EFBIG;
    return isFull ? UpdateFailure::NoRoom : UpdateFailure::NotWritten;
}

} // namespace

/// The web client's thread uses it during the transfer, the main thread afterwards.
struct UpdateDownload::Transfer {
    std::shared_ptr<UpdateFile> file;
    qint64 expected = 0;
    std::atomic<qint64> received = 0;
    /// Whether a call about the progress is on its way to the main thread already.
    std::atomic<bool> isTold = false;
    bool isTooLong = false;
};

UpdateDownload::UpdateDownload(const Context &context, Plan plan)
    : m_context(context)
    , m_plan(std::move(plan))
    , m_cancellation(std::make_shared<Cancellation>())
{
}

UpdateDownload::~UpdateDownload()
{
    m_cancellation->cancel();
}

void UpdateDownload::start()
{
    const auto made = m_lifetime.guard(
        [this](const std::shared_ptr<UpdateFile> &file, int error) { fileMade(file, error); });
    m_context.work.run(
        [made, &queue = m_context.queue, folder = m_plan.folder, length = m_plan.length] {
            int error = 0;
            const std::shared_ptr<UpdateFile> file = UpdateFile::make(folder, length, error);
            queue.async([made, file, error] { made(file, error); });
        });
}

void UpdateDownload::fileMade(const std::shared_ptr<UpdateFile> &file, int error)
{
    if (!file)
        return finish(nullptr, failureOf(error));
    const auto transfer = std::make_shared<Transfer>();
    transfer->file = file;
    transfer->expected = m_plan.length;
    const auto tell = m_lifetime.guard([this](qint64 received) { progressed(received); });
    const auto take = [tell, transfer, &queue = m_context.queue](const QByteArray &piece) {
        transfer->isTooLong = transfer->file->size() + piece.size() > transfer->expected;
        if (transfer->isTooLong || !transfer->file->append(piece))
            return false;
        transfer->received = transfer->file->size();
        if (!transfer->isTold.exchange(true)) {
            queue.async([tell, transfer] {
                transfer->isTold = false;
                tell(transfer->received);
            });
        }
        return true;
    };
    WebRequest request;
    request.url = m_plan.address;
    request.userAgent = m_plan.userAgent;
    // One byte more, so that a file that is too long is not mistaken for a whole one.
    request.maximumBytes = transfer->expected + 1;
    request.foundIn = m_plan.foundIn;
    request.mustBeSecure = true;
    request.onRoute = m_lifetime.guard([this](const WebRoute &route) {
        if (onRoute)
            onRoute(route);
    });
    m_context.web.download(
        {request, take, m_cancellation},
        m_lifetime.guard([this, transfer](const std::optional<WebResponse> &response) {
            transferEnded(transfer, response);
        }));
}

void UpdateDownload::progressed(qint64 bytes) const
{
    if (onProgress)
        onProgress(bytes);
}

void UpdateDownload::transferEnded(const std::shared_ptr<Transfer> &transfer,
                                   const std::optional<WebResponse> &response)
{
    constexpr int found = 200;
    if (transfer->isTooLong)
        return finish(nullptr, UpdateFailure::WrongLength);
    if (transfer->file->error() != 0)
        return finish(nullptr, failureOf(transfer->file->error()));
    if (!response || response->statusCode != found)
        return finish(nullptr, UpdateFailure::DownloadFailed);
    if (transfer->file->size() != transfer->expected)
        return finish(nullptr, UpdateFailure::WrongLength);
    finish(transfer->file, std::nullopt);
}

void UpdateDownload::finish(const std::shared_ptr<UpdateFile> &file,
                            std::optional<UpdateFailure> failure) const
{
    // A copy: whoever is called may delete this.
    const auto callback = onEnd;
    callback(file, failure);
}

} // namespace corvane
