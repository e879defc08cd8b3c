#pragma once

#include "platform/system/user_defaults.h"

#include <functional>

namespace corvane::test {

/// Settings that are kept in memory only.
class MemoryUserDefaults : public UserDefaults {
public:
    /// Stores any value, as a user who edits the file could.
    void setRaw(const QString &key, const QVariant &value) { stored.insert(key, value); }

    bool areKept() const override { return kept; }

    QVariantMap stored;
    bool kept = true;
    /// Called for each reading, whether a value is stored or not.
    std::function<void(const QString &key)> onRead;

protected:
    QVariant storedObject(const QString &key) const override
    {
        if (onRead)
            onRead(key);
        return stored.value(key);
    }
    void setObject(const QString &key, const QVariant &value) override
    {
        stored.insert(key, value);
    }
};

} // namespace corvane::test
