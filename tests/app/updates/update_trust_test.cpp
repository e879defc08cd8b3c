#include "app/updates/statements.h"
#include "app/updates/update_trust.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class UpdateTrustTest : public testing::Test {
protected:
    static ClaimedStatement claim(const Statement &statement, const TestKey &key)
    {
        return {statement.bytes(), key.sign(statement.bytes())};
    }
    static Statement release(const QByteArray &build, const QByteArray &channel = "stable")
    {
        Statement statement = Statement::of(build, "file");
        statement.channel = channel;
        return statement;
    }
    static ClaimedStatement handover(const QByteArray &build, const TestKey &from,
                                     const TestKey &to)
    {
        Statement statement = release(build);
        statement.nextKey = to.publicBytes();
        return claim(statement, from);
    }
    static UpdateTrust trustIn(const TestKey &key)
    {
        return {UpdateKey::fromBytes(key.publicBytes()), QStringLiteral("example.corvane.Corvane")};
    }
    void remember(const ClaimedStatement &claim)
    {
        const auto release = trust.verified(claim);
        ASSERT_TRUE(release);
        trust.remember(*release);
    }
    static std::optional<qint64> numberIn(const UpdateTrust &trust,
                                          const QString &channel = ReleaseStatement::stable)
    {
        return trust.highestNumber(channel, QStringLiteral("x86_64"));
    }
    std::optional<qint64> number() const { return numberIn(trust); }
    std::optional<UpdateVersion> version() const
    {
        return trust.highestVersion(ReleaseStatement::stable, QStringLiteral("x86_64"));
    }

    TestKey first;
    TestKey second;
    TestKey third;
    UpdateTrust trust = trustIn(first);
};

} // namespace

TEST_F(UpdateTrustTest, OnlyTheKeysWordCounts)
{
    EXPECT_TRUE(trust.verified(claim(release("11"), first)));
    EXPECT_FALSE(trust.verified(claim(release("11"), second)));
    ClaimedStatement changed = claim(release("11"), first);
    changed.bytes.replace("version 11", "version 99");
    EXPECT_FALSE(trust.verified(changed));
    EXPECT_FALSE(UpdateTrust(std::nullopt, {}).verified(claim(release("11"), first)));
}

TEST_F(UpdateTrustTest, AnotherProgramOfTheSameMakersDoesNotCount)
{
    Statement other = release("11");
    other.application = "example.corvane.Other";
    EXPECT_FALSE(trust.verified(claim(other, first)));
    other.nextKey = second.publicBytes();
    trust.follow({claim(other, first)});
    EXPECT_TRUE(trust.verified(claim(release("11"), first))) << "nor may it hand over";
}

TEST_F(UpdateTrustTest, WhatIsSignedButNoStatementDoesNotCount)
{
    EXPECT_FALSE(trust.verified({"a file", first.sign("a file")}));
}

TEST_F(UpdateTrustTest, RemembersTheHighestOfEachChannel)
{
    EXPECT_FALSE(number());
    Statement renewed = release("11");
    renewed.number = "30";
    remember(claim(release("12"), first));
    remember(claim(renewed, first));
    remember(claim(release("10"), first));
    remember(claim(release("40", "beta"), first));
    EXPECT_EQ(number(), 30);
    EXPECT_EQ(version()->text(), QStringLiteral("12"));
    EXPECT_EQ(numberIn(trust, ReleaseStatement::beta), 40);
    EXPECT_EQ(trust.memory().releases.size(), 3);
}

TEST_F(UpdateTrustTest, WhatIsStatedForOtherMachinesIsRememberedApart)
{
    Statement other = release("12");
    other.architecture = "arm64";
    remember(claim(release("11"), first));
    remember(claim(other, first));
    EXPECT_EQ(number(), 11);
    EXPECT_EQ(version()->text(), QStringLiteral("11"));
    EXPECT_EQ(trust.highestNumber(ReleaseStatement::stable, QStringLiteral("arm64")), 12);
    EXPECT_EQ(trust.memory().releases.size(), 2);
}

TEST_F(UpdateTrustTest, WhatWasRememberedIsRecalledByItsSignaturesAlone)
{
    remember(claim(release("12"), first));
    UpdateTrust later = trustIn(first);
    EXPECT_TRUE(later.recall(trust.memory()));
    EXPECT_EQ(numberIn(later), 12);

    UpdateMemory poisoned = trust.memory();
    poisoned.releases << claim(release("999999999999999"), second);
    UpdateTrust healed = trustIn(first);
    EXPECT_FALSE(healed.recall(poisoned));
    EXPECT_EQ(numberIn(healed), 12) << "the rest of it counts";
}

