#include "platform/qt/web/address_space.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane::test {

namespace {

struct Case {
    const char *address;
    AddressSpace space;
};

class AddressSpaceOf : public testing::TestWithParam<Case> { };

std::string nameOf(const testing::TestParamInfo<Case> &info)
{
    std::string name = info.param.address;
    for (char &c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)) == 0)
            c = '_';
    }
    return name;
}

constexpr auto loopback = AddressSpace::Loopback;
constexpr auto nearby = AddressSpace::Private;
constexpr auto internet = AddressSpace::Public;

TEST_P(AddressSpaceOf, isTold)
{
    const QHostAddress address(QString::fromLatin1(GetParam().address));
    ASSERT_FALSE(address.isNull());
    EXPECT_EQ(addressSpaceOf(address), GetParam().space);
}

INSTANTIATE_TEST_SUITE_P(
    Ipv4, AddressSpaceOf,
    testing::Values(
        Case{"127.0.0.1", loopback}, Case{"127.255.255.255", loopback}, Case{"0.0.0.0", loopback},
        Case{"0.1.2.3", loopback}, Case{"10.0.0.1", nearby}, Case{"11.0.0.1", internet},
        Case{"100.63.255.255", internet}, Case{"100.64.0.1", nearby},
        Case{"100.127.255.255", nearby}, Case{"100.128.0.1", internet},
        Case{"169.254.169.254", nearby}, Case{"169.253.0.1", internet},
        Case{"172.15.255.255", internet}, Case{"172.16.0.1", nearby},
        Case{"172.31.255.255", nearby}, Case{"172.32.0.1", internet}, Case{"192.0.0.8", nearby},
        Case{"192.0.1.1", internet}, Case{"192.0.2.1", nearby}, Case{"192.167.0.1", internet},
        Case{"192.168.0.1", nearby}, Case{"192.169.0.1", internet}, Case{"198.17.0.1", internet},
        Case{"198.18.0.1", nearby}, Case{"198.19.255.255", nearby}, Case{"198.20.0.1", internet},
        Case{"198.51.100.7", nearby}, Case{"203.0.113.7", nearby},
        Case{"223.255.255.255", internet}, Case{"224.0.0.251", nearby}, Case{"240.0.0.1", nearby},
        Case{"255.255.255.255", nearby}, Case{"8.8.8.8", internet}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Ipv6, AddressSpaceOf,
                         testing::Values(Case{"::", loopback}, Case{"::1", loopback},
                                         Case{"::2", loopback}, Case{"2606:4700::1111", internet},
                                         Case{"2a00::1", internet}, Case{"fe80::1", nearby},
                                         Case{"fe80::1%eth0", nearby}, Case{"fec0::1", nearby},
                                         Case{"fc00::1", nearby}, Case{"fdff::1", nearby},
                                         Case{"ff02::1", nearby}, Case{"2001:db8::1", nearby},
                                         Case{"2001:20::1", nearby}, Case{"100::1", nearby},
                                         Case{"4000::1", nearby}, Case{"64:ff9b:1::1", nearby}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Ipv6ThatCarriesIpv4, AddressSpaceOf,
    testing::Values(Case{"::ffff:127.0.0.1", loopback}, Case{"::ffff:192.168.1.1", nearby},
                    Case{"::ffff:8.8.8.8", internet}, Case{"::127.0.0.1", loopback},
                    Case{"::10.0.0.1", nearby}, Case{"64:ff9b::127.0.0.1", loopback},
                    Case{"64:ff9b::10.1.2.3", nearby}, Case{"64:ff9b::8.8.8.8", internet},
                    Case{"2002:7f00:1::", loopback}, Case{"2002:c0a8:101::1", nearby},
                    Case{"2002:808:808::1", internet},
                    // A Teredo client's address is written with every bit turned over.
                    Case{"2001:0:808:808:0:0:80ff:fffe", loopback},
                    Case{"2001:0:808:808:0:0:f5ff:fffe", nearby},
                    Case{"2001:0:808:808:0:0:f7f7:f7f7", internet}),
    nameOf);

} // namespace

} // namespace corvane::test
