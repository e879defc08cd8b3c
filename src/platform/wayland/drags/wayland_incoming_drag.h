#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/incoming_drag.h"
#include "platform/wayland/drags/pipe_intake.h"

#include <QHash>

#include <functional>
#include <list>
#include <memory>
#include <vector>

struct wl_data_offer;

namespace corvane {

/// What another program drags, or has put on the clipboard, as the compositor offers it. The
/// connection and the queue must outlive it, or `forget` must be called before they are destroyed.
class WaylandIncomingDrag : public IncomingDrag {
public:
    /// Further types are ignored.
    static constexpr qsizetype maximumTypes = 256;

    /// The connection that the offer came on: whether it still stands, and how what was asked for
    /// is sent off.
    struct Link {
        std::function<bool()> isAlive;
        std::function<void()> flush;
    };

    /// Owns the offer, of which nothing has been heard yet.
    WaylandIncomingDrag(Link link, MainQueue &queue, wl_data_offer *offer);
    ~WaylandIncomingDrag() override;

    QStringList types() const override { return m_types; }
    QByteArray fetched(const QString &type) const override { return m_fetched.value(type); }
    void fetch(const QString &type, qsizetype maximumBytes, Fetched done) override;
    /// What a program of X11 drags.
    bool isFetchedEarly() const override { return m_isOfX11; }
    /// Sources write no files themselves here.
    std::optional<QString> promisedFileName() override { return std::nullopt; }
    void receivePromisedFile(const QUrl &destination, std::function<void(bool)> done) override;
    /// Not taken, the source hears that its drag came to nothing.
    void finish(bool isTaken) override;

    wl_data_offer *offer() const { return m_offer; }
    /// Whether the source lets what it drags be copied, as far as the compositor knows.
    bool canBeCopied() const { return m_canBeCopied; }
    /// That has changed. May be left empty.
    std::function<void()> onCanBeCopied;
    /// Tells the source whether it would be taken as a copy. `serial` is that of the entering.
    void answer(std::uint32_t serial, bool wouldBeTaken);
    void setDropped() { m_isDropped = true; }
    /// Finishes a drop as not taken, and stops using the references.
    void forget();

private:
    struct Listeners;

    struct Reading {
        QString type;
        qsizetype maximumBytes;
        std::unique_ptr<PipeIntake> intake;
        std::vector<Fetched> awaiting;
    };

    void read(const QString &type, qsizetype maximumBytes, FileDescriptor pipe, Fetched done);
    void tellLater(Outcome outcome, const QByteArray &bytes, Fetched done);

    Link m_link;
    MainQueue *m_queue;
    /// Null once it is forgotten.
    wl_data_offer *m_offer;
    QStringList m_types;
    bool m_canBeCopied = false;
    bool m_isOfX11 = false;
    bool m_isCopy = false;
    bool m_isDropped = false;
    QHash<QString, QByteArray> m_fetched;
    std::list<Reading> m_readings;
    Lifetime m_lifetime;
};

} // namespace corvane
