#include "app/updates/software_updater.h"

#include "app/updates/update_file.h"
#include "app/updates/update_installation.h"
#include "platform/base/work_queue.h"

#include <QtDebug>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

} // namespace

SoftwareUpdater::SoftwareUpdater(Context context, Program program)
    : m_context(std::move(context))
    , m_program(std::move(program))
    , m_trust(UpdateKey::fromBase64(m_program.publicKey), m_program.applicationId)
{
    m_context.display.onInstall = m_lifetime.guard([this] { install(); });
    m_context.display.onDismiss = m_lifetime.guard([this] { dismiss(); });
    m_context.display.onShowFile = m_lifetime.guard([this] { showFile(); });
}

SoftwareUpdater::~SoftwareUpdater() = default;

void SoftwareUpdater::start()
{
    m_checksAutomatically = m_context.checksAutomatically();
    recallRecord();
    scheduleCheck();
    // The main queue runs this, so the program has started: the one before it can go.
    m_context.download.queue.async(m_lifetime.guard([this] { removeLeftovers(); }));
}

void SoftwareUpdater::recallRecord()
{
    const auto record = m_context.record.load();
    m_record = record.value_or(UpdateRecord());
    if (record && m_trust.recall(record->memory))
        return;
    qWarning("[Corvane] What was remembered of updates was damaged; it was set aside.");
    m_context.record.setAside();
    saveRecord();
    UpdateReport report{Stage::Failed};
    report.failure = UpdateFailure::RecordDamaged;
    m_notices.set(report);
}

void SoftwareUpdater::saveRecord()
{
    m_record.memory = m_trust.memory();
    m_context.record.save(m_record);
}

void SoftwareUpdater::removeLeftovers()
{
    m_context.download.work.run([&steps = m_context.steps, installation = m_program.installation,
                                 downloads = m_program.downloadsFolder] {
        if (installation.kind == Installation::Kind::AppImage)
            update_installation::removePrevious(steps, installation.appImage);
        UpdateFile::removeLeftovers(downloads);
    });
}

void SoftwareUpdater::setAutomaticallyChecksForUpdates(bool on)
{
    m_checksAutomatically = on;
    scheduleCheck();
}

void SoftwareUpdater::scheduleCheck()
{
    m_timer.reset();
    if (!m_checksAutomatically)
        return;
    double delay = firstCheckDelay;
    if (m_record.lastCheck) {
        // A check that lies in the future was made by a clock that was wrong.
        const auto since = static_cast<double>(m_context.now() - *m_record.lastCheck);
        const double interval = m_record.hasFailed ? retryInterval : checkInterval;
        if (since >= 0)
            delay = std::max(delay, interval - since);
    }
    m_timer = m_context.download.queue.repeating(delay, [this] { checkIsDue(); });
}

void SoftwareUpdater::checkIsDue()
{
    if (m_state == State::Resting)
        return check(UpdateAttention::Unasked);
    if (m_state == State::Offering)
        return askForFeed();
    // A check or a download is under way: this check is left out and counts as made.
    m_record.lastCheck = m_context.now();
    scheduleCheck();
}

void SoftwareUpdater::checkForUpdates()
{
    m_attention = UpdateAttention::Asked;
    if (m_state == State::Resting)
        check(UpdateAttention::Asked);
    else
        m_context.display.show(m_report, UpdateAttention::Asked);
}

void SoftwareUpdater::showNotice()
{
    // A copy: it may be taken back below.
    const auto notice = m_notices.now();
    if (!notice)
        return;
    if (m_state == State::Resting)
        m_report = *notice;
    m_context.display.show(m_report, UpdateAttention::Asked);
    const bool isSaidOnce = notice->failure == UpdateFailure::RecordDamaged
        || notice->failure == UpdateFailure::Expired;
    if (m_state == State::Resting && isSaidOnce)
        m_notices.set(std::nullopt);
}

void SoftwareUpdater::offer(const UpdateOffer &offer)
{
    const ReleaseStatement &statement = offer.release.statement();
    const bool isRefreshed = m_state == State::Offering;
    m_state = State::Offering;
    m_offer = offer;
    m_report = {Stage::Available, statement.shortVersion, offer.notes};
    m_report.route = m_feedRoute;
    m_report.total = statement.length;
    m_report.isForDownloads = !replacesAppImage(statement);
    if (isRefreshed)
        m_context.display.update(m_report);
    else
        m_context.display.show(m_report, m_attention);
}

void SoftwareUpdater::dismiss()
{
    // Closing the window does not stop an installation that has begun.
    if (m_state == State::Installing)
        return;
    m_feedRequest.restart();
    m_download.reset();
    m_offer.reset();
    m_state = State::Resting;
}

void SoftwareUpdater::rest(const UpdateReport &report)
{
    m_state = State::Resting;
    m_report = report;
    if (m_attention == UpdateAttention::Asked)
        m_context.display.show(m_report, m_attention);
}

void SoftwareUpdater::fail(UpdateFailure failure)
{
    // The user clicked Install, so the failure is shown even after an automatic check.
    m_attention = UpdateAttention::Asked;
    UpdateReport report = m_report;
    report.stage = Stage::Failed;
    report.failure = failure;
    rest(report);
}

} // namespace corvane
