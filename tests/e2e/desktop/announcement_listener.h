#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace corvane::e2e {

/// Hears what programs have screen readers say at once: a notification's name as it appears. Begins
/// with its construction; programs that have started before may not have noticed that.
class AnnouncementListener : public QObject {
    Q_OBJECT

public:
    /// On the accessibility bus.
    explicit AnnouncementListener(const QDBusConnection &bus);

    const QStringList &heard() const { return m_heard; }

private Q_SLOTS:
    void stateChanged(const QDBusMessage &signal);

private:
    QDBusConnection m_bus;
    QStringList m_heard;
};

} // namespace corvane::e2e
