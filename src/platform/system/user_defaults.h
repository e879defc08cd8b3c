#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace corvane {

/// The user's settings by key, with registered defaults as a layer below. Main thread only.
///
/// The store may be a text file that people edit: a boolean is true for "true", "yes" and "1" in
/// any case and for a number other than 0, and false for anything else; an integer is the number
/// that the text begins with, else 0. An empty data value differs from none.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    void registerDefaults(const QVariantMap &defaults);

    /// Whether what is written now will be there at the next start. If not it lasts as long as this
    /// process. May look at the disk.
    virtual bool areKept() const { return true; }

    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    std::optional<QByteArray> dataForKey(const QString &key) const;

    void setBool(bool value, const QString &key) { setObject(key, value); }
    void setInteger(qint64 value, const QString &key) { setObject(key, value); }
    void setData(const QByteArray &value, const QString &key) { setObject(key, value); }

protected:
    /// What is stored, an invalid variant when there is nothing.
    virtual QVariant storedObject(const QString &key) const = 0;
    virtual void setObject(const QString &key, const QVariant &value) = 0;

private:
    QVariant object(const QString &key) const;

    QVariantMap m_registered;
};

} // namespace corvane
