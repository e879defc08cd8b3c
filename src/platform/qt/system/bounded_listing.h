#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>
#include <functional>
#include <memory>

namespace corvane {

/// Lists a folder whose file system may never answer, on a thread of its own. A thread that hangs
/// uses nothing of the program, and is not waited for at its end.
class BoundedListing {
public:
    /// Lists a folder. It may never return, so it must use nothing that is destroyed before the
    /// process ends.
    using List = std::function<QList<QByteArray>(const QByteArray &folder)>;
    /// How long `names` waits unless told otherwise: short, since the main thread may call it.
    static constexpr std::chrono::milliseconds defaultPatience{50};

    explicit BoundedListing(List list = namesIn);

    /// The names in the folder. If it does not answer within `patience`, the names that it had
    /// last, and it is not waited for again until it has answered.
    QList<QByteArray> names(const QByteArray &folder,
                            std::chrono::milliseconds patience = defaultPatience);

private:
    struct Shared;
    static QList<QByteArray> namesIn(const QByteArray &folder);

    List m_list;
    std::shared_ptr<Shared> m_shared;
};

} // namespace corvane
