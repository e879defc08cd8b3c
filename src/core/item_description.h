#pragma once

#include "platform/system/file_version.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// What is said about dropped things below their names.
namespace corvane::item_description {

/// A file's name taken apart once: a drop of ten thousand files waits for nothing else.
struct FileName {
    /// A file on disk.
    explicit FileName(const QUrl &url);
    /// A name alone, as another program proposes it; of a path only its last part counts.
    explicit FileName(const QString &proposed);

    QString stem() const;

    QByteArray nativePath;
    QString whole;
    QString extension;
};

/// " · "
QString separator();
/// "Folder", or kind and size of a file: "TXT · 2 KB". Of what is not there, or cannot be asked
/// now, the kind that its name gives it.
QString ofFile(const FileName &name, const std::optional<FileVersion> &version);
/// The text's first line that is not empty, trimmed; cut where nobody reads on.
QString titleOfText(const QString &text);
/// Neither a folder, nor a link, nor anything else.
bool isRegularFile(const QUrl &url);

} // namespace corvane::item_description
