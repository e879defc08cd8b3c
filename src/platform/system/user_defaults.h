#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace corvane {

/// The user's settings by key, with registered defaults for keys that are not set. Main thread
/// only.
///
/// The store may be a text file that users edit. A boolean is true for "true", "yes" and "1" in any
/// case and for a number other than 0, else false. An integer is the number that the text begins
/// with, else 0. An empty data value is different from none.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    void registerDefaults(const QVariantMap &defaults);

    /// Whether values written now will be there at the next start; if not they last as long as this
    /// process. May ask the disk.
    virtual bool areKept() const { return true; }

    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    std::optional<QByteArray> dataForKey(const QString &key) const;

    void setBool(bool value, const QString &key) { setObject(key, value); }
    void setInteger(qint64 value, const QString &key) { setObject(key, value); }
    void setData(const QByteArray &value, const QString &key) { setObject(key, value); }

protected:
    /// The stored value; an invalid variant when there is none.
    virtual QVariant storedObject(const QString &key) const = 0;
    virtual void setObject(const QString &key, const QVariant &value) = 0;

private:
    QVariant object(const QString &key) const;

    QVariantMap m_registered;
};

} // namespace corvane
