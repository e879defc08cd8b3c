#include "services/preview_text.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace corvane::preview_text {

namespace {

/// The bytes without the beginning of a character whose end was cut off.
QByteArrayView withoutPartOfCharacter(QByteArrayView bytes)
{
    constexpr qsizetype longestCharacter = 4;
    for (qsizetype back = 1; back < longestCharacter && back <= bytes.size(); ++back) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
        const bool continues = byte >= 0x80 && byte < 0xC0;
        if (!continues)
            return byte >= 0xC0 ? bytes.chopped(back) : bytes;
    }
    return bytes;
}

QString decodeCharacters(QByteArrayView bytes, bool isCut)
{
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return QStringDecoder(*marked).decode(bytes);
    const QByteArrayView whole = isCut ? withoutPartOfCharacter(bytes) : bytes;
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(whole);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

bool endsLine(char16_t unit)
{
    return unit == u'\n' || unit == u'\v' || unit == u'\f' || unit == u'\u0085' || unit == u'\u2028'
        || unit == u'\u2029';
}

/// What would change how others are shown, or has a meaning of its own in a text view.
bool isHarmful(char16_t unit)
{
    return (unit < 0x20 && unit != u'\t') || (unit >= 0x7F && unit < 0xA0)
        || (unit >= u'\u202A' && unit <= u'\u202E') || (unit >= u'\u2066' && unit <= u'\u2069')
        || unit == u'\uFDD0' || unit == u'\uFDD1' || unit == u'\uFFFC' || unit == u'\uFEFF';
}

/// Takes characters one by one and keeps lines short and few.
class Lines {
public:
    explicit Lines(qsizetype length) { m_text.reserve(length + length / maximumLineLength); }

    bool isFull() const { return m_lines >= maximumLines; }
    void add(QChar character)
    {
        // Not between the halves of a character.
        if (m_lineLength >= maximumLineLength && !character.isLowSurrogate())
            end();
        m_text.append(character);
        ++m_lineLength;
    }
    void end()
    {
        m_text.append(QLatin1Char('\n'));
        m_lineLength = 0;
        ++m_lines;
    }
    QString take() { return std::move(m_text); }

private:
    QString m_text;
    qsizetype m_lineLength = 0;
    qsizetype m_lines = 0;
};

} // namespace

bool isText(const QMimeType &type)
{
    static constexpr std::array others
        = {u"application/json",          u"application/xml",  u"application/javascript",
           u"application/x-shellscript", u"application/yaml", u"application/toml"};
    return type.inherits(QStringLiteral("text/plain")) || type.name().startsWith(u"text/")
        || std::ranges::any_of(others, [&](const char16_t *name) {
               return type.inherits(QString::fromUtf16(name));
           });
}

bool isMonospaced(const QMimeType &type, const QString &name)
{
    static constexpr std::array prose = {u"text/plain", u"text/markdown", u"text/x-readme"};
    const bool isProse = std::ranges::any_of(
        prose, [&](const char16_t *known) { return type.name() == QStringView(known); });
    return !isProse || name.endsWith(u".log", Qt::CaseInsensitive);
}

Decoded decode(const QByteArray &bytes, bool isCut)
{
    const QString text = decodeCharacters(bytes, isCut);
    Lines lines(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (lines.isFull())
            return {lines.take(), true};
        const char16_t unit = text[i].unicode();
        if (unit == u'\r' || endsLine(unit)) {
            if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            lines.end();
        } else {
            lines.add(isHarmful(unit) ? QChar(QChar::ReplacementCharacter) : text[i]);
        }
    }
    return {lines.take(), isCut};
}

} // namespace corvane::preview_text
