#include "platform/x11/drags/x11_incoming_drag.h"

#include "platform/system/file_url.h"
#include "platform/x11/base/x11_reply.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

constexpr std::uint32_t longestFileName = 1024;

using Property = X11Reply<xcb_get_property_reply_t>;

Property propertyOf(X11Connection &connection, xcb_window_t window, const char *name,
                    std::uint32_t maximumBytes)
{
    return connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(connection.get(), 0, window, connection.atom(name),
                         XCB_GET_PROPERTY_TYPE_ANY, 0, maximumBytes / 4));
}

std::vector<xcb_atom_t> atomsIn(const Property &property)
{
    if (!property || property->format != 32)
        return {};
    const auto *first = static_cast<const xcb_atom_t *>(xcb_get_property_value(property.get()));
    const auto size = static_cast<std::size_t>(xcb_get_property_value_length(property.get()));
    return {first, first + size / sizeof(xcb_atom_t)};
}

} // namespace

X11IncomingDrag::X11IncomingDrag(X11Connection &connection, MainQueue &queue,
                                 SelectionReader &reader, const Source &source)
    : m_connection(&connection)
    , m_queue(&queue)
    , m_reader(&reader)
    , m_source(source.source)
    , m_target(source.target)
    , m_owner(reader.owner())
{
    std::vector<xcb_atom_t> atoms = source.types;
    if (atoms.empty())
        atoms = atomsIn(propertyOf(connection, m_source, "XdndTypeList", maximumTypes * 4));
    // All requests are sent before the first answer is awaited.
    std::vector<xcb_get_atom_name_cookie_t> names;
    names.reserve(atoms.size());
    for (const xcb_atom_t atom : atoms)
        names.push_back(xcb_get_atom_name(connection.get(), atom));
    for (std::size_t i = 0; i < atoms.size(); ++i) {
        const auto reply = connection.reply<xcb_get_atom_name_reply_t>(names[i]);
        if (!reply)
            continue;
        const QString name = QString::fromLatin1(xcb_get_atom_name_name(reply.get()),
                                                 xcb_get_atom_name_name_length(reply.get()));
        m_atoms.insert(name, atoms[i]);
        m_types << name;
    }
    m_types.removeDuplicates();
}

X11IncomingDrag::~X11IncomingDrag()
{
    forget();
}

void X11IncomingDrag::forget()
{
    if (!m_connection)
        return;
    X11IncomingDrag::finish(false);
    for (const SelectionReader::Id read : m_reads)
        m_reader->cancel(read);
    m_arrival.reset();
    m_connection = nullptr;
}

void X11IncomingDrag::readLater(Outcome outcome, const QByteArray &bytes, Fetched done)
{
    m_queue->async([self = weak_from_this(), outcome, bytes, done = std::move(done)] {
        if (!self.expired())
            done(outcome, bytes);
    });
}

void X11IncomingDrag::fetch(const QString &type, qsizetype maximumBytes, Fetched done)
{
    if (!m_connection)
        return;
    if (const auto known = m_fetched.constFind(type); known != m_fetched.cend()) {
        readLater(Outcome::Arrived, *known, std::move(done));
        return;
    }
    const xcb_atom_t atom = m_atoms.value(type, XCB_NONE);
    if (atom == XCB_NONE) {
        readLater(Outcome::Refused, {}, std::move(done));
        return;
    }
    const xcb_window_t owner = m_reader->owner();
    if (m_owner == XCB_NONE)
        m_owner = owner;
    // If the owner has changed, its contents would be taken for this drag's.
    if (owner == XCB_NONE || owner != m_owner) {
        readLater(Outcome::Lost, {}, std::move(done));
        return;
    }
    m_reads.push_back(m_reader->read(atom, m_time, maximumBytes,
                                     [weak = weak_from_this(), type, done = std::move(done)](
                                         Outcome outcome, const QByteArray &bytes) {
                                         const auto self = weak.lock();
                                         if (!self || !self->m_connection)
                                             return;
                                         if (outcome == Outcome::Arrived)
                                             self->m_fetched.insert(type, bytes);
                                         done(outcome, bytes);
                                     }));
}

