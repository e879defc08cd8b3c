#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// A drag of another program over one of our panels, and what it lets go there.
///
/// Its source is a stranger, which may be slow or silent, or end at any moment. Nobody waits for
/// it: whatever is asked of it is answered later, on the main thread, exactly once unless this is
/// gone before; a source that gives nothing for long is given up.
class IncomingDrag {
public:
    enum class Outcome {
        Arrived,
        /// The source does not give this type.
        Refused,
        /// More than was allowed. The source may give other types.
        TooLarge,
        /// The source is gone, or does not answer: there is nothing more to be had of it.
        Lost,
    };
    using Fetched = std::function<void(Outcome outcome, const QByteArray &bytes)>;

    IncomingDrag() = default;
    IncomingDrag(const IncomingDrag &) = delete;
    IncomingDrag &operator=(const IncomingDrag &) = delete;
    /// A drop that was not finished is finished as not taken.
    virtual ~IncomingDrag() = default;

    /// The names that the source gives to what it offers, in its order.
    virtual QStringList types() const = 0;
    /// What has arrived of a type so far; empty before.
    virtual QByteArray fetched(const QString &type) const = 0;
    virtual void fetch(const QString &type, qsizetype maximumBytes, Fetched done) = 0;

    /// The name of a file that the source will write where it is told to (direct save); none when
    /// it offers no such thing. A stranger's text: make a safe name of it.
    virtual std::optional<QString> promisedFileName() = 0;
    /// Has the source write its file to `destination`, whose directory exists. `done` is told
    /// whether it is there, complete; nothing is left there otherwise.
    virtual void receivePromisedFile(const QUrl &destination, std::function<void(bool)> done) = 0;

    /// Tells the source how its drop ended, once. It may hold up its user until then.
    virtual void finish(bool isTaken) = 0;
};

} // namespace corvane
