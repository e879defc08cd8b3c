#pragma once

#include "app/updates/update_choice.h"

#include <QByteArray>

#include <optional>

namespace corvane {

/// What is remembered of the checks from one start of the program to the next.
struct UpdateRecord {
    /// Seconds since 1970; none where there was none.
    std::optional<qint64> lastCheck;
    /// The highest that a feed has ever told of, on each scale.
    std::optional<UpdateVersion> highestBuild;
    std::optional<UpdateVersion> highestShortVersion;

    std::optional<UpdateVersion> &highest(VersionScale scale)
    {
        return scale == VersionScale::Build ? highestBuild : highestShortVersion;
    }
};

/// The file that keeps them. It is no setting: nobody shall carry it to another machine.
class UpdateRecordFile {
public:
    /// By its native path, which need not exist.
    explicit UpdateRecordFile(QByteArray folder);

    /// The program's folder for its state: below $XDG_STATE_HOME, or ~/.local/state.
    static QByteArray environmentFolder();

    /// What cannot be read was never remembered.
    UpdateRecord load() const;
    /// Whole or not at all. One that cannot be written is only known until the program ends.
    void save(const UpdateRecord &record) const;

private:
    QByteArray m_folder;
};

} // namespace corvane
