#pragma once

#include "core/drop_item.h"
#include "core/spool_loans.h"
#include "platform/base/lifetime.h"
#include "platform/system/shelf_requests.h"

#include <QHash>
#include <QList>
#include <QUrl>
#include <QUuid>

#include <functional>

namespace corvane {

class ItemPreparation;
class MainQueue;
class Pasteboard;
class PasteboardIngest;
class SavedPictures;
class ScreenLocator;
class ShelfStore;
class WorkQueue;

/// Does what other programs ask of the shelf, as a drop, a drag or the menu would. Everything in
/// the context must outlive it. Main thread only.
class ShelfRequestHandler : public ShelfRequests {
public:
    struct Context {
        const PasteboardIngest &ingest;
        ShelfStore &store;
        ScreenLocator &screenLocator;
        ItemPreparation &preparation;
        SavedPictures &pictures;
        WorkQueue &workQueue;
        MainQueue &mainQueue;
        /// Does an action by its name; false if there is none of that name.
        std::function<bool(const QString &action)> perform;
        std::function<void()> terminate;
    };
    /// In bytes: larger texts are decoded on another thread, because it takes longer than a frame.
    static constexpr qsizetype mostDecodedAtOnce = 1'000'000;

    explicit ShelfRequestHandler(Context context);
    ~ShelfRequestHandler() override;

    bool act(const QString &action, const QString &activationToken) override;
    void put(const ShelfDelivery &delivery, std::function<void(int items)> done) override;
    void list(Entries done) override;
    void take(const QString &taker, Entries done) override;
    bool taken(const QString &taker) override;
    void takerLeft(const QString &taker) override;
    void end() override;

private:
    /// What was given to a taker who has not said yet that it arrived.
    struct Taking {
        /// Changes with each request, so that an answer to an earlier one is told from the last.
        QUuid request = {};
        QList<DropItem> items = {};
        /// Their files are kept, whatever becomes of the items meanwhile.
        SpoolLoans::Loan loan = {};
    };

    void deliver(const ShelfDelivery &delivery, const std::function<void(int items)> &done);
    int putAddresses(const QByteArray &list);
    void putText(const QByteArray &text, const std::function<void(int items)> &done);
    int accept(Pasteboard &pasteboard);
    QList<DropItem> ofFilesAndLinks() const;
    bool isKeptForSomebody(const QUuid &item) const;

    Context m_context;
    /// By the names of the takers.
    QHash<QString, Taking> m_takings;
    Lifetime m_lifetime;
};

} // namespace corvane
