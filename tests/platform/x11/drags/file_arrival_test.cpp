// Waiting for what another program writes, with a clock of the test's own.

#include "fakes/test_clock.h"
#include "platform/display.h"
#include "platform/x11/drags/file_arrival.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <unistd.h>

namespace corvane::test {

namespace {

class FileArrivalTest : public testing::Test {
protected:
    void wait()
    {
        arrival->wait([this](bool arrived) { hasArrived = arrived; });
    }
    void write(const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// Lets the news of the file come, and the time that it takes to be sure of it pass.
    bool isDecided()
    {
        return eventually([this] {
            clock.advance(0.05);
            return hasArrived.has_value();
        });
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("picture.png"));
    TestClock clock;
    std::optional<FileArrival> arrival{std::in_place, QFile::encodeName(path), clock};
    std::optional<bool> hasArrived;
};

} // namespace

TEST_F(FileArrivalTest, tellsWhenTheFileIsClosed)
{
    wait();
    write("bytes");
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*hasArrived);
    clock.advance(FileArrival::patience);
    EXPECT_EQ(clock.pendingCount(), 0U) << "nothing wakes up any more";
}

TEST_F(FileArrivalTest, tellsOfAFileThatWasThereBeforeItWaited)
{
    write("bytes");
    wait();
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*hasArrived);
}

TEST_F(FileArrivalTest, anEmptyFileIsNotYetThere)
{
    write({});
    wait();
    clock.advance(1);
    EXPECT_FALSE(hasArrived);
    write("bytes");
    ASSERT_TRUE(isDecided());
    EXPECT_TRUE(*hasArrived);
}

TEST_F(FileArrivalTest, anEmptyFileThatStaysEmptyIsToldApart)
{
    wait();
    EXPECT_FALSE(arrival->isEmptyFile());
    write({});
    EXPECT_TRUE(eventually([this] {
        clock.advance(0.05);
        return arrival->isEmptyFile();
    }));
    clock.advance(FileArrival::patience + 3);
    EXPECT_EQ(hasArrived, false);
    EXPECT_TRUE(arrival->isEmptyFile());
    write("bytes");
    EXPECT_FALSE(arrival->isEmptyFile());
}

TEST_F(FileArrivalTest, givesUpWhereNothingIsWritten)
{
    wait();
    clock.advance(FileArrival::patience - 3);
    EXPECT_FALSE(hasArrived);
    clock.advance(6);
    EXPECT_EQ(hasArrived, false);
}

TEST_F(FileArrivalTest, aLinkIsNoFile)
{
    wait();
    ASSERT_EQ(::symlink("/etc/passwd", QFile::encodeName(path).constData()), 0);
    clock.advance(FileArrival::patience + 3);
    EXPECT_EQ(hasArrived, false);
    arrival->discard();
    EXPECT_TRUE(
        QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
}

TEST_F(FileArrivalTest, nobodyIsToldOnceItIsGone)
{
    wait();
    write("bytes");
    arrival.reset();
    clock.advance(100);
    EXPECT_FALSE(hasArrived);
}

} // namespace corvane::test
