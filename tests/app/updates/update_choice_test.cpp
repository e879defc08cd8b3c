#include "app/updates/update_choice.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const UpdateSystem debian{QStringLiteral("x86_64"), QStringLiteral("debian"), QStringLiteral("12")};

ClaimedRelease item(const char *version, const char *shortVersion = "")
{
    ClaimedRelease item;
    item.version = QString::fromLatin1(version);
    item.shortVersion = QString::fromLatin1(shortVersion);
    item.files = {ClaimedFile()};
    return item;
}

ClaimedRelease itemWith(const char *system, const char *architecture)
{
    ClaimedRelease one = item("5");
    one.files.first().system = QString::fromLatin1(system);
    one.files.first().architecture = QString::fromLatin1(architecture);
    return one;
}

ClaimedRelease itemFrom(const char *minimum)
{
    ClaimedRelease one = item("5");
    one.minimumSystems = {QString::fromLatin1(minimum)};
    return one;
}

QString newest(const QList<ClaimedRelease> &items, const UpdateSystem &system = debian)
{
    const auto choice = update_choice::choose(items, system);
    return choice.newest ? choice.newest->version.text() : QString();
}

bool fits(const ClaimedRelease &item, const UpdateSystem &system = debian)
{
    return !newest({item}, system).isEmpty();
}

} // namespace

TEST(UpdateChoice, TakesTheNewestWhereverItStands)
{
    EXPECT_EQ(newest({item("9"), item("10"), item("8")}), QStringLiteral("10"));
    EXPECT_EQ(newest({}), QString());
}

TEST(UpdateChoice, BuildsCountAndVersionsForPeopleOnlyWhereThereAreNone)
{
    const QList<ClaimedRelease> both = {item("7", "9.0"), item("8", "1.0"), item("", "99")};
    EXPECT_EQ(newest(both), QStringLiteral("8"));
    EXPECT_EQ(update_choice::choose(both, debian).scale, VersionScale::Build);
    EXPECT_EQ(update_choice::choose(both, debian).newest->shownVersion, QStringLiteral("1.0"));
    const QList<ClaimedRelease> people = {item("", "1.9"), item("", "1.10")};
    EXPECT_EQ(newest(people), QStringLiteral("1.10"));
    EXPECT_EQ(update_choice::choose(people, debian).scale, VersionScale::ShortVersion);
}

TEST(UpdateChoice, ABuildIsShownWhereThereIsNoVersionForPeople)
{
    EXPECT_EQ(update_choice::choose({item("7")}, debian).newest->shownVersion, QStringLiteral("7"));
}

TEST(UpdateChoice, WhatIsNoVersionIsPassedOver)
{
    EXPECT_EQ(newest({item("nightly"), item("3")}), QStringLiteral("3"));
}

TEST(UpdateChoice, AnItemWithoutAFileForThisSystemIsPassedOver)
{
    EXPECT_TRUE(fits(itemWith("", "")));
    EXPECT_TRUE(fits(itemWith("linux", "")));
    EXPECT_TRUE(fits(itemWith("Linux", "")));
    EXPECT_FALSE(fits(itemWith("macos", "")));
    EXPECT_FALSE(fits(itemWith("windows", "x86_64")));
    ClaimedRelease none = item("5");
    none.files.clear();
    EXPECT_FALSE(fits(none));
    EXPECT_EQ(newest({itemWith("macos", ""), item("4")}), QStringLiteral("4"));
}

TEST(UpdateChoice, AFileIsForThisArchitectureOrForAll)
{
    EXPECT_TRUE(fits(itemWith("", "x86_64")));
    EXPECT_TRUE(fits(itemWith("linux", "amd64")));
    EXPECT_FALSE(fits(itemWith("", "arm64")));
    UpdateSystem arm = debian;
    arm.architecture = QStringLiteral("arm64");
    EXPECT_TRUE(fits(itemWith("", "aarch64"), arm));
    EXPECT_FALSE(fits(itemWith("", "amd64"), arm));
}

TEST(UpdateChoice, OfSeveralFilesTheFirstThatFitsIsTaken)
{
    ClaimedRelease several = itemWith("linux", "arm64");
    ClaimedFile ours;
    ours.architecture = QStringLiteral("x86_64");
    ours.length = 7;
    several.files << ours;
    EXPECT_EQ(update_choice::choose({several}, debian).newest->file.length, 7);
}

TEST(UpdateChoice, AMinimumBindsOnlyTheDistributionThatItNames)
{
    EXPECT_TRUE(fits(itemFrom("debian 12")));
    EXPECT_TRUE(fits(itemFrom("Debian 11")));
    EXPECT_FALSE(fits(itemFrom("debian 12.1")));
    EXPECT_FALSE(fits(itemFrom("debian 13")));
    EXPECT_TRUE(fits(itemFrom("ubuntu 99.04")));
    EXPECT_TRUE(fits(itemFrom("99.0"))) << "of no distribution";
}

TEST(UpdateChoice, ARollingReleaseIsNewEnough)
{
    UpdateSystem sid = debian;
    sid.release = QStringLiteral("unknown");
    EXPECT_TRUE(fits(itemFrom("debian 13"), sid));
}

TEST(UpdateChoice, NotesAreShownAsText)
{
    ClaimedRelease one = item("5");
    one.notes = QStringLiteral("<p>A &amp; B</p>");
    one.notesAreMarkup = true;
    EXPECT_EQ(update_choice::choose({one}, debian).newest->notes, QStringLiteral("A & B"));
    one.notesAreMarkup = false;
    EXPECT_EQ(update_choice::choose({one}, debian).newest->notes,
              QStringLiteral("<p>A &amp; B</p>"));
}

TEST(UpdateChoice, AVersionForPeopleForgesNothing)
{
    EXPECT_EQ(update_choice::choose({item("5", "1\n2")}, debian).newest->shownVersion,
              QStringLiteral("1 2"));
}

} // namespace corvane::test
