#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace corvane {

/// What the desktop's portal of shortcuts tells of its own accord, of every session that programs
/// have with it. Main thread only.
class PortalSignals : public QObject {
    Q_OBJECT

public:
    void listen();

    /// A shortcut was pressed: its session and its name. All of these may be empty functions.
    std::function<void(const QString &session, const QString &shortcut)> onActivated;
    /// Other keys belong to a session's shortcuts now; what the portal says of all of them.
    std::function<void(const QString &session, const QVariant &shortcuts)> onChanged;
    /// The portal has ended a session.
    std::function<void(const QString &session)> onClosed;

private:
    Q_SLOT void activated(const QDBusMessage &message) const;
    Q_SLOT void changed(const QDBusMessage &message) const;
    Q_SLOT void closed(const QDBusMessage &message) const;
};

} // namespace corvane
