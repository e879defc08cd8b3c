#include "app/updates/verified_release.h"

namespace corvane {

std::optional<VerifiedRelease> VerifiedRelease::of(const ClaimedStatement &claim,
                                                   const UpdateKey &key)
{
    // The length first, because a signature of many bytes takes long to check.
    if (claim.bytes.size() > ReleaseStatement::maximumBytes
        || !key.hasSigned(claim.bytes, claim.signature))
        return std::nullopt;
    const auto statement = ReleaseStatement::fromBytes(claim.bytes);
    if (!statement)
        return std::nullopt;
    return VerifiedRelease(*statement, claim);
}

} // namespace corvane
