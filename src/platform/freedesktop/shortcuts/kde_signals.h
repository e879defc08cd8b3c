#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace corvane {

/// What KDE's service for hot keys tells of its own accord, on the session bus, of every program's
/// keys. Main thread only.
class KdeSignals : public QObject {
    Q_OBJECT

public:
    /// A program's name and that of its action.
    using About = std::function<void(const QString &component, const QString &action)>;

    void listen();

    // All may be empty.
    About onPressed;
    std::function<void()> onReleased;
    /// Other keys are the action's now, or none.
    About onChanged;

private:
    Q_SLOT void pressed(const QDBusMessage &message) const;
    Q_SLOT void released() const;
    Q_SLOT void changed(const QDBusMessage &message) const;
};

} // namespace corvane
