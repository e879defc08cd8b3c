#include "platform/wayland/drags/wayland_incoming_drag.h"

#include <fcntl.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

struct WaylandIncomingDrag::Listeners {
    static void offered(void *data, wl_data_offer *, const char *type)
    {
        auto &self = *static_cast<WaylandIncomingDrag *>(data);
        const QString name = QString::fromUtf8(type);
        if (self.m_types.size() < maximumTypes && !self.m_types.contains(name))
            self.m_types << name;
    }
    static void sourceActions(void *data, wl_data_offer *, std::uint32_t actions)
    {
        auto &self = *static_cast<WaylandIncomingDrag *>(data);
        // None at all is told of what a program of X11 drags: KWin does not know yet. Once such a
        // program has let go, it may no longer recognise KWin's question as one about that drag,
        // and then refuses it.
        const bool isUnknown = actions == WL_DATA_DEVICE_MANAGER_DND_ACTION_NONE;
        self.m_isOfX11 = self.m_isOfX11 || isUnknown;
        const bool can = isUnknown || (actions & WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY) != 0;
        if (std::exchange(self.m_canBeCopied, can) != can && self.onCanBeCopied)
            self.onCanBeCopied();
    }
    static void action(void *data, wl_data_offer *, std::uint32_t action)
    {
        static_cast<WaylandIncomingDrag *>(data)->m_isCopy
            = action == WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY;
    }
    static constexpr wl_data_offer_listener all = {offered, sourceActions, action};
};

WaylandIncomingDrag::WaylandIncomingDrag(Link link, MainQueue &queue, wl_data_offer *offer)
    : m_link(std::move(link))
    , m_queue(&queue)
    , m_offer(offer)
{
    wl_data_offer_add_listener(m_offer, &Listeners::all, this);
}

WaylandIncomingDrag::~WaylandIncomingDrag()
{
    forget();
}

void WaylandIncomingDrag::forget()
{
    if (!m_offer)
        return;
    m_readings.clear();
    m_isDropped = false;
    wl_data_offer_destroy(std::exchange(m_offer, nullptr));
    m_link.flush();
}

void WaylandIncomingDrag::tellLater(Outcome outcome, const QByteArray &bytes, Fetched done)
{
    m_queue->async(
        m_lifetime.guard([outcome, bytes, done = std::move(done)] { done(outcome, bytes); }));
}

void WaylandIncomingDrag::fetch(const QString &type, qsizetype maximumBytes, Fetched done)
{
    if (!m_offer)
        return;
    if (const auto known = m_fetched.constFind(type); known != m_fetched.cend()) {
        tellLater(Outcome::Arrived, *known, std::move(done));
        return;
    }
    if (!m_types.contains(type)) {
        tellLater(Outcome::Refused, {}, std::move(done));
        return;
    }
    const auto running = std::ranges::find_if(m_readings, [&](const Reading &reading) {
        return reading.type == type && reading.maximumBytes >= maximumBytes;
    });
    if (running != m_readings.end()) {
        running->awaiting.push_back(std::move(done));
        return;
    }
    std::array<int, 2> ends = {-1, -1};
    if (!m_link.isAlive() || ::pipe2(ends.data(), O_CLOEXEC) != 0) {
        tellLater(Outcome::Lost, {}, std::move(done));
        return;
    }
    FileDescriptor reader(ends[0]);
    const FileDescriptor writer(ends[1]);
    wl_data_offer_receive(m_offer, type.toUtf8().constData(), writer.number());
    m_link.flush();
    read(type, maximumBytes, std::move(reader), std::move(done));
}

void WaylandIncomingDrag::read(const QString &type, qsizetype maximumBytes, FileDescriptor pipe,
                               Fetched done)
{
    const auto place
        = m_readings.insert(m_readings.end(), {type, maximumBytes, nullptr, {std::move(done)}});
    place->intake = std::make_unique<PipeIntake>(
        *m_queue, std::move(pipe), maximumBytes,
        m_lifetime.guard([this, place](Outcome outcome, const QByteArray &bytes) {
            // The intake is what calls this.
            const Reading ended = std::move(*place);
            m_readings.erase(place);
            // Nothing at all is also what is read when a source refuses, and it may be asked again.
            if (outcome == Outcome::Arrived && !bytes.isEmpty())
                m_fetched.insert(ended.type, bytes);
            const auto life = m_lifetime.token();
            for (const Fetched &tell : ended.awaiting) {
                tell(outcome, bytes);
                if (life.isOver())
                    return;
            }
        }));
}

void WaylandIncomingDrag::receivePromisedFile(const QUrl & /*destination*/,
                                              std::function<void(bool)> done)
{
    m_queue->async(m_lifetime.guard([done = std::move(done)] { done(false); }));
}

void WaylandIncomingDrag::answer(std::uint32_t serial, bool wouldBeTaken)
{
    if (!m_offer || !m_link.isAlive() || m_types.isEmpty())
        return;
    constexpr std::uint32_t none = WL_DATA_DEVICE_MANAGER_DND_ACTION_NONE;
    constexpr std::uint32_t copy = WL_DATA_DEVICE_MANAGER_DND_ACTION_COPY;
    const QByteArray first = m_types.constFirst().toUtf8();
    wl_data_offer_accept(m_offer, serial, wouldBeTaken ? first.constData() : nullptr);
    wl_data_offer_set_actions(m_offer, wouldBeTaken ? copy : none, wouldBeTaken ? copy : none);
    m_link.flush();
}

void WaylandIncomingDrag::finish(bool isTaken)
{
    if (!m_offer || !std::exchange(m_isDropped, false))
        return;
    // To finish what the compositor does not take for a copy is a mistake that it ends us for. An
    // offer that goes away unfinished was not taken.
    if (isTaken && m_isCopy)
        wl_data_offer_finish(m_offer);
    forget();
}

} // namespace corvane
