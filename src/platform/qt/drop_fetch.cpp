#include "platform/qt/drop_fetch.h"

#include "platform/qt/pasteboard_text.h"
#include "platform/ut_type.h"

#include <utility>

namespace corvane {

DropFetch::DropFetch(std::shared_ptr<IncomingDrag> drag, FindPlace findPlace)
    : m_drag(std::move(drag))
    , m_findPlace(std::move(findPlace))
    , m_pasteboard(m_drag->types())
{
}

void DropFetch::start(Done done)
{
    m_done = std::move(done);
    fetchAddresses();
}

void DropFetch::fetchAddresses()
{
    fetchUntil(
        BytesPasteboard::addressTypes(m_drag->types()), maximumBytes,
        [this] { return !m_pasteboard.urls().isEmpty(); }, &DropFetch::fetchPromisedFile);
}

void DropFetch::fetchPromisedFile()
{
    if (!m_pasteboard.fileUrls().isEmpty()) {
        finish();
        return;
    }
    const auto name = m_drag->promisedFileName();
    const auto place = name ? m_findPlace(*name) : std::nullopt;
    if (!place) {
        fetchPicture();
        return;
    }
    m_drag->receivePromisedFile(
        *place, [this, place, alive = std::weak_ptr<bool>(m_alive)](bool hasArrived) {
            if (alive.expired())
                return;
            if (!hasArrived) {
                fetchPicture();
                return;
            }
            m_pasteboard.setPromisedFile(*place);
            finish();
        });
}

void DropFetch::fetchPicture()
{
    QStringList pictures;
    for (const UTType &type : {UTType::png(), UTType::tiff()}) {
        const QString spelled = BytesPasteboard::spelling(m_drag->types(), type.identifier());
        if (!spelled.isEmpty())
            pictures << spelled;
    }
    fetchUntil(
        pictures, maximumBytes, [this] { return hasPicture(); }, &DropFetch::fetchText);
}

bool DropFetch::hasPicture()
{
    return m_pasteboard.dataFor(UTType::png()) || m_pasteboard.dataFor(UTType::tiff());
}

void DropFetch::fetchText()
{
    const QList<QUrl> urls = m_pasteboard.urls();
    // Other addresses than a page's are no link.
    const bool isLink
        = !urls.isEmpty() && urls.constFirst().scheme().startsWith(QLatin1String("http"));
    if (isLink || hasPicture()) {
        finish();
        return;
    }
    fetchUntil(
        pasteboard_text::typesByExactness(m_drag->types()), BytesPasteboard::maximumTextBytes,
        [this] { return m_pasteboard.string().has_value(); }, &DropFetch::finish);
}

void DropFetch::fetchUntil(QStringList types, qsizetype limit, const Suffices &suffices, Step next)
{
    if (types.isEmpty()) {
        (this->*next)();
        return;
    }
    const QString type = types.takeFirst();
    m_drag->fetch(type, limit,
                  [this, types = std::move(types), limit, suffices, next, type,
                   alive = std::weak_ptr<bool>(m_alive)](IncomingDrag::Outcome outcome,
                                                         const QByteArray &bytes) {
                      if (alive.expired())
                          return;
                      if (outcome == IncomingDrag::Outcome::Arrived)
                          m_pasteboard.setBytes(type, bytes);
                      if (outcome == IncomingDrag::Outcome::Lost)
                          finish();
                      else if (outcome == IncomingDrag::Outcome::Arrived && suffices())
                          (this->*next)();
                      else
                          fetchUntil(types, limit, suffices, next);
                  });
}

void DropFetch::finish()
{
    // It may end this.
    if (const auto done = std::exchange(m_done, {}))
        done(m_pasteboard);
}

} // namespace corvane
