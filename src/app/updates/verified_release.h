#pragma once

#include "app/updates/claimed_release.h"
#include "app/updates/release_statement.h"
#include "app/updates/update_key.h"

#include <optional>
#include <utility>

namespace corvane {

/// A release of which every word was signed. Only a signature makes one, and only what is stated
/// in one is shown, compared, downloaded and remembered.
class VerifiedRelease {
public:
    /// None unless the key signed the bytes and they are a statement. Any thread.
    static std::optional<VerifiedRelease> of(const ClaimedStatement &claim, const UpdateKey &key);

    const ReleaseStatement &statement() const { return m_statement; }
    /// What it was made of, from which it can be verified again.
    const ClaimedStatement &source() const { return m_source; }

private:
    VerifiedRelease(ReleaseStatement statement, ClaimedStatement source)
        : m_statement(std::move(statement))
        , m_source(std::move(source))
    {
    }

    ReleaseStatement m_statement;
    ClaimedStatement m_source;
};

} // namespace corvane
