#include "core/shown_numbers.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace corvane {

QString shownNumber(qint64 number)
{
    return QLocale().toString(number);
}

QString shownNumber(double number, int decimals)
{
    return QLocale().toString(number, 'f', decimals);
}

QString shownPixels(QSize size)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(size.width()) + QStringLiteral(" × ") + locale.toString(size.height());
}

int pluralOf(qint64 count)
{
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

} // namespace corvane
