#pragma once

#include "app/updates/claimed_release.h"
#include "app/updates/update_version.h"

#include <optional>

namespace corvane {

/// The machine that an update is for.
struct UpdateSystem {
    /// "x86_64", "arm64", as the toolkit names them.
    QString architecture;
    /// "debian", and "12"; the release is empty where the distribution has none.
    QString distribution;
    QString release;

    static UpdateSystem thisOne();
};

/// What the program's versions are compared by: builds where the feed gives any, else the versions
/// that people see. They are never mixed: build 40 is not newer than version 1.2.
enum class VersionScale { Build, ShortVersion };

/// A version that could run here, as the feed claims it.
struct UpdateOffer {
    UpdateVersion version;
    /// For people; the compared version where the feed gives no other.
    QString shownVersion;
    /// To be shown as it is.
    QString notes;
    ClaimedFile file;
};

/// What a feed has for this machine.
struct UpdateChoice {
    VersionScale scale = VersionScale::Build;
    /// None where nothing fits.
    std::optional<UpdateOffer> newest;
};

namespace update_choice {

/// The newest item that fits the machine. Items without an `UpdateVersion` are passed over.
UpdateChoice choose(const QList<ClaimedRelease> &items, const UpdateSystem &system);

} // namespace update_choice

} // namespace corvane
