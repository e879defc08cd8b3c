#pragma once

#include "shelf/shelf_view.h"

#include <QColor>
#include <QLatin1String>
#include <QPainterPath>
#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace corvane::test {

struct SeenLayer;

/// Of two controls that answer at the same point the earlier one does.
enum class ControlRank { Arrow, ViewAll, Badge, Action, Cell };

/// A control that is recognised by its icon, and how far beyond its picture it answers.
struct IconKind {
    QLatin1String icon;
    /// What a press on it says; a trash says as well what it removes.
    QLatin1String promise;
    double dx;
    double dy;
    ControlRank rank;
};

/// A cell of the row.
struct DrawnCell {
    int itemIndex = 0;
    QRectF frame;
    std::optional<QRectF> badge;
};

/// A button, or a caret.
struct DrawnIcon {
    IconKind kind;
    QRectF frame;
    double opacity = 0;
    /// A caret's plate.
    QColor ground;
};

/// What a shelf shows at this moment, in the panel's coordinates.
struct DrawnShelf {
    /// Titles begin with it and end with the item's index.
    static inline const QString namePrefix = QStringLiteral("item ");

    /// Carets that point to where one reads from go back.
    DrawnShelf(const ShelfView &view, QSizeF panel, Qt::LayoutDirection direction);

    QRectF body;
    /// Beyond it no cell is seen.
    QRectF row;
    QPainterPath outline;
    std::vector<DrawnIcon> icons;
    std::vector<DrawnCell> cells;
    std::optional<QRectF> hoverPlate;

private:
    void add(const SeenLayer &seen, const SeenLayer &container);

    Qt::LayoutDirection m_direction;
};

} // namespace corvane::test
