#include "fakes/memory_user_defaults.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

const QString key = QStringLiteral("key");

struct UserDefaultsTest : testing::Test {
    bool asBool(const QVariant &value)
    {
        defaults.setRaw(key, value);
        return defaults.boolForKey(key);
    }
    qint64 asInteger(const QVariant &value)
    {
        defaults.setRaw(key, value);
        return defaults.integerForKey(key);
    }

    test::MemoryUserDefaults defaults;
};

TEST_F(UserDefaultsTest, AnswersForWhatIsNotThere)
{
    EXPECT_FALSE(defaults.boolForKey(key));
    EXPECT_EQ(defaults.integerForKey(key), 0);
    EXPECT_FALSE(defaults.dataForKey(key).has_value());
}

TEST_F(UserDefaultsTest, LooksAtRegisteredDefaultsWhereNothingIsStored)
{
    defaults.registerDefaults({{key, true}});
    defaults.registerDefaults({{QStringLiteral("other"), 4}});
    EXPECT_TRUE(defaults.boolForKey(key));
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("other")), 4);
    defaults.setBool(false, key);
    EXPECT_FALSE(defaults.boolForKey(key));
    EXPECT_EQ(defaults.stored.size(), 1);
}

TEST_F(UserDefaultsTest, ReadsBooleansThatPeopleWrite)
{
    for (const char *yes : {"true", "TRUE", "Yes", "1", "2", "-1", "0.5"})
        EXPECT_TRUE(asBool(QString::fromLatin1(yes))) << yes;
    for (const char *no : {"false", "no", "0", "0.0", "", "maybe", "on", "nan", "inf", "1x"})
        EXPECT_FALSE(asBool(QString::fromLatin1(no))) << no;
    EXPECT_TRUE(asBool(7));
    EXPECT_FALSE(asBool(0));
    EXPECT_TRUE(asBool(QByteArray("yes")));
    EXPECT_FALSE(asBool(QStringList{QStringLiteral("1"), QStringLiteral("2")}));
}

TEST_F(UserDefaultsTest, ReadsTheNumberThatATextBeginsWith)
{
    EXPECT_EQ(asInteger(QStringLiteral("3")), 3);
    EXPECT_EQ(asInteger(QStringLiteral(" 3 apples")), 3);
    EXPECT_EQ(asInteger(QStringLiteral("-3")), -3);
    EXPECT_EQ(asInteger(QStringLiteral("+4")), 4);
    EXPECT_EQ(asInteger(QStringLiteral("3.9")), 3);
    EXPECT_EQ(asInteger(QStringLiteral("three")), 0);
    EXPECT_EQ(asInteger(QStringLiteral("-")), 0);
    EXPECT_EQ(asInteger(QString()), 0);
    EXPECT_EQ(asInteger(true), 1);
    EXPECT_EQ(asInteger(2.9), 2);
    EXPECT_EQ(asInteger(QStringList{QStringLiteral("5"), QStringLiteral("6")}), 0);
}

TEST_F(UserDefaultsTest, StopsAtTheLargestNumber)
{
    using Limits = std::numeric_limits<qint64>;
    EXPECT_EQ(asInteger(QStringLiteral("99999999999999999999")), Limits::max());
    EXPECT_EQ(asInteger(QStringLiteral("-99999999999999999999")), Limits::min());
    EXPECT_EQ(asInteger(QStringLiteral("-9223372036854775808")), Limits::min());
    EXPECT_EQ(asInteger(1e300), Limits::max());
    EXPECT_EQ(asInteger(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST_F(UserDefaultsTest, TellsAnEmptyDataValueFromNone)
{
    defaults.setData(QByteArray(), key);
    ASSERT_TRUE(defaults.dataForKey(key).has_value());
    EXPECT_TRUE(defaults.dataForKey(key)->isEmpty());
    defaults.setRaw(key, QStringLiteral("abc"));
    EXPECT_EQ(defaults.dataForKey(key), QByteArray("abc"));
    defaults.setRaw(key, QStringList{QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(defaults.dataForKey(key), QByteArray());
}

} // namespace
} // namespace corvane
