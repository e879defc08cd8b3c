#pragma once

#include "app/updates/update_report.h"
#include "platform/base/lifetime.h"
#include "platform/web/web_client.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class Cancellation;
class MainQueue;
class UpdateFile;
class WebDownloader;
class WorkQueue;

/// Fetches a file of a stated length into a folder.
///
/// Destroying it ends the transfer; what has come goes with it, and nobody is called any more. Main
/// thread only; nothing here keeps it waiting.
class UpdateDownload {
public:
    /// Everything must outlive it.
    struct Context {
        WebDownloader &web;
        MainQueue &queue;
        WorkQueue &work;
    };
    struct Plan {
        QUrl address;
        /// As it is stated.
        qint64 length = 0;
        /// Where the address was found.
        AddressSpace foundIn = AddressSpace::Public;
        QByteArray userAgent;
        /// A native path.
        QByteArray folder;
    };

    UpdateDownload(const Context &context, Plan plan);
    UpdateDownload(const UpdateDownload &) = delete;
    UpdateDownload &operator=(const UpdateDownload &) = delete;
    ~UpdateDownload();

    /// Called now and then with the number of bytes that have come.
    std::function<void(qint64)> onProgress;
    /// Called before the end with the way of the request, also of one that was withheld.
    std::function<void(const WebRoute &)> onRoute;
    /// Called once, with a file of the stated length or with what went wrong; may delete this.
    std::function<void(std::shared_ptr<UpdateFile>, std::optional<UpdateFailure>)> onEnd;

    void start();

private:
    struct Transfer;

    void fileMade(const std::shared_ptr<UpdateFile> &file, int error);
    void transferEnded(const std::shared_ptr<Transfer> &transfer,
                       const std::optional<WebResponse> &response);
    void progressed(qint64 bytes) const;
    void finish(const std::shared_ptr<UpdateFile> &file,
                std::optional<UpdateFailure> failure) const;

    Context m_context;
    Plan m_plan;
    std::shared_ptr<Cancellation> m_cancellation;
    Lifetime m_lifetime;
};

} // namespace corvane
