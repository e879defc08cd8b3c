#include "app/updates/test_key.h"
#include "app/updates/update_folder.h"
#include "app/updates/update_key.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class UpdateKeyTest : public testing::Test {
protected:
    bool isSigned(const QByteArray &bytes, const QByteArray &signature,
                  std::optional<qint64> length = {})
    {
        int error = 0;
        const std::shared_ptr<UpdateFile> stored
            = UpdateFile::make(folder.path(), bytes.size(), error);
        const auto key = UpdateKey::fromBase64(owner.publicText());
        if (!stored || !stored->append(bytes) || !key) {
            ADD_FAILURE() << "no file or no key: " << error;
            return false;
        }
        ClaimedFile claim;
        claim.length = length.value_or(bytes.size());
        claim.signature = signature;
        const auto verified = key->verify(stored, claim);
        EXPECT_TRUE(!verified || verified->path() == stored->path());
        return verified.has_value();
    }

    UpdateFolder folder;
    TestKey owner;
    QByteArray file = QByteArray(200'000, 'f');
};

} // namespace

TEST_F(UpdateKeyTest, KnowsWhatItHasSigned)
{
    EXPECT_TRUE(isSigned(file, owner.sign(file)));
    EXPECT_TRUE(isSigned("x", owner.sign("x")));
}

TEST_F(UpdateKeyTest, EveryBitOfTheFileCounts)
{
    const QByteArray signature = owner.sign(file);
    for (const qsizetype at : {qsizetype{0}, file.size() / 2, file.size() - 1}) {
        QByteArray other = file;
        other[at] = static_cast<char>(other.at(at) ^ 1);
        EXPECT_FALSE(isSigned(other, signature)) << at;
    }
    EXPECT_FALSE(isSigned(file + 'x', signature));
    EXPECT_FALSE(isSigned(file.chopped(1), signature));
}

TEST_F(UpdateKeyTest, EveryBitOfTheSignatureCounts)
{
    for (const qsizetype at : {0, 31, 32, 63}) {
        QByteArray signature = owner.sign(file);
        signature[at] = static_cast<char>(signature.at(at) ^ 1);
        EXPECT_FALSE(isSigned(file, signature)) << at;
    }
    EXPECT_FALSE(isSigned(file, QByteArray(64, '\0')));
    EXPECT_FALSE(isSigned(file, {}));
    EXPECT_FALSE(isSigned(file, owner.sign(file).chopped(1)));
}

TEST_F(UpdateKeyTest, SomebodyElsesSignatureDoesNotCount)
{
    EXPECT_FALSE(isSigned(file, TestKey().sign(file)));
}

TEST_F(UpdateKeyTest, AFileOfAnotherLengthThanAnnouncedIsNotSigned)
{
    EXPECT_FALSE(isSigned(file, owner.sign(file), file.size() - 1));
    EXPECT_FALSE(isSigned(file, owner.sign(file), file.size() + 1));
    EXPECT_FALSE(isSigned({}, owner.sign({}), 0));
}

TEST(UpdateKey, WhatIsNoKeyIsNone)
{
    for (const char *text : {"", "REPLACE_ME", "QUJD", "%%%%"})
        EXPECT_FALSE(UpdateKey::fromBase64(QString::fromLatin1(text))) << text;
    EXPECT_FALSE(UpdateKey::fromBase64(QString::fromLatin1(QByteArray(33, 'k').toBase64())));
    EXPECT_TRUE(UpdateKey::fromBase64(QString::fromLatin1(QByteArray(32, 'k').toBase64())));
}

} // namespace corvane::test
