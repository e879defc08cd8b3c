#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// Texts of an item: the line below its name, and the titles of texts.
namespace corvane::item_description {

/// A file's name and its parts. They are taken apart once for each file, because a drop of ten
/// thousand files is described before it returns.
struct FileName {
    /// A file on disk.
    explicit FileName(const QUrl &url);
    /// A name without a file, as another program proposes it; of a path only the last component
    /// counts.
    explicit FileName(const QString &proposed);

    QString stem() const;

    QByteArray nativePath;
    QString whole;
    QString extension;
};

/// " · "
QString separator();
/// "Folder", or kind and size of a file: "TXT · 2 KB". With no `version` (the file does not exist
/// or was not asked) only the kind that the extension gives: "TXT", or nothing.
QString ofFile(const FileName &name, const std::optional<FileVersion> &version);
/// The first line that is not empty, trimmed, and cut after 16,384 UTF-16 code units.
QString titleOfText(const QString &text);
/// Whether there is a regular file at the address: no folder, link, pipe or device. Asks the disk.
bool isRegularFile(const QUrl &url);

} // namespace corvane::item_description
