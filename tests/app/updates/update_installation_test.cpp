#include "app/updates/installation_steps.h"
#include "app/updates/statements.h"
#include "app/updates/update_file.h"
#include "app/updates/update_folder.h"
#include "app/updates/update_installation.h"
#include "app/updates/verified_download.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <optional>

namespace corvane::test {

namespace {

using namespace update_installation;

/// The real steps, of which one ends the process or fails.
class FaultyFiles : public PosixInstallationSteps {
public:
    enum class Fault { KillBefore, KillAfter, Fail };

    FaultyFiles(int step, Fault fault)
        : m_step(step)
        , m_fault(fault)
    {
    }

    int takePermissions(int descriptor, const QByteArray &path) override
    {
        return step([&] { return PosixInstallationSteps::takePermissions(descriptor, path); });
    }
    int sync(int descriptor) override
    {
        return step([&] { return PosixInstallationSteps::sync(descriptor); });
    }
    int syncFolder(const QByteArray &folder) override
    {
        return step([&] { return PosixInstallationSteps::syncFolder(folder); });
    }
    int keep(const QByteArray &path, const QByteArray &otherPath) override
    {
        return step([&] { return PosixInstallationSteps::keep(path, otherPath); });
    }
    int replace(const QByteArray &from, const QByteArray &to) override
    {
        return step([&] { return PosixInstallationSteps::replace(from, to); });
    }
    int giveName(int descriptor, const QByteArray &path) override
    {
        return step([&] { return PosixInstallationSteps::giveName(descriptor, path); });
    }

    int steps() const { return m_count; }

private:
    int step(const std::function<int()> &work)
    {
        const bool isIt = m_count++ == m_step;
        if (isIt && m_fault == Fault::Fail)
            return EIO;
        if (isIt && m_fault == Fault::KillBefore)
            ::kill(::getpid(), SIGKILL);
        const int outcome = work();
        if (isIt && m_fault == Fault::KillAfter)
            ::kill(::getpid(), SIGKILL);
        return outcome;
    }

