#include "fakes/memory_user_defaults.h"
#include "platform/qt/system/qt_user_defaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct MemoryStore {
    MemoryUserDefaults defaults;
    void reopen() { }
};

struct QtStore {
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("settings.ini"));
    std::unique_ptr<QtUserDefaults> held = std::make_unique<QtUserDefaults>(path);
    QtUserDefaults &defaults = *held;
    void reopen()
    {
        // In the same place, so that the reference stays good.
        held->~QtUserDefaults();
        new (held.get()) QtUserDefaults(path);
    }
};

template<typename Store>
class UserDefaultsContract : public testing::Test {
protected:
    Store store;
    UserDefaults &defaults = store.defaults;
};

using Stores = testing::Types<MemoryStore, QtStore>;
TYPED_TEST_SUITE(UserDefaultsContract, Stores);

const auto key = QStringLiteral("settings.inViewCount");

} // namespace

TYPED_TEST(UserDefaultsContract, nothingStoredReadsAsNothing)
{
    EXPECT_FALSE(this->defaults.boolForKey(key));
    EXPECT_EQ(this->defaults.integerForKey(key), 0);
    EXPECT_FALSE(this->defaults.dataForKey(key));
}

TYPED_TEST(UserDefaultsContract, registeredDefaultsLieBelowStoredValues)
{
    this->defaults.registerDefaults({{key, 3}});
    EXPECT_EQ(this->defaults.integerForKey(key), 3);
    this->defaults.setInteger(5, key);
    EXPECT_EQ(this->defaults.integerForKey(key), 5);
}

TYPED_TEST(UserDefaultsContract, valuesComeBackAfterARestart)
{
    this->defaults.setInteger(-7, QStringLiteral("number"));
    this->defaults.setBool(true, QStringLiteral("yes"));
    this->defaults.setBool(false, QStringLiteral("no"));
    const QByteArray bytes("{\"a\":\"\\\"\n\0\xFF,;%@\"}", 17);
    this->defaults.setData(bytes, QStringLiteral("data"));
    this->defaults.setData({}, QStringLiteral("empty"));
    this->store.reopen();
    EXPECT_EQ(this->defaults.integerForKey(QStringLiteral("number")), -7);
    EXPECT_TRUE(this->defaults.boolForKey(QStringLiteral("yes")));
    EXPECT_FALSE(this->defaults.boolForKey(QStringLiteral("no")));
    EXPECT_EQ(this->defaults.dataForKey(QStringLiteral("data")), bytes);
    EXPECT_EQ(this->defaults.dataForKey(QStringLiteral("empty")), QByteArray());
}

TEST(QtUserDefaults, aFileOfGarbageIsSurvivedAndWrittenOver)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    for (const QByteArray &garbage :
         {QByteArray("\0\xff\xfe[[[]]]===\n\n%%%\x01", 18), QByteArray(100'000, '['),
          QByteArray("[General]\nsettings.inViewCount=@Variant(\0\0\0\x7f)\n"),
          QByteArray("settings.inViewCount=@ByteArray(\nsettings.inViewCount\n=\n"),
          QByteArray("[General]\nsettings.inViewCount=\\xzz@Invalid(@Rect(")}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(garbage);
        file.close();
        {
            QtUserDefaults defaults(path);
            defaults.boolForKey(key);
            defaults.dataForKey(key);
            EXPECT_EQ(defaults.integerForKey(key), 0);
            defaults.setInteger(4, key);
        }
        EXPECT_EQ(QtUserDefaults(path).integerForKey(key), 4)
            << garbage.left(30).toHex().constData();
    }
}

TEST(QtUserDefaults, aPlaceThatCannotBeWrittenIsSurvived)
{
    QtUserDefaults defaults(QStringLiteral("/dev/null/settings.ini"));
    defaults.setInteger(4, key);
    EXPECT_EQ(defaults.integerForKey(key), 4);
    EXPECT_FALSE(defaults.areKept());
}

TEST(QtUserDefaults, aPlaceThatIsYetToBeMadeKeepsThem)
{
    const QTemporaryDir folder;
    QtUserDefaults defaults(folder.filePath(QStringLiteral("new/settings.ini")));
    EXPECT_TRUE(defaults.areKept());
}

} // namespace corvane::test
