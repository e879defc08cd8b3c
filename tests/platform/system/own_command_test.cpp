#include "platform/system/own_command.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

struct OwnCommandTest : testing::Test {
    QString program(const QString &name)
    {
        QDir(folder.path()).mkpath(QStringLiteral("with space"));
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        return file.fileName();
    }
    QTemporaryDir folder;
};

} // namespace

TEST_F(OwnCommandTest, isTheNameAloneWhereTheShellFindsThisVeryProgram)
{
    const QString file = program(QStringLiteral("corvane"));
    EXPECT_EQ(own_command::inShell(file, {folder.path()}), QStringLiteral("corvane"));
    QTemporaryDir links;
    ASSERT_TRUE(QFile::link(file, links.filePath(QStringLiteral("corvane"))));
    EXPECT_EQ(own_command::inShell(file, {links.path()}), QStringLiteral("corvane"));
}

TEST_F(OwnCommandTest, isTheWholePathWhereTheShellFindsNoneOrAnother)
{
    const QString file = program(QStringLiteral("corvane"));
    EXPECT_EQ(own_command::inShell(file, {QStringLiteral("/nowhere")}), file);
    QTemporaryDir others;
    ASSERT_TRUE(QFile::copy(file, others.filePath(QStringLiteral("corvane"))));
    EXPECT_EQ(own_command::inShell(file, {others.path()}), file);
}

TEST_F(OwnCommandTest, isQuotedWhereTheShellWouldReadItOtherwise)
{
    const QString file = program(QStringLiteral("with space/it's"));
    EXPECT_EQ(own_command::inShell(file, {QStringLiteral("/nowhere")}),
              QLatin1Char('\'') + folder.path() + QStringLiteral("/with space/it'\\''s'"));
}

} // namespace corvane::test
