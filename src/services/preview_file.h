#pragma once

#include "platform/preview/preview_content.h"

namespace corvane {

class Cancellation;
class PreviewDocuments;

/// What the preview of a file shows. Everything here may wait for a disk.
namespace preview_file {

/// A folder's items are counted up to here.
inline constexpr int maximumCounted = 10'000;

/// The content of the file at `url`, a picture fitted into `wanted` pixels. Of special files
/// (pipes, devices, sockets) nothing is read.
PreviewContent read(const QUrl &url, QSize wanted, PreviewDocuments &documents,
                    Cancellation &cancellation);

/// Its name as it can be shown; the disk is not asked.
QString shownName(const QUrl &url);

} // namespace preview_file

} // namespace corvane
