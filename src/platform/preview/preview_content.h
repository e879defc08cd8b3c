#pragma once

#include "platform/pictures/image.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace corvane {

class Cancellation;

/// A picture or document, not trusted, that is rendered piece by piece. Each function may take
/// long, gives none soon after it is cancelled, and needs at most
/// `ImageCodec::maximumDecodedBytes`. Any thread, but one call at a time.
class PreviewDocument {
public:
    struct Frame {
        QImage image;
        /// How long the frame is shown, in seconds.
        double duration = 0;
    };

    virtual ~PreviewDocument() = default;

    /// A page, upright, scaled to exactly `pixels` even if that distorts it. None if it is broken
    /// or too large.
    virtual std::optional<QImage> render(int page, QSize pixels, Cancellation &cancellation) = 0;
    /// The next frame of an animation, scaled down to fit into `limit`. After the last frame comes
    /// the first one, or none if the animation does not repeat.
    virtual std::optional<Frame> nextFrame(QSize limit, Cancellation &cancellation) = 0;
};

/// Texts about a file of any kind; unknown ones are empty. They can be shown as they are: unsafe
/// characters were replaced.
struct PreviewDetails {
    QString name;
    QString kind;
    /// For a file its size, for a folder its number of items.
    QString size;
    QString modified;

    friend bool operator==(const PreviewDetails &, const PreviewDetails &) = default;
};

struct PreviewContent {
    /// Shown with name, icon and details.
    struct Plain { };
    /// There is nothing at the address.
    struct Missing { };
    struct Picture {
        /// The stored size, upright; for vector graphics their preferred size.
        QSize pixelSize;
        /// The picture, scaled down to fit into the wanted pixels.
        QImage fitted;
        bool isVector = false;
        bool isAnimated = false;
        std::shared_ptr<PreviewDocument> document;
    };
    struct Pages {
        /// In points of 1/72 inch, one for each page that is shown.
        QList<QSize> sizes;
        /// Pages of the document, which may be more than are shown.
        int count = 0;
        std::shared_ptr<PreviewDocument> document;
    };
    struct Text {
        /// Lines end with U+000A, and none is longer than a view can lay out quickly.
        QString text;
        /// To be shown in a monospaced font: code and logs.
        bool isMonospaced = false;
        /// The file has more text.
        bool isCut = false;
    };

    QUrl url;
    PreviewDetails details;
    bool isFolder = false;
    /// The user may open it with the desktop's program for it.
    bool canBeOpened = false;
    std::variant<Plain, Missing, Picture, Pages, Text> body;
};

/// Loads what a preview window shows. Main thread only; completions are called later on the main
/// thread, at most once.
class PreviewLoading {
public:
    virtual ~PreviewLoading() = default;

    /// Details that are known without the disk: the name.
    virtual PreviewDetails placeholder(const QUrl &url) const = 0;
    /// Whether the file is on a disk that may never answer; that is found out without touching it.
    virtual bool mayNeverAnswer(const QUrl &url) const = 0;
    /// Loads the content of a file; a picture is fitted into `wanted` pixels. Cancels everything
    /// that was asked for before: its completions are not called.
    virtual void load(const QUrl &url, QSize wanted, std::function<void(PreviewContent)> completion)
        = 0;
    /// Cancels everything that was asked for.
    virtual void cancel() = 0;

    virtual void render(std::shared_ptr<PreviewDocument> document, int page, QSize pixels,
                        std::function<void(std::optional<QImage>)> completion)
        = 0;
    virtual void nextFrame(std::shared_ptr<PreviewDocument> document, QSize limit,
                           std::function<void(std::optional<PreviewDocument::Frame>)> completion)
        = 0;
};

} // namespace corvane
