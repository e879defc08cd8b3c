#include "core/kept_record.h"

#include <gtest/gtest.h>

namespace corvane::kept_record {
namespace {

const QList<Item> oneOfEach{
    File{QByteArray("/a\xff b\n", 6)},
    Saved{"0123456789abcdef.png", 1LL << 40, QStringLiteral("Image.png"),
          Saved::Line::PixelsAndKind},
    Saved{"0123456789abcdef", 0, QStringLiteral("a"), Saved::Line::KindAndSize},
    Text{QStringLiteral("a") + QChar(0xdc00)},
    Link{"https://x.example/%20", QStringLiteral("A page"), QStringLiteral("A site")},
    Text{},
};

TEST(KeptRecord, IsReadAsItWasWritten)
{
    EXPECT_EQ(decode(encode(oneOfEach)), oneOfEach);
    EXPECT_EQ(decode(encode({})), QList<Item>());
}

TEST(KeptRecord, IsAsLongAsItsItemsSay)
{
    qint64 size = sizeOfEmpty();
    EXPECT_EQ(encode({}).size(), size);
    for (const Item &item : oneOfEach)
        size += sizeOf(item);
    EXPECT_EQ(encode(oneOfEach).size(), size);
}

TEST(KeptRecord, IsReadWholeOrNotAtAll)
{
    const QByteArray record = encode(oneOfEach);
    for (qsizetype size = 0; size < record.size(); ++size)
        EXPECT_FALSE(decode(record.first(size))) << size;
    EXPECT_FALSE(decode(record + 'x'));
}

TEST(KeptRecord, OfAnotherFormatIsNone)
{
    QByteArray record = encode(oneOfEach);
    record.replace(", 1\n", ", 2\n");
    EXPECT_FALSE(decode(record));
    EXPECT_TRUE(isOfAnotherVersion(record));
    EXPECT_FALSE(isOfAnotherVersion(encode(oneOfEach)));
    EXPECT_FALSE(isOfAnotherVersion("garbage"));
}

TEST(KeptRecord, OfUnknownKindsIsNone)
{
    QByteArray record = encode({Text{}});
    record[record.size() - 5] = 4;
    EXPECT_FALSE(decode(record));
    record = encode({Saved{}});
    record.back() = 2;
    EXPECT_FALSE(decode(record));
}

TEST(KeptRecord, ThatPromisesMoreThanItHoldsIsNone)
{
    const QByteArray empty = encode({});
    const QByteArray start = empty.chopped(4);
    EXPECT_FALSE(decode(start + QByteArray::fromHex("ffffffff")));
    EXPECT_FALSE(decode(start + QByteArray::fromHex("00000001027ffffffe")));
    EXPECT_FALSE(decode(start + QByteArray::fromHex("00000001007fffffff")));
}

} // namespace
} // namespace corvane::kept_record
