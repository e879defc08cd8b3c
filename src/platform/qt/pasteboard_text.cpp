#include "platform/qt/pasteboard_text.h"

#include <QStringDecoder>

#include <optional>

namespace corvane::pasteboard_text {

namespace {

QString decodedAs(QStringConverter::Encoding encoding, const QByteArray &bytes)
{
    QStringDecoder decoder(encoding);
    QString text = decoder(bytes);
    while (text.endsWith(QChar(0)))
        text.chop(1);
    return text;
}

std::optional<QStringConverter::Encoding> markedEncoding(const QByteArray &bytes)
{
    if (bytes.startsWith("\xff\xfe"))
        return QStringConverter::Utf16LE;
    if (bytes.startsWith("\xfe\xff"))
        return QStringConverter::Utf16BE;
    if (bytes.startsWith("\xef\xbb\xbf"))
        return QStringConverter::Utf8;
    return std::nullopt;
}

} // namespace

QString decoded(const QByteArray &bytes)
{
    if (const auto encoding = markedEncoding(bytes))
        return decodedAs(*encoding, bytes);
    return decodedAs(bytes.isValidUtf8() ? QStringConverter::Utf8 : QStringConverter::Latin1,
                     bytes);
}

QString decoded(const QByteArray &bytes, const QString &mimeType)
{
    const QString charset
        = mimeType.section(QStringLiteral("charset="), 1, 1, QString::SectionCaseInsensitiveSeps)
              .section(QLatin1Char(';'), 0, 0)
              .remove(QLatin1Char('"'))
              .trimmed();
    // Declared UTF-8 that is none would lose bytes.
    if (charset.isEmpty() || charset.compare(QLatin1String("utf-8"), Qt::CaseInsensitive) == 0)
        return decoded(bytes);
    if (const auto encoding = QStringConverter::encodingForName(charset.toLatin1().constData()))
        return decodedAs(*encoding, bytes);
    return decoded(bytes);
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

} // namespace corvane::pasteboard_text
