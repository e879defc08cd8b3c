#pragma once

#include <QByteArray>

namespace corvane {

/// The absolute path of the user's folder for temporary files, without a slash at its end, in the
/// file system's encoding: what TMPDIR names, else, or where that is not there, `/tmp`. May be
/// called on any thread.
QByteArray temporaryFolder();

} // namespace corvane
