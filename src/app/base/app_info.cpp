#include "app/base/app_info.h"

#include <QFile>
#include <QJsonDocument>

#include <utility>

namespace corvane {

AppInfo::AppInfo(QJsonObject dictionary)
    : m_dictionary(std::move(dictionary))
{
}

AppInfo AppInfo::builtIn()
{
    QFile file(QStringLiteral(":/corvane/information.json"));
    if (!file.open(QIODevice::ReadOnly))
        return AppInfo({});
    return AppInfo(QJsonDocument::fromJson(file.readAll()).object());
}

QString AppInfo::text(const QString &key, const QString &otherwise) const
{
    const QJsonValue value = m_dictionary.value(key);
    return value.isString() ? value.toString() : otherwise;
}

QString AppInfo::version() const
{
    return text(QStringLiteral("CFBundleShortVersionString"), QStringLiteral("0.0.0"));
}

QString AppInfo::build() const
{
    return text(QStringLiteral("CFBundleVersion"), QStringLiteral("0"));
}

QString AppInfo::applicationId() const
{
    return text(QStringLiteral("CFBundleIdentifier"), QStringLiteral("example.corvane.Corvane"));
}

QString AppInfo::homePage() const
{
    return text(QStringLiteral("CorvaneHomePage"), QStringLiteral("https://corvane.example/"));
}

QString AppInfo::supportAddress() const
{
    return text(QStringLiteral("CorvaneSupportAddress"), QStringLiteral("support@corvane.example"));
}

} // namespace corvane
