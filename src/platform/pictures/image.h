#pragma once

#include <QImage>
#include <QSizeF>

namespace corvane {

/// A bitmap and the size in points at which it is to be shown. If their proportions differ the
/// bitmap is fitted into that size.
struct Image {
    QImage bitmap;
    QSizeF size;

    bool isNull() const { return bitmap.isNull(); }
};

} // namespace corvane
