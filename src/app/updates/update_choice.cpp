#include "app/updates/update_choice.h"

#include "app/updates/release_notes.h"

#include <QSysInfo>

#include <algorithm>
#include <tuple>
#include <utility>

namespace corvane {

namespace {

const QString linuxSystem = QStringLiteral("linux");

/// A release that is no number ("sid", "rolling") is newer than any.
bool isAllowed(const QString &minimum, const UpdateSystem &system)
{
    const QStringList words = minimum.split(u' ');
    if (words.size() != 2 || words.at(0).compare(system.distribution, Qt::CaseInsensitive) != 0)
        return true;
    const auto wanted = UpdateVersion::fromText(words.at(1));
    const auto present = UpdateVersion::fromText(system.release);
    return !wanted || !present || *present >= *wanted;
}

bool areAllowed(const QStringList &minimums, const UpdateSystem &system)
{
    return std::ranges::all_of(
        minimums, [&system](const QString &minimum) { return isAllowed(minimum, system); });
}

bool isNewer(const QString &text, const std::optional<UpdateVersion> &present)
{
    const auto version = UpdateVersion::fromText(text);
    return version && present && *version > *present;
}

/// A statement of the makers beside the item that it stands in.
struct Stated {
    VerifiedRelease release;
    const ClaimedRelease *item;

    const ReleaseStatement &statement() const { return release.statement(); }
};

/// The newest, and of the same version the file that a program can be started from.
auto rankOf(const ReleaseStatement &statement)
{
    return std::tuple(statement.version, statement.kind == ReleaseStatement::appImage,
                      statement.number);
}

class Chooser {
public:
    Chooser(const QList<ClaimedRelease> &items, const UpdateAudience &audience, UpdateTrust trust,
            const QDateTime &now)
        : m_items(items)
        , m_audience(audience)
        , m_trust(std::move(trust))
        , m_now(now)
    {
    }

    UpdateChoice choose()
    {
        gather();
        const auto verdict = verdictOnAll();
        for (const Stated &one : std::as_const(m_stated))
            m_trust.remember(one.release);
        if (verdict)
            return {*verdict, {}, m_renewed, m_trust};
        if (auto offer = newestOffer(); offer && !isSurpassed(*offer))
            return {UpdateChoice::Verdict::Newer, std::move(offer), {}, m_trust};
        return {isMoreAnnounced() ? UpdateChoice::Verdict::Unverifiable
                                  : UpdateChoice::Verdict::UpToDate,
                {},
                {},
                m_trust};
    }

private:
    using Verdict = UpdateChoice::Verdict;

    /// What is stated for this machine, in the channels that are wanted.
    void gather()
    {
        QList<ClaimedStatement> claims;
        for (const ClaimedRelease &item : m_items)
            claims << item.statements;
        m_trust.follow(claims);
        for (const ClaimedRelease &item : m_items) {
            for (const ClaimedStatement &claim : item.statements) {
                auto release = m_trust.verified(claim);
                if (release && isForUs(release->statement()))
                    m_stated << Stated{std::move(*release), &item};
            }
        }
    }

    bool isForUs(const ReleaseStatement &statement) const
    {
        return statement.system == linuxSystem
            && statement.architecture == m_audience.system.architecture
            && channels().contains(statement.channel);
    }

    QStringList channels() const
    {
        QStringList wanted{ReleaseStatement::stable};
        if (m_audience.wantsBetas)
            wanted << ReleaseStatement::beta;
        return wanted;
    }

    /// What is to be said of the feed before anything in it is looked at.
    std::optional<Verdict> verdictOnAll()
    {
        const QStringList wanted = channels();
        const auto goesBack = [this](const QString &channel) { return this->goesBack(channel); };
        if (std::ranges::any_of(wanted, goesBack))
            return Verdict::WentBack;
        if (m_stated.isEmpty())
            return Verdict::Unverifiable;
        const auto hasExpired = [this](const QString &channel) { return isOver(channel); };
        if (std::ranges::any_of(wanted, hasExpired))
            return Verdict::Expired;
        return std::nullopt;
    }

    bool goesBack(const QString &channel) const
    {
        const QString &architecture = m_audience.system.architecture;
        const auto number = m_trust.highestNumber(channel, architecture);
        const auto version = m_trust.highestVersion(channel, architecture);
        bool hasNumber = !number;
        bool hasVersion = !version;
        for (const Stated &one : m_stated) {
            const bool isOfChannel = one.statement().channel == channel;
            hasNumber = hasNumber || (isOfChannel && one.statement().number >= *number);
            hasVersion = hasVersion || (isOfChannel && one.statement().version >= *version);
        }
        return !hasNumber || !hasVersion;
    }

