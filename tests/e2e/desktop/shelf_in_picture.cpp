#include "e2e/desktop/shelf_in_picture.h"

#include <algorithm>
#include <cstdlib>

namespace corvane::e2e {

namespace {

/// By more than what an outline leaves in the pixels beside it.
bool differs(QRgb one, QRgb other)
{
    constexpr int clearly = 32;
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))})
        > clearly;
}

} // namespace

QRect shelfIn(const QImage &picture, QRgb wallpaper)
{
    const int middle = picture.width() / 2;
    const auto isShelf = [&](int x, int y) {
        return picture.rect().contains(x, y) && differs(picture.pixel(x, y), wallpaper);
    };
    int bottom = 0;
    while (isShelf(middle, bottom))
        ++bottom;
    if (bottom == 0)
        return {};
    int left = middle;
    int right = middle;
    // Wherever its outline is at its widest.
    for (int y = 0; y < bottom; ++y) {
        while (isShelf(left - 1, y))
            --left;
        while (isShelf(right + 1, y))
            ++right;
    }
    return {left, 0, right - left + 1, bottom};
}

} // namespace corvane::e2e
