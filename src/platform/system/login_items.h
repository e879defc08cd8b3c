#pragma once

#include <QString>

#include <optional>

namespace corvane {

/// This program's entry among the programs that start with the user's session.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    /// Whether this program starts with the session.
    virtual bool isRegistered() const = 0;
    /// Both return none on success, else a message for the user.
    virtual std::optional<QString> registerItem() = 0;
    virtual std::optional<QString> unregisterItem() = 0;
};

} // namespace corvane
