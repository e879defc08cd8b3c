#include "app/commands/shelf_request_handler.h"

#include "app/commands/activation_token.h"
#include "core/item_preparation.h"
#include "core/pasteboard_ingest.h"
#include "core/saved_pictures.h"
#include "core/shelf_store.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/desktop/screen_locator.h"
#include "platform/qt/pasteboard/fetched_pasteboard.h"
#include "platform/qt/pasteboard/uri_list.h"
#include "platform/qt/system/remote_mounts.h"
#include "platform/system/file_url.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

const QString uriList = QStringLiteral("text/uri-list");

bool isFile(const QUrl &url)
{
    return url.isLocalFile() || RemoteMounts::mayHold(url);
}

/// What a program offers that drags these.
FetchedPasteboard dragOf(const QList<QUrl> &urls)
{
    QByteArray lines;
    for (const QUrl &url : urls) {
        lines += url.isLocalFile() ? file_url::encoded(url, file_url::nativePath(url))
                                   : url.toEncoded();
        lines += "\r\n";
    }
    FetchedPasteboard pasteboard({uriList});
    pasteboard.setBytes(uriList, lines);
    return pasteboard;
}

/// The path or address, with a NUL character behind it.
QByteArray entryOf(const DropItem &item)
{
    if (const auto *file = std::get_if<DropItem::File>(&item.payload()))
        return file_url::nativePath(file->url).append('\0');
    if (const auto *link = std::get_if<DropItem::Link>(&item.payload()))
        return link->url.toEncoded().append('\0');
    return {};
}

QByteArray entriesOf(const QList<DropItem> &items)
{
    QByteArray entries;
    for (const DropItem &item : items)
        entries += entryOf(item);
    return entries;
}

} // namespace

ShelfRequestHandler::ShelfRequestHandler(Context context)
    : m_context(std::move(context))
{
}

ShelfRequestHandler::~ShelfRequestHandler() = default;

bool ShelfRequestHandler::act(const QString &action, const QString &activationToken)
{
    if (action == QLatin1String("quit")) {
        end();
        return true;
    }
    const ActivationToken token(activationToken);
    return m_context.perform(action);
}

void ShelfRequestHandler::end()
{
    m_context.mainQueue.async(m_lifetime.guard([this] { m_context.terminate(); }));
}

/// What comes onto a hidden shelf shows it.
void ShelfRequestHandler::put(const ShelfDelivery &delivery, std::function<void(int items)> done)
{
    const auto now = m_lifetime.guard([this, delivery, done] { deliver(delivery, done); });
    if (m_context.store.state() == ShelfState::Idle)
        m_context.screenLocator.locate(now);
    else
        now();
}

void ShelfRequestHandler::deliver(const ShelfDelivery &delivery,
                                  const std::function<void(int items)> &done)
{
    if (delivery.kind == ShelfDelivery::Kind::Text)
        putText(delivery.bytes, done);
    else
        done(putAddresses(delivery.bytes));
}

/// Files that follow one another are one drop, and each link is one, since a drop has one link.
int ShelfRequestHandler::putAddresses(const QByteArray &list)
{
    const QList<QUrl> urls = uri_list::parse(list);
    QList<DropItem> items;
    for (auto from = urls.begin(); from != urls.end();) {
        auto to = std::next(from);
        if (isFile(*from))
            to = std::find_if_not(from, urls.end(), isFile);
        FetchedPasteboard pasteboard = dragOf(QList<QUrl>(from, to));
        items << m_context.ingest.readAll(pasteboard);
        from = to;
    }
    m_context.store.accept(items);
    return static_cast<int>(items.size());
}

int ShelfRequestHandler::accept(Pasteboard &pasteboard)
{
    const QList<DropItem> items = m_context.ingest.readAll(pasteboard);
    m_context.store.accept(items);
    return static_cast<int>(items.size());
}

void ShelfRequestHandler::putText(const QByteArray &text,
                                  const std::function<void(int items)> &done)
{
    const auto arrived = m_lifetime.guard([this, done](const QString &decoded) {
        FetchedPasteboard pasteboard({QStringLiteral("text/plain")});
        pasteboard.setText(decoded);
        done(accept(pasteboard));
    });
    const auto decoded
        = [text] { return text.isValidUtf8() ? QString::fromUtf8(text) : QString(); };
    if (text.size() <= mostDecodedAtOnce) {
        arrived(decoded());
        return;
    }
    m_context.workQueue.run([decoded, arrived, &mainQueue = m_context.mainQueue] {
        mainQueue.async([arrived, string = decoded()] { arrived(string); });
    });
}

QList<DropItem> ShelfRequestHandler::ofFilesAndLinks() const
{
    QList<DropItem> items;
    for (const DropItem &item : m_context.store.items()) {
        if (std::holds_alternative<DropItem::File>(item.payload())
            || std::holds_alternative<DropItem::Link>(item.payload()))
            items << item;
    }
    return items;
}

void ShelfRequestHandler::list(Entries done)
{
    m_context.preparation.whenReady(ofFilesAndLinks(),
                                    m_lifetime.guard([this, done](const QList<DropItem> &items) {
                                        m_context.pictures.giveAway(items);
                                        done(entriesOf(items));
                                    }));
}

bool ShelfRequestHandler::isKeptForSomebody(const QUuid &item) const
{
    return std::ranges::any_of(m_takings, [&](const Taking &taking) {
        return std::ranges::any_of(taking.items,
                                   [&](const DropItem &kept) { return kept.id() == item; });
    });
}

void ShelfRequestHandler::take(const QString &taker, Entries done)
{
    m_takings.remove(taker);
    QList<DropItem> wanted = ofFilesAndLinks();
    wanted.removeIf([this](const DropItem &item) { return isKeptForSomebody(item.id()); });
    const auto request = QUuid::createUuid();
    m_takings.insert(taker, {request, wanted, m_context.pictures.lend(wanted)});
    m_context.preparation.whenReady(
        wanted, m_lifetime.guard([this, done, taker, request](const QList<DropItem> &ready) {
            const auto taking = m_takings.find(taker);
            // It has left, or asked once more.
            const bool isCurrent = taking != m_takings.end() && taking->request == request;
            QList<DropItem> items = isCurrent ? ready : QList<DropItem>();
            // What could not be made into a file is a picture in memory now.
            items.removeIf([](const DropItem &item) { return entryOf(item).isEmpty(); });
            if (isCurrent)
                taking->items = items;
            done(entriesOf(items));
        }));
}

bool ShelfRequestHandler::taken(const QString &taker)
{
    const Taking taking = m_takings.take(taker);
    if (taking.items.isEmpty())
        return false;
    m_context.pictures.giveAway(taking.items);
    QList<QUuid> ids;
    for (const DropItem &item : taking.items)
        ids << item.id();
    m_context.store.ejected(ids, false);
    return true;
}

void ShelfRequestHandler::takerLeft(const QString &taker)
{
    m_takings.remove(taker);
}

} // namespace corvane
