#pragma once

#include <QString>

namespace corvane {

/// A file's size for people, in decimal units as file managers show it: "512 bytes", "2 KB",
/// "1.4 MB", "3.25 GB".
QString formatByteCount(qint64 bytes);

} // namespace corvane
