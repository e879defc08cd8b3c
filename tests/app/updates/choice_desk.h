#pragma once

#include "app/updates/appcast.h"
#include "app/updates/feeds.h"
#include "app/updates/statements.h"
#include "app/updates/update_choice.h"

#include <QTimeZone>

namespace corvane::test {

/// Somebody with build 10 on Debian 12, who reads feeds at the beginning of 2027.
struct ChoiceDesk {
    static constexpr auto file = "file";

    UpdateChoice choose(const QByteArray &items)
    {
        const auto read = appcast::read(feed(items));
        return update_choice::choose(read.value_or(QList<ClaimedRelease>()), audience, trust, now);
    }
    /// And what was learned is remembered.
    UpdateChoice::Verdict verdict(const QByteArray &items)
    {
        const UpdateChoice choice = choose(items);
        trust = choice.trust;
        return choice.verdict;
    }
    /// The version that is offered; empty for none.
    QString offered(const QByteArray &items)
    {
        const auto choice = choose(items);
        return choice.offer ? choice.offer->release.statement().version.text() : QString();
    }
    QByteArray item(const QByteArray &build) const { return item(Statement::of(build, file)); }
    QByteArray item(const Statement &statement) const { return statement.item(key, file); }

    TestKey key;
    UpdateTrust trust{UpdateKey::fromBytes(key.publicBytes()),
                      QStringLiteral("example.corvane.Corvane")};
    UpdateAudience audience{
        {QStringLiteral("x86_64"), QStringLiteral("debian"), QStringLiteral("12")},
        UpdateVersion::fromText(QStringLiteral("10")),
        UpdateVersion::fromText(QStringLiteral("1.0")),
        false};
    QDateTime now{{2027, 1, 1}, {0, 0}, QTimeZone::utc()};
};

} // namespace corvane::test
