#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace corvane::test {

/// What must not be read on a Linux screen in any language: things that are another desktop's,
/// signs that stand on no keyboard here, places where something was to be put in, and markup.
inline QStringList strangeWords(const QString &text)
{
    static const QRegularExpression strange(
        QStringLiteral(
            "\\bmac(os|book)?s?\\b|\\bmenu ?bars?\\b|\\bdock\\b|\\bnotch\\b|\\bfinder\\b"
            "|\\bcommand[- ]key|[⌘⌥⌃⇧⇪]"
            // The same things in other languages.
            "|menüleiste|menuleiste|\\bkerbe|barre des menus|encoche|barra de(i)? men[uú]"
            "|\\bmuesca|\\btacca|pasek menu|\\bwcięci|строк\\w+ меню|\\bвырез|рядк\\w+ меню"
            "|menü çubuğu|\\bçenti|شريط القوائم|النتوء|שורת התפריטים|מגרעת|मेनू बार|नॉच"
            "|bilah menu|メニューバー|ノッチ|메뉴 막대|메뉴 바|노치|菜单栏|刘海|選單列|瀏海"
            "|%L?\\d|%L?n|&(amp|lt|gt|quot|nbsp|#\\d+);|</?[a-z]+\\b[^>]*>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    // Uncountable workspaces of that desktop; the key is one.
    static const QRegularExpression spaces(QStringLiteral("\\bSpaces\\b"));
    QStringList found;
    for (const QRegularExpression &sought : {strange, spaces}) {
        auto matches = sought.globalMatch(text);
        while (matches.hasNext())
            found << matches.next().captured();
    }
    return found;
}

} // namespace corvane::test
