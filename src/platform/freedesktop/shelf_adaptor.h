#pragma once

#include "platform/base/lifetime.h"
#include "platform/system/shelf_requests.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>

namespace corvane {

/// The program's own interface on the session bus, through which its command line speaks to the
/// process that runs. Contents go through sealed memory (`sealed_memory`), not through messages,
/// whose size is bounded. Every caller may be a stranger.
class ShelfAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.corvane.Shelf")

public:
    /// How many calls may wait for their answers at once.
    static constexpr int mostWaiting = 32;

    static QString interfaceName();
    /// The name by which `Put` tells that kind.
    static QString nameOf(ShelfDelivery::Kind kind);

    explicit ShelfAdaptor(QObject *parent);
    ~ShelfAdaptor() override;

    /// Who does what is asked; null before the program is ready, when everything is refused.
    ShelfRequests *requests = nullptr;

public Q_SLOTS:
    // The names are those of the interface. NOLINTBEGIN(readability-identifier-naming)
    /// Puts what the memory holds on the shelf, "addresses" or a "text"; the number of items that
    /// came of it.
    uint Put(const QString &kind, const QDBusUnixFileDescriptor &memory,
             const QDBusMessage &message);
    /// The paths and links on the shelf, with a NUL character behind each.
    QDBusUnixFileDescriptor List(const QDBusMessage &message);
    /// The same, of what no other caller has taken. It leaves the shelf with `ConfirmTaken`, or
    /// stays if the caller leaves the bus before.
    QDBusUnixFileDescriptor Take(const QDBusMessage &message);
    void ConfirmTaken(const QDBusMessage &message) const;
    /// Ends the program. Is not answered; the caller hears that the program has left the bus.
    void End(const QDBusMessage &message) const;
    // NOLINTEND(readability-identifier-naming)

private:
    /// Whether a call may wait for its answer; otherwise it is refused.
    bool mayWait(const QDBusMessage &message);
    void answer(const QDBusMessage &message, const QVariant &value);
    static void refuse(const QDBusMessage &message, const char *error, const char *text);
    void watch(const QString &taker);
    void takerLeft(const QString &taker);
    ShelfRequests::Entries sendingTo(const QDBusMessage &message);

    int m_waiting = 0;
    QDBusServiceWatcher m_takers;
    Lifetime m_lifetime;
};

} // namespace corvane
