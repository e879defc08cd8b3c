#include "golden/image_comparison.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace corvane::test {

namespace {

/// In points.
constexpr double tileSide = 8;

/// Steps of a colour, 0 to 255, that the same shape may differ by when its colours are mixed in
/// another order: at a pixel, and on the average of a tile.
constexpr int roundingAtPixel = 2;
constexpr double roundingOfTile = 0.35;
/// Letters may stand a fraction of a pixel elsewhere, which is seen at their edges. A share of the
/// ink of a tile may so be elsewhere in it, and less of it in another tile.
constexpr double edgeShare = 0.36;
constexpr double driftShare = 0.1;
/// But a text keeps its ink: that tells a fainter one.
constexpr double inkShare = 0.05;
constexpr double roundingOfLetters = 0.25;
constexpr double roundingOfText = 0.02;

QString place(const QRect &rect)
{
    return QStringLiteral("%1 x %2 pixels at %3, %4")
        .arg(rect.width())
        .arg(rect.height())
        .arg(rect.x())
        .arg(rect.y());
}

const QRgb *row(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

bool isSame(const QImage &left, const QImage &right, const QRect &rect)
{
    const auto bytes = static_cast<std::size_t>(rect.width()) * sizeof(QRgb);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        if (std::memcmp(row(left, y) + rect.left(), row(right, y) + rect.left(), bytes) != 0)
            return false;
    }
    return true;
}

std::optional<QString> anyPixel(const QImage &kept, const QImage &drawn)
{
    QRect differs;
    int count = 0;
    for (int y = 0; y < kept.height(); ++y) {
        if (isSame(kept, drawn, {0, y, kept.width(), 1}))
            continue;
        for (int x = 0; x < kept.width(); ++x) {
            if (row(kept, y)[x] == row(drawn, y)[x])
                continue;
            differs |= QRect(x, y, 1, 1);
            ++count;
        }
    }
    if (count == 0)
        return std::nullopt;
    return QStringLiteral("%1 pixels differ, all within %2").arg(count).arg(place(differs));
}

std::array<int, 3> channels(QRgb pixel)
{
    return {qRed(pixel), qGreen(pixel), qBlue(pixel)};
}

/// How the pixels of a rectangle differ, in the channel in which it is the most.
struct Measure {
    int largest = 0;
    /// Of all pixels, without and with their signs.
    double mean = 0;
    double drift = 0;
    /// How far the kept pixels are from their ground, which is the colour of most of them.
    double ink = 0;
};

/// Pixels of a rectangle that are, or are not, where letters may be.
class Part {
public:
    Part(const QImage &kept, const QImage &drawn)
        : m_kept(kept)
        , m_drawn(drawn)
    {
    }

    void add(int x, int y)
    {
        m_before.push_back(row(m_kept, y)[x]);
        m_now.push_back(row(m_drawn, y)[x]);
    }
    bool isEmpty() const { return m_now.empty(); }
    Measure measure() const
    {
        Measure most;
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const Measure one = measure(channel);
            most.largest = std::max(most.largest, one.largest);
            most.mean = std::max(most.mean, one.mean);
            most.drift = std::max(most.drift, one.drift);
            most.ink = std::max(most.ink, one.ink);
        }
        return most;
    }

private:
    Measure measure(std::size_t channel) const
    {
        Measure result;
        int sum = 0;
        int signedSum = 0;
        std::vector<int> values;
        values.reserve(m_before.size());
        for (std::size_t i = 0; i < m_before.size(); ++i) {
            values.push_back(channels(m_before[i]).at(channel));
            const int step = channels(m_now[i]).at(channel) - values.back();
            sum += std::abs(step);
            signedSum += step;
            result.largest = std::max(result.largest, std::abs(step));
        }
        const auto pixels = static_cast<double>(values.size());
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        const int ground = *middle;
        int ink = 0;
        for (const int value : values)
            ink += std::abs(value - ground);
        result.mean = sum / pixels;
        result.drift = std::abs(signedSum) / pixels;
        result.ink = ink / pixels;
        return result;
    }

    const QImage &m_kept;
    const QImage &m_drawn;
    std::vector<QRgb> m_before;
    std::vector<QRgb> m_now;
};

/// White where letters may be.
QImage maskOf(const Picture &drawn)
{
    QImage mask(drawn.image.size(), QImage::Format_Grayscale8);
    mask.fill(Qt::black);
    QPainter painter(&mask);
    for (const QRect &text : drawn.letters)
        painter.fillRect(text, Qt::white);
    return mask;
}

bool isWithinBounds(const QImage &kept, const QImage &drawn, const QImage &mask, const QRect &tile)
{
    if (isSame(kept, drawn, tile))
        return true;
    Part plain(kept, drawn);
    Part letters(kept, drawn);
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        for (int x = tile.left(); x <= tile.right(); ++x)
            (mask.constScanLine(y)[x] ? letters : plain).add(x, y);
    }
    if (!plain.isEmpty()) {
        const Measure found = plain.measure();
        if (found.largest > roundingAtPixel || found.drift > roundingOfTile)
            return false;
    }
    if (letters.isEmpty())
        return true;
    const Measure found = letters.measure();
    return found.mean <= roundingOfLetters + edgeShare * found.ink
        && found.drift <= roundingOfLetters + driftShare * found.ink;
}

bool hasItsInk(const QImage &kept, const QImage &drawn, const QRect &text)
{
    if (text.isEmpty() || isSame(kept, drawn, text))
        return true;
    Part letters(kept, drawn);
    for (int y = text.top(); y <= text.bottom(); ++y) {
        for (int x = text.left(); x <= text.right(); ++x)
            letters.add(x, y);
    }
    const Measure found = letters.measure();
    return found.drift <= roundingOfText + inkShare * found.ink;
}

std::optional<QString> anyTile(const QImage &kept, const Picture &drawn)
{
    const int side = static_cast<int>(std::round(tileSide * drawn.scale));
    const QImage mask = maskOf(drawn);
    QRect differs;
    int count = 0;
    for (int y = 0; y < kept.height(); y += side) {
        for (int x = 0; x < kept.width(); x += side) {
            const QRect tile = QRect(x, y, side, side).intersected(kept.rect());
            if (isWithinBounds(kept, drawn.image, mask, tile))
                continue;
            differs |= tile;
            ++count;
        }
    }
    for (const QRect &text : drawn.letters) {
        const QRect inside = text.intersected(kept.rect());
        if (hasItsInk(kept, drawn.image, inside))
            continue;
        differs |= inside;
        ++count;
    }
    if (count == 0)
        return std::nullopt;
    return QStringLiteral("%1 tiles or texts differ, all within %2").arg(count).arg(place(differs));
}

} // namespace

std::optional<QString> difference(const QImage &kept, const Picture &drawn, Comparison comparison)
{
    if (kept.size() != drawn.image.size()) {
        return QStringLiteral("it is %1 x %2 pixels large, not %3 x %4")
            .arg(drawn.image.width())
            .arg(drawn.image.height())
            .arg(kept.width())
            .arg(kept.height());
    }
    const QImage left = kept.convertToFormat(QImage::Format_RGB32);
    const Picture right{drawn.image.convertToFormat(QImage::Format_RGB32), drawn.scale,
                        drawn.letters};
    return comparison == Comparison::Exact ? anyPixel(left, right.image) : anyTile(left, right);
}

} // namespace corvane::test
