#include "platform/qt/pasteboard/pasteboard_text.h"

#include <QStringDecoder>

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

namespace corvane::pasteboard_text {

namespace {

using Encoding = QStringConverter::Encoding;

QString decodedAs(Encoding encoding, const QByteArray &bytes)
{
    QStringDecoder decoder(encoding);
    QString text = decoder(bytes);
    while (text.endsWith(QChar(0)))
        text.chop(1);
    return text;
}

std::optional<Encoding> markedEncoding(const QByteArray &bytes)
{
    if (bytes.startsWith("\xff\xfe"))
        return QStringConverter::Utf16LE;
    if (bytes.startsWith("\xfe\xff"))
        return QStringConverter::Utf16BE;
    if (bytes.startsWith("\xef\xbb\xbf"))
        return QStringConverter::Utf8;
    return std::nullopt;
}

/// The byte order of UTF-16 without a mark; none if it is not UTF-16. Blanks, digits and line ends
/// have one NUL byte each, all on the same side; UTF-8 has none before the end.
std::optional<Encoding> unmarkedUtf16(const QByteArray &bytes)
{
    qsizetype end = bytes.size();
    while (end > 0 && bytes[end - 1] == '\0')
        --end;
    std::array<qsizetype, 2> nulls = {0, 0};
    for (qsizetype at = bytes.indexOf('\0'); at >= 0 && at < end; at = bytes.indexOf('\0', at + 1))
        ++nulls[static_cast<std::size_t>(at % 2)];
    if (nulls[0] == nulls[1] || bytes.size() % 2 != 0)
        return std::nullopt;
    return nulls[1] > nulls[0] ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
}

QString charsetOf(const QString &mimeType)
{
    return mimeType.section(QStringLiteral("charset="), 1, 1, QString::SectionCaseInsensitiveSeps)
        .section(QLatin1Char(';'), 0, 0)
        .remove(QLatin1Char('"'))
        .trimmed()
        .toLower();
}

bool isNamed(const QString &charset, std::initializer_list<const char *> names)
{
    return std::ranges::any_of(names,
                               [&](const char *name) { return charset == QLatin1String(name); });
}

/// Whether `charset` may be passed to the C library. It comes from another program, so anything
/// that could be taken for a file or an option is refused.
bool isPlainName(const QString &charset)
{
    constexpr qsizetype longest = 40;
    return charset.size() <= longest && std::ranges::all_of(charset, [](QChar character) {
               return character.unicode() < 0x80
                   && (character.isLetterOrNumber() || QStringView(u"-_.:").contains(character));
           });
}

/// Decodes with the C library's converters; none if it does not know the character set, or the
/// bytes are not valid in it.
std::optional<QString> decodedByLibrary(const QByteArray &bytes, const QString &charset)
{
    if (!isPlainName(charset))
        return std::nullopt;
    const iconv_t converter = ::iconv_open("UTF-8", charset.toLatin1().constData());
    if (converter == iconv_t(-1)) // NOLINT(performance-no-int-to-ptr): that is how it fails
        return std::nullopt;
    QByteArray input = bytes;
    char *from = input.data();
    auto left = static_cast<std::size_t>(input.size());
    QByteArray utf8;
    bool isWhole = true;
    while (left > 0 && isWhole) {
        std::array<char, 16384> piece;
        char *to = piece.data();
        std::size_t room = piece.size();
        const bool failed = ::iconv(converter, &from, &left, &to, &room) == std::size_t(-1);
        utf8.append(piece.data(), to - piece.data());
        isWhole = !failed || errno == E2BIG;
    }
    ::iconv_close(converter);
    if (!isWhole)
        return std::nullopt;
    return decodedAs(QStringConverter::Utf8, utf8);
}

bool isUnicode(const QString &charset)
{
    return charset.startsWith(QLatin1String("utf-")) || charset.startsWith(QLatin1String("ucs-"))
        || charset.startsWith(QLatin1String("iso-10646"));
}

/// How exact a type is, smaller is more exact; none if it is no plain text.
std::optional<int> rank(const QString &offered)
{
    const QString type = offered.toLower();
    // GTK converts line ends for all types but this one.
    if (type == QLatin1String("utf8_string"))
        return 0;
    if (type == QLatin1String("text/plain"))
        return 3;
    if (type == QLatin1String("text/unicode"))
        return 4;
    if (type == QLatin1String("string"))
        return 6;
    if (type == QLatin1String("text"))
        return 7;
    if (!type.startsWith(QLatin1String("text/plain;")))
        return std::nullopt;
    const QString charset = charsetOf(type);
    if (isNamed(charset, {"utf-8", "utf8"}))
        return 1;
    if (isUnicode(charset))
        return 2;
    return charset.isEmpty() ? 4 : 5;
}

} // namespace

QString decoded(const QByteArray &bytes)
{
    if (const auto encoding = markedEncoding(bytes))
        return decodedAs(*encoding, bytes);
    if (const auto encoding = unmarkedUtf16(bytes))
        return decodedAs(*encoding, bytes);
    return decodedAs(bytes.isValidUtf8() ? QStringConverter::Utf8 : QStringConverter::Latin1,
                     bytes);
}

QString decoded(const QByteArray &bytes, const QString &mimeType)
{
    QString charset = charsetOf(mimeType);
    if (mimeType.compare(QLatin1String("text/unicode"), Qt::CaseInsensitive) == 0)
        charset = QStringLiteral("utf-16");
    // Bytes that are not valid UTF-8 although the type says so would be lost.
    if (charset.isEmpty() || isNamed(charset, {"utf-8", "utf8"}))
        return decoded(bytes);
    if (isNamed(charset, {"utf-16", "utf16", "ucs-2", "iso-10646-ucs-2"})) {
        // Without a mark the source's byte order is assumed, which is ours: it runs on the same
        // kind of machine.
        const auto marked = markedEncoding(bytes);
        const auto encoding = marked ? marked : unmarkedUtf16(bytes);
        return decodedAs(encoding.value_or(QStringConverter::Utf16), bytes);
    }
    if (const auto encoding = QStringConverter::encodingForName(charset.toLatin1().constData()))
        return decodedAs(*encoding, bytes);
    const auto text = decodedByLibrary(bytes, charset);
    return text ? *text : decoded(bytes);
}

QString decodedUtf16Or8(const QByteArray &bytes)
{
    if (markedEncoding(bytes) || bytes.size() < 2)
        return decoded(bytes);
    if (bytes[0] != '\0' && bytes[1] == '\0')
        return decodedAs(QStringConverter::Utf16LE, bytes);
    if (bytes[0] == '\0' && bytes[1] != '\0')
        return decodedAs(QStringConverter::Utf16BE, bytes);
    return decoded(bytes);
}

QStringList typesByExactness(const QStringList &types)
{
    QStringList result;
    for (const QString &type : types) {
        if (rank(type))
            result << type;
    }
    result.removeDuplicates();
    std::ranges::stable_sort(result, {}, [](const QString &type) { return *rank(type); });
    return result;
}

} // namespace corvane::pasteboard_text
