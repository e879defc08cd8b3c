#include "app/updates/software_updater.h"

#include "app/updates/appcast.h"
#include "app/updates/update_installation.h"
#include "platform/base/work_queue.h"

#include <QStringBuilder>
#include <QtDebug>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

bool isComplete(const ClaimedFile &file)
{
    return !file.signature.isEmpty() && file.length > 0
        && file.length <= UpdateDownload::maximumBytes && file.url.isValid()
        && !file.url.isRelative();
}

} // namespace

SoftwareUpdater::SoftwareUpdater(Context context, Program program)
    : m_context(std::move(context))
    , m_program(std::move(program))
{
    m_context.display.onInstall = m_lifetime.guard([this] { install(); });
    m_context.display.onDismiss = m_lifetime.guard([this] { dismiss(); });
    m_context.display.onShowFile = m_lifetime.guard([this] { showFile(); });
}

SoftwareUpdater::~SoftwareUpdater() = default;

void SoftwareUpdater::start()
{
    m_checksAutomatically = m_context.checksAutomatically();
    m_record = m_context.record.load();
    scheduleCheck();
    if (m_program.installation.kind != Installation::Kind::AppImage)
        return;
    // The main queue runs this, so the AppImage has started: the one before it can go.
    m_context.download.queue.async(m_lifetime.guard([this] {
        m_context.download.work.run(
            [&steps = m_context.steps, appImage = m_program.installation.appImage] {
                update_installation::removePrevious(steps, appImage);
            });
    }));
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
        if (since >= 0)
            delay = std::max(delay, checkInterval - since);
    }
    m_timer = m_context.download.queue.repeating(delay, [this] { checkIsDue(); });
}

void SoftwareUpdater::checkIsDue()
{
    if (m_state == State::Resting)
        return check(UpdateAttention::Unasked);
    // An update is being offered or taken: this check is left out and counts as made.
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

void SoftwareUpdater::check(UpdateAttention attention)
{
    m_state = State::Checking;
    m_attention = attention;
    m_offer.reset();
    m_report = {Stage::Checking};
    m_record.lastCheck = m_context.now();
    m_context.record.save(m_record);
    scheduleCheck();
    if (attention == UpdateAttention::Asked)
        m_context.display.show(m_report, attention);

    WebRequest request;
    request.url = QUrl(m_program.feedAddress, QUrl::StrictMode);
    request.userAgent = "Corvane/" + m_program.version.toLatin1();
    request.accept = "application/rss+xml, application/xml, text/xml";
    // One byte more, so that a feed that is too long is not mistaken for a whole one.
    request.maximumBytes = appcast::maximumBytes + 1;
    request.mustBeSecure = true;
    m_feedRequest.restart();
    request.onRoute
        = m_feedRequest.guard([this](const WebRoute &route) { m_report.route = route; });
    m_context.web.get(request,
                      m_feedRequest.guard([this](const std::optional<WebResponse> &response) {
                          feedArrived(response);
                      }));
}

void SoftwareUpdater::feedArrived(const std::optional<WebResponse> &response)
{
    constexpr int found = 200;
    if (!response || response->statusCode != found)
        return fail(UpdateFailure::Unreachable);
    const auto items = appcast::read(response->body);
    if (!items)
        return fail(UpdateFailure::NotAFeed);
    const UpdateChoice choice = update_choice::choose(*items, m_program.system);
    if (goesBack(choice)) {
        qWarning("[Corvane] The update feed went back in time; it is not followed.");
        return fail(UpdateFailure::WentBack);
    }
    if (!choice.newest)
        return restUpToDate();
    m_record.highest(choice.scale) = choice.newest->version;
    m_context.record.save(m_record);
    const auto present = running(choice.scale);
    // The running program may have no version that can be compared: nothing is newer then.
    if (!present || choice.newest->version <= *present)
        return restUpToDate();
    if (m_taken && choice.newest->version == *m_taken)
        return rest(m_takenReport);
    if (!isComplete(choice.newest->file))
        return fail(UpdateFailure::Incomplete);
    m_feedFoundIn = response->foundIn;
    offer(*choice.newest);
}

bool SoftwareUpdater::goesBack(const UpdateChoice &choice)
{
    if (choice.newest) {
        const auto highest = m_record.highest(choice.scale);
        return highest && choice.newest->version < *highest;
    }
    // A feed that offers nothing is refused while it has announced more than the program has.
    return std::ranges::any_of(std::array{VersionScale::Build, VersionScale::ShortVersion},
                               [this](VersionScale scale) {
                                   const auto highest = m_record.highest(scale);
                                   const auto present = running(scale);
                                   return highest && present && *highest > *present;
                               });
}

std::optional<UpdateVersion> SoftwareUpdater::running(VersionScale scale) const
{
    return UpdateVersion::fromText(scale == VersionScale::Build ? m_program.build
                                                                : m_program.version);
}

void SoftwareUpdater::offer(const UpdateOffer &offer)
{
    m_state = State::Offering;
    m_offer = offer;
    const auto route = m_report.route;
    m_report = {Stage::Available, offer.shownVersion, offer.notes};
    m_report.route = route;
    m_report.total = offer.file.length;
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

void SoftwareUpdater::restUpToDate()
{
    UpdateReport report{Stage::UpToDate};
    report.route = m_report.route;
    rest(report);
}

void SoftwareUpdater::fail(UpdateFailure failure)
{
    // The user clicked Install, so the failure is shown even after an automatic check.
    if (m_state == State::Downloading || m_state == State::Installing)
        m_attention = UpdateAttention::Asked;
    UpdateReport report = m_report;
    report.stage = Stage::Failed;
    report.failure = failure;
    rest(report);
}

} // namespace corvane
