#include "core/quick_actions_fixture.h"

#include <QDir>

namespace corvane::test {

namespace {

TEST_F(QuickActionsTest, SaysThatItWasCopiedOnceItIs)
{
    std::vector<std::size_t> writesWhenTold;
    feedback.handler = [&](const Message &) { writesWhenTold.push_back(pasteboard.writes.size()); };
    actions.copy(text, false);
    actions.copy({text, link});
    EXPECT_EQ(writesWhenTold, (std::vector<std::size_t>{1, 2}));
}

TEST_F(QuickActionsTest, CopiesAFileAndItsPath)
{
    const DropItem item = file("a #1.txt", "x");
    actions.copy(item, false);
    EXPECT_EQ(writer<PasteboardWriter::File>().url, temporary.url("a #1.txt"));
    EXPECT_EQ(written().string, QString::fromUtf8(temporary.path("a #1.txt")));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Path copied")});
}

TEST_F(QuickActionsTest, CopiesAnImage)
{
    actions.copy(image, false);
    EXPECT_EQ(writer<PasteboardWriter::Data>().bytes, "png bytes");
    EXPECT_EQ(writer<PasteboardWriter::Data>().type, UTType::png());
    EXPECT_FALSE(written().string.has_value());
    EXPECT_EQ(messages, QStringList{QStringLiteral("Image copied")});
}

TEST_F(QuickActionsTest, CopiesATextAsItIs)
{
    actions.copy(text, false);
    EXPECT_EQ(written().string, QStringLiteral("h\u00e9llo\n"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Text copied")});
}

TEST_F(QuickActionsTest, CopiesALinkAndItsFullText)
{
    actions.copy(link, false);
    EXPECT_EQ(writer<PasteboardWriter::Link>().url, std::get<DropItem::Link>(link.payload()).url);
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, CopiesNothingOfNothing)
{
    actions.copy(QList<DropItem>());
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, CopiesAListOfOneLikeTheOne)
{
    actions.copy({link});
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralInOneGoAndCountsThem)
{
    actions.copy({text, link});
    ASSERT_EQ(written().writers.size(), 2U);
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(written().writers[0].content));
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Link>(written().writers[1].content));
    EXPECT_FALSE(written().string.has_value());
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralPicturesInMemoryAsFiles)
{
    actions.copy({image, text, another});
    EXPECT_TRUE(pasteboard.writes.empty()) << "they are written beside the main thread";
    finishWork();
    EXPECT_EQ(written().writers.size(), 3U);
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"png bytes", {}, "more"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("3 items copied")});
}

TEST_F(QuickActionsTest, MakesNoMoreFilesForPicturesThatAreCopiedAgain)
{
    actions.copy({image, another});
    finishWork();
    actions.copy({another, image});
    ASSERT_EQ(pasteboard.writes.size(), 2U) << "nothing is left to do";
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"more", "png bytes"}));
    EXPECT_EQ(QDir(scratch.spool.directory().toLocalFile()).entryList(QDir::Files).size(), 2);
}

TEST_F(QuickActionsTest, DoesNotCountPicturesThatCouldNotBeSaved)
{
    scratch.spoil();
    actions.copy({image, another, text, link});
    EXPECT_EQ(written().writers.size(), 4U);
    actions.copy({image, another});
    EXPECT_EQ(messages,
              (QStringList{QStringLiteral("2 items copied"), QStringLiteral("1 items copied")}));
}

TEST_F(QuickActionsTest, CopiesPicturesThatAreRemovedBeforeTheyAreSaved)
{
    actions.copy({image, another, text});
    pictures.itemLeft(image.id(), true);
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"png bytes", "more", {}}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("3 items copied")});
    pictures.itemLeft(another.id(), true);
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"png bytes", "more", {}}));
}

TEST_F(QuickActionsTest, WhatIsCopiedIsThereToBePastedWhenItsItemIsRemoved)
{
    const QUrl alone = *scratch.spool.store("alone", QStringLiteral("a"), QStringLiteral("png"));
    const QUrl beside = *scratch.spool.store("beside", QStringLiteral("b"), QStringLiteral("png"));
    actions.copy(DropItem(DropItem::File{alone}, {}, {}, true), false);
    actions.copy({DropItem(DropItem::File{beside}, {}, {}, true), text});
    scratch.spool.discard(alone);
    scratch.spool.discard(beside);
    EXPECT_EQ(test::contents(alone), "alone") << "clipboard managers keep what was copied before";
    EXPECT_EQ(test::contents(beside), "beside");
    const QUrl next = *scratch.spool.store("next", QStringLiteral("a"), QStringLiteral("png"));
    EXPECT_NE(next, alone);
}

TEST_F(QuickActionsTest, OfWhatIsCopiedAsADataUriTheFileGoesWithItsItem)
{
    const QUrl url = *scratch.spool.store("x", QStringLiteral("a"), QStringLiteral("png"));
    const DropItem item(DropItem::File{url}, {}, {}, true);
    actions.copy(item, true);
    scratch.spool.discard(url);
    finishWork();
    EXPECT_EQ(messages, QStringList{QStringLiteral("Data URI copied")});
    EXPECT_EQ(pasteboard.writes.back().string, QStringLiteral("data:image/png;base64,eA=="));
    EXPECT_FALSE(test::exists(url));
}

