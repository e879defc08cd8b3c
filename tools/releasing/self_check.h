#pragma once

#include "app/updates/release_statement.h"
#include "app/updates/update_key.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace corvane {

/// Looks at a feed as a program does that has the first key built in and runs no build yet.
struct SelfCheck {
    UpdateKey first;
    /// The one that signs from now on.
    UpdateKey last;
    QString application;
    QDateTime now;

    /// What is wrong; empty where the program would be offered this release, and take the file.
    QString ofRelease(const QByteArray &feed, const ReleaseStatement &asked,
                      const QByteArray &file) const;
    /// What is wrong; empty where something is believed, and all of that is as it is stated.
    QString ofFeed(const QByteArray &feed) const;
};

} // namespace corvane
