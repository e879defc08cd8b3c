#include "app/updates/test_key.h"
#include "app/updates/update_key.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class UpdateKeyTest : public testing::Test {
protected:
    bool isSigned(const QByteArray &bytes, const QByteArray &signature) const
    {
        const auto key = UpdateKey::fromBase64(owner.publicText());
        return key && key->hasSigned(bytes, signature);
    }

    TestKey owner;
    QByteArray file = QByteArray(200'000, 'f');
};

} // namespace

TEST_F(UpdateKeyTest, KnowsWhatItHasSigned)
{
    EXPECT_TRUE(isSigned(file, owner.sign(file)));
    EXPECT_TRUE(isSigned("x", owner.sign("x")));
    EXPECT_TRUE(isSigned({}, owner.sign({})));
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
    EXPECT_FALSE(isSigned(file, owner.sign(file) + 'x'));
}

TEST_F(UpdateKeyTest, SomebodyElsesSignatureDoesNotCount)
{
    EXPECT_FALSE(isSigned(file, TestKey().sign(file)));
}

TEST(UpdateKey, WhatIsNoKeyIsNone)
{
    for (const char *text : {"", "REPLACE_ME", "QUJD", "%%%%"})
        EXPECT_FALSE(UpdateKey::fromBase64(QString::fromLatin1(text))) << text;
    EXPECT_FALSE(UpdateKey::fromBase64(QString::fromLatin1(QByteArray(33, 'k').toBase64())));
    EXPECT_TRUE(UpdateKey::fromBase64(QString::fromLatin1(QByteArray(32, 'k').toBase64())));
}

} // namespace corvane::test
