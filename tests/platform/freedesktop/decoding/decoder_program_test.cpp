#include "platform/base/cancellation.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/sandbox/bounded_process.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// Programs as they lie in a build folder, an installation, or an AppImage.
struct DecoderProgramTest : testing::Test {
    QByteArray path(const QString &name) const
    {
        return QFile::encodeName(QDir(folder.path()).canonicalPath() + u'/' + name);
    }
    QByteArray made(const QString &name) const
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath(QFileInfo(name).path()));
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        return path(name);
    }
    QByteArrayList commandOf(const QByteArray &decoder) const
    {
        return DecoderProgram(sandbox, decoder).command(decoder_protocol::Room::Usual);
    }
    /// What of this folder the decoder sees.
    QByteArrayList seen(const QByteArrayList &command) const
    {
        QByteArrayList places;
        for (qsizetype i = 0; i + 1 < command.size(); ++i) {
            if (command[i] == "--ro-bind" && command[i + 1].startsWith(path({})))
                places << command[i + 1];
        }
        return places;
    }

    QTemporaryDir folder;
    Sandbox sandbox{ThumbnailerRegistry::environmentProgramFolders()};
};

TEST_F(DecoderProgramTest, LiesBesideTheProgramOfABuildFolder)
{
    const QByteArray decoder = made(u"build/bin/corvane-decoder"_s);
    made(u"build/libexec/corvane-decoder"_s);
    EXPECT_EQ(DecoderProgram::belongingTo(path(u"build/bin/corvane"_s)), decoder);
}

TEST_F(DecoderProgramTest, LiesInTheFolderForSuchProgramsOfAnInstallation)
{
    made(u"prefix/bin/corvane"_s);
    const QByteArray decoder = made(u"prefix/libexec/corvane-decoder"_s);
    EXPECT_EQ(DecoderProgram::belongingTo(path(u"prefix/bin/corvane"_s)), decoder);
}

TEST_F(DecoderProgramTest, IsNotThereWhereNothingCanBeRun)
{
    made(u"prefix/bin/corvane"_s);
    EXPECT_EQ(DecoderProgram::belongingTo(path(u"prefix/bin/corvane"_s)), QByteArray());
    EXPECT_FALSE(DecoderProgram(sandbox, QByteArray()).isThere());
    EXPECT_TRUE(DecoderProgram(sandbox, path(u"prefix/bin/corvane"_s)).isThere());
}

TEST_F(DecoderProgramTest, SeesItselfAloneWhereItsLibrariesAreTheSystems)
{
    if (!sandbox.isAvailable())
        GTEST_SKIP() << "no program can be shut in here";
    made(u"prefix/share/secret"_s);
    const QByteArray decoder = made(u"prefix/libexec/corvane-decoder"_s);
    EXPECT_EQ(seen(commandOf(decoder)), QByteArrayList{decoder});
    EXPECT_EQ(seen(commandOf("/usr/libexec/corvane-decoder")), QByteArrayList());
}

TEST_F(DecoderProgramTest, WritesNowhereBesideWhatIsBounded)
{
    if (!sandbox.isAvailable())
        GTEST_SKIP() << "no program can be shut in here";
    Sandbox::OwnProgram program;
    program.command
        = {"/bin/sh", "-c", "for i in / /dev /usr /run /etc; do (: > $i/new) || echo no; done"};
    Cancellation never;
    EXPECT_EQ(bounded_process::run(sandbox.command(program), {60, 1024}, never).output.count("no"),
              5);
}

TEST_F(DecoderProgramTest, SeesTheLibrariesThatItCameWith)
{
    if (!sandbox.isAvailable())
        GTEST_SKIP() << "no program can be shut in here";
    made(u"an app/usr/lib/libQt6Core.so.6"_s);
    const QByteArray decoder = made(u"an app/usr/libexec/corvane-decoder"_s);
    EXPECT_EQ(seen(commandOf(decoder)), QByteArrayList{path(u"an app/usr"_s)});
}

} // namespace
} // namespace corvane
