#pragma once

#include <QStringView>

namespace corvane::local_names {

/// Names of this machine, "localhost" and all below it: RFC 6761, whatever a name server says.
bool isThisMachine(QStringView host);

/// Names that lead to the network at hand, as far as a name can tell: of one label, and below the
/// domains that are set aside for homes and companies.
bool isNearby(QStringView host);

/// Names that only Tor's network knows, RFC 7686.
bool isOnion(QStringView host);

} // namespace corvane::local_names
