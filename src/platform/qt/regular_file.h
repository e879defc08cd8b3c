#pragma once

class QFile;
class QUrl;

namespace corvane {

/// Opens the regular file at `url` for reading, by its exact path bytes. False for everything else:
/// a named pipe or a device could keep its reader waiting for ever. Any thread.
bool openRegularFile(QFile &file, const QUrl &url);

} // namespace corvane
