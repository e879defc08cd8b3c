#pragma once

#include "decoder/picture_reader.h"

#include <QFile>
#include <QSize>

#include <memory>
#include <optional>

namespace corvane {

/// A picture file that is open and ready to be decoded for a preview: once at a size, or frame by
/// frame.
class OpenedPicture {
public:
    /// In milliseconds: a frame with a shorter duration is shown for `frameInstead`, as browsers
    /// do.
    static constexpr int shortestFrame = 20;
    static constexpr int frameInstead = 100;

    /// Null if it is no picture that can be read.
    static std::unique_ptr<OpenedPicture> of(std::unique_ptr<QFile> file);

    bool isVector() const { return m_picture.isVector(); }
    bool isAnimated() { return m_picture.reader().supportsAnimation(); }
    /// How often an animation repeats; negative for ever.
    int repeats() { return m_picture.reader().loopCount(); }
    /// The picture's size, upright, for a drawing its preferred one; empty if the format does not
    /// tell it.
    QSize size();
    /// Scaled to exactly those pixels; at its own size where they are empty.
    std::optional<QImage> read(QSize pixels);

    /// The number of the frame that comes next, from 0.
    int nextFrame() const { return m_nextFrame; }
    /// It, scaled down to fit into `limit`.
    std::optional<QImage> readFrame(QSize limit);
    bool skipFrame();
    /// How long the frame that was read last is shown.
    int milliseconds();

private:
    bool isTurned();

    std::unique_ptr<QFile> m_file;
    PictureReader m_picture;
    int m_nextFrame = 0;
};

} // namespace corvane
