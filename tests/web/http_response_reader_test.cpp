#include "platform/qt/web/http_response_reader.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <random>

namespace corvane::test {

namespace {

using State = HttpResponseReader::State;

constexpr qint64 plenty = 1'000'000;

enum class Wrapper { Gzip, Zlib, None };

QByteArray deflated(const QByteArray &bytes, Wrapper wrapper)
{
    constexpr int windowBits = 15;
    z_stream stream = {};
    const int bits = wrapper == Wrapper::Gzip ? windowBits + 16
        : wrapper == Wrapper::Zlib            ? windowBits
                                              : -windowBits;
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, bits, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(bytes.size()))),
                   '\0');
    QByteArray in = bytes;
    stream.next_in = reinterpret_cast<Bytef *>(in.data());
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return out;
}

struct Outcome {
    State state;
    int status;
    QByteArray body;
    qint64 expected;
};

Outcome readAll(const QByteArray &bytes, qint64 maximum = plenty, qsizetype piece = 0)
{
    HttpResponseReader reader(maximum);
    if (piece == 0)
        piece = std::max<qsizetype>(bytes.size(), 1);
    for (qsizetype at = 0; at < bytes.size(); at += piece)
        reader.feed(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)));
    if (reader.state() != State::Complete)
        reader.end();
    return {reader.state(), reader.head().statusCode, reader.body(),
            reader.expectedContentLength()};
}

QByteArray coded(const QByteArray &coding, const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Encoding: " + coding
        + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray chunked(const QByteArray &chunks)
{
    return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks;
}

} // namespace

TEST(HttpResponseReader, readsTheSameInPiecesOfAnySize)
{
    const QByteArray text = "some text that goes on and on and on";
    for (const QByteArray &bytes :
         {QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 36\r\n\r\n" + text),
          QByteArray("HTTP/1.0 200 OK\n\n" + text),
          chunked("a;x=y\r\nsome text \r\n1A\r\nthat goes on and on and on\r\n0\r\nT: t\r\n\r\n"),
          coded("gzip", deflated(text, Wrapper::Gzip)),
          QByteArray("HTTP/1.1 103 Early\r\nLink: x\r\n\r\nHTTP/1.1 200 OK\r\n\r\n" + text)}) {
        for (const qsizetype piece : {1, 2, 3, 7, 1000}) {
            const Outcome outcome = readAll(bytes, plenty, piece);
            EXPECT_EQ(outcome.state, State::Complete) << bytes.toStdString() << piece;
            EXPECT_EQ(outcome.body.toStdString(), text.toStdString());
        }
    }
}

TEST(HttpResponseReader, tellsTheDeclaredLengthOfABodyThatIsNotCompressed)
{
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhi").expected, 2);
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\n\r\nhi").expected, -1);
    EXPECT_EQ(readAll(chunked("2\r\nhi\r\n0\r\n\r\n")).expected, -1);
    EXPECT_EQ(readAll(coded("gzip", deflated("hi", Wrapper::Gzip))).expected, -1);
}

TEST(HttpResponseReader, aBodyEndsWithTheLastWantedByte)
{
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n";
    EXPECT_EQ(readAll(head + "0123456789", 10).body, "0123456789");
    EXPECT_EQ(readAll(head + "0123456789", 9).body, "012345678");
    const Outcome cut = readAll(head + "0123", 4);
    EXPECT_EQ(cut.state, State::Complete);
    EXPECT_EQ(cut.expected, 10);
    EXPECT_EQ(readAll(chunked("8\r\n01234567\r\n"), 4).body, "0123");
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\n\r\n01234567", 4).body, "0123");
    EXPECT_EQ(readAll(head, 0).state, State::Complete);
}

TEST(HttpResponseReader, anEndBeforeTheDeclaredOneIsAFailure)
{
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n012345678").state,
              State::Failed);
    EXPECT_EQ(readAll(chunked("5\r\n0123")).state, State::Failed);
    EXPECT_EQ(readAll(chunked("5\r\n01234\r\n")).state, State::Failed);
    EXPECT_EQ(readAll(chunked("5\r\n01234\r\n0\r\n")).state, State::Failed);
    const QByteArray whole = deflated(QByteArray(1000, 'x'), Wrapper::Gzip);
    EXPECT_EQ(readAll(coded("gzip", whole.chopped(9))).state, State::Failed);
}

TEST(HttpResponseReader, aConnectionCutInTheHeadIsAFailure)
{
    for (const char *bytes : {"", "H", "HTTP/1.1 200 OK", "HTTP/1.1 200 OK\r\nA: b\r\n",
                              "HTTP/1.1 100 Continue\r\n\r\n"})
        EXPECT_EQ(readAll(bytes).state, State::Failed) << bytes;
}

