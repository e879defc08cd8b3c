#include "platform/qt/web/http_reader.h"

#include <QByteArrayList>
#include <QStringBuilder>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using State = HttpReader::State;

struct Answer {
    State state = State::Head;
    QByteArray body;
    HttpHead head;
};

/// What comes of bytes that arrive in pieces of that size, and then the end.
Answer read(const QByteArray &bytes, qsizetype pieceSize)
{
    HttpReader reader;
    Answer answer;
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize) {
        const QByteArray piece = bytes.mid(at, pieceSize);
        qsizetype taken = 0;
        if (reader.state() == State::Head)
            taken = reader.feedHead(piece);
        reader.feedBody(QByteArrayView(piece).sliced(taken), [&](const QByteArray &part) {
            answer.body += part;
            return true;
        });
    }
    reader.end();
    answer.state = reader.state();
    answer.head = reader.head();
    return answer;
}

/// The same however it is cut.
void expect(const QByteArray &bytes, State state, const QByteArray &body = {})
{
    for (const qsizetype size : {qsizetype(1), qsizetype(2), qsizetype(7), bytes.size()}) {
        const Answer answer = read(bytes, size);
        EXPECT_EQ(answer.state, state) << bytes.constData() << " in pieces of " << size;
        EXPECT_EQ(answer.body, body) << bytes.constData() << " in pieces of " << size;
    }
}

const QByteArray ok = "HTTP/1.1 200 OK\r\n";
const QByteArray chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";

} // namespace

TEST(HttpReader, EndsABodyWhereItWasSaidToEnd)
{
    expect(ok + "Content-Length: 5\r\n\r\nhello and more", State::Whole, "hello");
    expect(ok + "\r\nhello", State::Whole, "hello");
    expect(ok + "Content-Length: 0\r\n\r\n", State::Whole);
    expect("HTTP/1.0 204 \r\n\r\nstray", State::Whole);
    expect(ok + "Content-Length: 6\r\n\r\nhello", State::Broken, "hello");
    expect("HTTP/1.1 200\n\nbare lines", State::Whole, "bare lines");
}

TEST(HttpReader, ReadsChunks)
{
    expect(chunked + "5\r\nhello\r\n1;x=y\r\n!\r\n0\r\nA: b\r\n\r\n", State::Whole, "hello!");
    expect(chunked + "A\r\n0123456789\r\n00\r\n\r\n", State::Whole, "0123456789");
    expect(chunked + "0\r\n\r\n", State::Whole);
    for (const char *body : {"5\r\nhello", "5\r\nhelloX\r\n0\r\n\r\n", "x\r\n", "-5\r\nhello\r\n",
                             "\r\n", "ffffffffffffffffff\r\n"})
        EXPECT_EQ(read(chunked + body, 3).state, State::Broken) << body;
}

TEST(HttpReader, PassesInterimAnswersOver)
{
    expect("HTTP/1.1 100 Continue\r\nA: b\r\n\r\nHTTP/1.1 103 Early\r\n\r\n" + ok + "\r\nx",
           State::Whole, "x");
}

TEST(HttpReader, TakesNothingThatIsNoAnswer)
{
    for (const char *bytes :
         {"", "H", "HTTP/1.1 2", "HTTP/2 200 OK\r\n\r\n", "HTTP/1.1 20 OK\r\n\r\n",
          "HTTP/1.1 2000 OK\r\n\r\n", "HTTP/1.1  200\r\n\r\n", "HTTP/1.1 -20 \r\n\r\n", "\r\n\r\n",
          "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n",
          "HTTP/1.1 200 OK\r\nContent-Encoding: br\r\n\r\nx"})
        EXPECT_EQ(read(bytes, 4).state, State::Broken) << bytes;
}

TEST(HttpReader, HoldsABoundedHead)
{
    const QByteArray line = "A: " + QByteArray(1000, 'x') + "\r\n";
    EXPECT_EQ(read(ok + line.repeated(200) + "\r\nx", 1000).state, State::Whole);
    EXPECT_EQ(read(ok + line.repeated(300) + "\r\nx", 1000).state, State::Broken);
    const QByteArray interim = "HTTP/1.1 100 Continue\r\n\r\n";
    EXPECT_EQ(read(interim.repeated(20'000) + ok + "\r\nx", 1000).state, State::Broken);
    EXPECT_EQ(read(chunked + "5" + QByteArray(5000, ' ') + "\r\nhello\r\n0\r\n\r\n", 1000).state,
              State::Broken);
}

TEST(HttpReader, KnowsTheFieldsInAnySpelling)
{
    const HttpHead head = read("HTTP/1.1 302 Found\r\nLOCATION:  /a \r\ncontent-length: 3\r\n"
                               "location: /b\r\nContent-Encoding: GZip\r\n: x\r\nno colon\r\n\r\n",
                               5)
                              .head;
    EXPECT_EQ(head.status, 302);
    EXPECT_EQ(head.location, "/a");
    EXPECT_EQ(head.contentLength, 3);
    EXPECT_EQ(head.contentCoding, "gzip");
}

TEST(HttpReader, TakesCodingsFromAllLinesThatNameThem)
{
    const QByteArray body = "\r\n5\r\nhello\r\n0\r\n\r\n";
    const QByteArray line = "Transfer-Encoding: chunked\r\n";
    EXPECT_EQ(read(ok + "Transfer-Encoding:\r\n" + line + body, 4).body, "hello");
    EXPECT_EQ(read(ok + line + "Transfer-Encoding: \r\n" + body, 4).body, "hello");
    const QByteArrayList several = {"Transfer-Encoding: identity\r\n" + line, line + line,
                                    line + "transfer-encoding: gzip\r\n"};
    for (const QByteArray &lines : several) {
        const Answer answer = read(ok + lines + body, 4);
        EXPECT_EQ(answer.state, State::Broken) << lines.constData();
        EXPECT_EQ(answer.body, QByteArray()) << lines.constData();
    }
    EXPECT_EQ(read(ok + "Content-Encoding: identity\r\nContent-Encoding: br\r\n\r\nx", 4).state,
              State::Broken);
}

TEST(HttpReader, UndoesWhatIsCompressedWithAndWithoutItsHead)
{
    const QByteArray text = QByteArray("hello ").repeated(50'000);
    const QByteArray stream = qCompress(text).sliced(4);
    const QByteArray deflate = ok + "Content-Encoding: deflate\r\n\r\n";
    constexpr qsizetype head = 2;
    constexpr qsizetype sum = 4;
    for (const qsizetype size : {qsizetype(1), qsizetype(1000)}) {
        EXPECT_EQ(read(deflate + stream, size).body, text);
        EXPECT_EQ(read(deflate + stream.sliced(head).chopped(sum), size).body, text);
        EXPECT_EQ(read(deflate + stream, size).state, State::Whole);
        EXPECT_EQ(read(deflate + stream.chopped(sum + 1), size).state, State::Broken) << "cut off";
    }
    EXPECT_EQ(read(deflate + "hello", 5).state, State::Broken);
    expect(ok + "Content-Encoding: gzip\r\nContent-Length: 0\r\n\r\n", State::Whole);
}

} // namespace corvane::test
