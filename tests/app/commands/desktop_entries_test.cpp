// What desktops and file managers read of the program, in each of its languages.

#include "app/base/translations.h"
#include "app/reading/strange_words.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// "Desktop Entry/Comment[de]" and so on, with what they say.
QMap<QString, QString> entryOf(const char *name)
{
    QFile file(QStringLiteral(CORVANE_TEST_DATA "/../packaging/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name;
    QMap<QString, QString> entry;
    QString group;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'['))
            group = line.mid(1).chopped(1) + u'/';
        const qsizetype sign = line.indexOf(u'=');
        if (sign > 0) {
            EXPECT_FALSE(entry.contains(group + line.left(sign))) << line.toStdString();
            entry.insert(group + line.left(sign), line.mid(sign + 1));
        }
    }
    return entry;
}

QStringList languagesBesideEnglish()
{
    QStringList languages = Translations::languages();
    languages.removeAll(QStringLiteral("en"));
    return languages;
}

QString inLanguage(const char *key, const QString &language)
{
    return QStringLiteral("%1[%2]").arg(QLatin1String(key), language);
}

void expectWhole(const char *name, std::initializer_list<const char *> keys)
{
    const QMap<QString, QString> entry = entryOf(name);
    for (const char *key : keys) {
        const QString english = entry.value(QLatin1String(key));
        EXPECT_FALSE(english.isEmpty()) << key;
        for (const QString &language : languagesBesideEnglish()) {
            const QString text = entry.value(inLanguage(key, language));
            EXPECT_FALSE(text.isEmpty() || text == english)
                << name << ": " << key << ' ' << language.toStdString();
            EXPECT_EQ(text.endsWith(u';'), english.endsWith(u';')) << text.toStdString();
            EXPECT_EQ(strangeWords(text), QStringList()) << text.toStdString();
        }
    }
    // And no language that the program does not speak.
    static const QRegularExpression named(QStringLiteral("\\[(.+)\\]$"));
    for (auto line = entry.keyBegin(); line != entry.keyEnd(); ++line) {
        const auto match = named.match(*line);
        EXPECT_TRUE(!match.hasMatch() || languagesBesideEnglish().contains(match.captured(1)))
            << line->toStdString();
    }
}

} // namespace

TEST(DesktopEntries, AreWholeInEveryLanguage)
{
    expectWhole("corvane.desktop.in",
                {"Desktop Entry/GenericName", "Desktop Entry/Comment", "Desktop Entry/Keywords",
                 "Desktop Action toggle/Name", "Desktop Action preferences/Name"});
    expectWhole("file-managers/dolphin.desktop.in", {"Desktop Action putOnShelf/Name"});
    expectWhole("file-managers/thunar.desktop.in", {"Desktop Entry/Name", "Desktop Entry/Comment"});
}

TEST(DesktopEntries, NameActionsAsTheMenuDoes)
{
    const QMap<QString, QString> entry = entryOf("corvane.desktop.in");
    for (const QString &language : languagesBesideEnglish()) {
        const Translations translations({language});
        EXPECT_EQ(entry.value(inLanguage("Desktop Action toggle/Name", language)),
                  QCoreApplication::translate("StatusMenu", "Show Shelf"));
        QString preferences = QCoreApplication::translate("StatusMenu", "Preferences…");
        EXPECT_TRUE(preferences.endsWith(u'…')) << language.toStdString();
        preferences.chop(1);
        // German has a blank before it.
        EXPECT_EQ(entry.value(inLanguage("Desktop Action preferences/Name", language)),
                  preferences.trimmed());
    }
}

TEST(DesktopEntries, SayInFilesWhatTheySayInDolphin)
{
    QFile file(QStringLiteral(CORVANE_TEST_DATA "/../packaging/file-managers/nautilus.py.in"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString extension = QString::fromUtf8(file.readAll());
    const QMap<QString, QString> entry = entryOf("file-managers/dolphin.desktop.in");
    for (const QString &language : languagesBesideEnglish()) {
        const QString put = entry.value(inLanguage("Desktop Action putOnShelf/Name", language));
        EXPECT_TRUE(extension.contains(QStringLiteral("    \"%1\": \"%2\",\n").arg(language, put)))
            << language.toStdString();
    }
}

} // namespace corvane::test
