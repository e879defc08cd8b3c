#pragma once

#include "app/updates/claimed_release.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// Writes feeds as `appcast::read` reads them.
namespace corvane::feed_writer {

/// With everything that the items say, the newest first, and nothing else.
QByteArray write(const QString &title, const QList<ClaimedRelease> &items);

} // namespace corvane::feed_writer
