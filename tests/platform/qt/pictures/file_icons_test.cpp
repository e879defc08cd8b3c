#include "fakes/fake_file_locality.h"
#include "platform/qt/pictures/qt_file_icons.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// A desktop whose theme has one icon, for texts, twice as wide as it is high.
class FileIconsTest : public testing::Test {
protected:
    FileIconsTest()
    {
        QDir(themes.path()).mkpath(QStringLiteral("narrow/64"));
        QFile index(themes.filePath(QStringLiteral("narrow/index.theme")));
        EXPECT_TRUE(index.open(QFile::WriteOnly));
        index.write("[Icon Theme]\nName=Narrow\nDirectories=64\n[64]\nSize=64\nType=Fixed\n");
        QImage wide(64, 32, QImage::Format_RGB32);
        wide.fill(Qt::red);
        EXPECT_TRUE(wide.save(themes.filePath(QStringLiteral("narrow/64/text-plain.png"))));
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName(QStringLiteral("narrow"));
    }
    ~FileIconsTest() override
    {
        QIcon::setThemeName(name);
        QIcon::setThemeSearchPaths(paths);
    }

    const QStringList paths = QIcon::themeSearchPaths();
    const QString name = QIcon::themeName();
    QTemporaryDir themes;
    FakeFileLocality locality;
    QtFileIcons icons{locality};
};

/// The icons of whatever theme there is.
class SystemIconsTest : public testing::Test {
protected:
    QUrl saved(const QString &name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        return QUrl::fromLocalFile(file.fileName());
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(FileIconsTest, AnIconThatIsNoSquareStandsInTheMiddleOfOne)
{
    const QImage icon = icons.iconForFile(QUrl(QStringLiteral("file:///a.txt")), 64, 1).bitmap;
    ASSERT_EQ(icon.size(), QSize(64, 64));
    EXPECT_EQ(icon.pixelColor(0, 15).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(0, 16), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(63, 47), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(63, 48).alpha(), 0);
}

TEST_F(FileIconsTest, WhatTheThemeHasNoIconForIsDrawn)
{
    const QImage folder = icons.iconForFolder(320, 1).bitmap;
    const QImage sheet = icons.iconForFile(QUrl(QStringLiteral("file:///a.bin")), 320, 1).bitmap;
    EXPECT_NE(folder, sheet);
    // Below the line that its front begins with, which is straight.
    for (int x = 160; x < 280; ++x)
        EXPECT_EQ(folder.pixelColor(x, 109), folder.pixelColor(160, 200)) << x;
    for (const QImage &icon : {folder, sheet}) {
        EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(icon.pixelColor(160, 200).alpha(), 255);
    }
}

TEST_F(FileIconsTest, AFolderHasATabAndASheetATurnedCorner)
{
    const QImage folder = icons.iconForFolder(320, 1).bitmap;
    const QImage sheet = icons.iconForFile(QUrl(QStringLiteral("file:///a.bin")), 320, 1).bitmap;
    // To both sides of where their slanted edges end.
    EXPECT_EQ(folder.pixelColor(143, 85).alpha(), 255);
    EXPECT_EQ(folder.pixelColor(147, 85).alpha(), 0);
    EXPECT_EQ(sheet.pixelColor(233, 65).alpha(), 255);
    EXPECT_EQ(sheet.pixelColor(238, 65).alpha(), 0);
    EXPECT_EQ(sheet.pixelColor(190, 113), sheet.pixelColor(100, 200)) << "right below the corner";
}

TEST_F(SystemIconsTest, EveryFileHasAnIconOfTheWantedSize)
{
    const FakeFileLocality locality;
    QtFileIcons icons(locality);
    for (const QUrl &url :
         {saved(QStringLiteral("a.txt")), saved(QStringLiteral("b.unknown")),
          saved(QStringLiteral("noextension")), QUrl::fromLocalFile(folder.path()),
          QUrl::fromLocalFile(folder.path() + u'/'), QUrl(QStringLiteral("file:///gone.png")),
          QUrl()}) {
        const Image icon = icons.iconForFile(url, 30, 1.5);
        EXPECT_EQ(icon.bitmap.size(), QSize(45, 45)) << url.toEncoded().constData();
        EXPECT_EQ(icon.size, QSizeF(30, 30));
        EXPECT_NE(icon.bitmap, QImage(icon.bitmap.size(), icon.bitmap.format()));
    }
    EXPECT_NE(icons.iconForFile(QUrl::fromLocalFile(folder.path()), 30, 1).bitmap,
              icons.iconForFile(saved(QStringLiteral("a.txt")), 30, 1).bitmap);
}

TEST_F(SystemIconsTest, AnIconOfARemoteFileTouchesNothing)
{
    FakeFileLocality locality;
    QtFileIcons icons(locality);
    const QUrl remote = QUrl::fromLocalFile(folder.path());
    const QImage asFolder = icons.iconForFile(remote, 30, 1).bitmap;
    EXPECT_EQ(asFolder, icons.iconForFolder(30, 1).bitmap);
    locality.remoteFolder = folder.path().toUtf8();
    EXPECT_NE(icons.iconForFile(remote, 30, 1).bitmap, asFolder) << "it was looked at";
    EXPECT_EQ(icons.iconForFile(QUrl::fromLocalFile(folder.path() + u'/'), 30, 1).bitmap, asFolder);
}

} // namespace corvane::test
