#include "platform/pictures/decoder_protocol.h"

#include "platform/pictures/image_codec.h"

#include <QPixelFormat>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace corvane::decoder_protocol {

namespace {

enum class Kind : std::uint8_t { Greeting = 1, Request, Reply, Farewell };

class Writer {
public:
    explicit Writer(Kind kind)
    {
        put(static_cast<std::uint8_t>(kind));
        put(version);
    }

    template<class Number>
    Writer &put(Number number)
    {
        const Number little = qToLittleEndian(number);
        m_bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
        return *this;
    }
    Writer &putWhole(int number) { return put(static_cast<std::int32_t>(number)); }
    Writer &putSize(QSize size) { return putWhole(size.width()).putWhole(size.height()); }
    Writer &putFlag(bool flag) { return put(static_cast<std::uint8_t>(flag ? 1 : 0)); }

    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// Reads values that are each within a range. Once one is not, or is not there, nothing is right.
class Reader {
public:
    Reader(const QByteArray &packet, Kind kind)
        : m_packet(packet)
    {
        m_isRight = packet.size() <= maximumPacket && take<std::uint8_t>() == std::uint8_t(kind)
            && take<std::uint16_t>() == version;
    }

    template<class Number>
    Number take()
    {
        Number little = 0;
        if (m_packet.size() - m_at < qsizetype(sizeof little)) {
            m_isRight = false;
            return 0;
        }
        std::copy_n(m_packet.constData() + m_at, sizeof little, reinterpret_cast<char *>(&little));
        m_at += qsizetype(sizeof little);
        return qFromLittleEndian(little);
    }
    int takeWhole(int least, int most)
    {
        const int number = take<std::int32_t>();
        m_isRight = m_isRight && number >= least && number <= most;
        return m_isRight ? number : least;
    }
    QSize takeSize(int most = maximumSide)
    {
        const int width = takeWhole(-1, most);
        return {width, takeWhole(-1, most)};
    }
    bool takeFlag() { return takeWholeByte(1) == 1; }
    template<class Enum>
    Enum takeOneOf(Enum last)
    {
        return static_cast<Enum>(takeWholeByte(static_cast<std::uint8_t>(last)));
    }

    bool isRightSoFar() const { return m_isRight; }
    bool isRight() const { return m_isRight && m_at == m_packet.size(); }

private:
    std::uint8_t takeWholeByte(std::uint8_t most)
    {
        const auto number = take<std::uint8_t>();
        m_isRight = m_isRight && number <= most;
        return m_isRight ? number : std::uint8_t(0);
    }

