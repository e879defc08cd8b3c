#include "app/updates/update_record.h"

#include "platform/system/private_file.h"
#include "platform/system/regular_file.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringBuilder>

#include <sys/stat.h>

#include <cmath>
#include <cstdio>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 largestFile = 256LL * 1024;
constexpr qsizetype mostStatements = 32;
const QByteArray fileName = QByteArrayLiteral("updates.json");
const QByteArray asideSuffix = QByteArrayLiteral(".set-aside");
const QString lastCheckKey = QStringLiteral("lastCheck");
const QString hasFailedKey = QStringLiteral("hasFailed");
const QString expiryNoticeKey = QStringLiteral("lastExpiryNotice");
const QString builtInKeyKey = QStringLiteral("key");
const QString rotationsKey = QStringLiteral("rotations");
const QString releasesKey = QStringLiteral("releases");
const QString statementKey = QStringLiteral("statement");
const QString signatureKey = QStringLiteral("signature");

/// Takes values out of a record and notes whether one is of another kind than it has to be.
class Reader {
public:
    explicit Reader(QJsonObject object)
        : m_object(std::move(object))
    {
    }

    bool isWhole() const { return m_isWhole; }

    std::optional<qint64> seconds(const QString &key)
    {
        // Numbers of JSON are doubles, which hold integers up to here without loss.
        constexpr double largest = 9e15;
        if (!m_object.contains(key))
            return std::nullopt;
        const double number = m_object.value(key).toDouble(-1);
        if (check(number >= 0 && number < largest))
            return std::llround(number);
        return std::nullopt;
    }
    bool flag(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        return check(value.isUndefined() || value.isBool()) && value.toBool();
    }
    QByteArray bytes(const QString &key) { return bytes(m_object, key); }
    QList<ClaimedStatement> statements(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        const QJsonArray array = value.toArray();
        QList<ClaimedStatement> statements;
        if (!check(value.isUndefined() || (value.isArray() && array.size() <= mostStatements)))
            return statements;
        for (const QJsonValue &one : array) {
            const QJsonObject object = one.toObject();
            statements << ClaimedStatement{bytes(object, statementKey),
                                           bytes(object, signatureKey)};
        }
        return statements;
    }

private:
    bool check(bool isRight)
    {
        m_isWhole = m_isWhole && isRight;
        return isRight;
    }
    QByteArray bytes(const QJsonObject &object, const QString &key)
    {
        const QJsonValue value = object.value(key);
        const auto result = QByteArray::fromBase64Encoding(value.toString().toLatin1(),
                                                           QByteArray::AbortOnBase64DecodingErrors);
        check((value.isUndefined() || value.isString()) && result);
        return result ? result.decoded : QByteArray();
    }

    QJsonObject m_object;
    bool m_isWhole = true;
};

QJsonArray arrayOf(const QList<ClaimedStatement> &statements)
{
    QJsonArray array;
    for (const ClaimedStatement &one : statements) {
        array << QJsonObject{{statementKey, QString::fromLatin1(one.bytes.toBase64())},
                             {signatureKey, QString::fromLatin1(one.signature.toBase64())}};
    }
    return array;
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

QByteArray UpdateRecordFile::path() const
{
    return m_folder + '/' + fileName;
}

std::optional<UpdateRecord> UpdateRecordFile::load() const
{
    struct stat status = {};
    if (::lstat(path().constData(), &status) != 0)
        return UpdateRecord();
    const auto bytes = regular_file::contents(path(), largestFile);
    const QJsonDocument document = QJsonDocument::fromJson(bytes.value_or(QByteArray()));
    if (!document.isObject())
        return std::nullopt;
    Reader reader(document.object());
    UpdateRecord record;
    record.lastCheck = reader.seconds(lastCheckKey);
    record.hasFailed = reader.flag(hasFailedKey);
    record.lastExpiryNotice = reader.seconds(expiryNoticeKey);
    record.memory.builtInKey = reader.bytes(builtInKeyKey);
    record.memory.rotations = reader.statements(rotationsKey);
    record.memory.releases = reader.statements(releasesKey);
    return reader.isWhole() ? std::optional(record) : std::nullopt;
}

void UpdateRecordFile::save(const UpdateRecord &record) const
{
    QJsonObject object;
    if (record.lastCheck)
        object.insert(lastCheckKey, *record.lastCheck);
    object.insert(hasFailedKey, record.hasFailed);
    if (record.lastExpiryNotice)
        object.insert(expiryNoticeKey, *record.lastExpiryNotice);
    object.insert(builtInKeyKey, QString::fromLatin1(record.memory.builtInKey.toBase64()));
    object.insert(rotationsKey, arrayOf(record.memory.rotations));
    object.insert(releasesKey, arrayOf(record.memory.releases));
    private_file::replace("/", m_folder, fileName, QJsonDocument(object).toJson());
}

void UpdateRecordFile::setAside() const
{
    const QByteArray aside = path() + asideSuffix;
    ::rename(path().constData(), aside.constData());
}

} // namespace corvane
