#pragma once

#include "platform/pictures/file_icons.h"

#include <QColor>
#include <QList>

#include <cmath>

namespace corvane::test {

/// Gives every file the same plain square.
class FakeFileIcons : public FileIcons {
public:
    static constexpr QRgb color = 0xff3366cc;

    Image iconForFile(const QUrl &url, double side, double scale) override
    {
        asked << url;
        return icon(side, scale);
    }
    Image iconForFolder(double side, double scale) override
    {
        ++foldersAsked;
        return icon(side, scale);
    }

    QList<QUrl> asked;
    int foldersAsked = 0;

private:
    static Image icon(double side, double scale)
    {
        const int pixels = static_cast<int>(std::round(side * scale));
        QImage bitmap(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        bitmap.fill(QColor::fromRgba(color));
        return {bitmap, QSizeF(side, side)};
    }
};

} // namespace corvane::test
