#pragma once

#include "app/updates/update_report.h"

#include <QString>

namespace corvane {

/// What the window says of a report, and which buttons it has; all of it plain text.
struct UpdateTexts {
    QString title;
    QString detail;
    /// Empty for no such button. The first one installs, downloads or shows the file.
    QString action;
    /// Ends what is under way, or closes the window.
    QString dismissal;

    /// `runningVersion` is the one that the user has; `replaces` says whether an update takes its
    /// place or is handed over.
    static UpdateTexts of(const UpdateReport &report, const QString &runningVersion, bool replaces);

    /// What the menu and the preferences say of something that went wrong.
    static QString menuTitle(const UpdateReport &report);
    static QString explanation(const UpdateReport &report);
};

} // namespace corvane
