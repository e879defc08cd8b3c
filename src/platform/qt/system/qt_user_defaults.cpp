#include "platform/qt/system/qt_user_defaults.h"

#include <QSettings>

namespace corvane {

QtUserDefaults::QtUserDefaults()
    : m_settings(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                             QStringLiteral("Corvane"), QStringLiteral("Corvane")))
{
    m_settings->setFallbacksEnabled(false);
}

QtUserDefaults::QtUserDefaults(const QString &path)
    : m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
}

QtUserDefaults::~QtUserDefaults() = default;

bool QtUserDefaults::areKept() const
{
    return m_settings->isWritable() && m_settings->status() != QSettings::AccessError;
}

void QtUserDefaults::synchronize()
{
    m_settings->sync();
}

QVariant QtUserDefaults::storedObject(const QString &key) const
{
    return m_settings->value(key);
}

void QtUserDefaults::setObject(const QString &key, const QVariant &value)
{
    m_settings->setValue(key, value);
}

} // namespace corvane
