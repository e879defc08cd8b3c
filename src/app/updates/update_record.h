#pragma once

#include "app/updates/update_trust.h"

#include <QByteArray>

#include <optional>

namespace corvane {

/// What is remembered of the checks from one start of the program to the next.
struct UpdateRecord {
    /// Seconds since 1970; none where there was none.
    std::optional<qint64> lastCheck;
    /// Whether that check got no answer that could be used, or was not ended.
    bool hasFailed = false;
    /// When the user was told last that the feed is not renewed.
    std::optional<qint64> lastExpiryNotice;
    /// To be recalled by an `UpdateTrust`: anybody may have written it.
    UpdateMemory memory;
};

/// The file that keeps it, apart from the settings, which people copy to other machines.
class UpdateRecordFile {
public:
    /// By its native path, which need not exist.
    explicit UpdateRecordFile(QByteArray folder);

    /// The program's folder for its state: below $XDG_STATE_HOME, or ~/.local/state.
    static QByteArray environmentFolder();

    /// Empty where there is no file; none where there is something else than a record.
    std::optional<UpdateRecord> load() const;
    /// Writes the whole file or none of it. A failure is not reported.
    void save(const UpdateRecord &record) const;
    /// Gives the file another name, in place of one that was set aside before.
    void setAside() const;

private:
    QByteArray path() const;

    QByteArray m_folder;
};

} // namespace corvane
