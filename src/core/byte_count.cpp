#include "core/byte_count.h"

#include "core/shown_numbers.h"

#include <QCoreApplication>

#include <array>

namespace corvane {

namespace {

struct Unit {
    qint64 bytes;
    /// Digits after the decimal point.
    int digits;
    /// With the number in place of %1.
    const char *text;
};
constexpr std::array<Unit, 6> units = {{
    {1'000, 0, QT_TRANSLATE_NOOP("ByteCount", "%1 KB")},
    {1'000'000, 1, QT_TRANSLATE_NOOP("ByteCount", "%1 MB")},
    {1'000'000'000, 2, QT_TRANSLATE_NOOP("ByteCount", "%1 GB")},
    {1'000'000'000'000, 2, QT_TRANSLATE_NOOP("ByteCount", "%1 TB")},
    {1'000'000'000'000'000, 2, QT_TRANSLATE_NOOP("ByteCount", "%1 PB")},
    {1'000'000'000'000'000'000, 2, QT_TRANSLATE_NOOP("ByteCount", "%1 EB")},
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

/// The multiple as a number, without zeros at the end of its decimals.
QString shownSteps(qint64 steps, int digits)
{
    while (digits > 0 && steps % 10 == 0) {
        steps /= 10;
        --digits;
    }
    return shownNumber(static_cast<double>(steps) / static_cast<double>(powerOfTen(digits)),
                       digits);
}

} // namespace

QString formatByteCount(qint64 bytes)
{
    if (bytes < units.front().bytes)
        return bytes == 1
            ? QCoreApplication::translate("ByteCount", "1 byte")
            : QCoreApplication::translate("ByteCount", "%n bytes", nullptr, pluralOf(bytes));
    for (std::size_t i = 0; i < units.size(); ++i) {
        const Unit &unit = units[i];
        const qint64 steps = rounded(bytes, unit);
        // 999,999 bytes are shown as 1 MB, not as 1000 KB.
        const bool reachesNext = steps >= 1000 * powerOfTen(unit.digits);
        if (!reachesNext || i + 1 == units.size())
            return QCoreApplication::translate("ByteCount", unit.text)
                .arg(shownSteps(steps, unit.digits));
    }
    Q_UNREACHABLE();
}

} // namespace corvane
