#pragma once

#include <QByteArray>

#include <functional>
#include <memory>

namespace corvane {

/// Undoes gzip and deflate, piece by piece: however much a stranger's bytes would swell to, no more
/// than one piece of it is in memory.
class Inflation {
public:
    static constexpr qsizetype pieceBytes = 65'536;

    enum class Outcome { GoesOn, Whole, Broken, Left };
    /// Is given the pieces in their order; false ends it.
    using Take = std::function<bool(const QByteArray &)>;

    Inflation();
    Inflation(const Inflation &) = delete;
    Inflation &operator=(const Inflation &) = delete;
    ~Inflation();

    /// What comes after the end is not looked at.
    Outcome feed(QByteArrayView bytes, const Take &take);

private:
    struct Stream;

    Outcome inflate(QByteArrayView bytes, const Take &take);

    std::unique_ptr<Stream> m_stream;
    Outcome m_outcome = Outcome::GoesOn;
    QByteArray m_first;
    bool m_hasBegun = false;
};

} // namespace corvane