TEST(HttpResponseReader, bytesBehindTheBodyAreNotOfIt)
{
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhi there").body, "hi");
    EXPECT_EQ(readAll(chunked("2\r\nhi\r\n0\r\n\r\nthere")).body, "hi");
    EXPECT_EQ(readAll(coded("gzip", deflated("hi", Wrapper::Gzip) + "there")).body, "hi");
}

TEST(HttpResponseReader, someStatusesHaveNoBodyWhateverTheyDeclare)
{
    for (const char *status : {"204", "304"}) {
        const Outcome outcome
            = readAll(QByteArray("HTTP/1.1 ") + status + " No\r\nContent-Length: 9\r\n\r\n");
        EXPECT_EQ(outcome.state, State::Complete);
        EXPECT_EQ(outcome.body, "");
    }
}

TEST(HttpResponseReader, whatIsNoHeadOfHttp1IsAFailure)
{
    for (const char *line : {"<html>", "HTTP/2 200", "HTTP/1.1 20 OK", "HTTP/1.1 2000 OK",
                             "HTTP/1.1  200", "SSH-2.0-x", "HTTP/1.1 -20 OK", "HTTP/1.1 099 OK",
                             "HTTP/1.1 101 Switching", "HTTP/1.1\t200 OK"})
        EXPECT_EQ(readAll(QByteArray(line) + "\r\n\r\nbody").state, State::Failed) << line;
}

TEST(HttpResponseReader, oddHeadsThatMeanOneThingAreRead)
{
    const Outcome outcome = readAll("HTTP/1.1 200\r\n"
                                    "no colon\r\n"
                                    ": no name\r\n"
                                    "X: a\r\n \t b\r\n"
                                    "CONTENT-length:2\r\n"
                                    "Content-Length: 2, 2\r\n\r\nhi");
    EXPECT_EQ(outcome.state, State::Complete);
    EXPECT_EQ(outcome.body, "hi");
}

TEST(HttpResponseReader, aHeadThatContradictsItselfIsAFailure)
{
    for (const char *fields :
         {"Content-Length: 2\r\nContent-Length: 3", "Content-Length: 2, 3", "Content-Length: -1",
          "Content-Length: +2", "Content-Length: 0x2", "Content-Length: 2 2",
          "Content-Length: 99999999999999999999", "Content-Length: two",
          "Transfer-Encoding: gzip, chunked", "Transfer-Encoding: chunked, chunked"})
        EXPECT_EQ(readAll(QByteArray("HTTP/1.1 200 OK\r\n") + fields + "\r\n\r\nhi").state,
                  State::Failed)
            << fields;
}

TEST(HttpResponseReader, zeroBytesAndLoneCarriageReturnsInTheHeadAreAFailure)
{
    using namespace Qt::StringLiterals;
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\nA: b\0c\r\n\r\n"_ba).state, State::Failed);
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\nA: b\rLocation: c\r\n\r\n"_ba).state, State::Failed);
    EXPECT_EQ(readAll("HTTP/1.1 200 OK\r\n\r\na\0b"_ba).body, "a\0b"_ba) << "a body may hold any";
}

TEST(HttpResponseReader, aHeadHasItsLimit)
{
    const auto headOf = [](qsizetype size) -> QByteArray {
        const QByteArray begin = "HTTP/1.1 200 OK\r\nA: ";
        const QByteArray end = "\r\n\r\n";
        return begin + QByteArray(size - begin.size() - end.size(), 'a') + end;
    };
    constexpr qsizetype limit = HttpResponseReader::maximumHeadBytes;
    EXPECT_EQ(readAll(headOf(limit)).state, State::Complete);
    EXPECT_EQ(readAll(headOf(limit + 1)).state, State::Failed);
    EXPECT_EQ(readAll(headOf(limit + 1), plenty, 100).state, State::Failed);
}

TEST(HttpResponseReader, aHeadWithoutEndFailsAtItsLimit)
{
    HttpResponseReader reader(plenty);
    reader.feed("HTTP/1.1 200 OK\r\n");
    qsizetype fed = 0;
    while (reader.state() == State::Head && fed < 10 * HttpResponseReader::maximumHeadBytes) {
        reader.feed("A: b\r\n");
        fed += 6;
    }
    EXPECT_EQ(reader.state(), State::Failed);
    EXPECT_LE(fed, HttpResponseReader::maximumHeadBytes);
}

TEST(HttpResponseReader, interimResponsesCountAsPartOfTheHead)
{
    const QByteArray interim = "HTTP/1.1 100 Continue\r\n\r\n";
    EXPECT_EQ(readAll(interim.repeated(20) + "HTTP/1.1 200 OK\r\n\r\nhi").body, "hi");
    EXPECT_EQ(readAll(interim.repeated(4000) + "HTTP/1.1 200 OK\r\n\r\nhi").state, State::Failed);
    EXPECT_EQ(readAll(interim.repeated(4000) + "HTTP/1.1 200 OK\r\n\r\nhi", plenty, 25).state,
              State::Failed);
}

