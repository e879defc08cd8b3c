#pragma once

#include <QString>

#include <optional>

namespace corvane {

/// Programs that start with the user's session; this one's entry among them.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    /// Whether this program starts with the session.
    virtual bool isRegistered() const = 0;
    /// Each gives none on success, else what went wrong, for people to read.
    virtual std::optional<QString> registerItem() = 0;
    virtual std::optional<QString> unregisterItem() = 0;
};

} // namespace corvane
