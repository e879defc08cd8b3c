#pragma once

#include "app/updates/verified_release.h"

#include <QList>
#include <QString>

#include <optional>

namespace corvane {

/// What is remembered of statements from one start to the next: nothing but statements, so that it
/// is worth no more than their signatures.
struct UpdateMemory {
    /// The key of the build that wrote it.
    QByteArray builtInKey;
    /// Each of them names the key that signed what follows.
    QList<ClaimedStatement> rotations;
    /// For each channel and machine the one with the highest number and that of the highest
    /// version.
    QList<ClaimedStatement> releases;
};

/// Whose word counts, and what they said last.
///
/// At first it is the key that is built in. A statement that this key signed may name the next one:
/// from then on the next key signs, and of the one before nothing counts but that statement. What
/// was remembered goes then, so that whoever had stolen the old key cannot end updates for good by
/// a number that nothing is higher than.
///
/// A value; any thread.
class UpdateTrust {
public:
    static constexpr int mostRotations = 8;

    /// Believes nobody where there is no key. `application` is the program's own id: statements
    /// about another program count for nothing.
    UpdateTrust(const std::optional<UpdateKey> &builtIn, QString application);

    /// Takes back what `memory` gave out. False if something in it was not signed by the keys that
    /// this build began with; what was signed is taken back all the same.
    bool recall(const UpdateMemory &memory);
    UpdateMemory memory() const;

    /// Goes on to the next key, as often as statements among these say so.
    void follow(const QList<ClaimedStatement> &claims);

    /// None unless it counts.
    std::optional<VerifiedRelease> verified(const ClaimedStatement &claim) const;

    /// Those that sign or have signed, the one that is built in first: a file may have been signed
    /// before its statement was renewed with another key.
    QList<UpdateKey> keys() const;

    /// Not of the statement that ended a key's time: its number is of that time.
    void remember(const VerifiedRelease &release);
    /// Of all that were remembered of the channel for such machines; none where there were none.
    std::optional<qint64> highestNumber(const QString &channel, const QString &architecture) const;
    std::optional<UpdateVersion> highestVersion(const QString &channel,
                                                const QString &architecture) const;

private:
    bool rotate(const ClaimedStatement &claim);
    bool isNew(const QByteArray &key) const;

    QString m_application;
    std::optional<UpdateKey> m_key;
    QByteArray m_builtIn;
    /// Those of statements that ended a key's time, in order.
    QList<VerifiedRelease> m_rotations;
    QList<VerifiedRelease> m_remembered;
};

} // namespace corvane
