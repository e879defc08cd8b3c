#include "platform/system/temporary_folder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

class TemporaryFolderTest : public testing::Test {
protected:
    ~TemporaryFolderTest() override
    {
        if (m_before.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_before);
    }

private:
    const QByteArray m_before = qgetenv("TMPDIR");
};

TEST_F(TemporaryFolderTest, IsTheOneThatTheEnvironmentNames)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    qputenv("TMPDIR", path);
    EXPECT_EQ(temporaryFolder(), path);
    qputenv("TMPDIR", path + '/');
    EXPECT_EQ(temporaryFolder(), path);
}

TEST_F(TemporaryFolderTest, IsTheSystemsWhereTheEnvironmentNamesNone)
{
    qunsetenv("TMPDIR");
    EXPECT_EQ(temporaryFolder(), "/tmp");
    qputenv("TMPDIR", "/nowhere/at/all");
    EXPECT_EQ(temporaryFolder(), "/tmp");
}

} // namespace
} // namespace corvane::test
