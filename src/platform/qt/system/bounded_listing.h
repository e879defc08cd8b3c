#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>
#include <functional>
#include <memory>

namespace corvane {

/// Lists a folder whose file system may never answer, on a thread of its own. A thread that is kept
/// for good holds nothing that the program needs, and the program's end does not wait for it.
class BoundedListing {
public:
    /// What a folder lists. May never return, and must use nothing that ends before the process.
    using List = std::function<QList<QByteArray>(const QByteArray &folder)>;
    static constexpr std::chrono::milliseconds defaultPatience{50};

    explicit BoundedListing(List list = namesIn);

    /// The names in the folder. Where it does not answer in time, what it listed last, and then
    /// nobody waits for it again before it has answered.
    QList<QByteArray> names(const QByteArray &folder,
                            std::chrono::milliseconds patience = defaultPatience);

private:
    struct Shared;
    static QList<QByteArray> namesIn(const QByteArray &folder);

    List m_list;
    std::shared_ptr<Shared> m_shared;
};

} // namespace corvane
