#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>
#include <vector>

namespace corvane {

/// One item as a pasteboard offers it to other programs. A value: the contents are fixed when it is
/// made.
struct PasteboardWriter {
    struct File {
        QUrl url;
    };
    struct Data {
        QByteArray bytes;
        UTType type;
    };
    struct Text {
        QString string;
    };
    struct Link {
        QUrl url;
    };

    std::variant<File, Data, Text, Link> content;
};

/// All contents that are written to a pasteboard together.
struct PasteboardContents {
    std::vector<PasteboardWriter> writers;
    /// The plain text. Without it, the texts of all writers, joined by line ends.
    std::optional<QString> string;
};

} // namespace corvane
