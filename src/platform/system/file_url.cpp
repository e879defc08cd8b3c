#include "platform/system/file_url.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>

namespace corvane::file_url {

namespace {

/// How a byte of a path is written in an address.
enum class Form : std::uint8_t {
    AsItIs,
    Encoded,
    /// Encoded here, because Qt treats some of these bytes differently.
    EncodedByUs,
};

constexpr Form formOf(int byte)
{
    const bool standsForItself = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
        || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~'
        || byte == '/';
    if (standsForItself)
        return Form::AsItIs;
    return byte == ' ' || byte >= 0x80 ? Form::Encoded : Form::EncodedByUs;
}

constexpr auto forms = [] {
    std::array<Form, 256> all = {};
    for (std::size_t byte = 0; byte < all.size(); ++byte)
        all[byte] = formOf(static_cast<int>(byte));
    return all;
}();

/// The form of the path: the largest of the forms of its bytes.
Form formOf(const QByteArray &path)
{
    auto most = Form::AsItIs;
    for (const char byte : path)
        most = std::max(most, forms[static_cast<unsigned char>(byte)]);
    return most;
}

/// Whether the text of an address, in Qt's internal form, is the path as it is: ASCII in which
/// nothing is encoded. That form encodes null characters.
bool isPlain(const QString &text)
{
    // Without an early return the compiler tests several characters at once, which for paths of
    // usual length is faster.
    std::uint16_t odd = 0;
    for (const QChar character : text) {
        const std::uint16_t unit = character.unicode();
        const bool isOdd = (unit >= 0x80) | (unit == u'%');
        odd = static_cast<std::uint16_t>(odd | (isOdd ? 1U : 0U));
    }
    return odd == 0;
}

constexpr QByteArrayView scheme = "file://";

QByteArray encodedPath(const QByteArray &path)
{
    static constexpr std::array<char, 16> digits
        = {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
    QByteArray encoded(scheme.size() + path.size() * 3, Qt::Uninitialized);
    char *end = std::copy(scheme.begin(), scheme.end(), encoded.data());
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        if (forms[value] == Form::AsItIs) {
            *end++ = byte;
            continue;
        }
        *end++ = '%';
        *end++ = digits[value >> 4U];
        *end++ = digits[value & 15U];
    }
    encoded.truncate(end - encoded.constData());
    return encoded;
}

QByteArrayView lastComponent(QByteArrayView path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    const qsizetype slash = path.size() > 1 ? path.lastIndexOf('/') : -1;
    return path.sliced(slash + 1);
}

/// The index of the extension's dot; -1 without an extension. Dots at the beginning of a name only
/// hide the file.
qsizetype extensionDot(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const bool endsName = dot == name.size() - 1;
    if (dot < 1 || endsName)
        return -1;
    const bool onlyDotsBefore = QStringView(name).left(dot).count(QLatin1Char('.')) == dot;
    return onlyDotsBefore ? -1 : dot;
}

} // namespace

QByteArray nativePath(const QUrl &url)
{
    if (!url.isLocalFile())
        return {};
    // In Qt's internal form, in which only bytes that are not text are still encoded; nearly all
    // files have none.
    const QString text = url.path(QUrl::PrettyDecoded);
    if (isPlain(text))
        return text.startsWith(QLatin1Char('/')) ? text.toLatin1() : QByteArray();
    QByteArray path = text.toUtf8();
    if (path.contains('%'))
        path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    // A path without a leading slash would depend on the current directory, and system calls would
    // cut it at a null byte.
    if (!path.startsWith('/') || path.contains('\0'))
        return {};
    return path;
}

QUrl fromNativePath(const QByteArray &path)
{
    if (path.isEmpty())
        return {};
    // Tolerant, because strict parsing takes twice as long, and our encoding needs no check.
    return QUrl::fromEncoded(encodedPath(path), QUrl::TolerantMode);
}

QByteArray encoded(const QUrl &url, const QByteArray &nativePath)
{
    const Form form = formOf(nativePath);
    if (nativePath.isEmpty() || form == Form::EncodedByUs || url.hasQuery() || url.hasFragment()
        || !url.host().isEmpty())
        return url.toEncoded(QUrl::FullyEncoded);
    return encodedPath(nativePath);
}

QString lastPathComponent(const QByteArray &nativePath)
{
    return QString::fromUtf8(lastComponent(nativePath));
}

QString lastPathComponent(const QUrl &url)
{
    return lastPathComponent(nativePath(url));
}

QString pathExtension(const QString &name)
{
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString pathExtension(const QUrl &url)
{
    return pathExtension(lastPathComponent(url));
}

QString stem(const QUrl &url)
{
    const QString name = lastPathComponent(url);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? name : name.left(dot);
}

} // namespace corvane::file_url
