#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/image_codec.h"

#include <gtest/gtest.h>

namespace corvane::decoder_protocol {
namespace {

Request someRequest()
{
    Request request;
    request.number = 0x01020304;
    request.task = Task::Render;
    request.formats = Formats::Web;
    request.type = Type::Jpeg;
    request.wanted = {300, 424};
    request.part = 7;
    request.document = 5;
    request.milliseconds = 3'000;
    return request;
}

Reply somePages()
{
    Reply reply;
    reply.number = 9;
    reply.outcome = Outcome::Made;
    reply.pages = 3'000;
    for (int i = 0; i < maximumPages; ++i)
        reply.pageSizes << QSize(595, 842 + i);
    return reply;
}

Reply somePicture()
{
    Reply reply;
    reply.number = 10;
    reply.outcome = Outcome::Made;
    reply.pixels = Pixels{{40, 20}, 160, QImage::Format_RGB32};
    reply.pictureSize = {4'000, 2'000};
    reply.isVector = true;
    reply.isAnimated = true;
    reply.repeats = -1;
    reply.milliseconds = 100;
    return reply;
}

TEST(DecoderProtocolTest, ReadsWhatItWrote)
{
    EXPECT_EQ(parsedRequest(encoded(someRequest())), someRequest());
    EXPECT_EQ(parsedReply(encoded(somePicture())), somePicture());
    EXPECT_EQ(parsedReply(encoded(somePages())), somePages());
    EXPECT_LE(encoded(somePages()).size(), maximumPacket);
    const Greeting greeting = {true, false};
    EXPECT_EQ(parsedGreeting(encoded(greeting)), greeting);
    EXPECT_TRUE(isFarewell(farewell()));
}

TEST(DecoderProtocolTest, TakesNoPacketForAnother)
{
    const QByteArrayList packets
        = {encoded(someRequest()), encoded(somePicture()), encoded(Greeting()), farewell()};
    for (qsizetype i = 0; i < packets.size(); ++i) {
        EXPECT_EQ(parsedRequest(packets[i]).has_value(), i == 0);
        EXPECT_EQ(parsedReply(packets[i]).has_value(), i == 1);
        EXPECT_EQ(parsedGreeting(packets[i]).has_value(), i == 2);
        EXPECT_EQ(isFarewell(packets[i]), i == 3);
    }
}

TEST(DecoderProtocolTest, AcceptsNoPacketThatIsShorterOrLonger)
{
    for (const QByteArray &whole : {encoded(someRequest()), encoded(somePicture())}) {
        for (qsizetype length = 0; length < whole.size(); ++length) {
            EXPECT_FALSE(parsedRequest(whole.first(length)).has_value());
            EXPECT_FALSE(parsedReply(whole.first(length)).has_value());
        }
        EXPECT_FALSE(parsedRequest(whole + '\0').has_value());
        EXPECT_FALSE(parsedReply(whole + '\0').has_value());
    }
}

TEST(DecoderProtocolTest, AcceptsNoOtherVersion)
{
    QByteArray packet = encoded(someRequest());
    // It stands behind the kind.
    packet[1] = char(version + 1);
    EXPECT_FALSE(parsedRequest(packet).has_value());
}

TEST(DecoderProtocolTest, AcceptsNoRequestOutOfRange)
{
    const auto isAccepted = [](auto change) {
        Request request = someRequest();
        change(request);
        return parsedRequest(encoded(request)).has_value();
    };
    EXPECT_TRUE(isAccepted([](Request &) {}));
    EXPECT_FALSE(isAccepted([](Request &request) { request.wanted = {0, 10}; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.wanted = {-2, 10}; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.wanted = {maximumSide + 1, 10}; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.part = -1; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.part = maximumFrame + 1; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.document = 0; }))
        << "a page is one of a document";
    EXPECT_FALSE(isAccepted([](Request &request) { request.milliseconds = 0; }));
    EXPECT_FALSE(
        isAccepted([](Request &request) { request.milliseconds = maximumMilliseconds + 1; }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.task = Task(6); }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.formats = Formats(3); }));
    EXPECT_FALSE(isAccepted([](Request &request) { request.type = Type(4); }));
    EXPECT_TRUE(isAccepted([](Request &request) {
        request.task = Task::Size;
        request.wanted = {};
        request.document = 0;
    }));
}

TEST(DecoderProtocolTest, AcceptsNoPixelsThatArePossibleNowhere)
{
    const auto isAccepted = [](auto change) {
        Reply reply = somePicture();
        change(*reply.pixels);
        return parsedReply(encoded(reply)).has_value();
    };
    EXPECT_TRUE(isAccepted([](Pixels &) {}));
    EXPECT_FALSE(isAccepted([](Pixels &pixels) { pixels.size = {40, 0}; }));
    EXPECT_FALSE(isAccepted([](Pixels &pixels) { pixels.bytesPerLine = 159; }));
    EXPECT_FALSE(isAccepted([](Pixels &pixels) { pixels.bytesPerLine = 164; }));
    EXPECT_FALSE(isAccepted([](Pixels &pixels) { pixels.format = QImage::Format_Indexed8; }))
        << "it would need a table";
    EXPECT_FALSE(isAccepted([](Pixels &pixels) { pixels.format = QImage::Format_RGBA64; }));
    EXPECT_FALSE(isAccepted([](Pixels &pixels) {
        pixels.size = {40'000, 40'000};
        pixels.bytesPerLine = 160'000;
    })) << "more than may be decoded";
    Reply failed = somePicture();
    failed.outcome = Outcome::Unreadable;
    EXPECT_FALSE(parsedReply(encoded(failed)).has_value()) << "pixels of nothing";
}

TEST(DecoderProtocolTest, AcceptsNoMorePagesThanAreShown)
{
    Reply reply = somePages();
    reply.pageSizes << QSize(595, 842);
    EXPECT_FALSE(parsedReply(encoded(reply)).has_value());
    reply = somePages();
    reply.pages = 10;
    EXPECT_FALSE(parsedReply(encoded(reply)).has_value()) << "more sizes than pages";
    reply = somePages();
    reply.pageSizes[3] = {0, 842};
    EXPECT_FALSE(parsedReply(encoded(reply)).has_value());
}

TEST(DecoderProtocolTest, CountsTheBytesOfAPicture)
{
    EXPECT_EQ(byteCount({{40, 20}, 160, QImage::Format_RGB32}), 3'200);
    constexpr int side = 8'192;
    const Pixels largest = {{side, side}, side * 4, QImage::Format_RGB32};
    EXPECT_EQ(byteCount(largest), ImageCodec::maximumDecodedBytes);
    EXPECT_FALSE(byteCount({{side, side + 1}, side * 4, QImage::Format_RGB32}).has_value());
    EXPECT_FALSE(byteCount({{65'536, 1}, 65'536 * 4, QImage::Format_RGB32}).has_value());
    EXPECT_FALSE(byteCount({{1, 65'536}, 4, QImage::Format_RGB32}).has_value());
}

} // namespace
} // namespace corvane::decoder_protocol
