#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>
#include <vector>

namespace corvane {

/// One thing that a pasteboard can carry to another program. A plain value: what is handed over is
/// fixed when it is made.
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

/// Everything that is written in one go.
struct PasteboardContents {
    std::vector<PasteboardWriter> writers;
    /// The plain text beside the writers. Without it, each writer's own text, joined by line ends.
    std::optional<QString> string;
};

} // namespace corvane
