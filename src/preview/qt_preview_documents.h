#pragma once

#include "platform/preview/preview_documents.h"

namespace corvane {

/// Pictures through Qt's image plug-ins, documents through its PDF plug-in where that is installed.
class QtPreviewDocuments : public PreviewDocuments {
public:
    /// Pages beyond these are counted but not shown.
    static constexpr int maximumPages = 2'000;
    /// As browsers do: who gives a frame less than 20 ms did not mean it.
    static constexpr double shortestFrame = 0.02;
    static constexpr double frameInstead = 0.1;

    std::optional<Opened> open(const QUrl &url, QSize wanted) override;
};

} // namespace corvane
