#pragma once

#include "core/data_uris.h"
#include "core/feedback.h"
#include "core/item_preparation.h"
#include "core/quick_actions.h"
#include "core/saved_pictures.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_clipboard.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace corvane::test {

/// Copies onto a clipboard that keeps what is written; what the user is told goes into `messages`.
struct QuickActionsTest : testing::Test {
    QuickActionsTest()
    {
        feedback.handler = [this](const Message &message) { messages << message.text(); };
    }

    DropItem file(const QByteArray &name, const QByteArray &contents)
    {
        return DropItem(DropItem::File{temporary.write(name, contents)}, {}, {}, false);
    }
    /// An item whose file is still being made and will hold that; where it is null, the item turns
    /// into a picture in memory.
    DropItem being(const char *name, const char *contents)
    {
        const QString title = QString::fromLatin1(name);
        const auto place = scratch.spool.keepPlace(title, QStringLiteral("png"));
        return preparation.begin({DropItem::beingMade({place->url()}, title, {}, {}),
                                  {place},
                                  [place, contents] {
                                      if (!contents)
                                          return DropItem(
                                              DropItem::ImageBytes{"in memory", UTType::png()}, {},
                                              {}, false);
                                      place->write(contents);
                                      return DropItem(DropItem::File{place->url()}, {}, {}, true);
                                  },
                                  {}});
    }
    void remove(const DropItem &item)
    {
        scratch.spool.discard(std::get<DropItem::File>(item.payload()).url);
    }
    const PasteboardContents &written()
    {
        EXPECT_EQ(pasteboard.writes.size(), 1U);
        return pasteboard.writes.back();
    }
    /// The only writer of the last write, if it is of that kind.
    template<typename Content>
    Content writer()
    {
        EXPECT_EQ(written().writers.size(), 1U);
        return std::get<Content>(written().writers.front().content);
    }
    /// What waits, and what that gives rise to.
    void finishWork()
    {
        do {
            work.runAll();
            clock.runPending();
        } while (work.pendingCount() > 0);
    }
    /// The contents of the files that the last copy put on the clipboard; of the rest nothing.
    QList<QByteArray> copiedFiles() const
    {
        QList<QByteArray> copied;
        for (const PasteboardWriter &writer : pasteboard.writes.back().writers) {
            const auto *file = std::get_if<PasteboardWriter::File>(&writer.content);
            copied << (file ? contents(file->url) : QByteArray());
        }
        return copied;
    }

    static inline const DropItem text{
        DropItem::Text{QStringLiteral("h\u00e9llo\n")}, {}, {}, false};
    static inline const DropItem link{
        DropItem::Link{QUrl(QStringLiteral("https://x.org/a%20b?q#f"))}, {}, {}, false};
    static inline const DropItem image{
        DropItem::ImageBytes{"png bytes", UTType::png()}, {}, {}, false};
    static inline const DropItem another{
        DropItem::ImageBytes{"more", UTType::png()}, {}, {}, false};

    TemporaryFolder temporary;
    FakeClipboard pasteboard;
    Feedback feedback;
    FakeFileLocality locality;
    FakeRemoteFiles remoteFiles;
    FakeWorkQueue work;
    TestClock clock;
    DataUris dataUris{locality, remoteFiles, work, clock};
    TemporarySpool scratch;
    ItemPreparation preparation{scratch.spool, clock, work};
    SavedPictures pictures{scratch.spool, preparation};
    QuickActions actions{pasteboard, feedback, dataUris, preparation, pictures};
    QStringList messages;
};

} // namespace corvane::test
