#include "app/updates/appcast.h"
#include "app/updates/software_updater.h"
#include "platform/base/work_queue.h"

#include <QTimeZone>
#include <QtDebug>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;
using Verdict = UpdateChoice::Verdict;

std::optional<UpdateChoice> read(const QByteArray &feed, const UpdateAudience &audience,
                                 const UpdateTrust &trust, const QDateTime &now)
{
    const auto items = appcast::read(feed);
    if (!items)
        return std::nullopt;
    return update_choice::choose(*items, audience, trust, now);
}

} // namespace

void SoftwareUpdater::check(UpdateAttention attention)
{
    m_state = State::Checking;
    m_attention = attention;
    m_offer.reset();
    m_report = {Stage::Checking};
    if (attention == UpdateAttention::Asked)
        m_context.display.show(m_report, attention);
    askForFeed();
}

void SoftwareUpdater::askForFeed()
{
    m_record.lastCheck = m_context.now();
    // Until it has ended well.
    m_record.hasFailed = true;
    saveRecord();
    scheduleCheck();

    WebRequest request;
    request.url = QUrl(m_program.feedAddress, QUrl::StrictMode);
    request.userAgent = "Corvane/" + m_program.version.toLatin1();
    request.accept = "application/rss+xml, application/xml, text/xml";
    // One byte more, so that a feed that is too long is not mistaken for a whole one.
    request.maximumBytes = appcast::maximumBytes + 1;
    request.mustBeSecure = true;
    m_feedRequest.restart();
    m_feedRoute.reset();
    request.onRoute = m_feedRequest.guard([this](const WebRoute &route) { m_feedRoute = route; });
    m_context.web.get(request,
                      m_feedRequest.guard([this](const std::optional<WebResponse> &response) {
                          feedArrived(response);
                      }));
}

UpdateAudience SoftwareUpdater::audience() const
{
    return {m_program.system, UpdateVersion::fromText(m_program.build),
            UpdateVersion::fromText(m_program.version), m_context.wantsBetas()};
}

void SoftwareUpdater::feedArrived(const std::optional<WebResponse> &response)
{
    constexpr int found = 200;
    if (!response || response->statusCode != found)
        return checkFailed(UpdateFailure::Unreachable);
    m_feedFoundIn = response->foundIn;
    const auto work = [feed = response->body, audience = audience(), trust = m_trust,
                       now = QDateTime::fromSecsSinceEpoch(m_context.now(), QTimeZone::utc())] {
        return read(feed, audience, trust, now);
    };
    const auto end = m_feedRequest.guard(
        [this](const std::optional<UpdateChoice> &choice) { feedRead(choice); });
    m_context.download.work.run([work, end, &queue = m_context.download.queue] {
        queue.async([end, choice = work()] { end(choice); });
    });
}

void SoftwareUpdater::feedRead(const std::optional<UpdateChoice> &choice)
{
    if (!choice)
        return checkFailed(UpdateFailure::NotAFeed);
    m_trust = choice->trust;
    switch (choice->verdict) {
    case Verdict::WentBack:
        qWarning("[Corvane] The update feed went back in time; it is not followed.");
        return checkFailed(UpdateFailure::WentBack);
    case Verdict::Expired:
        return checkFailed(UpdateFailure::Expired, choice->renewed);
    case Verdict::Unverifiable:
        return checkFailed(UpdateFailure::Unverifiable);
    case Verdict::UpToDate:
    case Verdict::Newer:
        return checkSucceeded(*choice);
    }
}

void SoftwareUpdater::checkSucceeded(const UpdateChoice &choice)
{
    m_record.hasFailed = false;
    saveRecord();
    scheduleCheck();
    clearNotice();
    // Nor what is older: whoever took a beta and then left the betas would go back.
    const bool isTaken
        = m_taken && choice.offer && choice.offer->release.statement().version <= *m_taken;
    if (choice.offer && !isTaken)
        return offer(*choice.offer);
    // An offer that the user is looking at stays.
    if (m_state == State::Offering)
        return;
    if (isTaken)
        return rest(m_takenReport);
    UpdateReport report{Stage::UpToDate};
    report.route = m_feedRoute;
    rest(report);
}

void SoftwareUpdater::checkFailed(UpdateFailure failure, const QDateTime &renewed)
{
    UpdateReport report{Stage::Failed};
    report.failure = failure;
    report.route = m_feedRoute;
    report.renewed = renewed.date();
    if (m_attention == UpdateAttention::Unasked || m_state == State::Offering)
        note(report);
    saveRecord();
    if (m_state == State::Checking)
        rest(report);
}

/// A feed that cannot be had is nothing to tell of: the machine may have no network now.
void SoftwareUpdater::note(const UpdateReport &report)
{
    const bool isWithheld = report.failure == UpdateFailure::Unreachable && report.route
        && report.route->isWithheld();
    if (report.failure == UpdateFailure::Expired) {
        const qint64 now = m_context.now();
        const auto since = static_cast<double>(now - m_record.lastExpiryNotice.value_or(now));
        if (m_record.lastExpiryNotice && since >= 0 && since < expiryNoticeInterval)
            return;
        m_record.lastExpiryNotice = now;
        m_notices.set(report);
    } else if (isWithheld || report.failure == UpdateFailure::WentBack
               || report.failure == UpdateFailure::Unverifiable) {
        m_notices.set(report);
    }
}

/// What was damaged is told of until the user has seen it.
void SoftwareUpdater::clearNotice()
{
    if (m_notices.now() && m_notices.now()->failure != UpdateFailure::RecordDamaged)
        m_notices.set(std::nullopt);
}

} // namespace corvane
