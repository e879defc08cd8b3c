#include "app/updates/installation_steps.h"
#include "app/updates/software_updater.h"
#include "app/updates/update_file.h"
#include "app/updates/update_installation.h"
#include "app/updates/verified_download.h"
#include "platform/base/work_queue.h"
#include "platform/system/desktop_services.h"
#include "platform/system/file_url.h"

#include <QStringBuilder>

#include <cerrno>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/'));
}

} // namespace

/// How an installation ended.
struct SoftwareUpdater::Installed {
    std::optional<UpdateFailure> failure;
    QByteArray path = {};
    std::optional<UpdateVersion> version = {};
    /// Else it is in the downloads folder.
    bool isReplaced = false;
};

bool SoftwareUpdater::replacesAppImage(const ReleaseStatement &statement) const
{
    return m_program.installation.kind == Installation::Kind::AppImage
        && statement.kind == ReleaseStatement::appImage;
}

void SoftwareUpdater::install()
{
    if (m_state != State::Offering)
        return;
    const ReleaseStatement &statement = m_offer->release.statement();
    // The offer may have been open for months.
    if (statement.expiry.toSecsSinceEpoch() <= m_context.now())
        return check(UpdateAttention::Asked);
    m_feedRequest.restart();
    m_state = State::Downloading;
    m_report.stage = Stage::Downloading;
    m_context.display.update(m_report);
    m_download = std::make_unique<UpdateDownload>(
        m_context.download,
        UpdateDownload::Plan{statement.address, statement.length, m_feedFoundIn,
                             "Corvane/" + m_program.version.toLatin1(),
                             replacesAppImage(statement) ? folderOf(m_program.installation.appImage)
                                                         : m_program.downloadsFolder});
    // `this` owns the download, which calls none of these once it is destroyed.
    m_download->onProgress = [this](qint64 received) {
        // The progress bar is redrawn for every half percent and not more often.
        constexpr qint64 steps = 200;
        if (received < m_report.total && received - m_report.received < m_report.total / steps)
            return;
        m_report.received = received;
        m_context.display.update(m_report);
    };
    m_download->onRoute = [this](const WebRoute &route) { m_report.route = route; };
    m_download->onEnd
        = [this](const std::shared_ptr<UpdateFile> &file, std::optional<UpdateFailure> failure) {
              downloadEnded(file, failure);
          };
    m_download->start();
}

void SoftwareUpdater::downloadEnded(const std::shared_ptr<UpdateFile> &file,
                                    std::optional<UpdateFailure> failure)
{
    m_download.reset();
    if (failure)
        return fail(*failure);
    m_state = State::Installing;
    m_report.stage = Stage::Installing;
    m_context.display.update(m_report);
    verifyAndInstall(file);
}

void SoftwareUpdater::verifyAndInstall(const std::shared_ptr<UpdateFile> &file)
{
    const auto work
        = [file, &steps = m_context.steps, offer = *m_offer, downloads = m_program.downloadsFolder,
           installation = m_program.installation]() -> Installed {
        const auto download
            = VerifiedDownload::of(file, offer.release, offer.keys, offer.fileSignature);
        if (!download)
            return {UpdateFailure::WrongSignature};
        // Whatever else was signed is the user's to look at, and replaces nothing.
        const bool replaces
            = installation.kind == Installation::Kind::AppImage && download->isAppImage();
        const auto outcome = replaces
            ? update_installation::swap(steps, *download, installation.appImage)
            : update_installation::handOver(steps, *download, downloads);
        if (outcome.error == 0)
            return {std::nullopt, outcome.path, download->statement().version, replaces};
        return {outcome.error == ENOSPC ? UpdateFailure::NoRoom : UpdateFailure::NotWritten};
    };
    const auto end = m_lifetime.guard([this](const Installed &outcome) { installed(outcome); });
    m_context.download.work.run([work, end, &queue = m_context.download.queue] {
        queue.async([end, outcome = work()] { end(outcome); });
    });
}

void SoftwareUpdater::installed(const Installed &outcome)
{
    if (outcome.failure)
        return fail(*outcome.failure);
    UpdateReport report = m_report;
    report.stage = outcome.isReplaced ? Stage::Replaced : Stage::HandedOver;
    if (!outcome.isReplaced) {
        m_handedOver = outcome.path;
        report.fileName = file_url::lastPathComponent(outcome.path);
    }
    m_taken = outcome.version;
    m_takenReport = report;
    m_attention = UpdateAttention::Asked;
    rest(report);
    if (!outcome.isReplaced)
        showFile();
}

void SoftwareUpdater::showFile() const
{
    if (!m_handedOver.isEmpty())
        m_context.desktop.open(file_url::fromNativePath(folderOf(m_handedOver)));
}

} // namespace corvane
