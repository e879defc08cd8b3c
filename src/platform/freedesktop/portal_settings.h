#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

class QDBusVariant;

namespace corvane {

/// Settings of the desktop, asked in the background of its portal, and followed. Those that the
/// portal does not have are never told. Main thread only.
class PortalSettings : public QObject {
    Q_OBJECT

public:
    struct Key {
        QString group;
        QString name;

        friend bool operator==(const Key &, const Key &) = default;
    };
    using Take = std::function<void(const Key &key, const QVariant &value)>;

    /// `take` is called with each answer and each change, not before this returns.
    PortalSettings(const QList<Key> &keys, Take take);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &name, const QDBusVariant &value);

private:
    void ask(const Key &key);

    QList<Key> m_keys;
    Take m_take;
};

} // namespace corvane
