#include "golden/window_stage.h"

#include "app/welcome/illustration_view.h"
#include "app/welcome/welcome_shapes.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QTransform>

namespace corvane::test {

namespace {

QPalette paletteOf(Scheme scheme)
{
    const bool isDark = scheme == Scheme::Dark;
    const QColor text = isDark ? QColor(0xEE, 0xEE, 0xF0) : QColor(0x1B, 0x1C, 0x1F);
    QPalette palette(isDark ? QColor(0x3A, 0x3C, 0x42) : QColor(0xF2, 0xF2, 0xF4),
                     isDark ? QColor(0x26, 0x28, 0x2C) : QColor(0xF6, 0xF6, 0xF8));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x8A, 0x8B, 0x90));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x80, 0xE0));
    palette.setColor(QPalette::Link, isDark ? QColor(0x6A, 0xB4, 0xFF) : QColor(0x1F, 0x66, 0xC2));
    return palette;
}

/// Where a widget may write, in points of its window: all of it where it has a text. The guide's
/// pictures have letters on the key alone.
QRectF lettersOf(const QWidget &widget, const QWidget &window)
{
    const QPoint at = widget.mapTo(&window, QPoint());
    if (qobject_cast<const IllustrationView *>(&widget))
        return welcome_shapes::stageIn(widget.rect())
            .mapRect(welcome_shapes::keyCap)
            .translated(at);
    for (const char *name : {"text", "plainText", "title"}) {
        if (!widget.property(name).toString().isEmpty())
            return QRectF(at, QSizeF(widget.size()));
    }
    return {};
}

} // namespace

WindowLookForPictures::WindowLookForPictures(Scheme scheme)
    : m_font(QApplication::font())
{
    QFont inter(QStringLiteral("Inter"));
    inter.setPixelSize(13);
    QApplication::setFont(inter);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    use(scheme);
}

WindowLookForPictures::~WindowLookForPictures()
{
    QApplication::setFont(m_font);
    QApplication::setPalette(QPalette());
}

void WindowLookForPictures::use(Scheme scheme)
{
    QApplication::setPalette(paletteOf(scheme));
}

Picture pictureOf(QWidget &window, double scale, const QRect &part)
{
    QCoreApplication::processEvents();
    const QRect area = part.isNull() ? window.rect() : part;
    Picture result;
    result.scale = scale;
    result.image = QImage((QSizeF(area.size()) * scale).toSize(), QImage::Format_RGB32);
    result.image.setDevicePixelRatio(scale);
    window.render(&result.image, {}, area);
    const QTransform toPixels = QTransform::fromScale(scale, scale).translate(-area.x(), -area.y());
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QRectF letters = lettersOf(*widget, window);
        if (widget->isVisibleTo(&window) && letters.intersects(area))
            result.letters.push_back(toPixels.mapRect(letters).toAlignedRect());
    }
    return result;
}

QString WindowState::fileName(Scheme scheme, int scale) const
{
    return QStringLiteral("%1-%2-%3x.png")
        .arg(QLatin1String(name),
             scheme == Scheme::Dark ? QStringLiteral("dark") : QStringLiteral("light"))
        .arg(scale);
}

} // namespace corvane::test
