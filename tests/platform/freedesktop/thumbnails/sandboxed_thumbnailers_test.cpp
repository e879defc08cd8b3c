#include "e2e/desktop/eventually.h"
#include "fakes/film.h"
#include "fakes/in_process_codec.h"
#include "platform/base/cancellation.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/thumbnails/sandboxed_thumbnailers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <optional>
#include <random>
#include <thread>

namespace corvane::test {

namespace {

using Outcome = ExternalThumbnailers::Result::Outcome;

/// A user whose one thumbnail program is a script that a test writes.
class SandboxedThumbnailersTest : public testing::Test {
protected:
    SandboxedThumbnailersTest()
    {
        for (const char *name : {"bin", "data/thumbnailers", "films"})
            QDir(folder.path()).mkpath(QLatin1String(name));
        write("films/a.avi", "film");
    }
    void SetUp() override
    {
        if (!sandbox->isAvailable())
            GTEST_SKIP() << "no program can be shut in here";
    }

    QByteArray path(const QByteArray &name) const { return top + '/' + name; }
    void write(const QByteArray &name, const QByteArray &contents) const
    {
        QFile file(QFile::decodeName(path(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(contents);
    }
    QByteArray read(const QByteArray &name) const
    {
        QFile file(QFile::decodeName(path(name)));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /// From now on films are shown by this script, which gets input, output, size and address.
    void install(const QByteArray &script) const
    {
        write("bin/show", "#!/bin/sh\n" + script + '\n');
        ::chmod(path("bin/show").constData(), 0755);
        write("data/thumbnailers/show.thumbnailer",
              "[Thumbnailer Entry]\nExec=show %i %o %s %u\nMimeType=video/x-msvideo;\n");
    }
    ExternalThumbnailers::Result run(const QByteArray &name = "films/a.avi")
    {
        return thumbnailers.run(FileVersion::at(path(name)).value(), 128, cancellation);
    }

    QTemporaryDir folder;
    QByteArray top = QFile::encodeName(folder.path());
    ThumbnailerRegistry registry{{path("data")},
                                 QByteArrayList{path("bin")}
                                     + ThumbnailerRegistry::environmentProgramFolders()};
    std::optional<Sandbox> sandbox{ThumbnailerRegistry::environmentProgramFolders()};
    /// Long for what ends, and short for what never does.
    SandboxedThumbnailers thumbnailers{registry, *sandbox, 1.5};
    SandboxedThumbnailers patient{registry, *sandbox, 60};
    Cancellation cancellation;
};

/// Whether any process has that among its arguments.
bool isRunning(const QByteArray &argument)
{
    for (const QString &process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(process));
        if (commandLine.open(QFile::ReadOnly)
            && commandLine.readAll().split('\0').contains(argument))
            return true;
    }
    return false;
}

} // namespace

TEST_F(SandboxedThumbnailersTest, giveWhatTheProgramLeft)
{
    install(R"(echo "$@" > "$2")");
    const auto result = run();
    EXPECT_EQ(result.outcome, Outcome::Made);
    EXPECT_EQ(result.png, "/in/file.avi /out/thumbnail.png 128 file:///in/file.avi\n");
}

TEST_F(SandboxedThumbnailersTest, handTheFileOverUnderANameThatSaysNothing)
{
    install(R"(cat "$1" > "$2"; echo "$1" >> "$2")");
    for (const char *name :
         {"films/-rf $(id) \"'; %o.avi", "films/a\nb.AVI", "films/Ż\xf0\x9f\x90\xa2.avi"}) {
        write(name, "film");
        const auto result = run(name);
        EXPECT_EQ(result.outcome, Outcome::Made) << name;
        EXPECT_TRUE(result.png.toLower() == "film/in/file.avi\n") << result.png.constData();
    }
}

TEST_F(SandboxedThumbnailersTest, handOverFilesWhoseNamesAreNoText)
{
    install(R"(cat "$1" > "$2")");
    const QByteArray odd = path("films/broken\xff.avi");
    ASSERT_EQ(::rename(path("films/a.avi").constData(), odd.constData()), 0);
    const auto result = thumbnailers.run(FileVersion::at(odd).value(), 128, cancellation);
    ::unlink(odd.constData());
    EXPECT_EQ(result.png, "film");
}

TEST_F(SandboxedThumbnailersTest, showTheProgramNeitherTheHomeNorTheFilesNeighbours)
{
    write("films/secret", "secret");
    install("cat " + path("films/secret")
            + R"( > "$2"; ls -A / /in /tmp /home /root /etc >> "$2" 2>/dev/null; true)");
    const auto result = run();
    EXPECT_EQ(result.outcome, Outcome::Made);
    EXPECT_FALSE(result.png.contains("secret")) << result.png.constData();
    EXPECT_FALSE(result.png.contains("passwd")) << result.png.constData();
    EXPECT_TRUE(result.png.contains("file.avi"));
}

TEST_F(SandboxedThumbnailersTest, letTheProgramChangeNothing)
{
    install("echo x >> \"$1\"; rm -f \"$1\"; touch " + path("films/new")
            + "; touch /usr/new /new /in/new /dev/new; echo x >> \"$0\"; echo > \"$2\"");
    EXPECT_EQ(run().outcome, Outcome::Made);
    EXPECT_EQ(read("films/a.avi"), "film");
    EXPECT_EQ(read("films/new"), "none");
    EXPECT_FALSE(read("bin/show").endsWith("x\n"));
    EXPECT_NE(::access("/usr/new", F_OK), 0);
}

TEST_F(SandboxedThumbnailersTest, giveTheProgramNoNetworkAndNoOtherProcesses)
{
    install(
        R"(grep -c : /proc/net/dev > "$2"; grep -q lo: /proc/net/dev && ls /proc | grep -c '^[0-9]' >> "$2")");
    const auto result = run();
    const QList<QByteArray> lines = result.png.trimmed().split('\n');
    EXPECT_EQ(lines.value(0), "1") << "only the loop";
    EXPECT_LT(lines.value(1, "1000").toInt(), 10);
}

TEST_F(SandboxedThumbnailersTest, giveTheProgramNothingOfThisProcess)
{
    qputenv("CORVANE_TEST_SECRET", "secret");
    const int leak = ::open("/dev/null", O_RDONLY);
    ASSERT_EQ(::dup2(leak, 77), 77);
    install(R"(env > "$2"; ls /proc/self/fd >> "$2")");
    const auto result = run();
    ::close(77);
    ::close(leak);
    qunsetenv("CORVANE_TEST_SECRET");
    EXPECT_EQ(result.outcome, Outcome::Made);
    EXPECT_FALSE(result.png.contains("secret"));
    EXPECT_FALSE(result.png.split('\n').contains("77"));
}

TEST_F(SandboxedThumbnailersTest, filterWhatTheProgramAsksOfTheKernel)
{
    install(
        R"(grep ^Seccomp: /proc/self/status > "$2"; unshare --user true && echo out >> "$2"; true)");
    const auto result = run();
    EXPECT_EQ(result.outcome, Outcome::Made);
    EXPECT_EQ(result.png.simplified(), "Seccomp: 2") << "filtered, and no way into namespaces";
}

TEST_F(SandboxedThumbnailersTest, showTheProgramNothingOfOtherVendors)
{
    install(R"(ls -d /opt > "$2" 2>/dev/null; true)");
    EXPECT_EQ(run().png, "");
}

TEST_F(SandboxedThumbnailersTest, boundTheFilesAndTheProcessesOfAProgram)
{
    install(R"(grep -E '^Max (file size|processes)' /proc/self/limits > "$2")");
    const QByteArray bytes = QByteArray::number(Sandbox::fileBytes);
    const QByteArray processes = QByteArray::number(Sandbox::processes);
    const QByteArray expected = "Max file size " + bytes + ' ' + bytes + " bytes Max processes "
        + processes + ' ' + processes + " processes";
    EXPECT_EQ(run().png.simplified().toStdString(), expected.toStdString());
}

TEST_F(SandboxedThumbnailersTest, giveTheProgramNoRightsOfRoot)
{
    install(R"(grep -E '^(CapEff|CapPrm|NoNewPrivs):' /proc/self/status > "$2")");
    EXPECT_EQ(run().png.simplified(),
              "CapPrm: 0000000000000000 CapEff: 0000000000000000 NoNewPrivs: 1");
}

TEST_F(SandboxedThumbnailersTest, showTheProgramNoPlacesOfUsers)
{
    install(R"(ls -d /home /root /mnt /media /srv /var/lib /run /sys > "$2" 2>/dev/null; true)");
    EXPECT_EQ(run().png, "");
}

TEST_F(SandboxedThumbnailersTest, stopAProgramThatIgnoresToBeAsked)
{
    install("trap '' TERM INT HUP; while :; do sleep 1000.25; done");
    EXPECT_EQ(run().outcome, Outcome::Stopped);
    while (isRunning("1000.25"))
        std::this_thread::yield();
}

TEST_F(SandboxedThumbnailersTest, endWhatAProgramStartedWithIt)
{
    install(R"(setsid sleep 1000.5 & (sleep 1000.5 &) ; echo done > "$2")");
    const auto result = run();
    EXPECT_EQ(result.outcome, Outcome::Made);
    EXPECT_EQ(result.png, "done\n");
    while (isRunning("1000.5"))
        std::this_thread::yield();
}

TEST_F(SandboxedThumbnailersTest, endAProgramWithItsOwnerCancelled)
{
    install("sleep 1000.75");
    std::thread impatient([this] {
        while (!isRunning("1000.75"))
            std::this_thread::yield();
        cancellation.cancel();
    });
    const auto result
        = patient.run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation);
    impatient.join();
    EXPECT_EQ(result.outcome, Outcome::Stopped);
    while (isRunning("1000.75"))
        std::this_thread::yield();
}

TEST_F(SandboxedThumbnailersTest, startNothingThatNobodyWants)
{
    install("sleep 1000");
    cancellation.cancel();
    EXPECT_EQ(patient.run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation).outcome,
              Outcome::Stopped);
}

TEST_F(SandboxedThumbnailersTest, leaveNothingOfAProgramThatIsStoppedWhileItStarts)
{
    install("sleep 1000.125");
    std::mt19937 chance(7);
    std::uniform_int_distribution<int> microseconds(0, 15'000);
    for (int i = 0; i < 200; ++i) {
        Cancellation soon;
        std::thread impatient([&soon, moment = std::chrono::microseconds(microseconds(chance))] {
            const auto start = std::chrono::steady_clock::now();
            while (std::chrono::steady_clock::now() - start < moment)
                std::this_thread::yield();
            soon.cancel();
        });
        const auto outcome
            = patient.run(FileVersion::at(path("films/a.avi")).value(), 128, soon).outcome;
        impatient.join();
        EXPECT_EQ(outcome, Outcome::Stopped);
    }
    // Bubblewrap is told the file's name, the program is not.
    EXPECT_TRUE(e2e::eventually(
        [this] { return !isRunning(path("films/a.avi")) && !isRunning("1000.125"); }));
}

TEST_F(SandboxedThumbnailersTest, keepTheSandboxInTheGroupThatIsKilled)
{
    // The fifth field is the group: 0 for one whose leader is outside.
    install(R"(cut -d ' ' -f 5 /proc/1/stat > "$2")");
    EXPECT_EQ(run().png, "0\n");
}

TEST(BoundedProcess, KillsWhatAProgramStartedTooAtALimit)
{
    Cancellation never;
    const auto result = bounded_process::run(
        {"/bin/sh", "-c", "sleep 1000.625 & echo started; wait"}, {60, 4}, never);
    EXPECT_EQ(result.outcome, bounded_process::Result::Outcome::Killed);
    EXPECT_TRUE(e2e::eventually([] { return !isRunning("1000.625"); }));
}

TEST(BoundedProcess, GivesNoBlockedSignalsOn)
{
    sigset_t signals;
    sigset_t before;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    ::pthread_sigmask(SIG_BLOCK, &signals, &before);
    Cancellation never;
    const auto result = bounded_process::run({"/bin/sh", "-c", "grep SigBlk /proc/self/status"},
                                             {60, 100}, never);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(result.output, "SigBlk:\t0000000000000000\n");
}

TEST_F(SandboxedThumbnailersTest, boundWhatAProgramPrintsAndWrites)
{
    install(R"(yes > "$2"; true)");
    EXPECT_EQ(patient.run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation).outcome,
              Outcome::Stopped)
        << "too large to be taken";
    install("yes; true");
    EXPECT_EQ(run().outcome, Outcome::Stopped) << "it printed until its time was over";
    install("yes >&2; true");
    EXPECT_EQ(run().outcome, Outcome::Stopped);
    install(R"(i=0; while yes > /tmp/$i; [ $i -lt 5 ]; do i=$((i+1)); done; du -sm /tmp > "$2")");
    const auto full = patient.run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation);
    EXPECT_LE(full.png.split('\t').value(0).toInt(), Sandbox::fileBytes / 1024 / 1024 + 1)
        << "all files together, rounded up";
}

TEST_F(SandboxedThumbnailersTest, boundTheMemoryOfAProgram)
{
    install(R"(ulimit -v > "$2"; ulimit -t >> "$2"; ulimit -c >> "$2")");
    EXPECT_EQ(run().png,
              QByteArray::number(Sandbox::addressSpace / 1024) + '\n'
                  + QByteArray::number(Sandbox::processorSeconds) + "\n0\n");
}

TEST_F(SandboxedThumbnailersTest, doNotFollowWhatAProgramLeftInPlaceOfAFile)
{
    install(R"(ln -s /etc/passwd "$2")");
    EXPECT_EQ(run().outcome, Outcome::Failed);
    install(R"(mkfifo "$2")");
    EXPECT_EQ(run().outcome, Outcome::Stopped);
    install(R"(mkdir "$2")");
    EXPECT_EQ(run().outcome, Outcome::Failed);
    install("true");
    EXPECT_EQ(run().outcome, Outcome::Failed);
}

TEST_F(SandboxedThumbnailersTest, tellAFileThatFailedFromAProgramThatWasKilled)
{
    install(R"(echo half > "$2"; exit 1)");
    EXPECT_EQ(run().outcome, Outcome::Failed);
    install("kill -SEGV $$");
    EXPECT_EQ(run().outcome, Outcome::Failed);
    install("kill -KILL $$");
    EXPECT_EQ(run().outcome, Outcome::Stopped) << "as when memory is short";
}

TEST_F(SandboxedThumbnailersTest, blameNoFileWhereTheProgramCouldNotBegin)
{
    install("exit 1");
    const auto film = FileVersion::at(path("films/a.avi")).value();
    QFile::remove(QFile::decodeName(film.path));
    EXPECT_EQ(thumbnailers.run(film, 128, cancellation).outcome, Outcome::Stopped)
        << "there is nothing to show it";
    write("films/a.avi", "film");
    EXPECT_EQ(run().outcome, Outcome::Failed) << "it did not like what it saw";
    write("bin/show", "#!/no/such/shell\n");
    EXPECT_EQ(run().outcome, Outcome::Stopped);
}

TEST_F(SandboxedThumbnailersTest, leaveNoProcessToBeWaitedFor)
{
    install("true");
    run();
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(SandboxedThumbnailersTest, knowAFileByItsContentsWhereItsNameSaysNothing)
{
    install(R"(echo "$1" > "$2")");
    write("films/unnamed", film());
    EXPECT_EQ(run("films/unnamed").png, "/in/file\n");
}

TEST_F(SandboxedThumbnailersTest, areNotThereForOtherKinds)
{
    install(R"(echo "$1" > "$2")");
    write("films/a.txt", "text");
    write("films/none", "");
    EXPECT_EQ(run("films/a.txt").outcome, Outcome::NotThere);
    EXPECT_EQ(run("films/none").outcome, Outcome::NotThere);
}

TEST_F(SandboxedThumbnailersTest, standInForKindsThatTheFilesKindBelongsTo)
{
    install(R"(echo "$1" > "$2")");
    write("data/thumbnailers/show.thumbnailer",
          "[Thumbnailer Entry]\nExec=show %i %o\nMimeType=application/zip;\n");
    write("films/a.odt", "PK");
    EXPECT_EQ(run("films/a.odt").outcome, Outcome::Made);
}

TEST_F(SandboxedThumbnailersTest, runNothingWhereNothingCanBeShutIn)
{
    install("touch " + path("films/ran") + R"(; echo > "$2")");
    const Sandbox missing({path("data")});
    EXPECT_FALSE(missing.isAvailable());
    EXPECT_EQ(SandboxedThumbnailers(registry, missing)
                  .run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation)
                  .outcome,
              Outcome::NotThere);
    write("bin/bwrap", "#!/bin/sh\necho no permission >&2\nexit 1\n");
    ::chmod(path("bin/bwrap").constData(), 0755);
    const Sandbox forbidden(QByteArrayList{path("bin")}
                            + ThumbnailerRegistry::environmentProgramFolders());
    EXPECT_FALSE(forbidden.isAvailable());
    EXPECT_EQ(SandboxedThumbnailers(registry, forbidden)
                  .run(FileVersion::at(path("films/a.avi")).value(), 128, cancellation)
                  .outcome,
              Outcome::NotThere);
    EXPECT_EQ(read("films/ran"), "none");
}

TEST_F(SandboxedThumbnailersTest, showAFilmWithTheInstalledProgram)
{
    if (::access("/usr/share/thumbnailers/ffmpegthumbnailer.thumbnailer", R_OK) != 0)
        GTEST_SKIP() << "ffmpegthumbnailer is not installed";
    const ThumbnailerRegistry installed({"/usr/share"},
                                        ThumbnailerRegistry::environmentProgramFolders());
    write("films/red.avi", film());
    const auto result = SandboxedThumbnailers(installed, *sandbox, 60)
                            .run(FileVersion::at(path("films/red.avi")).value(), 128, cancellation);
    ASSERT_EQ(result.outcome, Outcome::Made);
    const auto picture = test::InProcessCodec().thumbnail(result.png, 128);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(128, 96));
    EXPECT_GT(picture->pixelColor(64, 48).red(), 200);
    write("films/broken.avi", film().first(300));
    EXPECT_EQ(SandboxedThumbnailers(installed, *sandbox, 60)
                  .run(FileVersion::at(path("films/broken.avi")).value(), 128, cancellation)
                  .outcome,
              Outcome::Failed);
}

} // namespace corvane::test
