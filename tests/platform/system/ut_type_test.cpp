#include "platform/system/ut_type.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

UTType ofExtension(const char *extension)
{
    return UTType::forFilenameExtension(QString::fromUtf8(extension));
}

TEST(UTType, KnowsCommonExtensionsInAnyCase)
{
    EXPECT_EQ(ofExtension("png"), UTType::png());
    EXPECT_EQ(ofExtension("PNG"), UTType::png());
    EXPECT_EQ(ofExtension("txt").identifier(), QStringLiteral("text/plain"));
    EXPECT_EQ(ofExtension("jpg").preferredMimeType(), QStringLiteral("image/jpeg"));
}

TEST(UTType, IsInvalidForAnUnknownExtension)
{
    EXPECT_FALSE(ofExtension("").isValid());
    EXPECT_FALSE(ofExtension("no-such-extension").isValid());
    EXPECT_FALSE(ofExtension("../etc/passwd").isValid());
    EXPECT_TRUE(UTType().preferredFilenameExtension().isEmpty());
}

TEST(UTType, CountsTiffItselfAsTiff)
{
    EXPECT_TRUE(UTType::tiff().isTiff());
    EXPECT_TRUE(ofExtension("tif").isTiff());
    EXPECT_TRUE(ofExtension("TIFF").isTiff());
    EXPECT_FALSE(UTType::png().isTiff());
    EXPECT_FALSE(UTType().isTiff());
}

TEST(UTType, DoesNotCountCameraRawFormatsAsTiff)
{
    for (const char *raw : {"nef", "dng", "cr2", "pef", "arw"})
        EXPECT_FALSE(ofExtension(raw).isTiff()) << raw;
}

TEST(UTType, NamesItsExtension)
{
    EXPECT_EQ(UTType::png().preferredFilenameExtension(), QStringLiteral("png"));
    EXPECT_EQ(UTType(QStringLiteral("x-own/kind")).preferredFilenameExtension(), QString());
    EXPECT_EQ(UTType(QStringLiteral("x-own/kind")).identifier(), QStringLiteral("x-own/kind"));
}

TEST(UTType, StaysRightAfterMoreExtensionsThanAreRemembered)
{
    for (int i = 0; i < 2000; ++i)
        EXPECT_FALSE(UTType::forFilenameExtension(QStringLiteral("zz%1").arg(i)).isValid());
    EXPECT_EQ(ofExtension("png"), UTType::png());
}

} // namespace
} // namespace corvane
