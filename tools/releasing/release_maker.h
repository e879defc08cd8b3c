#pragma once

#include "app/updates/claimed_release.h"
#include "app/updates/release_statement.h"
#include "app/updates/update_choice.h"
#include "signing_key.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

namespace corvane {

/// Puts releases into a feed, and renews what stands in it.
///
/// Everything in the feed is signed anew each time: all statements have the same date and expiry,
/// and the newest release the highest number. A statement that named the next key stays as it is,
/// because programs that know only the key before need it.
class ReleaseMaker {
public:
    struct Validity {
        QDateTime date;
        QDateTime expiry;
    };

    /// `first` is the key that is built into the programs that are to be reached.
    ReleaseMaker(SigningKey key, UpdateKey first, QString application, Validity validity)
        : m_key(std::move(key))
        , m_first(std::move(first))
        , m_application(std::move(application))
        , m_validity(std::move(validity))
    {
    }

    /// Takes over what the feed says; false, and the reason, where it is none or is not this key's
    /// to continue. An empty one is a feed without releases.
    bool open(const QByteArray &feed, QString &error);

    /// Adds a file whose statement has all that the makers decide: not its number, nor its dates.
    /// `file` is its bytes. False, and the reason, where that would break a rule.
    bool add(ReleaseStatement statement, const QByteArray &file, const QString &notes,
             QString &error);

    /// Signs everything. Where there is a next key, this one only states of the newest release that
    /// the next one follows, and everything is signed with that.
    void sign(const std::optional<SigningKey> &next);

    QByteArray feed() const;

private:
    struct Stated {
        ReleaseStatement statement;
        qsizetype item = 0;
    };

    void sign(Stated &stated, const SigningKey &key, const QByteArray &nextKey);
    QString objectionTo(const QUrl &address) const;
    bool isNewest(const ReleaseStatement &statement) const;
    qsizetype itemFor(const ReleaseStatement &statement, const QString &notes);
    void gather(const QList<UpdateKey> &keys);

    SigningKey m_key;
    UpdateKey m_first;
    QString m_application;
    Validity m_validity;
    QList<ClaimedRelease> m_items;
    /// What is to be signed, the latest word on each file.
    QList<Stated> m_stated;
    qint64 m_highestNumber = 0;
};

} // namespace corvane
