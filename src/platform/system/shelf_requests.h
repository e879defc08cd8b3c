#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <functional>

namespace corvane {

/// What another program hands over to be put on the shelf.
struct ShelfDelivery {
    enum class Kind {
        /// Addresses of files and web pages, as text/uri-list.
        Addresses,
        /// One text, in UTF-8.
        Text,
    };
    Kind kind = Kind::Addresses;
    QByteArray bytes;
};

/// What other programs of the user may ask of this one. Nobody who asks is trusted. Main thread
/// only.
class ShelfRequests {
public:
    /// In bytes, of one delivery, as of a drop.
    static constexpr qsizetype maximumBytes = 256LL * 1024 * 1024;
    /// Paths as they are and links, with a NUL character behind each.
    using Entries = std::function<void(const QByteArray &entries)>;

    virtual ~ShelfRequests() = default;

    /// Does what a menu entry or a hot key does. False if there is no action of that name.
    /// `activationToken` is the desktop's permission to come to the front, empty if none was given.
    virtual bool act(const QString &action, const QString &activationToken) = 0;
    /// Puts things on the shelf as a drop does. `done` is called once, perhaps later, with the
    /// number of items that came of it.
    virtual void put(const ShelfDelivery &delivery, std::function<void(int items)> done) = 0;
    /// Calls back once, perhaps later, with every file and link on the shelf.
    virtual void list(Entries done) = 0;
    /// The same, and keeps what it gave for `taker` alone. It stays on the shelf until `taken` is
    /// called for the same taker; `takerLeft`, or another `take`, gives it up.
    virtual void take(const QString &taker, Entries done) = 0;
    /// Removes from the shelf what was kept for that taker; false if nothing was.
    virtual bool taken(const QString &taker) = 0;
    virtual void takerLeft(const QString &taker) = 0;
    /// Ends the program, after this call has returned.
    virtual void end() = 0;
};

} // namespace corvane
