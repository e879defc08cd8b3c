#include "platform/qt/desktop/drop_fetch.h"

#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/qt/pasteboard/pasteboard_text.h"
#include "platform/system/ut_type.h"

#include <utility>

namespace corvane {

DropFetch::DropFetch(std::shared_ptr<IncomingDrag> drag, FindPlace findPlace, Threads threads)
    : m_drag(std::move(drag))
    , m_findPlace(std::move(findPlace))
    , m_threads(threads)
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
    fetchUntil({BytesPasteboard::addressTypes(m_drag->types()), maximumBytes,
                [this] { return !m_pasteboard.urls().isEmpty(); }, &DropFetch::fetchPromisedFile});
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
    m_drag->receivePromisedFile(*place, m_lifetime.guard([this, place](bool hasArrived) {
        if (!hasArrived) {
            fetchPicture();
            return;
        }
        m_pasteboard.setPromisedFile(*place);
        finish();
    }));
}

void DropFetch::fetchPicture()
{
    QStringList pictures;
    for (const UTType &type : {UTType::png(), UTType::tiff()}) {
        const QString spelled = BytesPasteboard::spelling(m_drag->types(), type.identifier());
        if (!spelled.isEmpty())
            pictures << spelled;
    }
    fetchUntil({pictures, maximumBytes, [this] { return hasPicture(); }, &DropFetch::fetchText});
}

bool DropFetch::hasPicture()
{
    return m_pasteboard.dataFor(UTType::png()) || m_pasteboard.dataFor(UTType::tiff());
}

void DropFetch::fetchText()
{
    const QList<QUrl> urls = m_pasteboard.urls();
    // Only web addresses become links; of others the text is wanted.
    const bool isLink
        = !urls.isEmpty() && urls.constFirst().scheme().startsWith(QLatin1String("http"));
    if (isLink || hasPicture()) {
        finish();
        return;
    }
    fetchUntil({pasteboard_text::typesByExactness(m_drag->types()),
                BytesPasteboard::maximumTextBytes,
                [this] { return m_pasteboard.string().has_value(); }, &DropFetch::finish});
}

void DropFetch::fetchUntil(Wish wish)
{
    if (wish.types.isEmpty()) {
        (this->*wish.next)();
        return;
    }
    const QString type = wish.types.takeFirst();
    const qsizetype limit = wish.limit;
    m_drag->fetch(type, limit,
                  m_lifetime.guard([this, type, wish = std::move(wish)](
                                       IncomingDrag::Outcome outcome, const QByteArray &bytes) {
                      if (outcome == IncomingDrag::Outcome::Lost)
                          finish();
                      else if (outcome == IncomingDrag::Outcome::Arrived)
                          keep(type, bytes, wish);
                      else
                          fetchUntil(wish);
                  }));
}

void DropFetch::keep(const QString &type, const QByteArray &bytes, const Wish &wish)
{
    const bool isText = !pasteboard_text::typesByExactness({type}).isEmpty();
    if (isText && bytes.size() > mostDecodedAtOnce && m_threads.workQueue) {
        keepLargeText(type, bytes, wish);
        return;
    }
    m_pasteboard.setBytes(type, bytes);
    goOn(wish);
}

void DropFetch::keepLargeText(const QString &type, const QByteArray &bytes, const Wish &wish)
{
    const auto keepText = m_lifetime.guard([this, wish](const QString &text) {
        if (!text.isEmpty())
            m_pasteboard.setText(text);
        goOn(wish);
    });
    m_threads.workQueue->run([type, bytes, keepText, mainQueue = m_threads.mainQueue] {
        QString text = pasteboard_text::decoded(bytes, type);
        // White space alone counts as no text.
        if (QStringView(text).trimmed().isEmpty())
            text.clear();
        mainQueue->async([keepText, text] { keepText(text); });
    });
}

void DropFetch::goOn(const Wish &wish)
{
    if (wish.suffices())
        (this->*wish.next)();
    else
        fetchUntil(wish);
}

void DropFetch::finish()
{
    // `done` may destroy this.
    if (const auto done = std::exchange(m_done, {}))
        done(m_pasteboard);
}

} // namespace corvane
