#include "core/byte_count.h"

#include <array>

namespace corvane {

namespace {

struct Unit {
    qint64 bytes;
    /// Digits after the decimal point.
    int digits;
    const char *name;
};
constexpr std::array<Unit, 6> units = {{
    {1'000, 0, " KB"},
    {1'000'000, 1, " MB"},
    {1'000'000'000, 2, " GB"},
    {1'000'000'000'000, 2, " TB"},
    {1'000'000'000'000'000, 2, " PB"},
    {1'000'000'000'000'000'000, 2, " EB"},
}};

qint64 powerOfTen(int exponent)
{
    qint64 power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

/// `bytes` as a multiple of the unit's last shown digit, rounded half up. Integer arithmetic,
/// because it runs for every file of a large drop.
qint64 rounded(qint64 bytes, const Unit &unit)
{
    const qint64 step = unit.bytes / powerOfTen(unit.digits);
    const qint64 rest = bytes % step;
    return bytes / step + (rest >= step - rest ? 1 : 0);
}

QString withoutTrailingZeros(qint64 steps, int digits)
{
    while (digits > 0 && steps % 10 == 0) {
        steps /= 10;
        --digits;
    }
    QString text = QString::number(steps);
    if (digits > 0)
        text = text.rightJustified(digits + 1, QLatin1Char('0'));
    if (digits > 0)
        text.insert(text.size() - digits, QLatin1Char('.'));
    return text;
}

} // namespace

QString formatByteCount(qint64 bytes)
{
    if (bytes < units.front().bytes)
        return QString::number(bytes) + QLatin1String(bytes == 1 ? " byte" : " bytes");
    for (std::size_t i = 0; i < units.size(); ++i) {
        const Unit &unit = units[i];
        const qint64 steps = rounded(bytes, unit);
        // 999,999 bytes are shown as 1 MB, not as 1000 KB.
        const bool reachesNext = steps >= 1000 * powerOfTen(unit.digits);
        if (!reachesNext || i + 1 == units.size())
            return withoutTrailingZeros(steps, unit.digits) + QLatin1String(unit.name);
    }
    Q_UNREACHABLE();
}

} // namespace corvane
