#include "platform/qt/pictures/qt_text_measurer.h"

#include <QFontMetricsF>

namespace corvane {

double QtTextMeasurer::width(const QString &text, const QFont &font) const
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

} // namespace corvane
