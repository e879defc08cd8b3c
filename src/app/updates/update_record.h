#pragma once

#include "app/updates/update_choice.h"

#include <QByteArray>

#include <optional>

namespace corvane {

/// What is remembered of the checks from one start of the program to the next.
struct UpdateRecord {
    /// Seconds since 1970; none where there was none.
    std::optional<qint64> lastCheck;
    /// The highest version that a feed has ever announced, on each scale.
    std::optional<UpdateVersion> highestBuild;
    std::optional<UpdateVersion> highestShortVersion;

    std::optional<UpdateVersion> &highest(VersionScale scale)
    {
        return scale == VersionScale::Build ? highestBuild : highestShortVersion;
    }
};

/// The file that keeps it, apart from the settings, which people copy to other machines.
class UpdateRecordFile {
public:
    /// By its native path, which need not exist.
    explicit UpdateRecordFile(QByteArray folder);

    /// The program's folder for its state: below $XDG_STATE_HOME, or ~/.local/state.
    static QByteArray environmentFolder();

    /// Empty where there is no file or it cannot be read.
    UpdateRecord load() const;
    /// Writes the whole file or none of it. A failure is not reported.
    void save(const UpdateRecord &record) const;

private:
    QByteArray m_folder;
};

} // namespace corvane
