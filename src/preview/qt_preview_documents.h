#pragma once

#include "platform/preview/preview_documents.h"

namespace corvane {

/// Opens pictures with Qt's image plug-ins, and PDF documents with Qt's PDF plug-in if that is
/// installed.
class QtPreviewDocuments : public PreviewDocuments {
public:
    /// Further pages are counted but not shown.
    static constexpr int maximumPages = 2'000;
    /// In seconds: a frame with a shorter duration is shown for `frameInstead`, as browsers do.
    static constexpr double shortestFrame = 0.02;
    static constexpr double frameInstead = 0.1;

    std::optional<Opened> open(const QUrl &url, QSize wanted) override;
};

} // namespace corvane
