#include "fakes/test_clock.h"
#include "platform/freedesktop/remote_file_threads.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace corvane::test {

namespace {

/// A server that answers nobody until it comes back. Held by the threads that wait for it.
class Server {
public:
    void wait()
    {
        std::unique_lock lock(m_mutex);
        ++m_waiting;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isBack; });
        --m_waiting;
        m_changed.notify_all();
    }
    void waitForWaiters(int count)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_waiting == count; });
    }
    void comeBack()
    {
        const std::lock_guard lock(m_mutex);
        m_isBack = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_waiting = 0;
    bool m_isBack = false;
};

class RemoteFileThreadsTest : public testing::Test {
protected:
    ~RemoteFileThreadsTest() override
    {
        server->comeBack();
        server->waitForWaiters(0);
    }

    static std::unique_ptr<RemoteFileThreads> makeFiles(MainQueue &clock,
                                                        const std::shared_ptr<Server> &server)
    {
        const auto inspect = [server](const QByteArray &path) -> std::optional<FileVersion> {
            if (path == "/dead")
                server->wait();
            return FileVersion{path, FileVersion::Kind::Regular, 1, 2};
        };
        const auto read
            = [](const QByteArray &, qint64) -> std::optional<QByteArray> { return std::nullopt; };
        return std::make_unique<RemoteFileThreads>(clock,
                                                   RemoteFileThreads::Operations{inspect, read});
    }
    void inspect(const char *path)
    {
        files->inspect(path, [this](const std::optional<FileVersion> &version) {
            answers += version ? '+' : '-';
        });
    }
    /// Until that many answers came, without letting time pass.
    void runUntil(qsizetype count)
    {
        while (answers.size() < count) {
            clock.runPending();
            std::this_thread::yield();
        }
    }
    void losePatience()
    {
        clock.advance(RemoteFileThreads::patience);
        clock.runPending();
    }

    TestClock clock;
    std::shared_ptr<Server> server = std::make_shared<Server>();
    std::unique_ptr<RemoteFileThreads> files = makeFiles(clock, server);
    QByteArray answers;
};

} // namespace

TEST_F(RemoteFileThreadsTest, answerOneAfterTheOther)
{
    inspect("/a");
    inspect("/b");
    EXPECT_EQ(answers, "");
    runUntil(2);
    EXPECT_EQ(answers, "++");
}

TEST_F(RemoteFileThreadsTest, giveADeadServerUpAndGoOn)
{
    inspect("/dead");
    inspect("/a");
    clock.runPending();
    server->waitForWaiters(1);
    EXPECT_EQ(answers, "");
    losePatience();
    runUntil(2);
    EXPECT_EQ(answers, "-+");
}

TEST_F(RemoteFileThreadsTest, loseOnlyAFewThreads)
{
    for (int i = 0; i < RemoteFileThreads::maximumLost; ++i) {
        inspect("/dead");
        clock.runPending();
        server->waitForWaiters(i + 1);
        losePatience();
    }
    EXPECT_EQ(answers, "---");
    inspect("/dead");
    inspect("/a");
    runUntil(5);
    EXPECT_EQ(answers, "-----") << "nothing is tried any more";
}

TEST_F(RemoteFileThreadsTest, workAgainWhenTheServerIsBack)
{
    for (int i = 0; i < RemoteFileThreads::maximumLost; ++i) {
        inspect("/dead");
        clock.runPending();
        server->waitForWaiters(i + 1);
        losePatience();
    }
    server->comeBack();
    server->waitForWaiters(0);
    while (!answers.endsWith('+')) {
        inspect("/a");
        runUntil(answers.size() + 1);
        std::this_thread::yield();
    }
    EXPECT_EQ(answers.count('+'), 1);
}

TEST_F(RemoteFileThreadsTest, theirEndDoesNotWaitForADeadServer)
{
    inspect("/dead");
    inspect("/a");
    clock.runPending();
    server->waitForWaiters(1);
    files.reset();
    server->comeBack();
    server->waitForWaiters(0);
    losePatience();
    EXPECT_EQ(answers, "");
}

TEST_F(RemoteFileThreadsTest, readRegularFilesUpToTheLimit)
{
    RemoteFileThreads real(clock);
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("a")));
    const QByteArray pipe = path + ".pipe";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    QFile file(QFile::decodeName(path));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("12345");
    file.close();

    std::vector<std::optional<QByteArray>> contents;
    const auto keep = [&](std::optional<QByteArray> data) {
        contents.push_back(std::move(data));
        answers += '!';
    };
    real.read(path, 5, keep);
    real.read(path, 4, keep);
    real.read(pipe, 5, keep);
    real.read("/gone", 5, keep);
    std::optional<FileVersion> version;
    real.inspect(path, [&](const std::optional<FileVersion> &found) {
        version = found;
        answers += '!';
    });
    runUntil(5);
    EXPECT_EQ(contents[0], QByteArray("12345"));
    EXPECT_FALSE(contents[1]);
    EXPECT_FALSE(contents[2]);
    EXPECT_FALSE(contents[3]);
    ASSERT_TRUE(version);
    EXPECT_EQ(version->size, 5);
}

} // namespace corvane::test
