// What other programs ask of the one that runs, through the session bus.

#include "platform/freedesktop/running_program.h"
#include "platform/freedesktop/shelf_adaptor.h"
#include "platform/scene.h"
#include "platform/system/sealed_memory.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusUnixFileDescriptor>

#include <fcntl.h>
#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Answer = RunningProgram::Answer;

class ProgramRequestsTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(scene.waitFor("first")); }

    QDBusMessage ask(const QDBusConnection &bus, const QString &interface, const QString &method,
                     const QVariantList &arguments) const
    {
        auto call = QDBusMessage::createMethodCall(sceneApplicationId(),
                                                   RunningProgram::objectPath(sceneApplicationId()),
                                                   interface, method);
        call.setArguments(arguments);
        return bus.call(call);
    }
    QDBusMessage put(const QString &kind, int descriptor) const
    {
        return ask(QDBusConnection::sessionBus(), ShelfAdaptor::interfaceName(),
                   QStringLiteral("Put"),
                   {kind, QVariant::fromValue(QDBusUnixFileDescriptor(descriptor))});
    }

    Scene scene{"requests"};
    RunningProgram program{sceneApplicationId()};
    const QString application = QStringLiteral("org.freedesktop.Application");
};

} // namespace

TEST_F(ProgramRequestsTest, WhatIsPutArrivesWhole)
{
    int items = 0;
    const ShelfDelivery large{ShelfDelivery::Kind::Text, QByteArray(50'000'000, 'x')};
    EXPECT_EQ(program.put(large, items), Answer::Done);
    EXPECT_EQ(items, 3);
    EXPECT_TRUE(scene.waitFor("text 50000000"));
    EXPECT_EQ(program.put({ShelfDelivery::Kind::Addresses, "file:///a"}, items), Answer::Done);
    EXPECT_TRUE(scene.waitFor("addresses 9"));
}

TEST_F(ProgramRequestsTest, WhatIsNoSealedMemoryIsRefused)
{
    const FileDescriptor file(::open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(put(QStringLiteral("text"), file.number()).type(), QDBusMessage::ErrorMessage);
    const FileDescriptor silent(::open("/dev/zero", O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(put(QStringLiteral("text"), silent.number()).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(put(QStringLiteral("nonsense"), file.number()).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(program.isAlive(), Answer::Done);
    EXPECT_FALSE(scene.output.contains("text"));
}

TEST_F(ProgramRequestsTest, MoreEntriesThanAMessageHoldsAreListed)
{
    QByteArray entries;
    ASSERT_EQ(program.list(entries), Answer::Done);
    EXPECT_EQ(entries.size(), 40'000'000);
    EXPECT_EQ(entries.count('\0'), 10'000);
}

TEST_F(ProgramRequestsTest, ATakerConfirmsWhatItTook)
{
    EXPECT_EQ(program.confirmTaken(), Answer::Refused);
    EXPECT_EQ(program.refusal(), RunningProgram::Refusal::NothingTaken);
    QByteArray entries;
    ASSERT_EQ(program.take(entries), Answer::Done);
    EXPECT_EQ(entries, QByteArray("/a\0", 3));
    EXPECT_EQ(program.confirmTaken(), Answer::Done);
    EXPECT_TRUE(scene.waitFor("confirmed"));
}

TEST_F(ProgramRequestsTest, ATakerWhoEndsIsToldOf)
{
    const QString name = QStringLiteral("taker");
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        EXPECT_EQ(ask(bus, ShelfAdaptor::interfaceName(), QStringLiteral("Take"), {}).type(),
                  QDBusMessage::ReplyMessage);
    }
    EXPECT_FALSE(scene.output.contains("left"));
    QDBusConnection::disconnectFromBus(name);
    EXPECT_TRUE(scene.waitFor("left"));
}

TEST_F(ProgramRequestsTest, ActionsAreDoneAndUnknownOnesAreErrors)
{
    program.setPlatformData({{QStringLiteral("activation-token"), QStringLiteral("token")}});
    EXPECT_EQ(program.act(QStringLiteral("known")), Answer::Done);
    EXPECT_TRUE(scene.waitFor("known token"));
    EXPECT_EQ(program.act(QStringLiteral("unknown")), Answer::Refused);
    EXPECT_EQ(program.refusal(), RunningProgram::Refusal::NotKnown);
    const auto withParameter
        = ask(QDBusConnection::sessionBus(), application, QStringLiteral("ActivateAction"),
              {QStringLiteral("known"), QVariantList{1}, QVariantMap()});
    EXPECT_EQ(withParameter.errorName(), QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
}

TEST_F(ProgramRequestsTest, AddressesAreOpened)
{
    const auto bus = QDBusConnection::sessionBus();
    const auto open = [&](const QStringList &uris) {
        return ask(bus, application, QStringLiteral("Open"), {uris, QVariantMap()}).type();
    };
    EXPECT_EQ(open({QStringLiteral("file:///a%FF"), QStringLiteral("https://a.example/")}),
              QDBusMessage::ReplyMessage);
    EXPECT_TRUE(scene.waitFor("addresses 34"));
    QStringList many;
    many.fill(QStringLiteral("file:///a"), 100'001);
    EXPECT_EQ(open(many), QDBusMessage::ErrorMessage);
    EXPECT_FALSE(scene.output.contains("reopened"));
    EXPECT_EQ(open({}), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(scene.waitFor("reopened"));
}

TEST_F(ProgramRequestsTest, TheEndIsWaitedFor)
{
    EXPECT_EQ(program.end(), Answer::Done);
    EXPECT_FALSE(program.exists());
    QByteArray entries;
    EXPECT_EQ(program.list(entries), Answer::Gone);
}

TEST_F(ProgramRequestsTest, ManyCallsThatWaitAreRefusedAtSomePoint)
{
    const auto bus = QDBusConnection::sessionBus();
    const auto call = [this] {
        auto message = QDBusMessage::createMethodCall(
            sceneApplicationId(), RunningProgram::objectPath(sceneApplicationId()),
            ShelfAdaptor::interfaceName(), QStringLiteral("Put"));
        const FileDescriptor memory = sealed_memory::holding("wait");
        message << QStringLiteral("text")
                << QVariant::fromValue(QDBusUnixFileDescriptor(memory.number()));
        return message;
    };
    for (int i = 0; i < ShelfAdaptor::mostWaiting; ++i)
        bus.asyncCall(call());
    EXPECT_EQ(bus.call(call()).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.LimitsExceeded"));
}

} // namespace corvane::test
