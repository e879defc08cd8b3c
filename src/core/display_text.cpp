#include "core/display_text.h"

namespace corvane {

namespace {

// More than fits into any panel, and few enough to be shaped without delay.
constexpr qsizetype maximumShownCharacters = 512;

bool forgesDirection(char16_t character)
{
    return character == u'\u200E' || character == u'\u200F' || character == u'\u061C'
        || (character >= u'\u202A' && character <= u'\u202E')
        || (character >= u'\u2066' && character <= u'\u2069');
}

bool isUnseen(char16_t character)
{
    // Not the zero-width joiners, which build emoji and the letters of many scripts.
    return character == u'\u200B' || character == u'\u2060' || character == u'\uFEFF'
        || character == u'\u00AD' || (character >= u'\uFFF9' && character <= u'\uFFFB');
}

} // namespace

QString displayText(const QString &text)
{
    QString shown = text.left(maximumShownCharacters);
    for (QChar &character : shown) {
        const char16_t unit = character.unicode();
        if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == u'\u2028' || unit == u'\u2029')
            character = u' ';
        else if (forgesDirection(unit) || isUnseen(unit))
            character = QChar::ReplacementCharacter;
    }
    return shown;
}

} // namespace corvane
