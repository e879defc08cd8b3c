#include "core/characters.h"

#include <QTextBoundaryFinder>

namespace corvane::characters {

namespace {

/// Whether the character is always counted as one beside others for which this is true too, so that
/// the boundary rules need not be asked. "\r\n" is the exception, which `count` handles.
bool standsAlone(QChar character)
{
    const char16_t code = character.unicode();
    const bool isLatin = code < 0x300;
    const bool isGreekOrCyrillic = code >= 0x370 && code < 0x483;
    const bool isIdeograph = code >= 0x4e00 && code < 0xa000;
    return isLatin || isGreekOrCyrillic || isIdeograph;
}

/// The end of the part that begins at `start` and needs the boundary rules: after the first
/// character that stands alone and is followed by another one that does.
qsizetype endOfStretch(QStringView text, qsizetype start)
{
    qsizetype end = start + 1;
    while (end < text.size() && !(standsAlone(text[end - 1]) && standsAlone(text[end])))
        ++end;
    return end;
}

/// The next boundary, -1 at the end. Next to Thai letters Qt also reports boundaries between the
/// two surrogates of one code point; these are left out.
qsizetype nextBoundary(QTextBoundaryFinder &finder, QStringView text)
{
    qsizetype boundary = finder.toNextBoundary();
    while (boundary > 0 && boundary < text.size() && text[boundary].isLowSurrogate()
           && text[boundary - 1].isHighSurrogate())
        boundary = finder.toNextBoundary();
    return boundary;
}

qsizetype countByTheRules(QStringView text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype total = 0;
    while (nextBoundary(finder, text) >= 0)
        ++total;
    return total;
}

} // namespace

qsizetype count(QStringView text)
{
    qsizetype total = 0;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype next = position + 1;
        const bool isAlone
            = standsAlone(text[position]) && (next == text.size() || standsAlone(text[next]));
        if (isAlone) {
            const bool endsLine = text[position] == QLatin1Char('\n') && position > 0
                && text[position - 1] == QLatin1Char('\r');
            total += endsLine ? 0 : 1;
            position = next;
            continue;
        }
        const qsizetype end = endOfStretch(text, position);
        total += countByTheRules(text.sliced(position, end - position));
        if (text[position] == QLatin1Char('\n') && position > 0
            && text[position - 1] == QLatin1Char('\r'))
            --total;
        position = end;
    }
    return total;
}

QString prefix(const QString &text, qsizetype maximum, qsizetype maximumBytes)
{
    // In UTF-16 code units; no character of a readable text is longer. The text comes from another
    // program and may be huge, so only as much as this is looked at.
    constexpr qsizetype longestCharacter = 64;
    const QString head = text.left((maximum + 1) * longestCharacter);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, head);
    qsizetype end = 0;
    for (qsizetype taken = 0; taken < maximum; ++taken) {
        const qsizetype boundary = nextBoundary(finder, head);
        if (boundary < 0 || QStringView(head).left(boundary).toUtf8().size() > maximumBytes)
            break;
        end = boundary;
    }
    return text.left(end);
}

} // namespace corvane::characters
