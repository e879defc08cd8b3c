#pragma once

#include "platform/system/user_defaults.h"

#include <functional>

namespace corvane::test {

/// Settings that live as long as the test.
class MemoryUserDefaults : public UserDefaults {
public:
    /// Any value at all, as a hand that edits the file could write it.
    void setRaw(const QString &key, const QVariant &value) { stored.insert(key, value); }

    bool areKept() const override { return kept; }

    QVariantMap stored;
    bool kept = true;
    /// Told of each reading, of what is stored and of what has its default alike.
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
