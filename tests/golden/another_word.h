#pragma once

#include <QString>

#include <algorithm>

namespace corvane::test {

/// The same text with another first letter or digit.
inline QString anotherLetter(QString text)
{
    text[0] = text[0] == u'3' ? u'8' : text[0].isDigit() ? u'3' : text[0] == u'W' ? u'n' : u'W';
    return text;
}

/// The same letters backward; where that is the same text, one letter is another one.
inline QString anotherWord(const QString &text)
{
    QString backward = text;
    std::reverse(backward.begin(), backward.end());
    return backward == text ? anotherLetter(text) : backward;
}

} // namespace corvane::test
