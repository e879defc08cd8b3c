#include "app/updates/app_image_bytes.h"
#include "app/updates/update_folder.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

const QString ours = QStringLiteral("example.corvane.Corvane");

bool isOurs(const QByteArray &bytes, const char *architecture = "x86_64")
{
    return app_image_bytes::isOf({reinterpret_cast<const unsigned char *>(bytes.constData()),
                                  static_cast<std::size_t>(bytes.size())},
                                 ours, QString::fromLatin1(architecture));
}

QByteArray changed(qsizetype at, char byte)
{
    QByteArray bytes = UpdateFolder::newImage();
    bytes[at] = byte;
    return bytes;
}

} // namespace

TEST(AppImageBytes, OneOfOursIsKnown)
{
    EXPECT_TRUE(isOurs(UpdateFolder::newImage()));
    EXPECT_TRUE(isOurs(changed(10, 1))) << "of the first format";
}

TEST(AppImageBytes, EveryByteOfTheMarkCounts)
{
    for (const qsizetype at : {0, 1, 2, 3, 8, 9})
        EXPECT_FALSE(isOurs(changed(at, 'x'))) << at;
    EXPECT_FALSE(isOurs(changed(10, 0)));
    EXPECT_FALSE(isOurs(changed(10, 3)));
}

TEST(AppImageBytes, ItIsForThisArchitectureAlone)
{
    EXPECT_FALSE(isOurs(UpdateFolder::newImage(), "arm64"));
    EXPECT_TRUE(isOurs(changed(18, static_cast<char>(183)), "arm64"));
    EXPECT_FALSE(isOurs(changed(18, 3))) << "i386";
    EXPECT_FALSE(isOurs(changed(19, 1)));
    EXPECT_FALSE(isOurs(changed(4, 1))) << "32 bits";
    EXPECT_FALSE(isOurs(changed(5, 2))) << "the other byte order";
    EXPECT_FALSE(isOurs(UpdateFolder::newImage(), "z80"));
}

TEST(AppImageBytes, AnotherProgramsIsNotOurs)
{
    QByteArray other = UpdateFolder::newImage();
    other.replace("=example.corvane.Corvane\n", "=example.corvane.Corvanx\n");
    EXPECT_FALSE(isOurs(other));
    other.replace("=example.corvane.Corvanx\n", "=example.corvane.Corvane2");
    EXPECT_FALSE(isOurs(other)) << "whose id begins like ours";
}

TEST(AppImageBytes, FewBytesAreNone)
{
    for (qsizetype size = 0; size < 20; ++size)
        EXPECT_FALSE(isOurs(UpdateFolder::newImage().left(size))) << size;
}

TEST(AppImageBytes, TheMarkMayStandAnywhereAndOtherBytesBehindIt)
{
    EXPECT_TRUE(isOurs(UpdateFolder::newImage() + "what others add"));
}

} // namespace corvane::test
