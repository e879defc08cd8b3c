#include "core/scratch_spool.h"
#include "core/spool_directory.h"
#include "core/spool_place.h"
#include "core/temporary_spool.h"
#include "fakes/fake_work_queue.h"
#include "fakes/full_disk.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <memory>
#include <optional>
#include <thread>

namespace corvane {
namespace {

using test::contents;
using test::exists;

const QString image = QStringLiteral("Image");
const QString png = QStringLiteral("png");

struct ScratchSpoolTest : testing::Test, test::TemporarySpool {
    QByteArray directory() const { return temporary.path("Corvane-4711"); }
    QString nameOf(const std::optional<QUrl> &url)
    {
        return url ? file_url::lastPathComponent(*url) : QString();
    }
};

TEST_F(ScratchSpoolTest, MakesSafeNames)
{
    const auto safe
        = [](const char *name) { return ScratchSpool::safeBasename(QString::fromUtf8(name)); };
    EXPECT_EQ(safe("  "), QStringLiteral("Item"));
    EXPECT_EQ(safe(""), QStringLiteral("Item"));
    EXPECT_EQ(safe("..."), QStringLiteral("Item"));
    EXPECT_EQ(safe("..hidden"), QStringLiteral("hidden"));
    EXPECT_EQ(safe("a/b:c"), QStringLiteral("a-b-c"));
    EXPECT_EQ(safe("../../etc/passwd"), QStringLiteral("-..-etc-passwd"));
    EXPECT_EQ(safe(" \n name\t"), QStringLiteral("name"));
}

TEST_F(ScratchSpoolTest, StripsDotsBeforeItTrims)
{
    EXPECT_EQ(ScratchSpool::safeBasename(QStringLiteral(" .hidden")), QStringLiteral(".hidden"));
    EXPECT_EQ(ScratchSpool::safeBasename(QStringLiteral(". name")), QStringLiteral("name"));
}

TEST_F(ScratchSpoolTest, CutsNamesToOneHundredAndTwentyCharacters)
{
    EXPECT_EQ(ScratchSpool::safeBasename(QString(300, QLatin1Char('x'))),
              QString(120, QLatin1Char('x')));
    const QString bird = QStringLiteral("\U0001F426");
    EXPECT_EQ(ScratchSpool::safeBasename(bird.repeated(300)), bird.repeated(120));
}

TEST_F(ScratchSpoolTest, StandsRightBelowADirectoryThatIsNamedWithSlashes)
{
    EXPECT_EQ(ScratchSpool(temporary.path() + "//", 1).directory(), temporary.url("Corvane-1"));
}

TEST_F(ScratchSpoolTest, IsNamedAfterTheProcessAndMadeOnFirstUse)
{
    EXPECT_EQ(file_url::nativePath(spool.directory()), directory());
    EXPECT_FALSE(exists(directory()));
    EXPECT_TRUE(spool.reserve(image, png).has_value());
    struct stat status = {};
    ASSERT_EQ(::lstat(directory().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U);
}

TEST_F(ScratchSpoolTest, NumbersNamesThatAreTaken)
{
    EXPECT_EQ(nameOf(spool.store("1", image, png)), QStringLiteral("Image.png"));
    EXPECT_EQ(nameOf(spool.store("2", image, png)), QStringLiteral("Image 2.png"));
    EXPECT_EQ(nameOf(spool.store("3", image, png)), QStringLiteral("Image 3.png"));
    EXPECT_EQ(contents(temporary.url("Corvane-4711/Image 2.png")), "2");
}

TEST_F(ScratchSpoolTest, KeepsNamesForFilesThatAreStillBeingMade)
{
    auto first = spool.keepPlace(image, png);
    const auto second = spool.keepPlace(image, png);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(nameOf(first->url()), QStringLiteral("Image.png"));
    EXPECT_EQ(nameOf(second->url()), QStringLiteral("Image 2.png"));
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image 3.png"));
    EXPECT_FALSE(exists(first->url()));
    EXPECT_TRUE(second->write("2"));
    EXPECT_EQ(contents(second->url()), "2");
    EXPECT_FALSE(second->write("again")) << "what is there stays";
    first.reset();
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image.png"));
    for (int i = 0; i < 1'000; ++i)
        EXPECT_EQ(nameOf(spool.keepPlace(image, png)->url()), QStringLiteral("Image.png"));
}

TEST_F(ScratchSpoolTest, WritesNothingThatWasDiscardedBefore)
{
    const auto place = spool.keepPlace(image, png);
    const auto other = spool.keepPlace(image, png);
    spool.discard(place->url());
    EXPECT_FALSE(place->isWanted());
    EXPECT_FALSE(place->write("1"));
    EXPECT_FALSE(exists(place->url()));
    EXPECT_TRUE(other->isWanted());
    spool.discardAll();
    EXPECT_FALSE(other->isWanted());
    EXPECT_FALSE(other->write("2"));
    spoil();
    EXPECT_EQ(spool.keepPlace(image, png), nullptr);
}

TEST_F(ScratchSpoolTest, ReservesWithoutMakingTheFile)
{
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image.png"));
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image.png"));
    EXPECT_FALSE(exists(temporary.path("Corvane-4711/Image.png")));
}

TEST_F(ScratchSpoolTest, DoesNotWriteThroughALinkThatLeadsNowhere)
{
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    const QByteArray link = temporary.path("Corvane-4711/Image.png");
    ASSERT_EQ(::symlink(temporary.path("nowhere").constData(), link.constData()), 0);
    EXPECT_EQ(nameOf(spool.store("x", image, png)), QStringLiteral("Image 2.png"));
    EXPECT_FALSE(exists(temporary.path("nowhere")));
}

TEST_F(ScratchSpoolTest, KeepsNamesWithinTwoHundredAndFiftyFiveBytes)
{
    const QString birds = QStringLiteral("\U0001F426").repeated(120);
    for (int i = 0; i < 11; ++i) {
        const auto url = spool.store("x", birds, png);
        ASSERT_TRUE(url.has_value());
        const QByteArray name = nameOf(url).toUtf8();
        EXPECT_LE(name.size(), 255);
        EXPECT_GT(name.size(), 240);
        EXPECT_TRUE(name.endsWith(".png"));
        EXPECT_FALSE(nameOf(url).contains(QChar::ReplacementCharacter));
    }
    EXPECT_TRUE(spool.store("x", QString(300, QLatin1Char('x')), QString(300, QLatin1Char('y'))));
}

TEST_F(ScratchSpoolTest, KeepsAHostileExtensionInside)
{
    const auto url = spool.store("x", image, QStringLiteral("/../../png"));
    ASSERT_TRUE(url.has_value());
    EXPECT_TRUE(spool.contains(*url));
    EXPECT_EQ(nameOf(url), QStringLiteral("Image.-..-..-png"));
    EXPECT_TRUE(spool.contains(*spool.store("x", QStringLiteral("a\0b"), QStringLiteral("p\0g"))));
    EXPECT_EQ(nameOf(spool.store("x", QStringLiteral("README"), {})), QStringLiteral("README"));
}

TEST_F(ScratchSpoolTest, GivesFilesToTheirOwnerAlone)
{
    const auto url = spool.store("x", image, png);
    struct stat status = {};
    ASSERT_EQ(::lstat(file_url::nativePath(*url).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(ScratchSpoolTest, ContainsWholeComponentsOnly)
{
    const QUrl inside = *spool.store("x", image, png);
    EXPECT_TRUE(spool.contains(inside));
    EXPECT_TRUE(spool.contains(temporary.url("Corvane-4711/not-there")));
    EXPECT_TRUE(spool.contains(temporary.url("./Corvane-4711/../Corvane-4711/Image.png")));
    EXPECT_FALSE(spool.contains(spool.directory()));
    EXPECT_FALSE(spool.contains(temporary.url("Corvane-4711/")));
    EXPECT_FALSE(spool.contains(temporary.write("Corvane-47110/a", "x")));
    EXPECT_FALSE(spool.contains(temporary.url("Corvane-4711/..")));
    EXPECT_FALSE(spool.contains(temporary.url("Corvane-4711/.")));
    EXPECT_FALSE(spool.contains(temporary.write("a", "x")));
    EXPECT_FALSE(spool.contains(temporary.url("Corvane-4711/../a")));
    EXPECT_FALSE(spool.contains(QUrl(QStringLiteral("https://x") + inside.path())));
    EXPECT_FALSE(spool.contains(QUrl()));
}

TEST_F(ScratchSpoolTest, FindsItselfBehindALinkedTemporaryDirectory)
{
    const QByteArray link = temporary.path("link");
    const test::TemporaryFolder real;
    ASSERT_EQ(::symlink(real.path().constData(), link.constData()), 0);
    ScratchSpool linked(link, 1);
    const auto url = linked.store("x", image, png);
    ASSERT_TRUE(url.has_value());
    EXPECT_TRUE(linked.contains(*url));
    EXPECT_TRUE(linked.contains(real.url("Corvane-1/Image.png")));
    linked.discard(*url);
    EXPECT_FALSE(exists(*url));
}

TEST_F(ScratchSpoolTest, DiscardsOnlyWhatIsInside)
{
    const QUrl inside = *spool.store("x", image, png);
    const QUrl outside = temporary.write("a", "x");
    const QUrl neighbour = temporary.write("Corvane-47110/a", "x");
    spool.discard(outside);
    spool.discard(neighbour);
    spool.discard(spool.directory());
    spool.discard(temporary.url("Corvane-4711/../a"));
    spool.discard(temporary.url("Corvane-4711/.."));
    EXPECT_TRUE(exists(outside));
    EXPECT_TRUE(exists(neighbour));
    EXPECT_TRUE(exists(inside));
    spool.discard(inside);
    EXPECT_FALSE(exists(inside));
    spool.discard(inside);
}

TEST_F(ScratchSpoolTest, DiscardsTheFolderThatIsNamedWithASlash)
{
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    const QUrl shorter = temporary.write("Corvane-4711/a", "x");
    temporary.write("Corvane-4711/ab/inside", "x");
    spool.discard(temporary.url("Corvane-4711/ab/"));
    EXPECT_FALSE(exists(temporary.path("Corvane-4711/ab")));
    EXPECT_TRUE(exists(shorter));
}

TEST_F(ScratchSpoolTest, RemovesALinkAndNotWhatItLeadsTo)
{
    const QUrl outside = temporary.write("keep/a", "x");
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    const QByteArray link = temporary.path("Corvane-4711/link");
    ASSERT_EQ(::symlink(temporary.path("keep").constData(), link.constData()), 0);
    spool.discard(temporary.url("Corvane-4711/link/a"));
    EXPECT_TRUE(exists(outside)) << "the parent is resolved";
    spool.discard(file_url::fromNativePath(link));
    EXPECT_FALSE(exists(link));
    ASSERT_EQ(::symlink(temporary.path("keep").constData(), link.constData()), 0);
    spool.discardAll();
    EXPECT_FALSE(exists(directory()));
    EXPECT_TRUE(exists(outside));
}

TEST_F(ScratchSpoolTest, GoesWithEverythingInIt)
{
    spool.store("x", image, png);
    temporary.write("Corvane-4711/folder/deep/a", "x");
    spool.discardAll();
    EXPECT_FALSE(exists(directory()));
    spool.discardAll();
}

TEST_F(ScratchSpoolTest, CanBeUsedAgainAfterItWasTidiedAway)
{
    spool.store("x", image, png);
    QDir(temporary.directory.filePath(QStringLiteral("Corvane-4711"))).removeRecursively();
    EXPECT_TRUE(spool.store("x", image, png).has_value());
}

TEST_F(ScratchSpoolTest, DeletesBesideTheMainThreadWhereItHasAQueue)
{
    test::FakeWorkQueue queue;
    ScratchSpool queued(temporary.path(), 4712, &queue);
    QList<QUrl> urls;
    for (int i = 0; i < 100; ++i)
        urls << *queued.store("x", image, png);
    const QUrl outside = temporary.write("of the user", "x");
    for (const QUrl &url : urls)
        queued.discard(url);
    queued.discard(outside);
    EXPECT_TRUE(exists(urls.constFirst()));
    EXPECT_EQ(queue.pendingCount(), 1U) << "one piece of work for all of them";
    queue.runAll();
    for (const QUrl &url : urls)
        EXPECT_FALSE(exists(url));
    EXPECT_TRUE(exists(outside));
    const auto later = queued.store("y", image, png);
    queued.discard(*later);
    queue.runAll();
    EXPECT_FALSE(exists(*later));
}

TEST_F(ScratchSpoolTest, GivesANameOutAgainOnlyOnceItsFileIsGone)
{
    test::FakeWorkQueue queue;
    ScratchSpool queued(temporary.path(), 4712, &queue);
    const auto first = queued.store("1", image, png);
    queued.discard(*first);
    // Somebody else was faster.
    ::unlink(file_url::nativePath(*first).constData());
    const auto second = queued.store("2", image, png);
    EXPECT_EQ(nameOf(second), QStringLiteral("Image 2.png"));
    queued.discard(*first);
    queue.runAll();
    EXPECT_EQ(contents(*second), "2");
    EXPECT_EQ(nameOf(queued.reserve(image, png)), QStringLiteral("Image.png"));
}

TEST_F(ScratchSpoolTest, GivesNoNameOutAgainThatAnItemHas)
{
    const auto first = spool.store("1", image, png);
    // Who tidies the temporary directory takes old files away.
    ::unlink(file_url::nativePath(*first).constData());
    const auto second = spool.store("2", image, png);
    EXPECT_EQ(nameOf(second), QStringLiteral("Image 2.png"));
    spool.discard(*first);
    EXPECT_EQ(contents(*second), "2");
    EXPECT_EQ(nameOf(spool.reserve(image, png)), nameOf(first));
    spool.keepName(*first);
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image 3.png"));
}

TEST_F(ScratchSpoolTest, DeletesWhatIsLentOnceTheLastLoanHasEnded)
{
    const auto file = spool.store("1", image, png);
    auto loan = spool.lend({*file});
    auto other = spool.lend({*file, temporary.url("elsewhere")});
    loan.reset();
    spool.discard(*file);
    EXPECT_EQ(contents(*file), "1");
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image 2.png"));
    other.reset();
    EXPECT_FALSE(exists(*file));
    const auto kept = spool.store("2", image, png);
    loan = spool.lend({*kept});
    loan.reset();
    EXPECT_EQ(contents(*kept), "2") << "nobody wanted it to go";
    spool.discard(*kept);
    EXPECT_FALSE(exists(*kept));
}

TEST_F(ScratchSpoolTest, GivesUpNothingThatIsLentWhileItIsBeingMade)
{
    const auto place = spool.keepPlace(image, png);
    auto loan = spool.lend({place->url()});
    spool.discard(place->url());
    EXPECT_TRUE(place->isWanted());
    loan.reset();
    EXPECT_FALSE(place->isWanted());
}

TEST_F(ScratchSpoolTest, WhatIsGivenAwayGoesWithTheDirectoryAlone)
{
    const auto file = spool.store("1", image, png);
    auto loan = spool.lend({*file});
    spool.giveAway({*file});
    spool.discard(*file);
    loan.reset();
    spool.discard(*file);
    EXPECT_EQ(contents(*file), "1");
    // Its new owner may have moved it.
    ::unlink(file_url::nativePath(*file).constData());
    EXPECT_EQ(nameOf(spool.store("2", image, png)), QStringLiteral("Image 2.png"));
    loan = spool.lend({*file});
    spool.discardAll();
    EXPECT_FALSE(exists(directory()));
    const auto later = spool.store("3", image, png);
    EXPECT_EQ(later, file);
    spool.discard(*later);
    EXPECT_FALSE(exists(*later)) << "nobody was told of this one";
}

TEST_F(ScratchSpoolTest, GivesNoNameOutAgainThatAnotherProgramWasToldOf)
{
    // No item has them: they are pictures that were saved for others.
    const auto lent = spool.reserve(image, png);
    auto loan = spool.lend({*lent});
    const auto given = spool.reserve(image, png);
    EXPECT_EQ(nameOf(given), QStringLiteral("Image 2.png"));
    spool.giveAway({*given});
    EXPECT_EQ(nameOf(spool.reserve(image, png)), QStringLiteral("Image 3.png"));
    loan.reset();
    EXPECT_EQ(spool.reserve(image, png), lent);
}

TEST_F(ScratchSpoolTest, LendsTheFileThatWasMadeInsteadOfTheOneThatWasLent)
{
    auto place = spool.keepPlace(image, png);
    const QUrl lent = place->url();
    auto loan = spool.lend({lent, lent});
    auto other = spool.lend({lent});
    spool.discard(lent);
    const auto made = spool.store("1", image, QStringLiteral("tiff"));
    spool.moveLoans(lent, *made);
    place.reset();
    EXPECT_NE(*spool.reserve(image, png), lent) << "a loan of that name is not over";
    loan.reset();
    EXPECT_EQ(contents(*made), "1");
    other.reset();
    EXPECT_FALSE(exists(*made));
    EXPECT_EQ(*spool.reserve(image, png), lent);
    spool.moveLoans(lent, *made);
    EXPECT_EQ(*spool.reserve(image, QStringLiteral("tiff")), *made) << "nothing is lent any more";
}

TEST_F(ScratchSpoolTest, WhatIsGivenAwayUnderTheNameThatItWasLentAsStays)
{
    const QUrl lent = spool.keepPlace(image, png)->url();
    auto loan = spool.lend({lent});
    const auto made = spool.store("1", image, QStringLiteral("tiff"));
    spool.moveLoans(lent, *made);
    spool.giveAway({lent});
    loan.reset();
    spool.discard(*made);
    EXPECT_EQ(contents(*made), "1");
    const auto next = spool.store("2", image, png);
    EXPECT_EQ(*next, lent);
    spool.discard(*next);
    EXPECT_FALSE(exists(*next)) << "nobody was told of this one";
}

TEST_F(ScratchSpoolTest, ALoanMayEndAfterTheSpool)
{
    std::optional<ScratchSpool> shortLived(std::in_place, temporary.path(), 4712);
    const auto file = shortLived->store("1", image, png);
    auto loan = shortLived->lend({*file});
    shortLived->discard(*file);
    shortLived.reset();
    loan.reset();
    EXPECT_EQ(contents(*file), "1");
}

TEST_F(ScratchSpoolTest, GoesAsAWholeWithoutWaitingForSingleFiles)
{
    test::FakeWorkQueue queue;
    ScratchSpool queued(temporary.path(), 4712, &queue);
    const auto url = queued.store("x", image, png);
    queued.discard(*url);
    queued.discardAll();
    EXPECT_FALSE(exists(temporary.path("Corvane-4712")));
    // What begins only now finds a directory that is another one.
    const auto again = queued.store("y", image, png);
    EXPECT_EQ(nameOf(again), nameOf(url));
    queue.runAll();
    EXPECT_TRUE(exists(*again));
}

TEST_F(ScratchSpoolTest, IsAnotherDirectoryForEachProcess)
{
    ScratchSpool second(temporary.path(), 4712);
    const auto first = spool.store("1", image, png);
    const auto other = second.store("2", image, png);
    ASSERT_TRUE(first && other);
    EXPECT_NE(*first, *other);
    second.discardAll();
    EXPECT_TRUE(exists(*first));
}

TEST_F(ScratchSpoolTest, RefusesALinkInItsPlace)
{
    ASSERT_EQ(::mkdir(temporary.path("trap").constData(), 0700), 0);
    ASSERT_EQ(::symlink(temporary.path("trap").constData(), directory().constData()), 0);
    const QUrl inTrap = temporary.write("trap/a", "x");
    EXPECT_FALSE(spool.reserve(image, png).has_value());
    EXPECT_FALSE(spool.store("x", image, png).has_value());
    EXPECT_FALSE(spool.contains(inTrap));
    spool.discard(temporary.url("Corvane-4711/a"));
    spool.discardAll();
    EXPECT_TRUE(exists(inTrap));
    EXPECT_TRUE(exists(directory()));
}

TEST_F(ScratchSpoolTest, RefusesADirectoryThatIsOpenToOthers)
{
    for (const mode_t mode : {0755U, 0710U, 0701U, 0777U}) {
        ASSERT_EQ(::mkdir(directory().constData(), 0700), 0);
        ASSERT_EQ(::chmod(directory().constData(), mode), 0);
        EXPECT_FALSE(spool.reserve(image, png).has_value()) << mode;
        ASSERT_EQ(::rmdir(directory().constData()), 0);
    }
}

TEST_F(ScratchSpoolTest, RefusesADirectoryOfSomebodyElse)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a directory away";
    ASSERT_EQ(::mkdir(directory().constData(), 0700), 0);
    ASSERT_EQ(::chown(directory().constData(), 65534, 65534), 0);
    EXPECT_FALSE(spool.reserve(image, png).has_value());
}

TEST_F(ScratchSpoolTest, RefusesADirectoryThatAnotherProcessHolds)
{
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    // A process in another container may have the same number.
    ScratchSpool sameNumber(temporary.path(), 4711);
    EXPECT_FALSE(sameNumber.reserve(image, png).has_value());
    sameNumber.discardAll();
    EXPECT_TRUE(exists(directory()));
}

TEST_F(ScratchSpoolTest, TakesOverADirectoryThatADeadProcessLeft)
{
    ASSERT_EQ(::mkdir(directory().constData(), 0700), 0);
    temporary.write("Corvane-4711/Image.png", "old");
    EXPECT_EQ(nameOf(spool.store("x", image, png)), QStringLiteral("Image 2.png"));
}

TEST_F(ScratchSpoolTest, HasNoAddressWhereAFileIsInTheWay)
{
    spoil();
    EXPECT_FALSE(spool.reserve(image, png).has_value());
    spool.discardAll();
    EXPECT_TRUE(exists(directory()));
}

TEST_F(ScratchSpoolTest, HasNoAddressWhereTheDirectoryCannotBeMade)
{
    temporary.write("file", "x");
    ScratchSpool below(temporary.path("file"), 1);
    EXPECT_FALSE(below.reserve(image, png).has_value());
    EXPECT_FALSE(below.store("x", image, png).has_value());
    EXPECT_EQ(file_url::nativePath(below.directory()), temporary.path("file/Corvane-1"));
}

TEST_F(ScratchSpoolTest, MakesATemporaryDirectoryThatIsMissing)
{
    ScratchSpool deep(temporary.path("not/there/yet"), 1);
    EXPECT_TRUE(deep.store("x", image, png).has_value());
}

TEST_F(ScratchSpoolTest, LeavesNothingBehindWhenTheDiskIsFull)
{
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    {
        const test::FullDisk fullDisk;
        EXPECT_FALSE(spool.store(QByteArray(1000, 'x'), image, png).has_value());
    }
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(QFile::decodeName(directory())).entryList(everything), QStringList());
    EXPECT_EQ(nameOf(spool.store("x", image, png)), QStringLiteral("Image.png"));
}

TEST_F(ScratchSpoolTest, LeavesVeryMuchToAProcessThatOutlivesThisOne)
{
    for (int i = 0; i <= spool_directory::mostRemovedAtEnd; ++i)
        temporary.write("Corvane-4711/" + QByteArray::number(i), "x");
    ::chmod(directory().constData(), 0700);
    ASSERT_TRUE(spool.reserve(image, png).has_value());
    spool.discardAll();
    int status = 0;
    ASSERT_GT(::wait(&status), 0);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(exists(directory()));
    EXPECT_TRUE(spool_directory::candidates(temporary.path()).empty()) << "under another name";
}

struct LeftoversTest : ScratchSpoolTest {
    QByteArray leave(const QByteArray &name)
    {
        temporary.write(name + QByteArray("/Image.png"), "x");
        ::chmod(temporary.path(name).constData(), 0700);
        return temporary.path(name);
    }
};

TEST_F(LeftoversTest, OfTheDeadAreRemoved)
{
    const QByteArray dead = leave("Corvane-99");
    // The number of a living process says nothing.
    const QByteArray reused = leave(QByteArray("Corvane-") + QByteArray::number(::getpid()));
    spool.leftoversRemoval()();
    EXPECT_FALSE(exists(dead));
    EXPECT_FALSE(exists(reused));
}

TEST_F(LeftoversTest, AreNotWhatTheLivingHold)
{
    ScratchSpool living(temporary.path(), 99);
    const auto held = living.store("x", image, png);
    const auto own = spool.store("x", image, png);
    spool.leftoversRemoval()();
    EXPECT_TRUE(exists(*held));
    EXPECT_TRUE(exists(*own));
}

TEST_F(LeftoversTest, OfAProcessWithOurNumberAreNeverTakenForOurs)
{
    const QByteArray left = leave("Corvane-4711");
    const auto remove = spool.leftoversRemoval();
    EXPECT_FALSE(exists(left)) << "it has another name already";
    // It is made before that work has begun, by a process that does not hold it yet.
    leave("Corvane-4711");
    remove();
    EXPECT_TRUE(exists(left));
    EXPECT_EQ(QDir(temporary.directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("Corvane-4711")});
}

TEST_F(LeftoversTest, GoOnAnyThreadAndWithoutTheSpool)
{
    const QByteArray dead = leave("Corvane-99");
    auto other = std::make_unique<ScratchSpool>(temporary.path(), 5);
    const auto remove = other->leftoversRemoval();
    other.reset();
    std::thread(remove).join();
    EXPECT_FALSE(exists(dead));
}

TEST_F(LeftoversTest, AreLeftAloneWhereTheyAreNotSafe)
{
    const QByteArray open = leave("Corvane-1");
    ::chmod(open.constData(), 0755);
    const QUrl target = temporary.write("keep/a", "x");
    ::chmod(temporary.path("keep").constData(), 0700);
    const QByteArray link = temporary.path("Corvane-2");
    ASSERT_EQ(::symlink(temporary.path("keep").constData(), link.constData()), 0);
    spool.leftoversRemoval()();
    EXPECT_TRUE(exists(open));
    EXPECT_TRUE(exists(link));
    EXPECT_TRUE(exists(target));
}

TEST_F(LeftoversTest, AreOnlyWhatIsNamedLikeASpool)
{
    for (const char *name :
         {"Corvane-Preview-1", "Corvane-", "Corvane-1x", "corvane-1", "Other-1"}) {
        const QByteArray path = leave(name);
        spool.leftoversRemoval()();
        EXPECT_TRUE(exists(path)) << name;
    }
}

TEST_F(LeftoversTest, OfSomebodyElseAreLeftAlone)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a directory away";
    const QByteArray foreign = leave("Corvane-5");
    ASSERT_EQ(::chown(foreign.constData(), 65534, 65534), 0);
    spool.leftoversRemoval()();
    EXPECT_TRUE(exists(foreign));
}

} // namespace
} // namespace corvane
