#include "app/base/app_info.h"
#include "app/updates/updater_controller.h"
#include "fakes/fake_updater.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const QString feedAddress = QStringLiteral("https://corvane.example/appcast.xml");
const QString key = QStringLiteral("a2V5");

class UpdaterControllerTest : public testing::Test {
protected:
    bool isOn(const QJsonValue &address, const QJsonValue &publicKey,
              Installation::Kind kind = Installation::Kind::Loose)
    {
        QJsonObject dictionary;
        if (!address.isUndefined())
            dictionary.insert(QStringLiteral("SUFeedURL"), address);
        if (!publicKey.isUndefined())
            dictionary.insert(QStringLiteral("SUPublicEDKey"), publicKey);
        const UpdaterController controller(AppInfo(dictionary), {kind}, [this] {
            auto made = std::make_unique<FakeUpdater>();
            updater = made.get();
            return made;
        });
        starts = controller.updater() ? updater->starts : 0;
        return controller.updater() != nullptr;
    }

    FakeUpdater *updater = nullptr;
    int starts = 0;
};

} // namespace

TEST_F(UpdaterControllerTest, AFeedAndAKeyTurnUpdatesOnAndTheUpdaterIsNotStartedYet)
{
    EXPECT_TRUE(isOn(feedAddress, key));
    EXPECT_EQ(starts, 0) << "the settings have no defaults yet";
}

TEST_F(UpdaterControllerTest, AFeedAddressWithThePlaceholderAnywhereLeavesUpdatesOff)
{
    EXPECT_FALSE(isOn(QStringLiteral("REPLACE_WITH_FEED"), key));
    EXPECT_FALSE(isOn(QStringLiteral("https://corvane.example/REPLACE_ME/appcast.xml"), key));
    EXPECT_FALSE(isOn(feedAddress, QStringLiteral("xREPLACE_KEY")));
    EXPECT_TRUE(isOn(QStringLiteral("https://corvane.example/replace_"), key));
}

TEST_F(UpdaterControllerTest, AConfiguredFeedWithAnEmptyKeyLeavesUpdatesOff)
{
    EXPECT_FALSE(isOn(feedAddress, QString()));
    EXPECT_FALSE(isOn(QString(), key));
    EXPECT_EQ(starts, 0);
}

TEST_F(UpdaterControllerTest, WhatIsMissingOrNoTextLeavesUpdatesOff)
{
    EXPECT_FALSE(isOn(QJsonValue::Undefined, key));
    EXPECT_FALSE(isOn(feedAddress, QJsonValue::Undefined));
    EXPECT_FALSE(isOn(feedAddress, 12));
    EXPECT_FALSE(isOn(true, key));
    EXPECT_FALSE(isOn(QJsonArray{feedAddress}, key));
}

TEST_F(UpdaterControllerTest, WhereOthersKeepTheProgramUpToDateThereIsNone)
{
    EXPECT_FALSE(isOn(feedAddress, key, Installation::Kind::Managed));
    EXPECT_TRUE(isOn(feedAddress, key, Installation::Kind::AppImage));
}

} // namespace corvane::test
