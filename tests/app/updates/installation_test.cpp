#include "app/updates/installation.h"
#include "app/updates/update_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::test {

namespace {

using Kind = Installation::Kind;

class InstallationTest : public testing::Test {
protected:
    InstallationTest()
    {
        QDir(folder.directory.path()).mkpath(QStringLiteral("mount/usr/bin"));
        evidence.executable = folder.path("mount/usr/bin/corvane");
        evidence.appImage = folder.appImage();
        evidence.appImageFolder = folder.path("mount");
    }

    Kind kind() const { return Installation::from(evidence).kind; }

    UpdateFolder folder;
    Installation::Evidence evidence;
};

} // namespace

TEST_F(InstallationTest, AnAppImageIsTheFileThatTheProgramRunsFrom)
{
    const Installation here = Installation::from(evidence);
    EXPECT_EQ(here.kind, Kind::AppImage);
    EXPECT_EQ(here.appImage, folder.appImage());
}

TEST_F(InstallationTest, AnotherProgramsAppImageIsNotTakenForOurs)
{
    evidence.executable = "/opt/corvane/bin/corvane";
    EXPECT_EQ(kind(), Kind::Loose);
    evidence.executable = folder.path("mounted-elsewhere/corvane");
    EXPECT_EQ(kind(), Kind::Loose);
    evidence.executable = "/usr/bin/corvane";
    EXPECT_EQ(kind(), Kind::Managed);
}

TEST_F(InstallationTest, TheFolderOfEverythingIsNoAppImages)
{
    evidence.appImageFolder = "/";
    EXPECT_EQ(kind(), Kind::Loose);
    evidence.appImageFolder = "";
    EXPECT_EQ(kind(), Kind::Loose);
}

TEST_F(InstallationTest, ALinkToTheAppImageLeadsToIt)
{
    ASSERT_EQ(::symlink("Corvane.AppImage", folder.path("corvane").constData()), 0);
    evidence.appImage = folder.path("corvane");
    EXPECT_EQ(Installation::from(evidence).appImage, folder.appImage());
    EXPECT_FALSE(Installation::isReplaceable(folder.path("corvane")));
}

TEST_F(InstallationTest, APathThatIsNotAbsoluteCountsForNothing)
{
    evidence.appImage = "Corvane.AppImage";
    EXPECT_EQ(kind(), Kind::Loose);
}

TEST_F(InstallationTest, WhatIsNoAppImageIsNotReplaced)
{
    folder.write("Corvane.AppImage", "a text of the user's");
    EXPECT_EQ(kind(), Kind::Loose);
    evidence.appImage = folder.path("missing");
    EXPECT_EQ(kind(), Kind::Loose);
    evidence.appImage = folder.path("mount");
    EXPECT_EQ(kind(), Kind::Loose);
    ASSERT_EQ(::mkfifo(folder.path("pipe").constData(), 0600), 0);
    evidence.appImage = folder.path("pipe");
    EXPECT_EQ(kind(), Kind::Loose);
}

TEST_F(InstallationTest, WhatTheUserMayNotWriteIsNotReplaced)
{
    ASSERT_EQ(::chmod(folder.appImage().constData(), 0500), 0);
    EXPECT_EQ(kind(), Kind::Loose);
    ASSERT_EQ(::chmod(folder.appImage().constData(), 0700), 0);
    EXPECT_EQ(kind(), Kind::AppImage);
    if (::geteuid() != 0) {
        ASSERT_EQ(::chmod(folder.path().constData(), 0500), 0);
        EXPECT_EQ(kind(), Kind::Loose);
        ::chmod(folder.path().constData(), 0700);
    }
}

TEST(Installation, BelowUsrButNotBelowUsrLocalTheDistributionKeepsIt)
{
    for (const char *path : {"/usr/bin/corvane", "/usr/lib/corvane/corvane"})
        EXPECT_EQ(Installation::from({path, {}, {}, false}).kind, Kind::Managed) << path;
    for (const char *path :
         {"/usr/local/bin/corvane", "/opt/corvane", "/home/u/corvane", "/usrx/corvane", ""})
        EXPECT_EQ(Installation::from({path, {}, {}, false}).kind, Kind::Loose) << path;
}

TEST_F(InstallationTest, FlatpakKeepsWhatIsInsideOfIt)
{
    evidence.isFlatpak = true;
    EXPECT_EQ(kind(), Kind::Managed);
}

TEST(Installation, FlatpakIsToldByWhatItSets)
{
    EXPECT_FALSE(Installation::Evidence::ofThisProcess().isFlatpak);
    qputenv("FLATPAK_ID", "example.corvane.Corvane");
    EXPECT_TRUE(Installation::Evidence::ofThisProcess().isFlatpak);
    qunsetenv("FLATPAK_ID");
    qputenv("container", "flatpak");
    EXPECT_TRUE(Installation::Evidence::ofThisProcess().isFlatpak);
    qputenv("container", "docker");
    EXPECT_FALSE(Installation::Evidence::ofThisProcess().isFlatpak);
    qunsetenv("container");
}

TEST(Installation, TheExecutableIsThisOne)
{
    EXPECT_TRUE(Installation::Evidence::ofThisProcess().executable.endsWith("_tests"));
}

} // namespace corvane::test
