#pragma once

#include "platform/pictures/image.h"
#include "platform/preview/preview_content.h"

#include <QWidget>

namespace corvane {

/// A file that has nothing else to show: its icon, its name, and what it is.
class DetailsView : public QWidget {
public:
    static constexpr int iconSide = 96;

    /// The icon may be null.
    DetailsView(const PreviewContent &content, const Image &icon, QWidget *parent = nullptr);
};

} // namespace corvane