    int m_step;
    Fault m_fault;
    int m_count = 0;
};

constexpr int noStep = -1;
constexpr int stepsOfSwap = 7;
constexpr int replacement = 5;

std::unique_ptr<UpdateFile> downloaded(const UpdateFolder &folder)
{
    int error = 0;
    const QByteArray image = UpdateFolder::newImage();
    auto file = UpdateFile::make(folder.path(), image.size(), error);
    if (file)
        file->append(image);
    return file;
}

/// The same, verified.
std::optional<VerifiedDownload> verified(const UpdateFolder &folder,
                                         const QByteArray &address = "https://a.test/new.bin")
{
    static const TestKey owner;
    const QByteArray image = UpdateFolder::newImage();
    Statement statement = Statement::of("11", image);
    statement.address = address;
    const QByteArray bytes = statement.bytes();
    const auto key = UpdateKey::fromBytes(owner.publicBytes());
    const auto release = VerifiedRelease::of({bytes, owner.sign(bytes)}, *key);
    return VerifiedDownload::of(downloaded(folder), *release, {*key}, owner.sign(image));
}

/// How a swap in a process of its own ended: the signal that killed it.
int swapInOtherProcess(const UpdateFolder &folder, int step, FaultyFiles::Fault fault)
{
    const pid_t child = ::fork();
    if (child == 0) {
        FaultyFiles files(step, fault);
        auto file = verified(folder);
        swap(files, *file, folder.appImage());
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

mode_t permissions(const QByteArray &path)
{
    struct stat status = {};
    ::stat(path.constData(), &status);
    return status.st_mode & 07777U;
}

const QStringList onlyTheImage{QStringLiteral("Corvane.AppImage")};
const QStringList imageAndPrevious{QStringLiteral("Corvane.AppImage"),
                                   QStringLiteral("Corvane.AppImage.before-update")};

} // namespace

TEST(UpdateSwap, TheNewOneTakesThePlaceAndTheOldOneIsKeptBesideIt)
{
    UpdateFolder folder;
    ASSERT_EQ(::chmod(folder.appImage().constData(), 0751), 0);
    FaultyFiles files(noStep, FaultyFiles::Fault::Fail);
    auto file = verified(folder);
    const Outcome outcome = swap(files, *file, folder.appImage());
    file.reset();
    EXPECT_EQ(outcome.error, 0);
    EXPECT_EQ(outcome.path, folder.appImage());
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
    EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
    EXPECT_EQ(permissions(folder.appImage()), 0751U);
    EXPECT_EQ(permissions(folder.previous()), 0751U);
    EXPECT_EQ(folder.names(), imageAndPrevious);
    EXPECT_EQ(files.steps(), stepsOfSwap) << "the tests below go through all of them";
}

TEST(UpdateSwap, WheneverTheProcessIsKilledAWholeImageIsThereAndTheNextSwapWorks)
{
    for (const auto fault : {FaultyFiles::Fault::KillBefore, FaultyFiles::Fault::KillAfter}) {
        for (int step = 0; step < stepsOfSwap; ++step) {
            UpdateFolder folder;
            ASSERT_EQ(swapInOtherProcess(folder, step, fault), SIGKILL) << step;
            const QByteArray image = UpdateFolder::contents(folder.appImage());
            const bool isReplaced = step > replacement
                || (step == replacement && fault == FaultyFiles::Fault::KillAfter);
            EXPECT_TRUE(image == (isReplaced ? UpdateFolder::newImage() : UpdateFolder::oldImage()))
                << step;
            EXPECT_EQ(permissions(folder.appImage()), 0740U) << step;
            if (isReplaced) {
                EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
            }

            PosixInstallationSteps files;
            auto file = verified(folder);
            ASSERT_EQ(swap(files, *file, folder.appImage()).error, 0) << step;
            file.reset();
            EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
            EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
            EXPECT_EQ(folder.names(), imageAndPrevious) << step;
        }
    }
}

TEST(UpdateSwap, WhateverFailsBeforeTheReplacementLeavesTheOldOneUntouched)
{
    for (int step = 0; step < stepsOfSwap - 1; ++step) {
        UpdateFolder folder;
        FaultyFiles files(step, FaultyFiles::Fault::Fail);
        auto file = verified(folder);
        EXPECT_EQ(swap(files, *file, folder.appImage()).error, EIO) << step;
        file.reset();
        EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage()) << step;
        EXPECT_EQ(folder.names().filter(QStringLiteral(".corvane-update")), QStringList());
    }
}

TEST(UpdateSwap, AFailureAfterTheReplacementIsNone)
{
    UpdateFolder folder;
    FaultyFiles files(stepsOfSwap - 1, FaultyFiles::Fault::Fail);
    auto file = verified(folder);
    EXPECT_EQ(swap(files, *file, folder.appImage()).error, 0);
    file.reset();
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
}

TEST(UpdateSwap, OfTwoUpdatesInARowTheOneThatRunsIsKept)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    for (int i = 0; i < 2; ++i) {
        auto file = verified(folder);
        ASSERT_EQ(swap(files, *file, folder.appImage()).error, 0);
    }
    EXPECT_TRUE(UpdateFolder::contents(folder.previous()) == UpdateFolder::oldImage());
}

TEST(UpdateSwap, SomethingElseUnderTheNameOfTheKeptOneIsLeftAloneAndNothingHappens)
{
    UpdateFolder folder;
    folder.write("Corvane.AppImage.before-update", "the user's");
    PosixInstallationSteps files;
    auto file = verified(folder);
    EXPECT_EQ(swap(files, *file, folder.appImage()).error, EEXIST);
    removePrevious(files, folder.appImage());
    EXPECT_EQ(UpdateFolder::contents(folder.previous()), "the user's");
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage());
}

