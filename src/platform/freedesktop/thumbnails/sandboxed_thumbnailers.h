#pragma once

#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/pictures/external_thumbnailers.h"

namespace corvane {

/// The desktop's `.thumbnailer` programs, each run shut in, and only where that can be done.
class SandboxedThumbnailers : public ExternalThumbnailers {
public:
    static constexpr double maximumSeconds = 10;
    /// Of the picture as a PNG.
    static constexpr qsizetype maximumBytes = qsizetype(8) * 1024 * 1024;

    /// Both must outlive this.
    SandboxedThumbnailers(const ThumbnailerRegistry &registry, const Sandbox &sandbox,
                          double seconds = maximumSeconds);

    Result run(const FileVersion &file, int pixels, Cancellation &cancellation) override;

private:
    const ThumbnailerRegistry &m_registry;
    const Sandbox &m_sandbox;
    double m_seconds;
};

} // namespace corvane
