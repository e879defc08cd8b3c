#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <map>

namespace corvane::test {

/// Keys that are pressed one after the other.
struct KdeSequence {
    QList<int> keys;
};
using KdeSequences = QList<KdeSequence>;

QDBusArgument &operator<<(QDBusArgument &to, const KdeSequence &sequence);
const QDBusArgument &operator>>(const QDBusArgument &from, KdeSequence &sequence);

/// KDE's service for hot keys as its compositor has it, on a connection of its own. It answers as
/// kwin_wayland 5.27 does; its other functions are what the user and other programs do.
class KdeService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.KGlobalAccel")

public:
    enum class Manners {
        Answers,
        /// Takes questions and never answers.
        Silent,
        /// Answers with something else than is asked for.
        Confused,
    };
    struct Action {
        QList<int> keys = {};
        QList<int> wanted = {};
        bool isPresent = false;
        /// Nobody has set its keys yet.
        bool isFresh = true;
    };

    KdeService();
    ~KdeService() override;

    /// Comes to the bus, as the compositor or beside it.
    void come(bool isCompositor = true);
    void go();
    void press(const QString &action, const QString &component = program());
    void release(const QString &action);
    /// What the user chooses in the desktop's settings.
    void choose(const QString &name, const QList<int> &keys);

    static QString program() { return QStringLiteral("example.test.Program"); }
    static QStringList idOf(const QString &action) { return {program(), action, {}, {}}; }
    Action &action(const QString &name) { return actions[idOf(name).mid(0, 2)]; }

    Q_INVOKABLE Q_SCRIPTABLE void doRegister(const QStringList &id);
    Q_INVOKABLE Q_SCRIPTABLE void setInactive(const QStringList &id);
    Q_INVOKABLE Q_SCRIPTABLE QList<int> shortcut(const QStringList &id);
    /// Of the wanted keys this gives the present ones, as some versions do.
    Q_INVOKABLE Q_SCRIPTABLE QList<int> defaultShortcut(const QStringList &id);
    Q_INVOKABLE Q_SCRIPTABLE corvane::test::KdeSequences defaultShortcutKeys(const QStringList &id);
    Q_INVOKABLE Q_SCRIPTABLE QList<int> setShortcut(const QStringList &id, const QList<int> &keys,
                                                    uint flags);
    Q_INVOKABLE Q_SCRIPTABLE QStringList action(int key);

    /// By component and action.
    std::map<QStringList, Action> actions;
    Manners manners = Manners::Answers;
    int questions = 0;

private:
    /// Whether it is to answer as usual.
    bool answers();
    void signal(const QString &name, const QString &component, const QString &action);

    QDBusConnection m_bus
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("kde"));
};

} // namespace corvane::test
