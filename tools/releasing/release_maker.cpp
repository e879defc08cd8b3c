#include "release_maker.h"

#include "app/updates/app_image_bytes.h"
#include "app/updates/appcast.h"
#include "app/updates/verified_release.h"
#include "feed_writer.h"

#include <QCryptographicHash>
#include <QHostAddress>

#include <algorithm>
#include <span>

namespace corvane {

namespace {

/// The first statement that any of the keys signed.
std::optional<VerifiedRelease> verifiedBy(const QList<UpdateKey> &keys,
                                          const ClaimedStatement &claim)
{
    for (const UpdateKey &key : keys) {
        if (auto release = VerifiedRelease::of(claim, key))
            return release;
    }
    return std::nullopt;
}

QList<ClaimedStatement> claimsOf(const QList<ClaimedRelease> &items)
{
    QList<ClaimedStatement> claims;
    for (const ClaimedRelease &item : items)
        claims << item.statements;
    return claims;
}

/// The keys in the order of their times, the first one first.
QList<UpdateKey> keysOf(const QList<ClaimedRelease> &items, const UpdateKey &first)
{
    QList<UpdateKey> keys{first};
    const QList<ClaimedStatement> claims = claimsOf(items);
    for (qsizetype i = 0; i < keys.size(); ++i) {
        for (const ClaimedStatement &claim : claims) {
            const auto release = VerifiedRelease::of(claim, keys.at(i));
            const auto next
                = release ? UpdateKey::fromBytes(release->statement().nextKey) : std::nullopt;
            if (next && !keys.contains(*next))
                keys << *next;
        }
    }
    return keys;
}

} // namespace

bool ReleaseMaker::open(const QByteArray &feed, QString &error)
{
    if (feed.isEmpty())
        return true;
    const auto items = appcast::read(feed);
    if (!items) {
        error = QStringLiteral("The feed is none that can be read.");
        return false;
    }
    // The newest is the last from here on.
    m_items = *items;
    std::ranges::reverse(m_items);
    const QList<UpdateKey> keys = keysOf(m_items, m_first);
    if (keys.constLast() != m_key.publicHalf()) {
        error = QStringLiteral("The feed is signed with another key than this one: %1.")
                    .arg(QString::fromLatin1(keys.constLast().bytes().toBase64()));
        return false;
    }
    // One that none of them signed would be lost, and with it perhaps the way from the first key.
    const QList<ClaimedStatement> claims = claimsOf(m_items);
    if (!std::ranges::all_of(claims, [&](const ClaimedStatement &claim) {
            return verifiedBy(keys, claim).has_value();
        })) {
        error = QStringLiteral("The feed has a statement that neither the first key nor one after "
                               "it signed: is --first-key right?");
        return false;
    }
    gather(keys);
    return true;
}

void ReleaseMaker::gather(const QList<UpdateKey> &keys)
{
    for (qsizetype item = 0; item < m_items.size(); ++item) {
        QList<ClaimedStatement> kept;
        for (const ClaimedStatement &claim : std::as_const(m_items.at(item).statements)) {
            const auto release = verifiedBy(keys, claim);
            if (!release)
                continue;
            const ReleaseStatement &statement = release->statement();
            m_highestNumber = std::max(m_highestNumber, statement.number);
            if (!statement.nextKey.isEmpty())
                kept << claim;
            const auto known = std::ranges::find_if(m_stated, [&](const Stated &one) {
                return one.statement.address == statement.address;
            });
            if (known == m_stated.end())
                m_stated << Stated{statement, item};
            else if (known->statement.number < statement.number)
                known->statement = statement;
        }
        m_items[item].statements = kept;
    }
}

bool ReleaseMaker::isNewest(const ReleaseStatement &statement) const
{
    return std::ranges::none_of(m_stated, [&](const Stated &one) {
        return one.statement.system == statement.system
            && one.statement.architecture == statement.architecture
            && one.statement.kind == statement.kind && one.statement.version >= statement.version;
    });
}

QString ReleaseMaker::objectionTo(const QUrl &address) const
{
    // Of http only what stands on the maker's own machine is ever fetched, when updates are tried
    // out.
    const bool isHere = QHostAddress(address.host()).isLoopback();
    if (address.scheme() != QLatin1String("https") && !isHere)
        return QStringLiteral("The address is not one of https.");
    // What is stated of a file holds as long as the file is there.
    const bool isTaken = std::ranges::any_of(
        m_stated, [&](const Stated &one) { return one.statement.address == address; });
    return isTaken ? QStringLiteral("Another release in the feed has this address.") : QString();
}

bool ReleaseMaker::add(ReleaseStatement statement, const QByteArray &file, const QString &notes,
                       QString &error)
{
    statement.application = m_application;
    statement.length = file.size();
    statement.digest = QCryptographicHash::hash(file, QCryptographicHash::Sha512);
    statement.notesDigest = ReleaseStatement::digestOfNotes(notes);
    const auto *const bytes = reinterpret_cast<const unsigned char *>(file.constData());
    if (!isNewest(statement))
        error = QStringLiteral("Build %1 is not higher than the last one in the feed.")
                    .arg(statement.version.text());
    else if (file.startsWith(ReleaseStatement::firstLine))
        error = QStringLiteral("The file begins as a statement does, and must not be signed.");
    else if (statement.kind == ReleaseStatement::appImage
             && !app_image_bytes::isOf({bytes, static_cast<std::size_t>(file.size())},
                                       m_application, statement.architecture))
        error = QStringLiteral("The file is no AppImage for %1 that carries the line %2.")
                    .arg(statement.architecture,
                         QString::fromUtf8(app_image_bytes::mark(m_application).trimmed()));
    else
        error = objectionTo(statement.address);
    if (!error.isEmpty())
        return false;
    const qsizetype item = itemFor(statement, notes);
    ClaimedFile claimed;
    claimed.url = statement.address;
    claimed.length = statement.length;
    claimed.system = statement.system;
    claimed.architecture = statement.architecture;
    claimed.signature = m_key.sign(file);
    m_items[item].files << claimed;
    m_stated << Stated{statement, item};
    return true;
}

qsizetype ReleaseMaker::itemFor(const ReleaseStatement &statement, const QString &notes)
{
    const auto same = std::ranges::find_if(m_items, [&](const ClaimedRelease &item) {
        return item.version == statement.version.text() && item.notes == notes
            && item.notesAreMarkup == statement.notesAreMarkup
            && item.minimumSystems == statement.minimumSystems;
    });
    if (same != m_items.end())
        return same - m_items.begin();
    ClaimedRelease item;
    item.version = statement.version.text();
    item.shortVersion = statement.shortVersion;
    item.minimumSystems = statement.minimumSystems;
    item.notes = notes;
    item.notesAreMarkup = statement.notesAreMarkup;
    m_items << item;
    return m_items.size() - 1;
}

void ReleaseMaker::sign(Stated &stated, const SigningKey &key, const QByteArray &nextKey)
{
    ReleaseStatement &statement = stated.statement;
    statement.number = ++m_highestNumber;
    statement.date = m_validity.date;
    statement.expiry = m_validity.expiry;
    statement.nextKey = nextKey;
    const QByteArray bytes = statement.toBytes();
    m_items[stated.item].statements << ClaimedStatement{bytes, key.sign(bytes)};
}

void ReleaseMaker::sign(const std::optional<SigningKey> &next)
{
    std::ranges::stable_sort(m_stated, [](const Stated &a, const Stated &b) {
        return a.statement.version < b.statement.version;
    });
    if (next && !m_stated.isEmpty())
        sign(m_stated.last(), m_key, next->publicHalf().bytes());
    for (Stated &one : m_stated)
        sign(one, next.value_or(m_key), {});
}

QByteArray ReleaseMaker::feed() const
{
    QList<ClaimedRelease> newestFirst = m_items;
    std::ranges::reverse(newestFirst);
    return feed_writer::write(m_application, newestFirst);
}

} // namespace corvane
