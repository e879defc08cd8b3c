#include "app/base/translations.h"
#include "app/commands/command_line.h"
#include "app/commands/command_problem.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(CommandProblem, KeepsTheBytesOfWhatItNames)
{
    EXPECT_EQ(command_problem::line(CommandProblem::NoFile, {"a\xff%1\n"}),
              "there is no file a\xff%1\n");
    EXPECT_EQ(command_problem::line(CommandProblem::OptionsCannotGoTogether, {"%2", "b"}),
              "%2 and b cannot go together");
}

TEST(CommandProblem, IsOneLineWithAllThatItNamesInEveryLanguage)
{
    QList<QByteArray> english;
    {
        const Translations translations({QStringLiteral("en")});
        for (int i = 0; i < command_problem::count; ++i)
            english << command_problem::line(static_cast<CommandProblem>(i),
                                             {"<first>", "<second>"});
    }
    for (const QString &language : Translations::languages()) {
        const Translations translations({language});
        for (int i = 0; i < command_problem::count; ++i) {
            const QByteArray line
                = command_problem::line(static_cast<CommandProblem>(i), {"<first>", "<second>"});
            EXPECT_FALSE(line.isEmpty() || line.contains('\n')) << language.toStdString() << i;
            for (const char *named : {"<first>", "<second>"})
                EXPECT_EQ(line.count(named), english[i].count(named))
                    << language.toStdString() << ": " << line.constData();
            EXPECT_EQ(line == english[i], language == QStringLiteral("en")) << line.constData();
        }
    }
}

TEST(CommandProblem, IsSaidInTheLanguageThatIsLoaded)
{
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(CommandLine::of({"--b\xff"}).problem, "eine Option --b\xff gibt es nicht");
    EXPECT_EQ(CommandLine::of({"--list", "--take"}).problem,
              "--list und --take gehen nicht zusammen");
}

} // namespace corvane::test