std::optional<QString> X11IncomingDrag::promisedFileName()
{
    if (!m_connection || !m_types.contains(QLatin1String(directSave)))
        return std::nullopt;
    const auto reply = propertyOf(*m_connection, m_source, directSave, longestFileName);
    if (!reply || reply->format != 8)
        return std::nullopt;
    const QByteArray name(static_cast<const char *>(xcb_get_property_value(reply.get())),
                          xcb_get_property_value_length(reply.get()));
    if (name.isEmpty())
        return std::nullopt;
    return QString::fromUtf8(name);
}

void X11IncomingDrag::receivePromisedFile(const QUrl &destination, std::function<void(bool)> done)
{
    if (!m_connection)
        return;
    // The watch begins before the source is told where to write.
    m_arrival = std::make_unique<FileArrival>(file_url::nativePath(destination), *m_queue);
    const QByteArray address = destination.toEncoded(QUrl::FullyEncoded);
    xcb_change_property(m_connection->get(), XCB_PROP_MODE_REPLACE, m_source,
                        m_connection->atom(directSave), m_connection->atom("text/plain"), 8,
                        static_cast<std::uint32_t>(address.size()), address.constData());
    constexpr qsizetype maximumAnswer = 64;
    fetch(QLatin1String(directSave), maximumAnswer,
          [this, done = std::move(done)](Outcome outcome, const QByteArray &answer) mutable {
              // The source's answer: 'S' is success, 'F' asks us to save the contents ourselves,
              // 'E' is an error.
              if (outcome == Outcome::Arrived && answer.startsWith('S')) {
                  waitForFile(std::move(done));
                  return;
              }
              m_arrival->discard();
              m_arrival.reset();
              done(false);
          });
}

bool X11IncomingDrag::haveContents(const QStringList &types)
{
    return std::ranges::any_of(types, [](const QString &type) {
        return type.startsWith(QLatin1String("image/"), Qt::CaseInsensitive)
            || type.startsWith(QLatin1String("text/"), Qt::CaseInsensitive)
            || type == QLatin1String("_NETSCAPE_URL") || type == QLatin1String("UTF8_STRING")
            || type == QLatin1String("STRING");
    });
}

void X11IncomingDrag::waitForFile(std::function<void(bool)> done)
{
    m_arrival->wait([this, done = std::move(done)](bool hasArrived) {
        // Kept until `done` returns, which may destroy this.
        const auto self = shared_from_this();
        const auto arrival = std::move(m_arrival);
        // An empty file is kept only if the source offers nothing else. Beside an address it is a
        // download that failed.
        const bool isKept = hasArrived || (arrival->isEmptyFile() && !haveContents(m_types));
        if (!isKept)
            arrival->discard();
        done(isKept);
    });
}

/// The window that messages to the source are sent to: some sources name a proxy for theirs.
xcb_window_t X11IncomingDrag::proxy() const
{
    const auto proxy = atomsIn(propertyOf(*m_connection, m_source, "XdndProxy", 4));
    if (proxy.size() != 1)
        return m_source;
    // A valid proxy names itself in the same property; a stale number does not.
    const auto confirmed = atomsIn(propertyOf(*m_connection, proxy.front(), "XdndProxy", 4));
    return confirmed == proxy ? proxy.front() : m_source;
}

void X11IncomingDrag::finish(bool isTaken)
{
    if (!m_connection || !std::exchange(m_isDropped, false))
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_source;
    message.type = m_connection->atom("XdndFinished");
    message.data.data32[0] = m_target;
    message.data.data32[1] = isTaken ? 1 : 0;
    message.data.data32[2] = isTaken ? m_connection->atom("XdndActionCopy") : XCB_NONE;
    xcb_send_event(m_connection->get(), 0, proxy(), XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
    m_connection->flush();
}

} // namespace corvane
