#include "platform/qt/web/address_space.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace corvane {

namespace {

struct Ipv4Block {
    std::uint32_t first;
    int prefix;
};

constexpr std::uint32_t ipv4(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    return a << 24 | b << 16 | c << 8 | d;
}

/// The registry of special IPv4 addresses, RFC 6890 and its successors, without loopback.
constexpr std::array privateIpv4Blocks = {
    Ipv4Block{ipv4(10, 0, 0, 0), 8},     Ipv4Block{ipv4(100, 64, 0, 0), 10},
    Ipv4Block{ipv4(169, 254, 0, 0), 16}, Ipv4Block{ipv4(172, 16, 0, 0), 12},
    Ipv4Block{ipv4(192, 0, 0, 0), 24},   Ipv4Block{ipv4(192, 0, 2, 0), 24},
    Ipv4Block{ipv4(192, 88, 99, 0), 24}, Ipv4Block{ipv4(192, 168, 0, 0), 16},
    Ipv4Block{ipv4(198, 18, 0, 0), 15},  Ipv4Block{ipv4(198, 51, 100, 0), 24},
    Ipv4Block{ipv4(203, 0, 113, 0), 24}, Ipv4Block{ipv4(224, 0, 0, 0), 4},
    Ipv4Block{ipv4(240, 0, 0, 0), 4},
};

AddressSpace spaceOfIpv4(std::uint32_t address)
{
    // "This network" reaches this machine too.
    const std::uint32_t net = address >> 24;
    if (net == 127 || net == 0)
        return AddressSpace::Loopback;
    const bool isPrivate = std::ranges::any_of(privateIpv4Blocks, [=](const Ipv4Block &block) {
        return (address ^ block.first) >> (32 - block.prefix) == 0;
    });
    return isPrivate ? AddressSpace::Private : AddressSpace::Public;
}

std::uint32_t ipv4At(const Q_IPV6ADDR &address, int at)
{
    return ipv4(address[at], address[at + 1], address[at + 2], address[at + 3]);
}

bool beginsWith(const Q_IPV6ADDR &address, std::initializer_list<int> bytes)
{
    return std::equal(bytes.begin(), bytes.end(), std::begin(address.c),
                      [](int wanted, quint8 byte) { return wanted == byte; });
}

AddressSpace spaceOfIpv6(const Q_IPV6ADDR &address)
{
    const auto *const bytes = std::begin(address.c);
    if (std::all_of(bytes, bytes + 15, [](quint8 byte) { return byte == 0; }) && bytes[15] <= 1)
        return AddressSpace::Loopback;
    // Mapped and compatible.
    if (std::all_of(bytes, bytes + 10, [](quint8 byte) { return byte == 0; })
        && ((bytes[10] == 0xff && bytes[11] == 0xff) || (bytes[10] == 0 && bytes[11] == 0)))
        return spaceOfIpv4(ipv4At(address, 12));
    if (beginsWith(address, {0x00, 0x64, 0xff, 0x9b, 0, 0, 0, 0, 0, 0, 0, 0})) // NAT64
        return spaceOfIpv4(ipv4At(address, 12));
    if (beginsWith(address, {0x20, 0x02})) // 6to4
        return spaceOfIpv4(ipv4At(address, 2));
    if (beginsWith(address, {0x20, 0x01, 0, 0})) // Teredo: a server, and a client in disguise
        return std::min(spaceOfIpv4(ipv4At(address, 4)), spaceOfIpv4(~ipv4At(address, 12)));
    if (beginsWith(address, {0x20, 0x01, 0x0d, 0xb8})) // documentation
        return AddressSpace::Private;
    if (beginsWith(address, {0x20, 0x01}) && bytes[2] < 2) // protocol assignments
        return AddressSpace::Private;
    // Of all the others, 2000::/3 is the internet.
    return bytes[0] >> 5 == 1 ? AddressSpace::Public : AddressSpace::Private;
}

} // namespace

AddressSpace addressSpaceOf(const QHostAddress &address)
{
    if (address.protocol() == QAbstractSocket::IPv4Protocol)
        return spaceOfIpv4(address.toIPv4Address());
    if (address.protocol() == QAbstractSocket::IPv6Protocol)
        return spaceOfIpv6(address.toIPv6Address());
    return AddressSpace::Loopback;
}

} // namespace corvane
