#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// What drops on our panels need of the window system beyond what Qt does for them. There is one
/// for each window system, where it is needed; it serves all panels. Main thread only.
class DropSupport {
public:
    /// Fetches one type from the source of the drag that is being dropped.
    using Fetch = std::function<QByteArray(const QString &type)>;

    virtual ~DropSupport() = default;

    /// Direct save: the type that a source offers when it will write its file where it is told to.
    virtual QString directSaveType() const = 0;
    /// The name that the source of the present drag proposes.
    virtual std::optional<QString> promisedFileName() = 0;
    /// Has the source write its file to `destination` and waits for it, for a bounded time. Leaves
    /// nothing at `destination` where it gives false.
    virtual bool receivePromisedFile(const QUrl &destination, const Fetch &fetch) = 0;
};

} // namespace corvane
