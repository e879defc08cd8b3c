#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

#include <map>
#include <memory>
#include <vector>

namespace corvane::test {

/// A shortcut as portals take and list it.
struct PortalEntry {
    QString name;
    QVariantMap about;
};
using PortalEntries = QList<PortalEntry>;

QDBusArgument &operator<<(QDBusArgument &to, const PortalEntry &entry);
const QDBusArgument &operator>>(const QDBusArgument &from, PortalEntry &entry);

/// A program's session with the portal.
class PortalSession : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Session")

public:
    Q_INVOKABLE Q_SCRIPTABLE void Close() { isClosed = true; }

    bool isClosed = false;
};

/// The desktop's portals, of which this has the one for shortcuts, on a connection of its own.
class PortalService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.GlobalShortcuts")
    Q_PROPERTY(uint version READ version)

public:
    struct Manners {
        /// Otherwise it takes the wish for a session and never answers.
        bool makesSessions = true;
        /// Otherwise it says that it bound everything and lists nothing.
        bool listsShortcuts = true;
        /// Lists something else than shortcuts.
        bool isConfused = false;
    };

    PortalService();
    ~PortalService() override;

    void come();
    void go();
    /// The user answers what was asked last.
    void userSays(bool yes);
    void press(const QString &shortcut, int session);
    /// Ends the session without having been asked to.
    void end(int session);
    /// What the user chooses in the desktop's settings, for all.
    void choose(const QString &keys);

    static uint version() { return 1; }
    Q_INVOKABLE Q_SCRIPTABLE QDBusObjectPath CreateSession(const QVariantMap &options);
    Q_INVOKABLE Q_SCRIPTABLE QDBusObjectPath BindShortcuts(
        const QDBusObjectPath &session, const QList<corvane::test::PortalEntry> &shortcuts,
        const QString &parent, const QVariantMap &options);

    Manners manners;
    /// The shortcuts asked for last, with the keys that were proposed.
    std::map<QString, QString> asked;
    std::vector<std::unique_ptr<PortalSession>> sessions;

private:
    static QString sessionPath(int number);
    QString requestOf(const QVariantMap &options) const;
    void respond(const QString &request, uint code, const QVariantMap &results);
    QVariant listed() const;

    QString m_keys = QStringLiteral("Super+Shift+D");
    QString m_pending;
    QDBusConnection m_bus
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("shortcuts"));
};

} // namespace corvane::test
