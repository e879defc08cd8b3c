#pragma once

#include <QImage>
#include <QSizeF>

namespace corvane {

/// A bitmap and the size in points at which it is meant to be shown. Where the two differ in shape
/// the bitmap is drawn fitted into its place, keeping its own proportions.
struct Image {
    QImage bitmap;
    QSizeF size;

    bool isNull() const { return bitmap.isNull(); }
};

} // namespace corvane
