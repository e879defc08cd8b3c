#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

namespace corvane::test {

/// A folder with an AppImage in it, which is gone after the test.
struct UpdateFolder {
    UpdateFolder() { write("Corvane.AppImage", oldImage()); }

    /// The layout of an AppImage of ours: the head of a program for this machine with the format's
    /// mark in it, bytes where the file system would be, and the program's line.
    static QByteArray image(char filling, qsizetype size = 300'000)
    {
        const QByteArray line = "\napplication-id=example.corvane.Corvane\n";
        QByteArray bytes(size - line.size(), filling);
        bytes.replace(0, 11,
                      QByteArray("\x7f"
                                 "ELF\x02\x01\x01\0AI\x02",
                                 11));
        // 64 bits, little-endian, x86_64.
        bytes[18] = 62;
        bytes[19] = 0;
        return bytes + line;
    }
    static QByteArray oldImage() { return image('o'); }
    static QByteArray newImage() { return image('n', 400'000); }

    QByteArray path(const QByteArray &name = {}) const
    {
        const QByteArray folder = QFile::encodeName(directory.path());
        return name.isEmpty() ? folder : folder + '/' + name;
    }
    QByteArray appImage() const { return path("Corvane.AppImage"); }
    QByteArray previous() const { return path("Corvane.AppImage.before-update"); }

    void write(const QByteArray &name, const QByteArray &bytes) const
    {
        QFile file(QFile::decodeName(path(name)));
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no room for a test");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                            | QFile::ReadGroup);
    }
    static QByteArray contents(const QByteArray &path)
    {
        QFile file(QFile::decodeName(path));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList names() const
    {
        return QDir(directory.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

    QTemporaryDir directory;
};

} // namespace corvane::test
