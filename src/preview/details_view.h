#pragma once

#include "platform/pictures/image.h"
#include "platform/preview/preview_content.h"

#include <QWidget>

namespace corvane {

/// Shows a file that has no other preview: its icon, its name and its details.
class DetailsView : public QWidget {
public:
    /// In points.
    static constexpr int iconSide = 96;

    /// The icon may be null.
    DetailsView(const PreviewContent &content, const Image &icon, QWidget *parent = nullptr);
};

} // namespace corvane
