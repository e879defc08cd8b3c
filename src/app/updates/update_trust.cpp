#include "app/updates/update_trust.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QList<ClaimedStatement> sourcesOf(const QList<VerifiedRelease> &releases)
{
    QList<ClaimedStatement> sources;
    for (const VerifiedRelease &release : releases)
        sources << release.source();
    return sources;
}

bool hasLowerNumber(const VerifiedRelease &a, const VerifiedRelease &b)
{
    return a.statement().number < b.statement().number;
}

bool hasLowerVersion(const VerifiedRelease &a, const VerifiedRelease &b)
{
    return a.statement().version < b.statement().version;
}

/// Numbers and versions are compared within one channel and for one machine.
bool isOfLine(const VerifiedRelease &release, const QString &channel, const QString &architecture)
{
    return release.statement().channel == channel
        && release.statement().architecture == architecture;
}

bool isOfLine(const VerifiedRelease &release, const ReleaseStatement &other)
{
    return isOfLine(release, other.channel, other.architecture);
}

} // namespace

UpdateTrust::UpdateTrust(const std::optional<UpdateKey> &builtIn, QString application)
    : m_application(std::move(application))
    , m_key(builtIn)
    , m_builtIn(builtIn ? builtIn->bytes() : QByteArray())
{
}

bool UpdateTrust::recall(const UpdateMemory &memory)
{
    bool areAllSigned = true;
    for (const ClaimedStatement &rotation : memory.rotations)
        areAllSigned = rotate(rotation) && areAllSigned;
    for (const ClaimedStatement &claim : memory.releases) {
        const auto release = verified(claim);
        if (release)
            remember(*release);
        areAllSigned = areAllSigned && release;
    }
    // A build with another key remembers what it can check, and there is nothing wrong with that.
    return areAllSigned || memory.builtInKey != m_builtIn;
}

UpdateMemory UpdateTrust::memory() const
{
    return {m_builtIn, sourcesOf(m_rotations), sourcesOf(m_remembered)};
}

bool UpdateTrust::isNew(const QByteArray &key) const
{
    return !key.isEmpty() && key != m_builtIn
        && std::ranges::none_of(m_rotations, [&](const VerifiedRelease &one) {
               return one.statement().nextKey == key;
           });
}

/// Only the present key can hand over, and only to one that has not been used before.
bool UpdateTrust::rotate(const ClaimedStatement &claim)
{
    if (!m_key || m_rotations.size() >= mostRotations)
        return false;
    const auto release = VerifiedRelease::of(claim, *m_key);
    if (!release || release->statement().application != m_application)
        return false;
    const QByteArray next = release->statement().nextKey;
    const auto key = UpdateKey::fromBytes(next);
    if (!key || !isNew(next))
        return false;
    m_rotations << *release;
    m_key = key;
    m_remembered.clear();
    return true;
}

void UpdateTrust::follow(const QList<ClaimedStatement> &claims)
{
    bool hasRotated = true;
    while (hasRotated) {
        // The present key may have named several; the last of its words counts.
        const ClaimedStatement *last = nullptr;
        qint64 highest = 0;
        for (const ClaimedStatement &claim : claims) {
            const auto release = verified(claim);
            if (release && isNew(release->statement().nextKey)
                && release->statement().number > highest) {
                last = &claim;
                highest = release->statement().number;
            }
        }
        hasRotated = last && rotate(*last);
    }
}

std::optional<VerifiedRelease> UpdateTrust::verified(const ClaimedStatement &claim) const
{
    if (!m_rotations.isEmpty() && m_rotations.constLast().source() == claim)
        return m_rotations.constLast();
    if (!m_key)
        return std::nullopt;
    auto release = VerifiedRelease::of(claim, *m_key);
    if (release && release->statement().application != m_application)
        return std::nullopt;
    return release;
}

QList<UpdateKey> UpdateTrust::keys() const
{
    QList<UpdateKey> keys;
    if (const auto builtIn = UpdateKey::fromBytes(m_builtIn))
        keys << *builtIn;
    for (const VerifiedRelease &rotation : m_rotations)
        keys << *UpdateKey::fromBytes(rotation.statement().nextKey);
    return keys;
}

void UpdateTrust::remember(const VerifiedRelease &release)
{
    // The last word of a key whose time is over: a thief may have written it as well, with a number
    // that nothing is higher than and the genuine key as the next one.
    if (!m_rotations.isEmpty() && m_rotations.constLast().source() == release.source())
        return;
    QList<VerifiedRelease> ofLine{release};
    QList<VerifiedRelease> others;
    for (const VerifiedRelease &one : std::as_const(m_remembered))
        (isOfLine(one, release.statement()) ? ofLine : others) << one;
    const auto latest = std::ranges::max_element(ofLine, hasLowerNumber);
    const auto newest = std::ranges::max_element(ofLine, hasLowerVersion);
    m_remembered = others;
    m_remembered << *latest;
    if (newest->statement().version != latest->statement().version)
        m_remembered << *newest;
}

std::optional<qint64> UpdateTrust::highestNumber(const QString &channel,
                                                 const QString &architecture) const
{
    std::optional<qint64> highest;
    for (const VerifiedRelease &one : m_remembered) {
        if (isOfLine(one, channel, architecture))
            highest = std::max(highest.value_or(0), one.statement().number);
    }
    return highest;
}

std::optional<UpdateVersion> UpdateTrust::highestVersion(const QString &channel,
                                                         const QString &architecture) const
{
    std::optional<UpdateVersion> highest;
    for (const VerifiedRelease &one : m_remembered) {
        const UpdateVersion &version = one.statement().version;
        if (isOfLine(one, channel, architecture) && (!highest || *highest < version))
            highest = version;
    }
    return highest;
}

} // namespace corvane
