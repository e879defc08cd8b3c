#pragma once

#include "platform/web/web_route.h"

#include <QDate>
#include <QString>

#include <functional>
#include <optional>

namespace corvane {

/// What went wrong.
enum class UpdateFailure {
    /// The feed could not be had.
    Unreachable,
    NotAFeed,
    /// The feed states less, or older things, than it did before.
    WentBack,
    /// A release is announced, or none is, and nobody who is believed has signed that.
    Unverifiable,
    DownloadFailed,
    /// Of another length than announced.
    WrongLength,
    WrongSignature,
    NoRoom,
    /// The disk does not take it, for another reason.
    NotWritten,
    /// The time of the feed's newest statement is over.
    Expired,
    /// What was remembered of the checks was no record, and was set aside.
    RecordDamaged,
};

/// What the user is told about updates at one moment.
struct UpdateReport {
    enum class Stage {
        Checking,
        UpToDate,
        Available,
        Downloading,
        /// Being verified and put where it belongs.
        Installing,
        /// In the AppImage's place.
        Replaced,
        /// In the downloads folder.
        HandedOver,
        Failed,
    };

    Stage stage = Stage::Checking;
    /// The version that is offered; fit to be shown, as are the notes.
    QString version = {};
    QString notes = {};
    /// In bytes.
    qint64 received = 0;
    qint64 total = 0;
    UpdateFailure failure = UpdateFailure::Unreachable;
    /// The name of the file that was handed over.
    QString fileName = {};
    /// Which way the announcement, and later the file, was asked for; none before it is known.
    std::optional<WebRoute> route = {};
    /// When the feed was renewed last, where its time is over.
    QDate renewed = {};
    /// Whether the version that is available goes into the downloads folder although it is an
    /// AppImage that runs.
    bool isForDownloads = false;

    bool operator==(const UpdateReport &) const = default;
};

/// Whether the user waits for a report or is interrupted by it.
enum class UpdateAttention { Asked, Unasked };

/// Shows the user what there is to be known about updates. Main thread only.
class UpdateDisplay {
public:
    virtual ~UpdateDisplay() = default;

    /// Shows the report in place of the one before. One that was asked for comes forward.
    virtual void show(const UpdateReport &report, UpdateAttention attention) = 0;
    /// Changes the report in the window, if one is open; it does not come forward.
    virtual void update(const UpdateReport &report) = 0;

    /// The user wants the version that is available.
    std::function<void()> onInstall;
    /// The user wants to see the file that was handed over.
    std::function<void()> onShowFile;
    /// The user has closed what was shown, or wants to end what is under way.
    std::function<void()> onDismiss;
};

} // namespace corvane
