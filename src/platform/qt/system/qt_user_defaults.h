#pragma once

#include "platform/system/user_defaults.h"

#include <memory>

class QSettings;

namespace corvane {

/// The user's settings in an INI file in the configuration folder. A file that cannot be parsed
/// counts as empty.
class QtUserDefaults : public UserDefaults {
public:
    QtUserDefaults();
    /// In the file at `path`.
    explicit QtUserDefaults(const QString &path);
    ~QtUserDefaults() override;

    bool areKept() const override;
    /// Writes changes now; otherwise they are written soon, or by the destructor.
    void synchronize();

protected:
    QVariant storedObject(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace corvane