TEST(HttpResponseReader, chunksThatAreNoneAreAFailure)
{
    for (const char *chunks :
         {"x\r\nhi\r\n", "\r\nhi\r\n", "-2\r\nhi\r\n", "0x2\r\nhi\r\n", "2\r\nhi there\r\n",
          "ffffffffffffffffff\r\nhi", "2 2\r\nhi\r\n", "+2\r\nhi\r\n"})
        EXPECT_EQ(readAll(chunked(chunks)).state, State::Failed) << chunks;
    EXPECT_EQ(readAll(chunked("2;" + QByteArray(20'000, 'x'))).state, State::Failed);
    EXPECT_EQ(readAll(chunked("0\r\n" + QByteArray("A: b\r\n").repeated(5000))).state,
              State::Failed);
}

TEST(HttpResponseReader, readsEveryCodingThatItAsksForAndItsOldNames)
{
    const QByteArray text(5000, 'x');
    EXPECT_EQ(readAll(coded("gzip", deflated(text, Wrapper::Gzip))).body, text);
    EXPECT_EQ(readAll(coded("X-GZip", deflated(text, Wrapper::Gzip))).body, text);
    EXPECT_EQ(readAll(coded("deflate", deflated(text, Wrapper::Zlib))).body, text);
    EXPECT_EQ(readAll(coded("deflate", deflated(text, Wrapper::None))).body, text);
    EXPECT_EQ(readAll(coded("identity", text)).body, text);
    EXPECT_EQ(readAll(coded("gzip", "")).state, State::Complete) << "nothing, coded, is nothing";
}

TEST(HttpResponseReader, codingsThatCannotBeUndoneAreAFailure)
{
    const QByteArray zipped = deflated("hi", Wrapper::Gzip);
    EXPECT_EQ(readAll(coded("br", "anything")).state, State::Failed);
    EXPECT_EQ(readAll(coded("gzip, gzip", deflated(zipped, Wrapper::Gzip))).state, State::Failed);
    EXPECT_EQ(readAll(coded("gzip", "this is no gzip")).state, State::Failed);
    EXPECT_EQ(readAll(coded("gzip", zipped.chopped(1))).state, State::Failed);
    EXPECT_EQ(readAll(coded("deflate", "\x78")).state, State::Failed);
}

TEST(HttpResponseReader, aBombSwellsNoFartherThanWanted)
{
    // A thousandth of what it would become.
    const QByteArray bomb = deflated(QByteArray(64 << 20, '\0'), Wrapper::None);
    HttpResponseReader reader(3 << 20);
    reader.feed("HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\n\r\n");
    EXPECT_EQ(reader.feed(bomb), State::Complete);
    EXPECT_EQ(reader.body().size(), 3 << 20);
    EXPECT_LE(reader.body().capacity(), 8 << 20);
    EXPECT_EQ(reader.feed(bomb), State::Complete) << "and takes nothing more";
}

TEST(HttpResponseReader, aCompressedBodyOfExactlyTheWantedSizeIsWhole)
{
    const QByteArray text(1000, 'x');
    EXPECT_EQ(readAll(coded("gzip", deflated(text, Wrapper::Gzip)), 1000).body.size(), 1000);
    EXPECT_EQ(readAll(coded("gzip", deflated(text, Wrapper::Gzip)), 1001).body.size(), 1000);
    EXPECT_EQ(readAll(coded("gzip", deflated(text, Wrapper::Gzip)), 999).body.size(), 999);
}

TEST(HttpResponseReader, aRedirectionIsCompleteWithItsHead)
{
    EXPECT_EQ(readAll("HTTP/1.1 302 Found\r\nLocation: /x\r\nContent-Encoding: br\r\n\r\n").state,
              State::Complete);
    const Outcome nowhere = readAll("HTTP/1.1 302 Found\r\nContent-Length: 2\r\n\r\nhi");
    EXPECT_EQ(nowhere.body, "hi") << "one that leads nowhere is a response like any other";
}

TEST(HttpResponseReader, anyBytesEndInOneOfItsStates)
{
    const QByteArray words[] = {"HTTP/1.1 200 OK\r\n",
                                "\r\n",
                                "Transfer-Encoding: chunked\r\n",
                                "Content-Encoding: gzip\r\n",
                                "Content-Length: 5\r\n",
                                "5\r\n",
                                "0\r\n",
                                "\x1f\x8b\x08",
                                QByteArray(3, '\0'),
                                "HTTP/1.1 100 C\r\n\r\n",
                                "\n",
                                "a"};
    std::mt19937 random(1);
    for (int round = 0; round < 20'000; ++round) {
        HttpResponseReader reader(64);
        reader.feed(words[0]);
        for (int i = 0; i < 12; ++i)
            reader.feed(words[random() % std::size(words)]);
        const State state = reader.end();
        EXPECT_TRUE(state == State::Complete || state == State::Failed);
        EXPECT_LE(reader.body().size(), 64);
    }
}

} // namespace corvane::test