TEST(UpdateSwap, AnImageThatIsGoneOrAnotherFileByNowIsNotReplaced)
{
    UpdateFolder folder;
    folder.write("Corvane.AppImage", "the user's");
    PosixInstallationSteps files;
    auto file = verified(folder);
    EXPECT_NE(swap(files, *file, folder.appImage()).error, 0);
    EXPECT_EQ(UpdateFolder::contents(folder.appImage()), "the user's");
    ASSERT_TRUE(QFile::remove(QFile::decodeName(folder.appImage())));
    EXPECT_NE(swap(files, *file, folder.appImage()).error, 0);
    EXPECT_FALSE(QFile::exists(QFile::decodeName(folder.appImage())));
}

// What is checked is an open file, so its names do not matter.
TEST(UpdateSwap, SomethingElseUnderTheTemporaryNameIsNotWhatIsInstalled)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    auto file = verified(folder);
    ASSERT_TRUE(QFile::remove(QFile::decodeName(file->path())));
    folder.write(file->path().mid(folder.path().size() + 1), UpdateFolder::image('x'));
    ASSERT_EQ(swap(files, *file, folder.appImage()).error, 0);
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
}

TEST(UpdateSwap, ANameThatSomebodyElseTookIsLeftAloneAndNothingHappens)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    auto file = verified(folder);
    const QByteArray name = file->path().mid(folder.path().size() + 1) + ".new";
    folder.write(name, "somebody else's");
    EXPECT_EQ(swap(files, *file, folder.appImage()).error, EEXIST);
    EXPECT_EQ(UpdateFolder::contents(folder.path(name)), "somebody else's");
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage());
}

TEST(UpdateSwap, WhatInterruptedSwapsLeftGoesWithTheNextStart)
{
    UpdateFolder folder;
    folder.write(".corvane-update-abcdef", "a download");
    folder.write(".corvane-update-abcdef.new", "its other name");
    folder.write("corvane-update-abcdef", "the user's");
    PosixInstallationSteps files;
    removePrevious(files, folder.appImage());
    EXPECT_EQ(
        folder.names(),
        (QStringList{QStringLiteral("Corvane.AppImage"), QStringLiteral("corvane-update-abcdef")}));
}

TEST(UpdateSwap, TheKeptOneGoesOnceTheNewOneRuns)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    auto file = verified(folder);
    ASSERT_EQ(swap(files, *file, folder.appImage()).error, 0);
    file.reset();
    removePrevious(files, folder.appImage());
    EXPECT_EQ(folder.names(), onlyTheImage);
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::newImage());
}

TEST(UpdateHandOver, NothingThatIsThereIsOverwritten)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    folder.write("new.bin", "the user's");
    for (const char *name : {"new-2.bin", "new-3.bin"}) {
        auto file = verified(folder);
        const Outcome outcome = handOver(files, *file, folder.path());
        EXPECT_EQ(outcome.error, 0);
        EXPECT_EQ(outcome.path, folder.path(name));
        EXPECT_TRUE(UpdateFolder::contents(outcome.path) == UpdateFolder::newImage());
    }
    EXPECT_EQ(UpdateFolder::contents(folder.path("new.bin")), "the user's");
}

