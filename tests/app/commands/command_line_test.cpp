#include "app/commands/command_line.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Wish = CommandLine::Wish;

QByteArray problemOf(const QList<QByteArray> &arguments)
{
    return CommandLine::of(arguments).problem;
}

} // namespace

TEST(CommandLine, WithoutArgumentsItIsAStart)
{
    const CommandLine line = CommandLine::of({});
    EXPECT_EQ(line.wish, Wish::Start);
    EXPECT_TRUE(line.problem.isEmpty());
    EXPECT_FALSE(line.isStartedByBus);
}

TEST(CommandLine, EachOptionIsAWish)
{
    EXPECT_EQ(CommandLine::of({"--toggle"}).wish, Wish::Toggle);
    EXPECT_EQ(CommandLine::of({"--show-all"}).wish, Wish::ShowAll);
    EXPECT_EQ(CommandLine::of({"--list"}).wish, Wish::List);
    EXPECT_EQ(CommandLine::of({"--take"}).wish, Wish::Take);
    EXPECT_EQ(CommandLine::of({"--preferences"}).wish, Wish::Preferences);
    EXPECT_EQ(CommandLine::of({"--quit"}).wish, Wish::Quit);
    EXPECT_EQ(CommandLine::of({"--help"}).wish, Wish::Help);
    EXPECT_EQ(CommandLine::of({"-h"}).wish, Wish::Help);
    EXPECT_EQ(CommandLine::of({"--version"}).wish, Wish::Version);
    EXPECT_EQ(CommandLine::of({"-v"}).wish, Wish::Version);
}

TEST(CommandLine, FilesAndLinksKeepTheirOrderAndTheirBytes)
{
    const QList<QByteArray> places
        = {"b", "\xff\xfe#%41 x\ny", "https://a.example/\xc3\xa9", "-", "a"};
    const CommandLine line = CommandLine::of(places);
    EXPECT_EQ(line.wish, Wish::Put);
    EXPECT_EQ(line.places, places);
}

TEST(CommandLine, BehindTwoDashesEverythingIsAFile)
{
    const CommandLine line = CommandLine::of({"--", "--list", "-x"});
    EXPECT_EQ(line.wish, Wish::Put);
    EXPECT_EQ(line.places, (QList<QByteArray>{"--list", "-x"}));
}

TEST(CommandLine, AnUnknownOptionIsNamedAsItWasWritten)
{
    EXPECT_EQ(problemOf({"--bogus"}), "there is no option --bogus");
    EXPECT_EQ(problemOf({"-x"}), "there is no option -x");
    EXPECT_EQ(problemOf({"-platform", "nowhere"}), "there is no option -p");
    EXPECT_EQ(problemOf({"a", "--b\xff"}), "there is no option --b\xff");
}

TEST(CommandLine, WhatCannotGoTogetherIsWrong)
{
    EXPECT_FALSE(problemOf({"--list", "--take"}).isEmpty());
    EXPECT_FALSE(problemOf({"--toggle", "a"}).isEmpty());
    EXPECT_FALSE(problemOf({"--toggle=yes"}).isEmpty());
    EXPECT_FALSE(problemOf({"-0"}).isEmpty());
    EXPECT_FALSE(problemOf({"--toggle", "-0"}).isEmpty());
    EXPECT_FALSE(problemOf({"-", "-"}).isEmpty());
}

TEST(CommandLine, HelpAndVersionComeBeforeEverythingElse)
{
    EXPECT_EQ(CommandLine::of({"--list", "--help", "a"}).wish, Wish::Help);
    EXPECT_EQ(CommandLine::of({"--version", "--toggle"}).wish, Wish::Version);
}

TEST(CommandLine, EntriesEndWithNulWhereThatIsWanted)
{
    EXPECT_TRUE(CommandLine::of({"--list", "-0"}).isNullSeparated);
    EXPECT_TRUE(CommandLine::of({"--null", "--take"}).isNullSeparated);
    EXPECT_FALSE(CommandLine::of({"--list"}).isNullSeparated);
}

TEST(CommandLine, TheBusSaysThatItStartsTheProgram)
{
    const CommandLine line = CommandLine::of({"--started-by-bus"});
    EXPECT_EQ(line.wish, Wish::Start);
    EXPECT_TRUE(line.isStartedByBus);
}

TEST(CommandLine, WhatASessionManagerAddsIsForTheToolkit)
{
    QList<QByteArray> arguments = {"-session", "10a_1", "a"};
    EXPECT_EQ(CommandLine::takeToolkitArguments(arguments),
              (QList<QByteArray>{"-session", "10a_1"}));
    EXPECT_EQ(arguments, QList<QByteArray>{"a"});
    QList<QByteArray> file = {"--", "-session", "a"};
    EXPECT_TRUE(CommandLine::takeToolkitArguments(file).isEmpty());
    QList<QByteArray> cut = {"-session"};
    EXPECT_TRUE(CommandLine::takeToolkitArguments(cut).isEmpty());
}

} // namespace corvane::test
