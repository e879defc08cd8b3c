#pragma once

#include "core/drop_item.h"

#include <QColor>
#include <QList>
#include <QSize>

namespace corvane::test {

/// A file with a thumbnail: a sky with a sun, above some ground.
DropItem samplePhoto(const QString &name, const QColor &sky, const QColor &ground,
                     QSize size = {60, 60}, double sun = 8);
DropItem sampleBeingMade(const QString &name = QStringLiteral("contract page 1.png"),
                         const QString &subtitle = QStringLiteral("Converting to PNG…"));
/// One of each kind.
QList<DropItem> sampleItems();
/// The same kinds, in the size in which the bar shows them.
QList<DropItem> largeSampleItems();

} // namespace corvane::test
