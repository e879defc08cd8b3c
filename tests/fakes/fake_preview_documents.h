#pragma once

#include "platform/preview/preview_documents.h"

namespace corvane::test {

/// Opens "*.png" as pictures and "*.pdf" as documents, by name only, unless they are marked as
/// broken.
class FakePreviewDocuments : public PreviewDocuments {
public:
    class Document : public PreviewDocument {
    public:
        std::optional<QImage> render(int page, QSize pixels, Cancellation &) override
        {
            QImage image(pixels, QImage::Format_RGB32);
            image.fill(QColor(page, 0, 0));
            return image;
        }
        std::optional<Frame> nextFrame(QSize, Cancellation &) override
        {
            return Frame{QImage(), 0.1};
        }
    };

    std::optional<Opened> open(const QUrl &url, QSize wanted, Cancellation &cancellation) override
    {
        opened << url;
        if (onOpen)
            onOpen(cancellation);
        if (isBroken)
            return std::nullopt;
        if (url.path().endsWith(QLatin1String(".png"))) {
            PreviewContent::Picture picture;
            picture.pixelSize = wanted;
            picture.document = std::make_shared<Document>();
            return picture;
        }
        PreviewContent::Pages pages;
        pages.count = 1;
        pages.sizes = {QSize(595, 842)};
        pages.document = std::make_shared<Document>();
        return pages;
    }

    QList<QUrl> opened;
    /// While it is opened.
    std::function<void(Cancellation &)> onOpen;
    bool isBroken = false;
};

} // namespace corvane::test