TEST(UpdateHandOver, AFolderOnAnotherFileSystemGetsACopy)
{
    const UpdateFolder folder;
    const QTemporaryDir elsewhere(QStringLiteral("/dev/shm/updates-XXXXXX"));
    ASSERT_TRUE(elsewhere.isValid());
    const QByteArray target = QFile::encodeName(elsewhere.path()) + "/downloads";
    PosixInstallationSteps files;
    auto file = verified(folder);
    for (const char *name : {"/new.bin", "/new-2.bin"}) {
        const Outcome outcome = handOver(files, *file, target);
        EXPECT_EQ(outcome.path, target + name);
        EXPECT_TRUE(UpdateFolder::contents(outcome.path) == UpdateFolder::newImage());
    }
    EXPECT_EQ(QDir(QFile::decodeName(target)).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST(UpdateHandOver, AHundredNamesAreTriedAndNoMore)
{
    UpdateFolder folder;
    PosixInstallationSteps files;
    folder.write("new.bin", "1");
    for (int number = 2; number < 100; ++number)
        folder.write("new-" + QByteArray::number(number) + ".bin", "n");
    auto last = verified(folder);
    EXPECT_EQ(handOver(files, *last, folder.path()).path, folder.path("new-100.bin"));
    auto tooMany = verified(folder);
    EXPECT_EQ(handOver(files, *tooMany, folder.path()).error, EEXIST);
}

TEST(UpdateHandOver, ALinkThatWaitsUnderTheNameIsNotFollowed)
{
    UpdateFolder folder;
    ASSERT_EQ(::symlink("Corvane.AppImage", folder.path("new").constData()), 0);
    PosixInstallationSteps files;
    auto file = verified(folder, "https://a.test/new");
    EXPECT_EQ(handOver(files, *file, folder.path()).path, folder.path("new-2"));
    EXPECT_TRUE(UpdateFolder::contents(folder.appImage()) == UpdateFolder::oldImage());
}

TEST(UpdateHandOver, NamesAreTakenFromTheAddressOnlyWhereTheyAreHarmless)
{
    const auto name
        = [](const char *last) { return safeName(QString::fromUtf8(last), QStringLiteral("1.2")); };
    for (const char *last : {"Corvane-1.2-x86_64.AppImage", "a09azAZ+_-."})
        EXPECT_EQ(name(last), last);
    for (const char *last : {"", ".", "..", ".bashrc", "-rf", "a b", "a/b", "a\nb", "ä", "a%2fb",
                             "a:b", "a@b", "a[b", "a`b", "a{b"})
        EXPECT_EQ(name(last), "Corvane-1.2") << last;
    EXPECT_EQ(name(std::string(121, 'a').c_str()), "Corvane-1.2");
}

TEST(UpdateFile, GoesUnlessItWasInstalled)
{
    UpdateFolder folder;
    auto file = downloaded(folder);
    ASSERT_TRUE(file);
    EXPECT_EQ(permissions(file->path()), 0600U);
    EXPECT_EQ(folder.names().size(), 2);
    file.reset();
    EXPECT_EQ(folder.names(), onlyTheImage);
}

TEST(UpdateFile, WhatADeadProcessLeftGoesAndWhatIsInUseStays)
{
    UpdateFolder folder;
    folder.write(".corvane-update-abc123", "left");
    folder.write("corvane-update-mine", "the user's");
    const auto first = downloaded(folder);
    const auto second = downloaded(folder);
    EXPECT_EQ(folder.names().size(), 4);
    EXPECT_FALSE(folder.names().contains(QStringLiteral(".corvane-update-abc123")));
    EXPECT_TRUE(QFile::exists(QFile::decodeName(first->path())));
}

TEST(UpdateFile, AFolderThatCannotBeWrittenIsSaidSo)
{
    int error = 0;
    EXPECT_FALSE(UpdateFile::make("/proc/corvane", 1, error));
    EXPECT_NE(error, 0);
}

TEST(UpdateFile, AFullDiskIsToldOf)
{
    // A limit on the size of files looks like one, and needs no rights.
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    UpdateFolder folder;
    const rlimit small{100'000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    int error = 0;
    const auto file = UpdateFile::make(folder.path(), 90'000, error);
    const bool isTaken = file && file->append(QByteArray(90'000, 'x'));
    const bool isTooMuchTaken = file && file->append(QByteArray(20'000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(isTaken);
    EXPECT_FALSE(isTooMuchTaken);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->error(), EFBIG);
}

} // namespace corvane::test
