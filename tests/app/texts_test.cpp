// Every text of the menu, the windows, the shelf and the bar, read where a user reads it: as the
// sources have it, and as people read it in each language. The first two are compared with the
// tables in texts/, which are meant to be read by people too.

#include "app/application.h"
#include "app/base/translations.h"
#include "app/reading/all_texts.h"
#include "app/reading/marking_translator.h"
#include "app/reading/standard_error.h"
#include "app/reading/strange_words.h"
#include "app/reading/translation_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// What the group is to say; rewritten where the present texts are to be taken as the right ones.
std::string groupOfFile(const QString &group, const std::string &present)
{
    if (group.isEmpty() || group.endsWith(u'/'))
        return present;
    const QString path
        = QStringLiteral(CORVANE_TEST_DATA "/app/texts/") + group + QStringLiteral(".txt");
    QFile file(path);
    if (qEnvironmentVariableIsSet("CORVANE_REBASELINE")) {
        if (file.open(QFile::WriteOnly))
            file.write(QByteArray::fromStdString(present));
        return present;
    }
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// Numbers and dates depend on the locale, and texts of a window on the program's name.
class Surroundings {
public:
    explicit Surroundings(const QLocale &locale)
    {
        QLocale::setDefault(locale);
        QCoreApplication::setApplicationName(QStringLiteral("Corvane"));
    }
    Surroundings(const Surroundings &) = delete;
    Surroundings &operator=(const Surroundings &) = delete;
    ~Surroundings()
    {
        QLocale::setDefault(m_locale);
        QCoreApplication::setApplicationName(m_name);
    }

private:
    QLocale m_locale;
    QString m_name = QCoreApplication::applicationName();
};

class InstalledTranslator {
public:
    explicit InstalledTranslator(QTranslator &translator)
        : m_translator(translator)
    {
        QCoreApplication::installTranslator(&translator);
    }
    InstalledTranslator(const InstalledTranslator &) = delete;
    InstalledTranslator &operator=(const InstalledTranslator &) = delete;
    ~InstalledTranslator() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator &m_translator;
};

/// Words that no translation gives: the program's name, and those of what the texts are about.
QString withoutDataOfTheTest(QString text)
{
    static const QRegularExpression role(
        QStringLiteral("^(title|tool tip|Button|CheckBox|RadioButton|StaticText|EditableText|Client"
                       "|ProgressBar|AlertMessage|Link|Graphic|Dialog|[A-Za-z ]+): "));
    static const QRegularExpression data(QStringLiteral(
        "(^|\\[)(Unknown|Plain text document|PNG image|PDF document|Folder)(?=  "
        "·|[],])|corvane \\[OPTIONS\\] \\[FILE\\|URL "
        "\\.\\.\\.\\]|-{1,2}[a-z-]+\\b|bindsym|mailto:|Corvane(-1\\.2\\.AppImage)?|corvane "
        "--toggle|\\bcorvane:|[a-z]+\\.(txt|pdf|exe|png)"
        "|\\bDear all,|\\bFaster|\\bproxy\\.test|https://[a-z.]+/?|[a-z]+@[a-z.]+|\\[kind\\]"
        "|\\b(none|one|two|many|gone|unknown|photo|letter|report)\\b|TXT|TIFF|PNG|PDF|KEY|Meta\\+A"
        "|\\b[A-Z][0-9]{0,2}\\b"));
    return text.remove(role).remove(data);
}

} // namespace

TEST(Texts, AreThoseOfTheTablesInTheSources)
{
    const Surroundings surroundings(QLocale::c());
    for (const TextGroup &group : allTexts) {
        const std::string text = group.read().text();
        EXPECT_EQ(text, groupOfFile(QString::fromLatin1(group.name), text)) << group.name;
    }
}

TEST(Texts, AreReadAsInTheEnglishTables)
{
    const Surroundings surroundings(QLocale::c());
    const Translations translations({QStringLiteral("en")});
    for (const TextGroup &group : allTexts) {
        const std::string text = group.read().text();
        EXPECT_EQ(text, groupOfFile(QStringLiteral("en/") + QLatin1String(group.name), text))
            << group.name;
    }
}