    bool isOver(const QString &channel)
    {
        const ReleaseStatement *latest = nullptr;
        for (const Stated &one : std::as_const(m_stated)) {
            if (one.statement().channel == channel
                && (!latest || one.statement().number > latest->number))
                latest = &one.statement();
        }
        if (!latest || latest->expiry > m_now)
            return false;
        m_renewed = latest->date;
        return true;
    }

    std::optional<UpdateOffer> newestOffer() const
    {
        const Stated *best = nullptr;
        std::optional<UpdateOffer> offer;
        for (const Stated &one : m_stated) {
            if (best && rankOf(one.statement()) <= rankOf(best->statement()))
                continue;
            if (auto made = offerOf(one)) {
                best = &one;
                offer = std::move(made);
            }
        }
        return offer;
    }

    /// Whether something newer is stated that would run here, and that the feed does not keep: an
    /// older release in its place would be the choice of whoever broke the feed.
    bool isSurpassed(const UpdateOffer &offer) const
    {
        return std::ranges::any_of(m_stated, [&](const Stated &one) {
            return couldRun(one.statement()) && one.statement().expiry > m_now
                && one.statement().version > offer.release.statement().version;
        });
    }

    bool couldRun(const ReleaseStatement &statement) const
    {
        return m_audience.build && statement.version > *m_audience.build
            && areAllowed(statement.minimumSystems, m_audience.system);
    }

    /// None where the item does not have what the statement says.
    std::optional<UpdateOffer> offerOf(const Stated &stated) const
    {
        const ReleaseStatement &statement = stated.statement();
        const ClaimedRelease &item = *stated.item;
        const auto file = std::ranges::find_if(item.files, [&](const ClaimedFile &one) {
            return one.url == statement.address && one.length == statement.length
                && !one.signature.isEmpty();
        });
        if (!couldRun(statement) || statement.expiry <= m_now
            || statement.length > update_choice::largestFile || file == item.files.end()
            || item.notesAreMarkup != statement.notesAreMarkup
            || ReleaseStatement::digestOfNotes(item.notes) != statement.notesDigest)
            return std::nullopt;
        const QString notes
            = item.notesAreMarkup ? release_notes::withoutMarkup(item.notes) : item.notes;
        return UpdateOffer{stated.release, release_notes::shown(notes), file->signature,
                           m_trust.keys()};
    }

    /// Whether something newer is announced for this machine all the same: without a statement, or
    /// with one that it does not keep.
    bool isMoreAnnounced() const
    {
        const bool isStated = std::ranges::any_of(
            m_stated, [this](const Stated &one) { return couldRun(one.statement()); });
        return isStated || std::ranges::any_of(m_items, [this](const ClaimedRelease &item) {
                   return isUnverifiable(item);
               });
    }

    bool isUnverifiable(const ClaimedRelease &item) const
    {
        const bool isVouchedFor
            = std::ranges::any_of(item.statements, [this](const ClaimedStatement &claim) {
                  return m_trust.verified(claim).has_value();
              });
        const bool isNewerItem = item.version.isEmpty()
            ? isNewer(item.shortVersion, m_audience.shortVersion)
            : isNewer(item.version, m_audience.build);
        const auto fits = [this](const ClaimedFile &file) {
            return (file.system.isEmpty()
                    || file.system.compare(linuxSystem, Qt::CaseInsensitive) == 0)
                && (file.architecture.isEmpty()
                    || file.architecture.compare(m_audience.system.architecture,
                                                 Qt::CaseInsensitive)
                        == 0);
        };
        return !isVouchedFor && isNewerItem && areAllowed(item.minimumSystems, m_audience.system)
            && std::ranges::any_of(item.files, fits);
    }

    const QList<ClaimedRelease> &m_items;
    const UpdateAudience &m_audience;
    UpdateTrust m_trust;
    QDateTime m_now;
    QList<Stated> m_stated;
    QDateTime m_renewed;
};

} // namespace

UpdateSystem UpdateSystem::thisOne()
{
    return {QSysInfo::buildCpuArchitecture(), QSysInfo::productType(), QSysInfo::productVersion()};
}

UpdateChoice update_choice::choose(const QList<ClaimedRelease> &items,
                                   const UpdateAudience &audience, UpdateTrust trust,
                                   const QDateTime &now)
{
    return Chooser(items, audience, std::move(trust), now).choose();
}

} // namespace corvane
