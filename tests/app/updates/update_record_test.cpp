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
    QStringList names() const
    {
        return QDir(QFile::decodeName(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
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
    saved.hasFailed = true;
    saved.lastExpiryNotice = 1'600'000'000;
    saved.memory = {"key", {{"a rotation", "signed"}}, {{"a release", "too"}, {"b", "c"}}};
    record.save(saved);
    const auto loaded = record.load();
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->lastCheck, saved.lastCheck);
    EXPECT_TRUE(loaded->hasFailed);
    EXPECT_EQ(loaded->lastExpiryNotice, saved.lastExpiryNotice);
    EXPECT_EQ(loaded->memory.builtInKey, saved.memory.builtInKey);
    EXPECT_EQ(loaded->memory.rotations, saved.memory.rotations);
    EXPECT_EQ(loaded->memory.releases, saved.memory.releases);
}

TEST_F(UpdateRecordTest, WhatIsNotThereWasNeverRemembered)
{
    const auto loaded = record.load();
    ASSERT_TRUE(loaded);
    EXPECT_FALSE(loaded->lastCheck || loaded->hasFailed || loaded->lastExpiryNotice);
    EXPECT_TRUE(loaded->memory.rotations.isEmpty() && loaded->memory.releases.isEmpty());
}

TEST_F(UpdateRecordTest, WhatIsNoRecordIsToldFromNone)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("nonsense"), QByteArray("[]"), QByteArray(300'000, ' '),
          QByteArray(R"({"lastCheck": -1})"), QByteArray(R"({"lastCheck": 1e300})"),
          QByteArray(R"({"lastCheck": 9e15})"), QByteArray(R"({"lastCheck": "now"})"),
          QByteArray(R"({"hasFailed": 1})"), QByteArray(R"({"key": 1})"),
          QByteArray(R"({"key": "%"})"), QByteArray(R"({"releases": 1})"),
          QByteArray(R"({"releases": [{"statement": 1}]})"),
          QByteArray(R"({"rotations": [{"signature": "%"}]})"),
          QByteArray(R"({"releases": [)" + QByteArray("1,").repeated(32) + "1]}")}) {
        store(bytes);
        EXPECT_FALSE(record.load()) << bytes.left(60).toStdString();
    }
}

TEST_F(UpdateRecordTest, ARecordOfAnEarlierBuildIsOneAndItsUnsignedVersionsCountForNothing)
{
    store(R"({"lastCheck": 5, "highestBuild": "9999", "highestShortVersion": "99"})");
    const auto loaded = record.load();
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->lastCheck, 5);
    EXPECT_TRUE(loaded->memory.releases.isEmpty());
}

TEST_F(UpdateRecordTest, WhatIsSetAsideKeepsItsBytesUnderAnotherName)
{
    store("nonsense");
    record.setAside();
    EXPECT_EQ(names(), QStringList{QStringLiteral("updates.json.set-aside")});
    EXPECT_TRUE(record.load());
    store("more of it");
    record.setAside();
    EXPECT_EQ(names().size(), 1) << "one is enough";
}

TEST_F(UpdateRecordTest, AFolderInItsPlaceIsSetAsideToo)
{
    QDir().mkpath(QFile::decodeName(folder + "/updates.json"));
    EXPECT_FALSE(record.load());
    record.setAside();
    EXPECT_TRUE(record.load());
}

TEST_F(UpdateRecordTest, AFolderThatCannotBeWrittenIsBorne)
{
    const UpdateRecordFile nowhere("/proc/corvane");
    nowhere.save({1, false, {}, {}});
    nowhere.setAside();
    EXPECT_FALSE(nowhere.load()->lastCheck);
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
