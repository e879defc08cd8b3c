#pragma once

#include "platform/system/single_instance.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace corvane {

/// One process a session, by a name on the session bus. The process that holds the name offers
/// org.freedesktop.Application, as desktops expect of a program of that name; a later process asks
/// it to activate itself. Every question to the bus has a time limit.
///
/// The other process is first asked something that changes nothing: a wish that waits in a process
/// that is stuck would be done long after the user gave up.
class DBusSingleInstance : public QObject, public SingleInstance {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    static constexpr int busMilliseconds = 2'000;
    /// Longer than a program needs that was started a moment ago, on a slow disk.
    static constexpr int answerMilliseconds = 4'000;

    /// The application's id in reverse domain order, which is the name on the bus.
    explicit DBusSingleInstance(QString applicationId);

    Outcome acquire(std::function<void()> onReopen) override;
    std::optional<qint64> otherProcess() const override;

    /// Called with the name of an action that the desktop's menu for the program offers.
    std::function<void(const QString &)> onAction;

    /// What the desktop and later processes call.
    Q_INVOKABLE Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_INVOKABLE Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_INVOKABLE Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                                 const QVariantMap &platformData) const;

private:
    enum class NameRequest {
        Granted,
        Taken,
        Failed,
    };

    enum class Answer {
        Done,
        /// It has ended meanwhile, or is no program of ours.
        Gone,
        /// Nothing came within the time limit.
        None,
    };

    NameRequest requestName() const;
    Answer askOther(const QString &interface, const QString &method,
                    const QVariantList &arguments) const;
    Answer activateOther() const;
    QString objectPath() const;

    QString m_applicationId;
    std::function<void()> m_onReopen;
};

} // namespace corvane
