#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>

#include <cstdint>
#include <optional>

/// What the program and `corvane-decoder` say to each other, over a pair of local sockets that keep
/// packets apart (SOCK_SEQPACKET). Neither trusts the other.
///
/// The decoder begins with a greeting, which carries a descriptor of its own process (pidfd). Then
/// the program sends one request at a time. It carries a descriptor of the contents, open for
/// reading, and for `Transcode` a second one of the file to write. The decoder answers with one
/// reply, which carries a descriptor of memory for `Made` pictures: sealed, and exactly as long as
/// the reply says. A decoder that is about to end by itself sends a farewell instead; a request
/// that crosses it has not been served. One that crashes says so in a reply, if it can, and ends:
/// of one that ends in silence, the program knows only that somebody ended it.
///
/// All numbers are little-endian. Each packet begins with its kind and the version; a parser
/// accepts no other version, no value out of range, and no byte too many.
namespace corvane::decoder_protocol {

inline constexpr std::uint16_t version = 2;
/// Of one packet, in bytes.
inline constexpr qsizetype maximumPacket = 32'768;
/// Sides of pictures, in pixels, and sizes of pages.
inline constexpr int maximumSide = 65'535;
/// Further pages of a document are counted but not shown.
inline constexpr int maximumPages = 2'000;
inline constexpr int maximumFrame = 1'000'000;
inline constexpr int maximumMilliseconds = 120'000;

/// How much memory a decoder has, from its start to its end. One with the usual room says
/// `OverBounds` of a picture that needs more, and the program asks one with a large room, of which
/// there is never more than one: so all of them together stay within a bound that a small machine
/// has.
enum class Room : std::uint8_t { Usual, Large };
/// The argument that a decoder with a large room is started with.
inline constexpr auto largeRoomArgument = "--large";
/// Of private memory that can be written, in bytes: all that the pixels of a picture, and what its
/// library needs beside them, may take.
constexpr qint64 memoryIn(Room room)
{
    constexpr qint64 mebibyte = 1'048'576;
    return (room == Room::Large ? 336 : 128) * mebibyte;
}
/// Of the pixels of one picture.
constexpr qint64 decodedBytesIn(Room room)
{
    constexpr qint64 mebibyte = 1'048'576;
    return (room == Room::Large ? 256 : 64) * mebibyte;
}

enum class Task : std::uint8_t {
    /// The first picture's size as stored.
    Size,
    /// The first picture, scaled down so that it fits into `wanted`.
    Thumbnail,
    /// A picture fitted into `wanted`, or the pages of a document, and what they are.
    Open,
    /// A page of a document, or a picture, at exactly `wanted` pixels.
    Render,
    /// A frame of an animation, scaled down so that it fits into `wanted`.
    Frame,
    /// The first picture at full size, encoded as `type` into the second descriptor.
    Transcode,
};

enum class Type : std::uint8_t { Png, Jpeg, Tiff, WebP };

enum class Formats : std::uint8_t {
    /// What may come in a file or a drop.
    Any,
    /// What pictures of web pages are: PNG, JPEG, GIF, WebP and AVIF.
    Web,
    Png,
};

struct Request {
    std::uint32_t number = 0;
    Task task = Task::Size;
    Formats formats = Formats::Any;
    /// For `Transcode`.
    Type type = Type::Png;
    /// For `Thumbnail`, `Open`, `Render` and `Frame`.
    QSize wanted;
    /// Page or frame, from 0.
    int part = 0;
    /// Tells the requests about one document from those about others; not 0 for `Render` and
    /// `Frame`, so that the document may be kept open from one to the next.
    std::uint32_t document = 0;
    /// How long the program waits for it.
    int milliseconds = 0;

    friend bool operator==(const Request &, const Request &) = default;
};

enum class Outcome : std::uint8_t {
    Made,
    /// Of no format that is read or allowed, or broken.
    Unreadable,
    /// It would need more memory or pixels than may be used here.
    OverBounds,
    /// There is no such page, or no further frame.
    NoSuchPart,
    /// It was too much for the decoder, which ends.
    Crashed,
};

/// The pixels in memory that come with a reply.
struct Pixels {
    QSize size;
    int bytesPerLine = 0;
    QImage::Format format = QImage::Format_Invalid;

    friend bool operator==(const Pixels &, const Pixels &) = default;
};

struct Reply {
    std::uint32_t number = 0;
    Outcome outcome = Outcome::Unreadable;
    std::optional<Pixels> pixels;
    /// As stored for `Size`; for `Open` upright, and for a drawing its preferred size.
    QSize pictureSize;
    bool isVector = false;
    bool isAnimated = false;
    /// How often an animation repeats; negative for ever.
    int repeats = 0;
    /// Of a frame.
    int milliseconds = 0;
    /// Of a document; 0 for a picture.
    int pages = 0;
    /// In points of 1/72 inch, of the pages that are shown.
    QList<QSize> pageSizes;

    friend bool operator==(const Reply &, const Reply &) = default;
};

/// What confines the decoder, as it knows itself.
struct Greeting {
    bool hasLimits = false;
    bool hasFilter = false;

    friend bool operator==(const Greeting &, const Greeting &) = default;
};

QByteArray encoded(const Request &request);
QByteArray encoded(const Reply &reply);
QByteArray encoded(const Greeting &greeting);
QByteArray farewell();

std::optional<Request> parsedRequest(const QByteArray &packet);
std::optional<Reply> parsedReply(const QByteArray &packet);
std::optional<Greeting> parsedGreeting(const QByteArray &packet);
bool isFarewell(const QByteArray &packet);

/// Bytes that the pixels take. None if the shape is none that a picture can have, or takes more
/// than `ImageCodec::maximumDecodedBytes`.
std::optional<qint64> byteCount(const Pixels &pixels);

} // namespace corvane::decoder_protocol
