#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// A drag of another program over one of our panels, and what it lets go there.
///
/// Its source is another program, which may be slow or silent, or end at any moment. No function
/// blocks: completions are called later, on the main thread, exactly once unless this is destroyed
/// before. A source that sends nothing for long is given up.
class IncomingDrag {
public:
    enum class Outcome {
        Arrived,
        /// The source does not provide this type.
        Refused,
        /// More than `maximumBytes`. Other types may still be fetched.
        TooLarge,
        /// The source has ended or does not answer: nothing more can be fetched.
        Lost,
    };
    using Fetched = std::function<void(Outcome outcome, const QByteArray &bytes)>;

    IncomingDrag() = default;
    IncomingDrag(const IncomingDrag &) = delete;
    IncomingDrag &operator=(const IncomingDrag &) = delete;
    /// A drop that was not finished is finished as not taken.
    virtual ~IncomingDrag() = default;

    /// The types that the source offers, by its names and in its order.
    virtual QStringList types() const = 0;
    /// What has been fetched of a type so far; empty if nothing has.
    virtual QByteArray fetched(const QString &type) const = 0;
    virtual void fetch(const QString &type, qsizetype maximumBytes, Fetched done) = 0;
    /// Whether the contents may be out of reach once they were let go. They are fetched while they
    /// are dragged then.
    virtual bool isFetchedEarly() const { return false; }

    /// The name of a file that the source offers to write itself (direct save); none if it does
    /// not. The name is not trusted: make a safe one from it.
    virtual std::optional<QString> promisedFileName() = 0;
    /// Has the source write its file to `destination`, whose directory exists. `done` is told
    /// whether the complete file is there; otherwise nothing is left there.
    virtual void receivePromisedFile(const QUrl &destination, std::function<void(bool)> done) = 0;

    /// Tells the source how its drop ended, once. The source may block its user until then.
    virtual void finish(bool isTaken) = 0;
};

} // namespace corvane
