// The options that the parser knows are those of the man page and of the completions, and each is
// described in the same words.

#include "app/commands/command_options.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {

namespace {

QString documentOf(const char *name)
{
    QFile file(QStringLiteral(CORVANE_TEST_DATA "/../packaging/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

/// All that the expression finds with its first group, each once, sorted.
QStringList found(const QString &text, const char *expression)
{
    QStringList names;
    auto all = QRegularExpression(QLatin1String(expression)).globalMatch(text);
    while (all.hasNext())
        names << all.next().captured(1);
    names.removeDuplicates();
    std::sort(names.begin(), names.end());
    return names;
}

/// "--list", "-0" ... as people type them.
QStringList known()
{
    QStringList names;
    for (const CommandOption &option : command_options::all()) {
        if (option.isHidden)
            continue;
        names << QLatin1String("--") + QLatin1String(option.name);
        if (*option.shortName != '\0')
            names << QLatin1Char('-') + QLatin1String(option.shortName);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void expectDescribed(const QString &document, const QString &behind)
{
    for (const CommandOption &option : command_options::all()) {
        EXPECT_TRUE(option.isHidden
                    || document.contains(QLatin1String(option.description) + behind))
            << option.name;
    }
}

} // namespace

TEST(CommandDocuments, TheHelpNamesEveryOptionButTheHiddenOnes)
{
    const QString help = command_options::help();
    EXPECT_EQ(found(help, "(?:^|[ ,])(--?[a-z0-9][a-z-]*)"), known());
    expectDescribed(help, QStringLiteral("\n"));
    for (const QString &line : help.split(u'\n'))
        EXPECT_LE(line.size(), 80) << line.toStdString();
}

TEST(CommandDocuments, TheManPageNamesExactlyTheOptionsInTheWordsOfTheHelp)
{
    QString page = documentOf("corvane.1.in");
    page = page.mid(page.indexOf(QStringLiteral(".SH OPTIONS")));
    page = page.left(page.indexOf(QStringLiteral(".SH EXIT STATUS")));
    page.replace(QStringLiteral("\\-"), QStringLiteral("-"));
    QStringList names = found(page, "\\n\\.TP\\n\\.BR? (--?[a-z0-9-]+)")
        + found(page, "\\n\\.TP\\n\\.BR -[a-z0-9] \", \" (--[a-z-]+)");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, known());
    expectDescribed(page, QStringLiteral(".\n"));
}

TEST(CommandDocuments, TheCompletionOfBashNamesExactlyTheOptions)
{
    const QString words = documentOf("completions/corvane.bash")
                              .section(QStringLiteral("-W '"), 1)
                              .section(u'\'', 0, 0);
    QStringList names = words.simplified().split(u' ');
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, known());
}

TEST(CommandDocuments, TheCompletionOfZshNamesExactlyTheOptionsInTheWordsOfTheHelp)
{
    const QString completion = documentOf("completions/_corvane");
    QStringList names = found(completion, "\\)(--[a-z-]+)\\[")
        + found(completion, "\\{(-[a-z0-9]),--") + found(completion, "\\{-[a-z0-9],(--[a-z-]+)\\}");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, known());
    expectDescribed(completion, QStringLiteral("]'"));
}

TEST(CommandDocuments, TheCompletionOfFishNamesExactlyTheOptionsInTheWordsOfTheHelp)
{
    const QString completion = documentOf("completions/corvane.fish");
    QStringList names;
    for (const QString &name : found(completion, " -l ([a-z-]+)"))
        names << QLatin1String("--") + name;
    for (const QString &name : found(completion, " -s ([a-z0-9])"))
        names << QLatin1Char('-') + name;
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, known());
    expectDescribed(completion, QStringLiteral("'\n"));
}

} // namespace corvane::test