TEST_F(UpdateTrustTest, AStatementOfTheOldKeyMayNameTheNextOne)
{
    const ClaimedStatement last = handover("12", first, second);
    trust.follow({claim(release("13"), second), last});
    EXPECT_TRUE(trust.verified(claim(release("13"), second)));
    EXPECT_TRUE(trust.verified(last)) << "it is a release as well";
    EXPECT_FALSE(trust.verified(claim(release("14"), first))) << "the old key's time is over";
    EXPECT_EQ(trust.keys().size(), 2);
}

TEST_F(UpdateTrustTest, ADayIsEnoughForSeveralRotations)
{
    trust.follow({handover("13", second, third), handover("12", first, second)});
    EXPECT_TRUE(trust.verified(claim(release("14"), third)));
    EXPECT_FALSE(trust.verified(claim(release("14"), second)));
}

TEST_F(UpdateTrustTest, NobodyElseHandsOver)
{
    trust.follow({handover("12", second, third)});
    EXPECT_FALSE(trust.verified(claim(release("13"), third)));
    EXPECT_TRUE(trust.verified(claim(release("13"), first)));
}

TEST_F(UpdateTrustTest, OfTwoSuccessorsTheOneNamedLastCounts)
{
    trust.follow({handover("13", first, third), handover("12", first, second)});
    EXPECT_TRUE(trust.verified(claim(release("14"), third)));
}

TEST_F(UpdateTrustTest, AKeyWhoseTimeIsOverDoesNotComeBack)
{
    trust.follow({handover("12", first, second), handover("13", second, first)});
    EXPECT_TRUE(trust.verified(claim(release("14"), second)));
    EXPECT_FALSE(trust.verified(claim(release("14"), first)));
}

TEST_F(UpdateTrustTest, RotationsHaveAnEnd)
{
    std::vector<TestKey> keys(UpdateTrust::mostRotations + 2);
    QList<ClaimedStatement> chain;
    for (std::size_t i = 0; i + 1 < keys.size(); ++i)
        chain << handover(QByteArray::number(qulonglong(i) + 1), keys.at(i), keys.at(i + 1));
    UpdateTrust long_ = trustIn(keys.front());
    long_.follow(chain);
    EXPECT_EQ(long_.keys().size(), UpdateTrust::mostRotations + 1);
}

TEST_F(UpdateTrustTest, ANumberThatAThiefUsedUpEndsWithTheKey)
{
    Statement poisoned = release("99999");
    poisoned.number = "1000000000000000";
    remember(claim(poisoned, first));
    EXPECT_EQ(number(), 1'000'000'000'000'000);
    trust.follow({handover("12", first, second)});
    EXPECT_FALSE(number());
    EXPECT_FALSE(version());
}

TEST_F(UpdateTrustTest, ANumberThatAThiefUsedUpInHandingOverToTheGenuineKeyEndsWithTheOldOne)
{
    Statement handover = release("99999");
    handover.number = "1000000000000000";
    handover.nextKey = second.publicBytes();
    trust.follow({claim(handover, first)});
    remember(claim(handover, first));
    EXPECT_FALSE(number());
    remember(claim(release("13"), second));
    EXPECT_EQ(number(), 13);
}

TEST_F(UpdateTrustTest, RotationsAreRememberedAcrossStarts)
{
    trust.follow({handover("12", first, second)});
    remember(claim(release("13"), second));
    UpdateTrust later = trustIn(first);
    EXPECT_TRUE(later.recall(trust.memory()));
    EXPECT_EQ(numberIn(later), 13);
    EXPECT_FALSE(later.verified(claim(release("14"), first)));
}

TEST_F(UpdateTrustTest, ARememberedRotationCountsForNoMoreThanOneInAFeed)
{
    Statement other = release("12");
    other.application = "example.corvane.Other";
    other.nextKey = second.publicBytes();
    UpdateMemory memory{first.publicBytes(), {claim(other, first)}, {}};
    EXPECT_FALSE(trust.recall(memory)) << "it is about another program";
    EXPECT_EQ(trust.keys().size(), 1);
    memory.rotations = {handover("12", first, second), handover("13", second, first)};
    EXPECT_FALSE(trust.recall(memory)) << "a key does not come back";
    EXPECT_TRUE(trust.verified(claim(release("14"), second)));
}

TEST_F(UpdateTrustTest, ABuildWithTheNextKeyTakesOverWhatItCanCheckAndComplainsOfNothing)
{
    trust.follow({handover("12", first, second)});
    remember(claim(release("13"), second));
    UpdateTrust rebuilt = trustIn(second);
    EXPECT_TRUE(rebuilt.recall(trust.memory()));
    EXPECT_EQ(numberIn(rebuilt), 13);
}

} // namespace corvane::test
