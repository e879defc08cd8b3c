#include "app/base/translations.h"
#include "app/reading/strange_words.h"
#include "app/reading/translation_file.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// "%1", "%n", in order; whether the locale writes them does not count.
QStringList places(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%L?([0-9n])"));
    QStringList all;
    auto matches = place.globalMatch(text);
    while (matches.hasNext())
        all << matches.next().captured(1);
    all.sort();
    return all;
}

QString pathOf(const QString &language)
{
    return QStringLiteral(CORVANE_TEST_DATA "/../translations/corvane_%1.ts").arg(language);
}

/// The message's only text; empty where there is none.
QString translated(const TranslationFile &file, const char *context, const char *source)
{
    return file.value({QString::fromUtf8(context), QString::fromUtf8(source)}).texts.value(0);
}

TEST(Translations, AreChosenByWhatPeopleWantMost)
{
    const QStringList all{QStringLiteral("ar"),    QStringLiteral("de"),
                          QStringLiteral("en"),    QStringLiteral("pt_BR"),
                          QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
    const auto chosen = [&all](const char *wanted) {
        const QString names = QString::fromLatin1(wanted);
        return Translations::chosen(names.split(u' ', Qt::SkipEmptyParts), all).toStdString();
    };
    EXPECT_EQ(chosen("de-AT de"), "de");
    EXPECT_EQ(chosen("nl-NL nl de"), "de") << "the next that there is";
    EXPECT_EQ(chosen("en-GB de"), "en");
    EXPECT_EQ(chosen("nl"), "en");
    EXPECT_EQ(chosen(""), "en");
    EXPECT_EQ(chosen("C"), "en");
    EXPECT_EQ(chosen("pt-PT"), "pt_BR");
    EXPECT_EQ(chosen("ar-EG"), "ar");
    EXPECT_EQ(chosen("zh-CN zh-Hans"), "zh_CN");
    EXPECT_EQ(chosen("zh-SG"), "zh_CN");
    EXPECT_EQ(chosen("zh-TW"), "zh_TW");
    EXPECT_EQ(chosen("zh-HK"), "zh_TW") << "the script counts";
}

TEST(Translations, AreThoseOfTheSessionUnlessOneIsNamed)
{
    const QStringList session{QStringLiteral("ar-EG"), QStringLiteral("ar"), QStringLiteral("fr")};
    EXPECT_EQ(Translations::wanted({}, session), session);
    EXPECT_EQ(Translations(Translations::wanted({}, session)).language(), QStringLiteral("ar"));
    EXPECT_EQ(Translations::wanted(QStringLiteral("he"), session),
              QStringList{QStringLiteral("he")});
}

TEST(Translations, AreLoadedAsLongAsTheyLive)
{
    const auto unknown = [] { return QCoreApplication::translate("StatusMenu", "Drag anything"); };
    const auto drag
        = [] { return QCoreApplication::translate("WelcomeStep", "Drag anything onto the notch"); };
    {
        const Translations translations({QStringLiteral("nl")});
        EXPECT_EQ(translations.language(), QStringLiteral("en"));
        EXPECT_EQ(drag(), QStringLiteral("Drag anything to the top of the screen"));
        EXPECT_EQ(unknown(), QStringLiteral("Drag anything")) << "no such message";
    }
    EXPECT_EQ(drag(), QStringLiteral("Drag anything onto the notch"));
}

TEST(Translations, GiveTheWindowsTheDirectionOfTheirLanguage)
{
    for (const QString &language : Translations::languages()) {
        const Translations translations({language});
        EXPECT_EQ(QGuiApplication::layoutDirection(), QLocale(language).textDirection());
    }
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(Translations, AreThoseOfThePresentSources)
{
    const QTemporaryDir folder;
    QStringList arguments{QStringLiteral("-silent"),
                          QStringLiteral("-no-obsolete"),
                          QStringLiteral("-locations"),
                          QStringLiteral("none"),
                          QStringLiteral(CORVANE_TEST_DATA "/../src"),
                          QStringLiteral("-ts")};
    for (const QString &path : translationPaths()) {
        const QString copy = folder.filePath(QFileInfo(path).fileName());
        ASSERT_TRUE(QFile::copy(path, copy));
        arguments << copy;
    }
    QProcess update;
    update.start(QStringLiteral(CORVANE_LUPDATE), arguments);
    ASSERT_TRUE(update.waitForFinished(-1));
    ASSERT_EQ(update.exitCode(), 0) << update.readAllStandardError().toStdString();
    for (const QString &path : translationPaths()) {
        const QString name = QFileInfo(path).fileName();
        EXPECT_EQ(readTranslations(folder.filePath(name)), readTranslations(path))
            << name.toStdString() << " lags: cmake --build build/dev --target translations";
    }
}

TEST(Translations, ThatAreBuiltInAreWhole)
{
    EXPECT_TRUE(Translations::languages().contains(QStringLiteral("en")));
    for (const QString &language : Translations::languages()) {
        const TranslationFile file = readTranslations(pathOf(language));
        EXPECT_FALSE(file.isEmpty()) << language.toStdString();
        for (auto message = file.begin(); message != file.end(); ++message)
            EXPECT_TRUE(message->isFinished && !message->texts.contains(QString()))
                << language.toStdString() << ": " << message.key().second.toStdString();
    }
}

TEST(Translations, PutInWhatTheSourcePutsIn)
{
    for (const QString &path : translationPaths()) {
        const TranslationFile file = readTranslations(path);
        for (auto message = file.begin(); message != file.end(); ++message) {
            const QString &source = message.key().second;
            for (const QString &text : message->texts) {
                if (text.isEmpty())
                    continue;
                // "One" and "two" may be words of their own; the form of large numbers has one.
                QStringList withoutNumber = places(source);
                withoutNumber.removeOne(QStringLiteral("n"));
                const bool isWord = message->hasPlurals && places(text) == withoutNumber
                    && text != message->texts.constLast();
                EXPECT_TRUE(isWord || places(text) == places(source))
                    << path.toStdString() << ": " << text.toStdString();
                EXPECT_EQ(text.trimmed(), text) << path.toStdString();
                EXPECT_EQ(text.endsWith(u'…'), source.endsWith(u'…'))
                    << path.toStdString() << ": " << text.toStdString();
                QString words = text;
                words.remove(QRegularExpression(QStringLiteral("%L?[0-9n]")));
                EXPECT_EQ(strangeWords(words), QStringList()) << path.toStdString();
            }
        }
    }
}

/// The guide and the preferences name keys in the middle of sentences.
TEST(Translations, NameAKeyInASentenceAsInAMenu)
{
    const auto copy = "Move the pointer to the notch and the shelf reappears. Drag the item into "
                      "whatever you are working in. Press Space to preview it, or ⌘C to copy its "
                      "path.";
    const auto needs = "Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.";
    const auto types = "That combination types a character. Record one with ⌘, ⌥ or ⌃.";
    for (const QString &language : Translations::languages()) {
        const TranslationFile file = readTranslations(pathOf(language));
        const auto key = [&file](const char *name) { return translated(file, "QShortcut", name); };
        const auto expectNamed = [&](const QString &text, const QString &name) {
            EXPECT_TRUE(!name.isEmpty() && text.contains(name))
                << language.toStdString() << ": " << name.toStdString() << " in "
                << text.toStdString();
        };
        expectNamed(translated(file, "WelcomeStep", copy), key("Ctrl") + u"+C");
        expectNamed(translated(file, "WelcomeStep", "Hold ⇧ to keep it on the shelf"),
                    key("Shift"));
        for (const char *modifier : {"Meta", "Alt", "Ctrl"}) {
            expectNamed(translated(file, "corvane::GeneralPane", needs), key(modifier));
            expectNamed(translated(file, "corvane::ShortcutRow", types), key(modifier));
        }
    }
}

/// A line may not begin with the sign that ends what stands before it.
TEST(Translations, KeepFrenchSignsBesideTheirWords)
{
    const TranslationFile file = readTranslations(pathOf(QStringLiteral("fr")));
    EXPECT_FALSE(file.isEmpty());
    const QRegularExpression apart(QStringLiteral(" [;:!?»]|« "));
    for (const TranslatedMessage &message : file) {
        for (const QString &text : message.texts)
            EXPECT_FALSE(text.contains(apart)) << text.toStdString();
    }
}

/// A word may be the same in two languages; a sentence is not, nor a word in other letters.
TEST(Translations, LeaveNothingInEnglish)
{
    const QRegularExpression word(QStringLiteral("(?<!%)\\b[A-Za-z]{2,}"));
    const TranslationFile english = readTranslations(pathOf(QStringLiteral("en")));
    for (const QString &language : Translations::languages()) {
        const bool hasLatinLetters = QLocale(language).script() == QLocale::LatinScript;
        const TranslationFile file = readTranslations(pathOf(language));
        for (auto message = file.cbegin(); message != file.cend(); ++message) {
            const auto &[context, source] = message.key();
            // Keys are called as it stands on them.
            if (language == QLatin1String("en") || context == QLatin1String("QShortcut"))
                continue;
            for (const QString &text : message->texts) {
                const QString said = QString(text).remove(QLatin1String("Corvane"));
                const bool isEnglish
                    = text == source || english[message.key()].texts.contains(text);
                EXPECT_FALSE(isEnglish && said.count(word) > (hasLatinLetters ? 1 : 0))
                    << language.toStdString() << ": " << text.toStdString();
            }
        }
    }
}

/// The sources say so; here the shelf also comes from the panel, the top edge and commands, and it
/// holds more than one thing.
TEST(Translations, CallNoWayToTheShelfTheOnlyOneAndItsPlaceNotASingleOne)
{
    const QRegularExpression only(
        QStringLiteral(
            "\\bonly\\b|\\bnur\\b|\\bsolo\\b|qu’avec|que l’|\\bsomente\\b|\\btylko\\b"
            "|только|лише\\b|केवल|\\bhanya\\b|のみ|だけで|로만|만 씁|只|yalnızca|إلا|لتكتفي"
            "|בלבד|\\bרק\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpression single(
        QStringLiteral("^(One|Ein|Un solo|Un seul|Um só|Одн[оеі]|Jedno|Tek|Satu)\\b|^एक |^موضع واحد"
                       "|^מקום אחד|ひとつ|^자리 하나|一[个個]位置"),
        QRegularExpression::UseUnicodePropertiesOption);
    const auto drags = "Turn off to summon it only with the shortcut.";
    const auto keys = "Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.";
    const auto about
        = "One slot. Drag in, switch context, drag out. The shelf clears itself and gets "
          "out of the way.";
    for (const QString &language : Translations::languages()) {
        const TranslationFile file = readTranslations(pathOf(language));
        const auto expectWithout = [&](const QRegularExpression &words, const QString &text) {
            EXPECT_FALSE(text.isEmpty()) << language.toStdString();
            EXPECT_FALSE(text.contains(words))
                << language.toStdString() << ": " << text.toStdString();
        };
        expectWithout(only, translated(file, "corvane::GeneralPane", drags));
        expectWithout(only, translated(file, "corvane::GeneralPane", keys));
        expectWithout(single, translated(file, "corvane::AboutPane", about));
    }
}

} // namespace

} // namespace corvane::test
