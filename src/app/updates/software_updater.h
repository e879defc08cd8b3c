#pragma once

#include "app/updates/installation.h"
#include "app/updates/update_choice.h"
#include "app/updates/update_download.h"
#include "app/updates/update_notices.h"
#include "app/updates/update_record.h"
#include "app/updates/update_report.h"
#include "app/updates/updater.h"
#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class DesktopServices;
class InstallationSteps;

/// Looks for new versions in a feed, and takes them when the user says so.
///
///                 check               newer              install               whole
///     Resting ----------> Checking ----------> Offering ----------> Downloading ------> Installing
///        ^                   |                    |                     |                    |
///        |      none, failed |             closed |    failed or closed |       done, failed |
///        +-------------------+--------------------+---------------------+--------------------+
///
/// Checks by itself at most once a day, after a failure once an hour, and then shows its window
/// only if it found a newer version; what is wrong with the feed becomes a notice. An offer that
/// stays open is brought up to date by these checks. Between checks nothing runs but one timer, and
/// no connection is open.
///
/// Everything in the context must outlive it. Main thread only.
class SoftwareUpdater : public Updater {
public:
    /// From the start to the first check, in seconds, so that the start is not slowed down.
    static constexpr double firstCheckDelay = 60;
    /// The shortest time between two automatic checks, in seconds.
    static constexpr double checkInterval = 24 * 3600;
    /// The same after a check that failed.
    static constexpr double retryInterval = 3600;
    /// The shortest time between two notices that the feed is not renewed, in seconds.
    static constexpr double expiryNoticeInterval = 7 * checkInterval;

    /// What it is to keep up to date.
    struct Program {
        QString feedAddress;
        /// In base64, as it is built in.
        QString publicKey;
        /// What a statement has to be about, and an AppImage to carry.
        QString applicationId;
        QString version;
        QString build;
        UpdateSystem system;
        Installation installation;
        /// A native path. A file that the user is to install by hand is put there.
        QByteArray downloadsFolder;
    };
    struct Context {
        WebClient &web;
        UpdateDownload::Context download;
        InstallationSteps &steps;
        UpdateDisplay &display;
        DesktopServices &desktop;
        UpdateRecordFile record;
        /// Seconds since 1970.
        std::function<qint64()> now;
        /// Asked once, at the start.
        std::function<bool()> checksAutomatically;
        /// Asked at each check.
        std::function<bool()> wantsBetas;
    };

    SoftwareUpdater(Context context, Program program);
    SoftwareUpdater(const SoftwareUpdater &) = delete;
    SoftwareUpdater &operator=(const SoftwareUpdater &) = delete;
    ~SoftwareUpdater() override;

    void start() override;
    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override { return m_checksAutomatically; }
    void setAutomaticallyChecksForUpdates(bool on) override;
    UpdateNotices &notices() override { return m_notices; }
    void showNotice() override;

private:
    enum class State { Resting, Checking, Offering, Downloading, Installing };
    struct Installed;

    void recallRecord();
    void removeLeftovers();
    void scheduleCheck();
    void checkIsDue();
    void check(UpdateAttention attention);
    void askForFeed();
    void feedArrived(const std::optional<WebResponse> &response);
    void feedRead(const std::optional<UpdateChoice> &choice);
    void checkSucceeded(const UpdateChoice &choice);
    void checkFailed(UpdateFailure failure, const QDateTime &renewed = {});
    void note(const UpdateReport &report);
    void clearNotice();
    void saveRecord();
    UpdateAudience audience() const;
    void offer(const UpdateOffer &offer);
    bool replacesAppImage(const ReleaseStatement &statement) const;
    void install();
    void downloadEnded(const std::shared_ptr<UpdateFile> &file,
                       std::optional<UpdateFailure> failure);
    void verifyAndInstall(const std::shared_ptr<UpdateFile> &file);
    void installed(const Installed &outcome);
    void dismiss();
    void showFile() const;
    void rest(const UpdateReport &report);
    void fail(UpdateFailure failure);

    Context m_context;
    Program m_program;
    bool m_checksAutomatically = false;
    UpdateRecord m_record;
    UpdateTrust m_trust;
    UpdateNotices m_notices;
    std::unique_ptr<MainQueue::Timer> m_timer;
    State m_state = State::Resting;
    UpdateAttention m_attention = UpdateAttention::Unasked;
    /// What the window shows, or would show if the user had asked for the check.
    UpdateReport m_report;
    std::optional<UpdateOffer> m_offer;
    AddressSpace m_feedFoundIn = AddressSpace::Public;
    /// Which way the feed was asked for; none before it is known.
    std::optional<WebRoute> m_feedRoute;
    std::unique_ptr<UpdateDownload> m_download;
    QByteArray m_handedOver;
    /// The version that was installed while this program runs: it is not offered again.
    std::optional<UpdateVersion> m_taken;
    /// What the user was told of it.
    UpdateReport m_takenReport;
    /// Of the latest request for the feed and its reading, until the user has dismissed it.
    Lifetime m_feedRequest;
    Lifetime m_lifetime;
};

} // namespace corvane
