#include "app/updates/update_record.h"

#include "platform/system/private_file.h"
#include "platform/system/regular_file.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringBuilder>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 largestFile = 4096;
const QByteArray fileName = QByteArrayLiteral("updates.json");
const QString lastCheckKey = QStringLiteral("lastCheck");
const QString buildKey = QStringLiteral("highestBuild");
const QString shortVersionKey = QStringLiteral("highestShortVersion");

std::optional<qint64> seconds(const QJsonValue &value)
{
    // Numbers of JSON are doubles, which hold integers up to here without loss.
    constexpr double largest = 9e15;
    const double number = value.toDouble(-1);
    return number >= 0 && number < largest ? std::optional(std::llround(number)) : std::nullopt;
}

} // namespace

UpdateRecordFile::UpdateRecordFile(QByteArray folder)
    : m_folder(std::move(folder))
{
}

QByteArray UpdateRecordFile::environmentFolder()
{
    QByteArray base = qgetenv("XDG_STATE_HOME");
    if (!base.startsWith('/'))
        base = QFile::encodeName(QDir::homePath()) + "/.local/state";
    return base + "/corvane";
}

UpdateRecord UpdateRecordFile::load() const
{
    const auto bytes = regular_file::contents(m_folder + '/' + fileName, largestFile);
    const QJsonObject object = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    return {seconds(object.value(lastCheckKey)),
            UpdateVersion::fromText(object.value(buildKey).toString()),
            UpdateVersion::fromText(object.value(shortVersionKey).toString())};
}

void UpdateRecordFile::save(const UpdateRecord &record) const
{
    QJsonObject object;
    if (record.lastCheck)
        object.insert(lastCheckKey, *record.lastCheck);
    if (record.highestBuild)
        object.insert(buildKey, record.highestBuild->text());
    if (record.highestShortVersion)
        object.insert(shortVersionKey, record.highestShortVersion->text());
    private_file::replace("/", m_folder, fileName, QJsonDocument(object).toJson());
}

} // namespace corvane
