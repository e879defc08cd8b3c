#pragma once

#include <QImage>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace corvane::test {

/// What a test has drawn.
struct Picture {
    QImage image;
    /// Pixels per point.
    double scale = 1;
    /// Where the letters of each text may be, in pixels. They alone come from a library that draws
    /// them a little differently from version to version.
    std::vector<QRect> letters;
};

/// `Exact` is for pictures that the same libraries have drawn: not one pixel may differ. `Tiles` is
/// for pictures by other versions of them: each tile of 8 by 8 points has a bound of its own, which
/// follows from what the kept picture shows there. Beside letters that is the rounding of colours,
/// on letters a share of their ink; and each text as a whole must have its ink.
enum class Comparison { Exact, Tiles };

/// What differs and where, in words; none where nothing does.
std::optional<QString> difference(const QImage &kept, const Picture &drawn, Comparison comparison);

} // namespace corvane::test
