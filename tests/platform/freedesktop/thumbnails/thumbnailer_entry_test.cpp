#include "platform/freedesktop/thumbnails/thumbnailer_entry.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace corvane::test {

namespace {

QByteArray entry(const QByteArray &exec, const QByteArray &more = "MimeType=video/x-a;\n")
{
    return "[Thumbnailer Entry]\nExec=" + exec + "\n" + more;
}

/// The arguments for a file, joined by bars.
QByteArray command(const QByteArray &exec)
{
    const auto parsed = ThumbnailerEntry::parse(entry(exec));
    return parsed ? parsed->command({"file:///in/a b", "/in/a b", "/out/o.png", 128}).join('|')
                  : QByteArray("none");
}

} // namespace

TEST(ThumbnailerEntry, fieldsAreFilledInAndStayOneArgument)
{
    EXPECT_EQ(command("make -s %s %u %o"), "make|-s|128|file:///in/a b|/out/o.png");
    EXPECT_EQ(command("make --size=%sx%s %i:%o 100%%"),
              "make|--size=128x128|/in/a b:/out/o.png|100%");
    EXPECT_EQ(command("make %i %o %k %"), "make|/in/a b|/out/o.png||");
}

TEST(ThumbnailerEntry, quotingIsUndoneOnce)
{
    EXPECT_EQ(command(R"("/opt/my app/make" "%i" %o)"), "/opt/my app/make|/in/a b|/out/o.png");
    EXPECT_EQ(command(R"(make "a\\"b\\$c" %i %o)"), "make|a\"b$c|/in/a b|/out/o.png");
    EXPECT_EQ(command(R"(make 'x $(y) \\z' %i %o)"), R"(make|x $(y) \z|/in/a b|/out/o.png)");
    EXPECT_EQ(command(R"(make a\\ b "" %i\s%o)"), "make|a b||/in/a b|/out/o.png");
}

TEST(ThumbnailerEntry, nothingIsEverAShellsToRead)
{
    EXPECT_EQ(command("make %i %o; rm -rf $HOME `id` | sh"),
              "make|/in/a b|/out/o.png;|rm|-rf|$HOME|`id`|||sh");
}

TEST(ThumbnailerEntry, commandsThatCanMakeNothingAreNone)
{
    for (const char *exec :
         {"", "make", "make %i", "make %o", "make \"%i %o", "\"\" %i %o", "make %%i %%o"})
        EXPECT_EQ(command(exec), "none") << exec;
    EXPECT_FALSE(ThumbnailerEntry::parse(""));
    EXPECT_FALSE(ThumbnailerEntry::parse("[Desktop Entry]\nExec=make %i %o\n"));
    EXPECT_FALSE(ThumbnailerEntry::parse(entry(QByteArray("make\0x %i %o", 12))));
}

TEST(ThumbnailerEntry, onlyItsOwnGroupCounts)
{
    const auto parsed = ThumbnailerEntry::parse("# made by hand\n[Other]\nExec=wrong %i %o\n"
                                                "[Thumbnailer Entry]\r\n"
                                                " TryExec = make \r\nExec= make %i %o\r\n"
                                                "MimeType=video/A; video/b ;;\n"
                                                "[Third]\nTryExec=wrong\n");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->tryExec, "make");
    EXPECT_EQ(parsed->exec.constFirst(), "make");
    EXPECT_EQ(parsed->mimeTypes, (QByteArrayList{"video/a", "video/b"}));
}

namespace {

class ThumbnailerRegistryTest : public testing::Test {
protected:
    ThumbnailerRegistryTest()
    {
        for (const char *name : {"home", "system", "bin"})
            QDir(folder.path()).mkpath(QLatin1String(name) + QLatin1String("/thumbnailers"));
        program("first");
        program("second");
    }

    QByteArray path(const QByteArray &name) const { return top + '/' + name; }
    void write(const QByteArray &name, const QByteArray &contents) const
    {
        QFile file(QFile::decodeName(path(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(contents);
    }
    void program(const QByteArray &name) const
    {
        write("bin/" + name, "#!/bin/sh\n");
        ::chmod(path("bin/" + name).constData(), 0700);
    }
    QByteArray found(const QByteArrayList &types) const
    {
        const auto thumbnailer = registry.find(types);
        return thumbnailer ? thumbnailer->program : QByteArray("none");
    }

    QTemporaryDir folder;
    QByteArray top = QFile::encodeName(folder.path());
    ThumbnailerRegistry registry{{path("home"), path("system")}, {path("bin")}};
};

} // namespace

TEST_F(ThumbnailerRegistryTest, findsAProgramByTheTypeOfTheFile)
{
    write("system/thumbnailers/a.thumbnailer", entry("first %i %o", "MimeType=video/a;video/b\n"));
    write("system/thumbnailers/ignored.txt", entry("first %i %o", "MimeType=video/c\n"));
    EXPECT_EQ(found({"video/b"}), path("bin/first"));
    EXPECT_EQ(found({"video/unknown", "video/a"}), path("bin/first"));
    EXPECT_EQ(found({"video/c"}), "none");
    EXPECT_EQ(found({}), "none");
}

TEST_F(ThumbnailerRegistryTest, theUsersFilesCoverTheSystemsOfTheSameName)
{
    write("system/thumbnailers/a.thumbnailer", entry("first %i %o"));
    write("home/thumbnailers/a.thumbnailer", entry("second %i %o"));
    EXPECT_EQ(found({"video/x-a"}), path("bin/second"));
    write("home/thumbnailers/a.thumbnailer", "[Thumbnailer Entry]\n");
    EXPECT_EQ((ThumbnailerRegistry({path("home"), path("system")}, {path("bin")})
                   .find({"video/x-a"})
                   .has_value()),
              false)
        << "so a user turns one off";
}

TEST_F(ThumbnailerRegistryTest, programsThatAreNotThereAreNotRun)
{
    write("system/thumbnailers/a.thumbnailer", entry("gone %i %o"));
    write("system/thumbnailers/b.thumbnailer",
          entry("first %i %o", "MimeType=video/b\nTryExec=gone\n"));
    write("system/thumbnailers/c.thumbnailer", entry("../bin/first %i %o", "MimeType=video/c\n"));
    for (const char *type : {"video/x-a", "video/b", "video/c"})
        EXPECT_EQ(found({type}), "none") << type;
}

TEST_F(ThumbnailerRegistryTest, whatIsInstalledLaterIsFound)
{
    EXPECT_EQ(found({"video/x-a"}), "none");
    write("home/thumbnailers/a.thumbnailer", entry("first %i %o"));
    EXPECT_EQ(found({"video/x-a"}), path("bin/first"));
}

TEST_F(ThumbnailerRegistryTest, filesThatAreNoFilesDoNotStopIt)
{
    ASSERT_EQ(::mkfifo(path("home/thumbnailers/pipe.thumbnailer").constData(), 0600), 0);
    ASSERT_EQ(::mkdir(path("home/thumbnailers/folder.thumbnailer").constData(), 0700), 0);
    write("home/thumbnailers/huge.thumbnailer", entry("first %i %o") + QByteArray(100'000, '#'));
    write("home/thumbnailers/z.thumbnailer", entry("second %i %o"));
    EXPECT_EQ(found({"video/x-a"}), path("bin/second"));
}

} // namespace corvane::test