TEST_F(QuickActionsTest, PicturesThatAreBeingSavedGiveWayToWhatWasCopiedMeanwhile)
{
    actions.copy({image, another});
    actions.copy({text, link});
    finishWork();
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
    EXPECT_TRUE(std::holds_alternative<PasteboardWriter::Text>(written().writers[0].content));
}

TEST_F(QuickActionsTest, CopiesAFileOnceItIsThere)
{
    const DropItem item = being("scan", "pixels");
    actions.copy(item, false);
    EXPECT_TRUE(pasteboard.writes.empty()) << "a paste would find nothing";
    EXPECT_TRUE(messages.isEmpty());
    finishWork();
    EXPECT_EQ(copiedFiles(), QList<QByteArray>{"pixels"});
    EXPECT_EQ(written().string, QString::fromUtf8(scratch.temporary.path("Corvane-4711/scan.png")));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Path copied")});
}

TEST_F(QuickActionsTest, WhatIsStillBeingMadeGivesWayToWhatWasCopiedInAnotherProgram)
{
    actions.copy(being("scan", "pixels"), false);
    ++pasteboard.changes;
    finishWork();
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, CopiesWhatAnItemHasBecome)
{
    const DropItem item = being("scan", nullptr);
    actions.copy({item});
    finishWork();
    EXPECT_EQ(writer<PasteboardWriter::Data>().bytes, "in memory");
    EXPECT_EQ(messages, QStringList{QStringLiteral("Image copied")});
}

TEST_F(QuickActionsTest, CopiesSeveralOnceTheLastIsThere)
{
    actions.copy({being("scan", "pixels"), text, being("page", "more")});
    EXPECT_TRUE(pasteboard.writes.empty());
    work.runOne();
    clock.runPending();
    EXPECT_TRUE(pasteboard.writes.empty());
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"pixels", {}, "more"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("3 items copied")});
}

TEST_F(QuickActionsTest, SavesWhatTurnsOutToBeHeldInMemory)
{
    actions.copy({being("scan", nullptr), image});
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"in memory", "png bytes"}));
    EXPECT_EQ(messages, QStringList{QStringLiteral("2 items copied")});
}

TEST_F(QuickActionsTest, CopiesWhatIsRemovedBeforeItIsMade)
{
    const DropItem item = being("scan", "pixels");
    actions.copy(item, false);
    remove(item);
    finishWork();
    EXPECT_EQ(copiedFiles(), QList<QByteArray>{"pixels"});
    const DropItem other = being("page", "more");
    actions.copy({other, link});
    remove(other);
    finishWork();
    EXPECT_EQ(copiedFiles(), (QList<QByteArray>{"more", {}}));
    EXPECT_EQ(messages,
              (QStringList{QStringLiteral("Path copied"), QStringLiteral("2 items copied")}));
}

TEST_F(QuickActionsTest, WhatGaveWayAndIsRemovedIsNotMade)
{
    const DropItem item = being("scan", "pixels");
    actions.copy(item, false);
    remove(item);
    actions.copy(text, false);
    finishWork();
    EXPECT_FALSE(test::exists(std::get<DropItem::File>(item.payload()).url));
    const DropItem other = being("page", "more");
    actions.copy(other, false);
    remove(other);
    ++pasteboard.changes;
    finishWork();
    EXPECT_FALSE(test::exists(std::get<DropItem::File>(other.payload()).url));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Text copied")});
}

TEST_F(QuickActionsTest, HoldsNothingOfWhatCannotBeMade)
{
    const auto reserved = [this](const char *name) {
        return *scratch.spool.reserve(QString::fromLatin1(name), QStringLiteral("png"));
    };
    const DropItem scan = being("scan", "pixels");
    remove(scan);
    actions.copy(scan, false);
    finishWork();
    EXPECT_EQ(reserved("scan"), std::get<DropItem::File>(scan.payload()).url)
        << "its name is free again";
    const DropItem page = being("page", "pixels");
    const DropItem leaf = being("leaf", "pixels");
    remove(page);
    remove(leaf);
    actions.copy({page, leaf});
    finishWork();
    EXPECT_EQ(reserved("page"), std::get<DropItem::File>(page.payload()).url);
    EXPECT_EQ(reserved("leaf"), std::get<DropItem::File>(leaf.payload()).url);
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(QuickActionsTest, WhatIsStillBeingMadeGivesWayToWhatWasCopiedMeanwhile)
{
    actions.copy(being("scan", "pixels"), false);
    actions.copy({being("page", "more"), text});
    actions.copy(link, false);
    finishWork();
    EXPECT_EQ(written().string, QStringLiteral("https://x.org/a%20b?q#f"));
    EXPECT_EQ(messages, QStringList{QStringLiteral("Link copied")});
}

TEST_F(QuickActionsTest, WorksWhereNobodyShowsMessages)
{
    feedback.handler = {};
    actions.copy(text, false);
    EXPECT_EQ(pasteboard.writes.size(), 1U);
}

} // namespace

} // namespace corvane::test
