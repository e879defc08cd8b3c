#pragma once

#include "platform/system/user_defaults.h"

#include <memory>

class QSettings;

namespace corvane {

/// The user's settings in an INI file below the configuration folder. A file that cannot be
/// understood counts as empty.
class QtUserDefaults : public UserDefaults {
public:
    QtUserDefaults();
    /// In a file of one's own choosing.
    explicit QtUserDefaults(const QString &path);
    ~QtUserDefaults() override;

    bool areKept() const override;
    /// Writes what has been set; otherwise that happens soon, or when this is destroyed.
    void synchronize();

protected:
    QVariant storedObject(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace corvane
