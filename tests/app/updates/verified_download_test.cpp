#include "app/updates/statements.h"
#include "app/updates/update_choice.h"
#include "app/updates/update_folder.h"
#include "app/updates/update_installation.h"
#include "app/updates/verified_download.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace corvane::test {

namespace {

template<typename File>
constexpr bool canBeSwapped = requires(InstallationSteps &files, File &file, const QByteArray &path)
{
    update_installation::swap(files, file, path);
};
template<typename File>
constexpr bool canBeHandedOver
    = requires(InstallationSteps &files, File &file, const QByteArray &folder)
{
    update_installation::handOver(files, file, folder);
};

class VerifiedDownloadTest : public testing::Test {
protected:
    std::shared_ptr<UpdateFile> downloaded(const QByteArray &bytes) const
    {
        int error = 0;
        std::shared_ptr<UpdateFile> file = UpdateFile::make(folder.path(), bytes.size(), error);
        if (!file || !file->append(bytes))
            ADD_FAILURE() << error;
        return file;
    }
    VerifiedRelease release(const Statement &statement) const
    {
        const QByteArray bytes = statement.bytes();
        return *VerifiedRelease::of({bytes, owner.sign(bytes)},
                                    *UpdateKey::fromBytes(owner.publicBytes()));
    }
    std::optional<VerifiedDownload> verified(const QByteArray &bytes, const Statement &statement,
                                             const QByteArray &signature) const
    {
        return VerifiedDownload::of(downloaded(bytes), release(statement),
                                    {*UpdateKey::fromBytes(owner.publicBytes())}, signature);
    }
    bool isVerified(const QByteArray &bytes, const Statement &statement) const
    {
        return verified(bytes, statement, owner.sign(bytes)).has_value();
    }

    UpdateFolder folder;
    TestKey owner;
};

} // namespace

TEST_F(VerifiedDownloadTest, NothingElseCanBeInstalledAndNobodyElseMakesOne)
{
    static_assert(canBeSwapped<VerifiedDownload> && canBeHandedOver<VerifiedDownload>);
    static_assert(!canBeSwapped<UpdateFile> && !canBeHandedOver<UpdateFile>);
    static_assert(!canBeSwapped<ClaimedFile> && !canBeHandedOver<ClaimedFile>);
    static_assert(!canBeSwapped<VerifiedRelease> && !canBeHandedOver<VerifiedRelease>);
    static_assert(!std::is_default_constructible_v<VerifiedDownload>);
    static_assert(!std::is_constructible_v<VerifiedDownload, std::shared_ptr<UpdateFile>>);
    static_assert(!std::is_constructible_v<VerifiedDownload, ClaimedFile>);
    static_assert(
        !std::is_constructible_v<VerifiedDownload, std::shared_ptr<UpdateFile>, VerifiedRelease>);
    static_assert(!std::is_copy_constructible_v<VerifiedDownload>);
}

TEST_F(VerifiedDownloadTest, WhatIsClaimedIsNoVerifiedReleaseAndNothingElseIsOffered)
{
    static_assert(!std::is_default_constructible_v<VerifiedRelease>);
    static_assert(!std::is_constructible_v<VerifiedRelease, ClaimedStatement>);
    static_assert(!std::is_constructible_v<VerifiedRelease, ClaimedRelease>);
    static_assert(!std::is_constructible_v<VerifiedRelease, ReleaseStatement>);
    static_assert(!std::is_constructible_v<VerifiedRelease, ReleaseStatement, ClaimedStatement>);
    static_assert(std::is_same_v<decltype(UpdateOffer::release), VerifiedRelease>);
}

TEST_F(VerifiedDownloadTest, TheFileIsTheStatedOneAndItsTemporaryNameGoes)
{
    {
        const auto download
            = verified("what came", Statement::of("11", "what came"), owner.sign("what came"));
        ASSERT_TRUE(download);
        EXPECT_EQ(UpdateFolder::contents(download->path()), "what came");
        EXPECT_EQ(download->statement().version.text(), QStringLiteral("11"));
    }
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("Corvane.AppImage")});
}

TEST_F(VerifiedDownloadTest, EveryByteOfTheFileCounts)
{
    const QByteArray file(200'000, 'f');
    const Statement statement = Statement::of("11", file);
    EXPECT_TRUE(isVerified(file, statement));
    for (const qsizetype at : {qsizetype{0}, file.size() / 2, file.size() - 1}) {
        QByteArray other = file;
        other[at] = static_cast<char>(other.at(at) ^ 1);
        EXPECT_FALSE(isVerified(other, statement)) << at;
    }
    EXPECT_FALSE(isVerified(file + 'x', statement));
    EXPECT_FALSE(isVerified(file.chopped(1), statement));
    EXPECT_FALSE(isVerified({}, statement));
}

TEST_F(VerifiedDownloadTest, AFileThatWasSignedForAnotherReleaseIsNone)
{
    EXPECT_FALSE(isVerified("the older one", Statement::of("11", "the newer one")));
}

TEST_F(VerifiedDownloadTest, TheSignatureOfTheFileAloneHasToBeRightAsWell)
{
    const Statement statement = Statement::of("11", "file");
    EXPECT_FALSE(verified("file", statement, TestKey().sign("file")));
    EXPECT_FALSE(verified("file", statement, {}));
    EXPECT_FALSE(verified("file", statement, owner.sign("file").chopped(1)));
    EXPECT_FALSE(
        VerifiedDownload::of(downloaded("file"), release(statement), {}, owner.sign("file")));
}

TEST_F(VerifiedDownloadTest, AnEarlierKeyMayHaveSignedTheFile)
{
    const TestKey earlier;
    EXPECT_TRUE(VerifiedDownload::of(
        downloaded("file"), release(Statement::of("11", "file")),
        {*UpdateKey::fromBytes(earlier.publicBytes()), *UpdateKey::fromBytes(owner.publicBytes())},
        earlier.sign("file")));
}

TEST_F(VerifiedDownloadTest, OnlyAnAppImageOfTheStatedProgramAndMachineIsOne)
{
    const auto isAppImage = [this](const QByteArray &bytes, auto change) {
        Statement statement = Statement::of("11", bytes);
        change(statement);
        const auto download = verified(bytes, statement, owner.sign(bytes));
        return download && download->isAppImage();
    };
    const auto same = [](Statement &) {};
    EXPECT_TRUE(isAppImage(UpdateFolder::newImage(), same));
    EXPECT_FALSE(isAppImage("a text", same));
    EXPECT_FALSE(isAppImage(UpdateFolder::newImage(),
                            [](Statement &statement) { statement.kind = "archive"; }));
    EXPECT_FALSE(isAppImage(UpdateFolder::newImage(),
                            [](Statement &statement) { statement.architecture = "arm64"; }));
    EXPECT_FALSE(isAppImage(UpdateFolder::newImage(), [](Statement &statement) {
        statement.application = "example.corvane.Other";
    }));
}

} // namespace corvane::test