    const QByteArray &m_packet;
    qsizetype m_at = 0;
    bool m_isRight = false;
};

/// Stored sizes may be any that a header states.
constexpr int anySide = std::numeric_limits<int>::max();

Pixels takePixels(Reader &reader)
{
    Pixels pixels;
    pixels.size = reader.takeSize();
    pixels.bytesPerLine = reader.takeWhole(0, anySide);
    pixels.format = reader.takeOneOf(static_cast<QImage::Format>(QImage::NImageFormats - 1));
    return pixels;
}

} // namespace

QByteArray encoded(const Request &request)
{
    return Writer(Kind::Request)
        .put(request.number)
        .put(static_cast<std::uint8_t>(request.task))
        .put(static_cast<std::uint8_t>(request.formats))
        .put(static_cast<std::uint8_t>(request.type))
        .putSize(request.wanted)
        .putWhole(request.part)
        .put(request.document)
        .putWhole(request.milliseconds)
        .bytes();
}

std::optional<Request> parsedRequest(const QByteArray &packet)
{
    Reader reader(packet, Kind::Request);
    Request request;
    request.number = reader.take<std::uint32_t>();
    request.task = reader.takeOneOf(Task::Transcode);
    request.formats = reader.takeOneOf(Formats::Png);
    request.type = reader.takeOneOf(Type::WebP);
    request.wanted = reader.takeSize();
    request.part = reader.takeWhole(0, maximumFrame);
    request.document = reader.take<std::uint32_t>();
    request.milliseconds = reader.takeWhole(1, maximumMilliseconds);
    const bool hasSize = request.task == Task::Size || request.task == Task::Transcode
        || !request.wanted.isEmpty();
    const bool hasDocument
        = (request.task != Task::Render && request.task != Task::Frame) || request.document != 0;
    return reader.isRight() && hasSize && hasDocument ? std::optional(request) : std::nullopt;
}

QByteArray encoded(const Reply &reply)
{
    Writer writer(Kind::Reply);
    writer.put(reply.number)
        .put(static_cast<std::uint8_t>(reply.outcome))
        .putFlag(reply.pixels.has_value());
    if (const auto &pixels = reply.pixels)
        writer.putSize(pixels->size)
            .putWhole(pixels->bytesPerLine)
            .put(static_cast<std::uint8_t>(pixels->format));
    writer.putSize(reply.pictureSize)
        .putFlag(reply.isVector)
        .putFlag(reply.isAnimated)
        .putWhole(reply.repeats)
        .putWhole(reply.milliseconds)
        .putWhole(reply.pages)
        .putWhole(static_cast<int>(reply.pageSizes.size()));
    for (const QSize &size : reply.pageSizes)
        writer.putSize(size);
    return writer.bytes();
}

std::optional<Reply> parsedReply(const QByteArray &packet)
{
    Reader reader(packet, Kind::Reply);
    Reply reply;
    reply.number = reader.take<std::uint32_t>();
    reply.outcome = reader.takeOneOf(Outcome::Crashed);
    if (reader.takeFlag())
        reply.pixels = takePixels(reader);
    reply.pictureSize = reader.takeSize(anySide);
    reply.isVector = reader.takeFlag();
    reply.isAnimated = reader.takeFlag();
    reply.repeats = reader.takeWhole(-1, anySide);
    reply.milliseconds = reader.takeWhole(0, anySide);
    reply.pages = reader.takeWhole(0, anySide);
    const int sizes = reader.takeWhole(0, std::min(maximumPages, reply.pages));
    for (int i = 0; i < sizes && reader.isRightSoFar(); ++i) {
        const QSize size = reader.takeSize();
        if (size.isEmpty())
            return std::nullopt;
        reply.pageSizes.append(size);
    }
    const bool isConsistent
        = !reply.pixels || (reply.outcome == Outcome::Made && byteCount(*reply.pixels).has_value());
    return reader.isRight() && isConsistent ? std::optional(reply) : std::nullopt;
}

QByteArray encoded(const Greeting &greeting)
{
    return Writer(Kind::Greeting).putFlag(greeting.hasLimits).putFlag(greeting.hasFilter).bytes();
}

std::optional<Greeting> parsedGreeting(const QByteArray &packet)
{
    Reader reader(packet, Kind::Greeting);
    Greeting greeting;
    greeting.hasLimits = reader.takeFlag();
    greeting.hasFilter = reader.takeFlag();
    return reader.isRight() ? std::optional(greeting) : std::nullopt;
}

QByteArray farewell()
{
    return Writer(Kind::Farewell).bytes();
}

bool isFarewell(const QByteArray &packet)
{
    return Reader(packet, Kind::Farewell).isRight();
}

std::optional<qint64> byteCount(const Pixels &pixels)
{
    // The formats that the decoder converts to: a picture of another one needs a table of colours.
    if (pixels.format != QImage::Format_RGB32
        && pixels.format != QImage::Format_ARGB32_Premultiplied)
        return std::nullopt;
    constexpr int bytesPerPixel = 4;
    if (pixels.size.isEmpty() || pixels.size.width() > maximumSide
        || pixels.size.height() > maximumSide
        || pixels.bytesPerLine != pixels.size.width() * bytesPerPixel)
        return std::nullopt;
    const qint64 bytes = qint64{pixels.bytesPerLine} * pixels.size.height();
    return bytes <= ImageCodec::maximumDecodedBytes ? std::optional(bytes) : std::nullopt;
}

} // namespace corvane::decoder_protocol
