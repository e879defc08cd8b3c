#include "platform/system/user_defaults.h"

#include <cmath>
#include <limits>

namespace corvane {

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray;
}

bool boolFromText(const QString &text)
{
    for (const char *yes : {"true", "yes", "1"}) {
        if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    bool isNumeric = false;
    const double number = text.toDouble(&isNumeric);
    return isNumeric && std::isfinite(number) && number != 0;
}

qint64 saturated(double number)
{
    // 2^63, the first number that does not fit.
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(number))
        return 0;
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

/// The number that the text begins with; white space and a sign may come first.
qint64 leadingInteger(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const bool isNegative = trimmed.startsWith(QLatin1Char('-'));
    const bool isSigned = isNegative || trimmed.startsWith(QLatin1Char('+'));
    qint64 number = 0;
    for (const QChar character : trimmed.mid(isSigned ? 1 : 0)) {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
            break;
        const qint64 digit = character.unicode() - u'0';
        const bool fits = !__builtin_mul_overflow(number, 10, &number)
            && !__builtin_add_overflow(number, isNegative ? -digit : digit, &number);
        if (!fits) {
            using Limits = std::numeric_limits<qint64>;
            return isNegative ? Limits::min() : Limits::max();
        }
    }
    return number;
}

} // namespace

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    m_registered.insert(defaults);
}

QVariant UserDefaults::object(const QString &key) const
{
    const QVariant stored = storedObject(key);
    return stored.isValid() ? stored : m_registered.value(key);
}

bool UserDefaults::boolForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (isNumber(value))
        return value.toDouble() != 0;
    return isText(value) && boolFromText(value.toString());
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    const QVariant value = object(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? 1 : 0;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return saturated(value.toDouble());
    default:
        return isText(value) ? leadingInteger(value.toString()) : 0;
    }
}

std::optional<QByteArray> UserDefaults::dataForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (!value.isValid())
        return std::nullopt;
    // A value of another type counts as empty data, which is different from a value that was never
    // set.
    return isText(value) ? value.toByteArray() : QByteArray();
}

} // namespace corvane
