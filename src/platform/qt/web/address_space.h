#pragma once

#include "platform/web/web_client.h"

#include <QHostAddress>

namespace corvane {

/// How far away the machine at an address is, by the registries of special addresses.
///
/// An IPv6 address that carries an IPv4 one (mapped, translated, tunnelled) is as near as that one,
/// because that is where its packets end. Whatever is no address of the internet's machines, such
/// as those for multicast, documentation and later use, counts as private: nobody on the web has a
/// reason to name it.
AddressSpace addressSpaceOf(const QHostAddress &address);

} // namespace corvane
