#include "platform/qt/system/bounded_listing.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <semaphore>

namespace corvane {
namespace {

using Names = QList<QByteArray>;
constexpr std::chrono::seconds longEnough{30};

/// A folder that answers when it is told to, or once nobody can be waiting for it any more.
struct SlowFolder {
    BoundedListing::List list()
    {
        return [state = m_state](const QByteArray &) {
            ++state->asked;
            static_cast<void>(state->permits.try_acquire_for(longEnough));
            return Names{"place"};
        };
    }
    void answer() { m_state->permits.release(); }
    int asked() const { return m_state->asked; }

private:
    struct State {
        std::counting_semaphore<> permits{0};
        std::atomic<int> asked = 0;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

TEST(BoundedListing, namesWhatIsInAFolder)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a b")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    BoundedListing listing;
    Names names = listing.names(QFile::encodeName(folder.path()), longEnough);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Names{".", "..", "a b"}));
    EXPECT_EQ(listing.names("/nowhere", longEnough), Names());
}

TEST(BoundedListing, looksAnewEachTime)
{
    int looks = 0;
    BoundedListing listing(
        [&looks](const QByteArray &) { return Names{QByteArray::number(++looks)}; });
    EXPECT_EQ(listing.names("/folder", longEnough), Names{"1"});
    EXPECT_EQ(listing.names("/folder", longEnough), Names{"2"});
}

TEST(BoundedListing, goesOnWithoutAFolderThatDoesNotAnswer)
{
    SlowFolder folder;
    BoundedListing listing(folder.list());
    EXPECT_EQ(listing.names("/slow"), Names());
    EXPECT_EQ(listing.names("/slow", longEnough), Names()) << "it is not waited for again";
    EXPECT_EQ(folder.asked(), 1) << "nor asked by a second thread";
    folder.answer();
    Names names;
    while (names.isEmpty())
        names = listing.names("/slow");
    EXPECT_EQ(names, Names{"place"});
}

TEST(BoundedListing, tellsWhatItKnewWhereTheFolderHasStoppedAnswering)
{
    SlowFolder folder;
    BoundedListing listing(folder.list());
    folder.answer();
    EXPECT_EQ(listing.names("/slow", longEnough), Names{"place"});
    EXPECT_EQ(listing.names("/slow"), Names{"place"});
    EXPECT_EQ(listing.names("/other"), Names()) << "of another folder it knows nothing";
    folder.answer();
}

} // namespace
} // namespace corvane
