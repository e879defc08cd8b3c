#include "golden/drawing_libraries.h"

#include <QCryptographicHash>
#include <QFont>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace corvane::test {

namespace {

void drawSample(QPainter &painter)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QLinearGradient gradient(0, 0, 90, 60);
    gradient.setColorAt(0, QColor(0xF3, 0xDA, 0xC6));
    gradient.setColorAt(1, QColor(0x1E, 0x26, 0x44));
    painter.fillRect(QRect(0, 0, 90, 60), gradient);
    painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, 0.16F), 1.75));
    painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.45F));
    painter.drawRoundedRect(QRectF(3.5, 3.5, 40, 30), 8, 8);
    int y = 14;
    for (const double size : {7.125, 8.25, 9.75}) {
        QFont font(QStringLiteral("Inter"));
        font.setPointSizeF(size);
        font.setWeight(y == 14 ? QFont::Medium : QFont::Normal);
        painter.setFont(font);
        painter.setPen(QColor::fromRgbF(1, 1, 1, 0.92F));
        painter.drawText(QPointF(5, y), QStringLiteral("Quarter 38 Åge"));
        y += 14;
    }
    QImage tile(31, 17, QImage::Format_ARGB32_Premultiplied);
    tile.fill(QColor(200, 120, 40, 180));
    painter.rotate(7);
    painter.drawImage(QRectF(50, 10, 20.5, 20.5), tile);
}

} // namespace

QString drawingLibraries()
{
    QImage image(90, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        drawSample(painter);
    }
    const QImage small = image.scaled(41, 27, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QCryptographicHash sum(QCryptographicHash::Sha1);
    for (const QImage &part : {image, small})
        sum.addData({reinterpret_cast<const char *>(part.constBits()), part.sizeInBytes()});
    return QStringLiteral("Qt %1\nsample %2\n")
        .arg(QString::fromLatin1(qVersion()), QString::fromLatin1(sum.result().toHex()));
}

} // namespace corvane::test
