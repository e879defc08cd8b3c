#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

namespace corvane {

/// What a thumbnail program says of itself in its `.thumbnailer` file.
struct ThumbnailerEntry {
    /// What is put in the places of a command that its author left open.
    struct Fields {
        QByteArray uri;
        QByteArray inputPath;
        QByteArray outputPath;
        int pixels = 0;
    };

    /// The program to look for; empty when it names none.
    QByteArray tryExec;
    /// The command as arguments, their quoting undone, their field codes in place. Never empty.
    QByteArrayList exec;
    QByteArrayList mimeTypes;

    /// From the contents of a file; none when they name no command that takes a file and leaves a
    /// picture.
    static std::optional<ThumbnailerEntry> parse(const QByteArray &contents);

    /// The command for one file: %u, %i, %o and %s put in, %% for a percent sign, other codes left
    /// out. An argument stays one argument whatever is put into it.
    QByteArrayList command(const Fields &fields) const;
};

} // namespace corvane
