#include "app/updates/update_version.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

UpdateVersion version(const char *text)
{
    return UpdateVersion::fromText(QString::fromLatin1(text)).value();
}

bool isVersion(const char *text)
{
    return UpdateVersion::fromText(QString::fromUtf8(text)).has_value();
}

} // namespace

TEST(UpdateVersion, IsComparedNumberByNumberAndNotAsText)
{
    EXPECT_LT(version("1.9"), version("1.10"));
    EXPECT_LT(version("9"), version("10"));
    EXPECT_LT(version("1.2.3"), version("1.3"));
    EXPECT_GT(version("2.0"), version("1.99.99"));
}

TEST(UpdateVersion, MissingNumbersAreZeros)
{
    EXPECT_EQ(version("1"), version("1.0.0"));
    EXPECT_LT(version("1"), version("1.0.1"));
}

TEST(UpdateVersion, LeadingZerosDoNotCount)
{
    EXPECT_EQ(version("1.02"), version("1.2"));
    EXPECT_EQ(version("0"), version("000"));
}

TEST(UpdateVersion, NumbersLargerThanAnyMachineWordAreCompared)
{
    EXPECT_LT(version("18446744073709551615"), version("18446744073709551616"));
    EXPECT_LT(version("99999999999999999999"), version("100000000000000000000"));
}

TEST(UpdateVersion, WhatIsNotNumbersBetweenDotsIsNoVersion)
{
    for (const char *text : {"", ".", "1.", ".1", "1..2", "v1", "1.0-beta", "1 ", "-1", "+1",
                             "\xd9\xa1", "1,2", "1e9"})
        EXPECT_FALSE(isVersion(text)) << text;
    EXPECT_FALSE(UpdateVersion::fromText(QString(65, u'1')));
    EXPECT_TRUE(UpdateVersion::fromText(QString(64, u'1')));
}

TEST(UpdateVersion, KeepsTheTextThatItWasWrittenAs)
{
    EXPECT_EQ(version("1.02").text(), QStringLiteral("1.02"));
}

} // namespace corvane::test
