#include "platform/pictures/fitted_size.h"

#include <QSizeF>

namespace corvane {

QSize fittedSize(QSize picture, QSize room)
{
    return QSizeF(picture).scaled(QSizeF(room), Qt::KeepAspectRatio).toSize().expandedTo({1, 1});
}

} // namespace corvane
