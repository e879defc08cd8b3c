#include "app/updates/update_record.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class UpdateRecordTest : public testing::Test {
protected:
    void store(const QByteArray &bytes)
    {
        QDir().mkpath(QFile::decodeName(folder));
        QFile file(QFile::decodeName(folder + "/updates.json"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir base;
    QByteArray folder = QFile::encodeName(base.path()) + "/deeper/corvane";
    UpdateRecordFile record{folder};
};

} // namespace

TEST_F(UpdateRecordTest, WhatWasSavedIsLoaded)
{
    UpdateRecord saved;
    saved.lastCheck = 1'700'000'000;
    saved.highest(VersionScale::Build) = UpdateVersion::fromText(QStringLiteral("12"));
    saved.highest(VersionScale::ShortVersion) = UpdateVersion::fromText(QStringLiteral("1.2"));
    record.save(saved);
    const UpdateRecord loaded = record.load();
    EXPECT_EQ(loaded.lastCheck, saved.lastCheck);
    EXPECT_EQ(loaded.highestBuild, saved.highestBuild);
    EXPECT_EQ(loaded.highestShortVersion, saved.highestShortVersion);
}

TEST_F(UpdateRecordTest, WhatIsNotThereWasNeverRemembered)
{
    const UpdateRecord loaded = record.load();
    EXPECT_FALSE(loaded.lastCheck || loaded.highestBuild || loaded.highestShortVersion);
}

TEST_F(UpdateRecordTest, WhatIsNoRecordCountsForNothing)
{
    for (const QByteArray &bytes :
         {QByteArray("nonsense"), QByteArray("[]"), QByteArray(5000, ' '),
          QByteArray(R"({"lastCheck": -1, "highestBuild": "../.."})"),
          QByteArray(R"({"lastCheck": 1e300, "highestBuild": 12})"),
          QByteArray(R"({"lastCheck": 9e15})"), QByteArray(R"({"lastCheck": "now"})")}) {
        store(bytes);
        const UpdateRecord loaded = record.load();
        EXPECT_FALSE(loaded.lastCheck) << bytes.left(60).toStdString();
        EXPECT_FALSE(loaded.highestBuild) << bytes.left(60).toStdString();
    }
}

TEST_F(UpdateRecordTest, AFolderThatCannotBeWrittenIsBorne)
{
    const UpdateRecordFile nowhere("/proc/corvane");
    nowhere.save({1, {}, {}});
    EXPECT_FALSE(nowhere.load().lastCheck);
}

TEST(UpdateRecordFolder, IsThatForStateAndNotForSettings)
{
    qputenv("XDG_STATE_HOME", "/some/state");
    EXPECT_EQ(UpdateRecordFile::environmentFolder(), "/some/state/corvane");
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_EQ(UpdateRecordFile::environmentFolder(), qgetenv("HOME") + "/.local/state/corvane");
    qunsetenv("XDG_STATE_HOME");
    EXPECT_EQ(UpdateRecordFile::environmentFolder(), qgetenv("HOME") + "/.local/state/corvane");
}

} // namespace corvane::test
