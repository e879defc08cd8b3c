#pragma once

#include <QByteArray>
#include <QString>

namespace corvane {

class InstallationSteps;
class VerifiedDownload;

/// Puts a verified download where it belongs. Blocks; any thread.
namespace update_installation {

/// Behind an AppImage's name: the one before, as long as the new one has never run.
inline constexpr auto previousSuffix = ".before-update";

/// Everything that may have gone wrong is the error's number: 0 for nothing.
struct Outcome {
    int error = 0;
    /// Where the file is now.
    QByteArray path = {};
};

/// Takes the place of the AppImage, with its permissions. Whenever the process ends, there is a
/// whole file under the AppImage's name, the old one or the new one:
///
///     permissions, sync            the new file is whole
///     keep the old one, sync       two names for the old file, unless an older one is still kept
///     replace, sync                the new file under the AppImage's name, in one step
Outcome swap(InstallationSteps &steps, VerifiedDownload &download, const QByteArray &appImage);

/// Gives it a name of its own in the folder that it is in. Nothing is overwritten.
Outcome handOver(InstallationSteps &steps, VerifiedDownload &download, const QByteArray &name);

/// The name for a file from this address: its last part where that is harmless, else one with the
/// version.
QByteArray safeName(const QString &lastPartOfAddress, const QString &version);

/// The AppImage runs: the one before is not needed any more.
void removePrevious(InstallationSteps &steps, const QByteArray &appImage);

} // namespace update_installation

} // namespace corvane
