#include "e2e/desktop/eventually.h"
#include "platform/qt/web/system_host_resolver.h"

#include <QHostInfo>
#include <QSet>

#include <gtest/gtest.h>

#include <mutex>
#include <optional>

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

QList<QHostAddress> resolved(const QString &host)
{
    struct Result {
        std::mutex mutex;
        std::optional<QList<QHostAddress>> addresses;
    };
    const auto result = std::make_shared<Result>();
    {
        SystemHostResolver resolver;
        resolver.resolve(host, [result](const QList<QHostAddress> &addresses) {
            const std::lock_guard lock(result->mutex);
            result->addresses = addresses;
        });
        // It may go while its lookup runs.
    }
    EXPECT_TRUE(e2e::eventually([&] {
        const std::lock_guard lock(result->mutex);
        return result->addresses.has_value();
    }));
    return result->addresses.value_or(QList<QHostAddress>());
}

} // namespace

TEST(SystemHostResolver, namesOfThisMachineAreTakenFromNoServer)
{
    const QList<QHostAddress> both{QHostAddress(QHostAddress::LocalHostIPv6),
                                   QHostAddress(QHostAddress::LocalHost)};
    EXPECT_EQ(resolved(u"localhost"_s), both);
    EXPECT_EQ(resolved(u"LocalHost."_s), both);
    EXPECT_EQ(resolved(u"a.b.localhost"_s), both);
}

TEST(SystemHostResolver, literalAddressesAreThemselves)
{
    EXPECT_EQ(resolved(u"192.168.1.1"_s), QList{QHostAddress(u"192.168.1.1"_s)});
    EXPECT_EQ(resolved(u"fe80::1"_s), QList{QHostAddress(u"fe80::1"_s)});
}

TEST(SystemHostResolver, otherSpellingsOfAnAddressBecomeThatAddress)
{
    const QHostAddress loopback(QHostAddress::LocalHost);
    for (const auto &spelling : {u"127.1"_s, u"2130706433"_s, u"0x7f000001"_s, u"0177.0.0.1"_s}) {
        for (const QHostAddress &address : resolved(spelling))
            EXPECT_TRUE(address.isLoopback()) << qPrintable(spelling);
    }
    EXPECT_EQ(resolved(u"127.1"_s), QList{loopback});
}

TEST(SystemHostResolver, otherNamesHaveTheAddressesThatTheSystemKnows)
{
    const QString name = QHostInfo::localHostName();
    const auto known = QHostInfo::fromName(name).addresses();
    const auto found = resolved(name);
    EXPECT_EQ(QSet<QHostAddress>(found.begin(), found.end()),
              QSet<QHostAddress>(known.begin(), known.end()));
}

TEST(SystemHostResolver, anUnknownNameHasNoAddresses)
{
    EXPECT_TRUE(resolved(u"no such name"_s).isEmpty());
    EXPECT_TRUE(resolved(u""_s).isEmpty());
}

} // namespace corvane::test
