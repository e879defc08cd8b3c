#include "core/temporary_spool.h"
#include "platform/system/private_file.h"
#include "services/preview_scratch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::test {
namespace {

struct PreviewScratchTest : testing::Test {
    QByteArray leave(const QByteArray &name)
    {
        folder.write(name, "x");
        return folder.path(name);
    }
    static inline const QByteArray uuid = "0F2C51A1-5C2B-4E0B-9A63-1B2C3D4E5F60";

    TemporaryFolder folder;
};

TEST_F(PreviewScratchTest, OfTheDeadIsRemoved)
{
    QByteArray path;
    {
        path = preview_scratch::newPath(folder.path(), QStringLiteral("txt"));
        ASSERT_TRUE(private_file::createLocked(path, "x").isOpen());
    }
    const QByteArray older = leave("Corvane-Preview-" + uuid + ".png");
    preview_scratch::removeLeftovers(folder.path());
    EXPECT_FALSE(exists(path)) << "nobody holds its lock any more";
    EXPECT_FALSE(exists(older));
}

TEST_F(PreviewScratchTest, OfTheLivingStays)
{
    const QByteArray path = preview_scratch::newPath(folder.path(), QStringLiteral("txt"));
    const FileDescriptor lock = private_file::createLocked(path, "x");
    ASSERT_TRUE(lock.isOpen());
    preview_scratch::removeLeftovers(folder.path());
    EXPECT_TRUE(exists(path));
}

TEST_F(PreviewScratchTest, OnlyWhatIsNamedLikeOneIsRemoved)
{
    for (const QByteArray &name :
         QList<QByteArray>{"Corvane-Preview-1.txt", "Corvane-Preview-", "Corvane-Preview-" + uuid,
                           "Corvane-Preview-" + uuid.toLower() + ".txt",
                           "Other-Preview-" + uuid + ".txt", "Corvane-Preview-" + uuid + "0.txt"}) {
        const QByteArray path = leave(name);
        preview_scratch::removeLeftovers(folder.path());
        EXPECT_TRUE(exists(path)) << name.constData();
    }
}

TEST_F(PreviewScratchTest, LinksFoldersAndPipesAreLeftAlone)
{
    const QByteArray target = leave("target");
    const QByteArray link = folder.path("Corvane-Preview-" + uuid + ".link");
    ASSERT_EQ(::symlink(target.constData(), link.constData()), 0);
    const QByteArray pipe = folder.path("Corvane-Preview-" + uuid + ".pipe");
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const QByteArray other = folder.path("Corvane-Preview-" + uuid + ".folder");
    ASSERT_EQ(::mkdir(other.constData(), 0700), 0);
    preview_scratch::removeLeftovers(folder.path());
    EXPECT_TRUE(exists(target));
    EXPECT_TRUE(exists(link));
    EXPECT_TRUE(exists(pipe));
    EXPECT_TRUE(exists(other));
}

TEST_F(PreviewScratchTest, OfSomebodyElseIsLeftAlone)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a file away";
    const QByteArray foreign = leave("Corvane-Preview-" + uuid + ".txt");
    ASSERT_EQ(::chown(foreign.constData(), 65534, 65534), 0);
    preview_scratch::removeLeftovers(folder.path());
    EXPECT_TRUE(exists(foreign));
}

} // namespace
} // namespace corvane::test
