#include "self_check.h"

#include "app/updates/appcast.h"
#include "app/updates/update_choice.h"
#include "app/updates/verified_download.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace corvane {

namespace {

/// Whether the file passes what a download has to.
bool isTaken(const UpdateOffer &offer, const QByteArray &bytes)
{
    const QTemporaryDir folder;
    int error = 0;
    const std::shared_ptr<UpdateFile> file
        = UpdateFile::make(QFile::encodeName(folder.path()), bytes.size(), error);
    if (!file || !file->append(bytes))
        return false;
    const auto download
        = VerifiedDownload::of(file, offer.release, offer.keys, offer.fileSignature);
    return download
        && (offer.release.statement().kind != ReleaseStatement::appImage || download->isAppImage());
}

/// Whether the item has the file and the notes that are stated.
bool isKept(const ClaimedRelease &item, const ReleaseStatement &statement)
{
    return ReleaseStatement::digestOfNotes(item.notes) == statement.notesDigest
        && std::ranges::any_of(item.files, [&](const ClaimedFile &file) {
               return file.url == statement.address && file.length == statement.length;
           });
}

} // namespace

QString SelfCheck::ofRelease(const QByteArray &feed, const ReleaseStatement &asked,
                             const QByteArray &file) const
{
    const auto items = appcast::read(feed);
    if (!items)
        return QStringLiteral("The feed could not be read back: are the notes plain text?");
    UpdateAudience audience;
    audience.system.architecture = asked.architecture;
    audience.build = UpdateVersion::fromText(QStringLiteral("0"));
    audience.wantsBetas = asked.channel == ReleaseStatement::beta;
    const UpdateChoice choice
        = update_choice::choose(*items, audience, UpdateTrust(first, application), now);
    if (!choice.offer || choice.offer->release.statement().version != asked.version
        || choice.offer->release.statement().channel != asked.channel)
        return QStringLiteral("The release would not be offered: is everything about it given?");
    // Of one version several files may be offered, and this one not be the first of them.
    if (choice.offer->release.statement().address == asked.address && !isTaken(*choice.offer, file))
        return QStringLiteral("The release would not be taken.");
    return {};
}

QString SelfCheck::ofFeed(const QByteArray &feed) const
{
    const auto items = appcast::read(feed);
    if (!items)
        return QStringLiteral("The feed could not be read back.");
    QList<ClaimedStatement> claims;
    for (const ClaimedRelease &item : *items)
        claims << item.statements;
    UpdateTrust trust(first, application);
    trust.follow(claims);
    if (trust.keys().constLast() != last)
        return QStringLiteral("Programs would not follow to this key: too many came before it.");
    bool isAnythingBelieved = false;
    for (const ClaimedRelease &item : *items) {
        for (const ClaimedStatement &claim : item.statements) {
            const auto release = trust.verified(claim);
            if (!release || release->statement().expiry <= now)
                continue;
            if (!isKept(item, release->statement()))
                return QStringLiteral("The item of build %1 is not as it is stated.")
                    .arg(release->statement().version.text());
            isAnythingBelieved = true;
        }
    }
    return isAnythingBelieved ? QString()
                              : QStringLiteral("Nothing in the feed would be believed.");
}

} // namespace corvane
