#pragma once

#include <QByteArray>
#include <QString>

namespace corvane {

class InstallationSteps;
class VerifiedDownload;

/// Puts a verified download where it belongs. Blocks; any thread.
namespace update_installation {

/// Follows the AppImage's name in the name of the version before, which is kept until the new one
/// has been started.
inline constexpr auto previousSuffix = ".before-update";

/// How a step ended: `error` is 0, or the system's number for what went wrong.
struct Outcome {
    int error = 0;
    /// Where the file is now.
    QByteArray path = {};
};

/// Puts the download in the AppImage's place, with its permissions. Whenever the process ends,
/// there is a whole file under the AppImage's name, the old one or the new one:
///
///     permissions, sync            the new file is whole
///     keep the old one, sync       two names for the old file, unless an older one is still kept
///     name                         a fresh name for the open file itself
///     replace, sync                the new file under the AppImage's name, in one step
Outcome swap(InstallationSteps &steps, const VerifiedDownload &download,
             const QByteArray &appImage);

/// Gives the download a name in the folder, with a number where that is taken: nothing is
/// overwritten. Its name is that of its address.
Outcome handOver(InstallationSteps &steps, const VerifiedDownload &download,
                 const QByteArray &folder);

/// The name for a file from this address: its last part where that is harmless, else one with the
/// version.
QByteArray safeName(const QString &lastPartOfAddress, const QString &version);

/// Removes the version before, and what interrupted swaps left. To be called once the new AppImage
/// has been started.
void removePrevious(InstallationSteps &steps, const QByteArray &appImage);

} // namespace update_installation

} // namespace corvane