TEST(Texts, SpeakOfThisDesktopInEveryLanguage)
{
    for (const QString &language : Translations::languages()) {
        const Surroundings surroundings{QLocale(language)};
        const Translations translations({language});
        EXPECT_EQ(translations.language(), language);
        for (const TextGroup &group : allTexts) {
            const TextTable table = group.read();
            for (const QString &line : table.lines())
                EXPECT_EQ(strangeWords(line), QStringList())
                    << language.toStdString() << ": " << line.toStdString();
        }
    }
}

/// What is said of controls, without what they are described by.
TEST(Texts, NameEachControlOfAWindowAndNoTwoAlike)
{
    static const QRegularExpression control(
        QStringLiteral("^(Button|CheckBox|RadioButton|EditableText|Link|ComboBox|Slider|SpinBox): "
                       "?([^\\[{]*)"));
    int count = 0;
    for (const QString &language : Translations::languages()) {
        const Surroundings surroundings{QLocale(language)};
        const Translations translations({language});
        for (TextTable (*read)() : {textsOfThePreferences, textsOfTheGuide, textsOfTheUpdates,
                                    textsOfThePreview, textsOfAStartBesideOneThatDoesNotAnswer}) {
            const TextTable table = read();
            for (const QStringList &window : table.sections()) {
                QStringList names;
                for (const QString &line : window) {
                    const auto match = control.match(line);
                    if (!match.hasMatch())
                        continue;
                    ++count;
                    EXPECT_FALSE(match.captured(2).trimmed().isEmpty()) << line.toStdString();
                    const QString name = match.captured(1) + match.captured(2).trimmed();
                    EXPECT_FALSE(names.contains(name))
                        << language.toStdString() << ": " << line.toStdString();
                    names << name;
                }
            }
        }
    }
    EXPECT_GT(count, 100);
}

TEST(Texts, AreAllTranslatedWhereTheyAreRead)
{
    const Surroundings surroundings(QLocale::c());
    MarkingTranslator translator;
    const InstalledTranslator installed(translator);
    static const QRegularExpression word(QStringLiteral("\\w*\\p{L}\\w*"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    for (const TextGroup &group : allTexts) {
        const TextTable table = group.read();
        for (const QString &line : table.lines()) {
            const QString rest = withoutDataOfTheTest(MarkingTranslator::unmarked(line));
            EXPECT_FALSE(rest.contains(word)) << group.name << ": " << line.toStdString();
        }
    }
    // And nothing is asked for that translators are not asked for, nor the other way round.
    const TranslationFile known = readTranslations(translationPaths().value(0));
    ASSERT_FALSE(known.isEmpty());
    for (const auto &[context, source] : translator.asked()) {
        // Qt asks for texts of its own.
        const bool isOurs = !context.startsWith(u'Q') && !source.startsWith(u"QT_");
        EXPECT_TRUE(!isOurs || known.contains({context, source}))
            << context.toStdString() << ": " << source.toStdString();
    }
    for (auto message = known.keyBegin(); message != known.keyEnd(); ++message)
        EXPECT_TRUE(translator.asked().contains(*message))
            << "never read: " << message->first.toStdString() << ": "
            << message->second.toStdString();
}

TEST(Texts, OfAStartWithoutADisplayAreOnTheStandardError)
{
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray waylandDisplay = qgetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    qunsetenv("WAYLAND_DISPLAY");
    int status = 0;
    const QString error = standardErrorOf([&status] { status = runApplication(0, nullptr); });
    if (!display.isEmpty())
        qputenv("DISPLAY", display);
    if (!waylandDisplay.isEmpty())
        qputenv("WAYLAND_DISPLAY", waylandDisplay);
    EXPECT_EQ(status, 1);
    TextTable table;
    table.add(QStringLiteral("Start without a display, on the standard error"), {error});
    EXPECT_EQ(table.text(), groupOfFile(QStringLiteral("no-display"), table.text()));
}

} // namespace corvane::test
