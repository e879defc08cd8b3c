#pragma once

#include "platform/freedesktop/running_program.h"
#include "platform/system/shelf_requests.h"
#include "platform/system/single_instance.h"

#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace corvane {

class ShelfAdaptor;

/// One process a session, by a name on the session bus. The process that holds the name offers
/// org.freedesktop.Application, as desktops expect of a program of that name, and the interface of
/// `ShelfAdaptor`; a later process asks it for what it was started for. Every question to the bus
/// has a time limit.
class DBusSingleInstance : public QObject, public SingleInstance, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Asks the other process for something, and says what became of it.
    using HandOver = std::function<RunningProgram::Answer(const RunningProgram &other)>;

    /// How many addresses one call of `Open` may have, as a drop.
    static constexpr qsizetype mostAddresses = 100'000;

    /// The application's id in reverse domain order, which is the name on the bus.
    explicit DBusSingleInstance(QString applicationId);
    ~DBusSingleInstance() override;

    /// What the other process is asked for where there is one; to show itself if this is not
    /// called.
    void setHandOver(HandOver handOver) { m_handOver = std::move(handOver); }
    /// What the desktop gave to this process, for the other one.
    void setPlatformData(const QVariantMap &data) { m_other.setPlatformData(data); }
    /// To be called where the desktop has started this process through the bus: the first call is
    /// then the start itself, and if it is `Activate` not a request to show the shelf.
    void setStartedByBus() { m_isBeingLaunched = true; }
    Outcome acquire(std::function<void()> onReopen) override;
    std::optional<qint64> otherProcess() const override { return m_other.process(); }
    /// The process that was asked, where there is another one.
    const RunningProgram &other() const { return m_other; }

    /// Sets who does what other processes ask for; until then they are refused. Null to end that.
    void setRequests(ShelfRequests *requests);

    /// What the desktop and later processes call.
    Q_INVOKABLE Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_INVOKABLE Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_INVOKABLE Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                                 const QVariantMap &platformData);

private:
    enum class NameRequest {
        Granted,
        Taken,
        Failed,
    };

    NameRequest requestName() const;
    RunningProgram::Answer askOther() const;
    void refuse(const char *error, const QString &text) const;

    QString m_applicationId;
    RunningProgram m_other;
    HandOver m_handOver;
    std::function<void()> m_onReopen;
    bool m_isBeingLaunched = false;
    ShelfAdaptor *m_shelf;
};

} // namespace corvane
