#pragma once

#include "app/updates/update_trust.h"

#include <QDateTime>

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

/// Whom a feed is read for.
struct UpdateAudience {
    UpdateSystem system;
    /// The build that runs; none where it has none that can be compared, and nothing is newer then.
    std::optional<UpdateVersion> build;
    /// And the version that people see, which unsigned items may give alone.
    std::optional<UpdateVersion> shortVersion;
    bool wantsBetas = false;
};

/// A release that could run here, and is newer than what does.
struct UpdateOffer {
    VerifiedRelease release;
    /// Those whose digest is stated, to be shown as they are.
    QString notes;
    /// What the feed says is the signature of the file alone.
    QByteArray fileSignature;
    /// Any of which may have made it.
    QList<UpdateKey> keys;
};

/// What a feed has for somebody.
struct UpdateChoice {
    enum class Verdict {
        /// The feed is fresh, and has nothing newer.
        UpToDate,
        Newer,
        /// The statement with the highest number, or the newest release, is older than what was
        /// stated before, or nothing is stated any more.
        WentBack,
        /// Whatever is stated, its time is over.
        Expired,
        /// What is announced is not stated by anybody who is believed.
        Unverifiable,
    };

    Verdict verdict = Verdict::Unverifiable;
    /// There is one where something is newer.
    std::optional<UpdateOffer> offer = {};
    /// When the newest statement was made, where its time is over.
    QDateTime renewed = {};
    /// The trust that was given, with what it has learned.
    UpdateTrust trust;
};

namespace update_choice {

/// "Up to date" is said only where somebody who is believed states it, and that is not over. What
/// the feed says without a statement is never offered. Any thread.
UpdateChoice choose(const QList<ClaimedRelease> &items, const UpdateAudience &audience,
                    UpdateTrust trust, const QDateTime &now);

/// A file larger than this is not offered, because its signature is checked over all of it.
inline constexpr qint64 largestFile = 1024LL * 1024 * 1024;

} // namespace update_choice

} // namespace corvane
