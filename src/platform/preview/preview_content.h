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

/// A picture or document of a stranger's, rendered piece by piece. Each function may take long and
/// hold `ImageCodec::maximumDecodedBytes` at most. Any thread, one at a time.
class PreviewDocument {
public:
    struct Frame {
        QImage image;
        /// Seconds that the frame stays.
        double duration = 0;
    };

    virtual ~PreviewDocument() = default;

    /// A page, upright, of exactly `pixels`, whatever shape that is. None when it is broken or too
    /// large.
    virtual std::optional<QImage> render(int page, QSize pixels) = 0;
    /// The next picture of an animation, the first one after the last, scaled down to fit into
    /// `limit`; none at the end of one that does not repeat.
    virtual std::optional<Frame> nextFrame(QSize limit) = 0;
};

/// What is told about a file whatever it is; an empty text is not known. Ready to be shown: a
/// stranger's name is harmless.
struct PreviewDetails {
    QString name;
    QString kind;
    /// Of a file its bytes, of a folder how many items it holds.
    QString size;
    QString modified;

    friend bool operator==(const PreviewDetails &, const PreviewDetails &) = default;
};

struct PreviewContent {
    /// Name, icon, and what else there is to tell.
    struct Plain { };
    /// There is nothing at the address.
    struct Missing { };
    struct Picture {
        /// Upright, as stored; of a drawing without pixels of its own, its preferred size.
        QSize pixelSize;
        /// Fitted into the wanted pixels, or smaller when it is smaller.
        QImage fitted;
        bool isVector = false;
        bool isAnimated = false;
        std::shared_ptr<PreviewDocument> document;
    };
    struct Pages {
        /// In points of 1/72 inch, one for each page that is shown.
        QList<QSize> sizes;
        /// Of the document, which may have more pages than are shown.
        int count = 0;
        std::shared_ptr<PreviewDocument> document;
    };
    struct Text {
        /// Lines end with U+000A, and none is longer than a view can lay out quickly.
        QString text;
        /// Code and logs; the rest reads better in the desktop's own font.
        bool isMonospaced = false;
        /// There is more in the file.
        bool isCut = false;
    };

    QUrl url;
    PreviewDetails details;
    bool isFolder = false;
    /// It may be handed to the program that the desktop has for it.
    bool canBeOpened = false;
    std::variant<Plain, Missing, Picture, Pages, Text> body;
};

/// Where a preview window gets what it shows. Main thread only; completions come later on the main
/// thread, once at most.
class PreviewLoading {
public:
    virtual ~PreviewLoading() = default;

    /// What can be told without touching the disk: a name.
    virtual PreviewDetails placeholder(const QUrl &url) const = 0;
    /// Whether the disk that it lies on may never answer; it is not touched to find out.
    virtual bool mayNeverAnswer(const QUrl &url) const = 0;
    /// Makes the content of a file. A picture is fitted into `wanted` pixels. Forgets what was
    /// asked for before: its completion never comes.
    virtual void load(const QUrl &url, QSize wanted, std::function<void(PreviewContent)> completion)
        = 0;
    /// Forgets everything that was asked for.
    virtual void cancel() = 0;

    virtual void render(std::shared_ptr<PreviewDocument> document, int page, QSize pixels,
                        std::function<void(std::optional<QImage>)> completion)
        = 0;
    virtual void nextFrame(std::shared_ptr<PreviewDocument> document, QSize limit,
                           std::function<void(std::optional<PreviewDocument::Frame>)> completion)
        = 0;
};

} // namespace corvane
