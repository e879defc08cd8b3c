#include "app/updates/claimed_release.h"
#include "app/updates/test_key.h"
#include "app/updates/update_folder.h"
#include "app/updates/update_installation.h"
#include "app/updates/update_key.h"
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
    = requires(InstallationSteps &files, File &file, const QByteArray &name)
{
    update_installation::handOver(files, file, name);
};

std::shared_ptr<UpdateFile> downloaded(const UpdateFolder &folder, const QByteArray &bytes)
{
    int error = 0;
    std::shared_ptr<UpdateFile> file = UpdateFile::make(folder.path(), bytes.size(), error);
    if (!file || !file->append(bytes))
        ADD_FAILURE() << error;
    return file;
}

ClaimedFile claimOf(const QByteArray &bytes, const TestKey &signer)
{
    ClaimedFile claim;
    claim.length = bytes.size();
    claim.signature = signer.sign(bytes);
    return claim;
}

} // namespace

TEST(VerifiedDownload, NothingElseCanBeInstalledAndNobodyElseMakesOne)
{
    static_assert(canBeSwapped<VerifiedDownload> && canBeHandedOver<VerifiedDownload>);
    static_assert(!canBeSwapped<UpdateFile> && !canBeHandedOver<UpdateFile>);
    static_assert(!canBeSwapped<ClaimedFile> && !canBeHandedOver<ClaimedFile>);
    static_assert(!std::is_default_constructible_v<VerifiedDownload>);
    static_assert(!std::is_constructible_v<VerifiedDownload, std::shared_ptr<UpdateFile>>);
    static_assert(!std::is_constructible_v<VerifiedDownload, ClaimedFile>);
    static_assert(!std::is_copy_constructible_v<VerifiedDownload>);
}

TEST(VerifiedDownload, AClaimThatTheBytesDoNotKeepMakesNoneAndTheFileGoes)
{
    UpdateFolder folder;
    const TestKey owner;
    const auto key = UpdateKey::fromBase64(owner.publicText());
    ASSERT_TRUE(key);
    auto file = downloaded(folder, "what came");
    EXPECT_FALSE(key->verify(file, claimOf("announced", owner)));
    EXPECT_FALSE(key->verify(file, claimOf("what came", TestKey())));
    EXPECT_TRUE(key->verify(file, claimOf("what came", owner)));
    file.reset();
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("Corvane.AppImage")});
}

TEST(VerifiedDownload, TheFileStaysOnceItWasInstalled)
{
    UpdateFolder folder;
    const TestKey owner;
    {
        auto verified = UpdateKey::fromBase64(owner.publicText())
                            ->verify(downloaded(folder, "what came"), claimOf("what came", owner));
        ASSERT_TRUE(verified);
        EXPECT_EQ(UpdateFolder::contents(verified->path()), "what came");
        verified->release();
    }
    EXPECT_EQ(folder.names().size(), 2);
}

} // namespace corvane::test
