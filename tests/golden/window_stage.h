#pragma once

#include "golden/image_comparison.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace corvane::test {

enum class Scheme { Light, Dark };

/// While one lives, windows have the same fonts, style and colours wherever the test runs.
class WindowLookForPictures {
public:
    explicit WindowLookForPictures(Scheme scheme);
    ~WindowLookForPictures();
    WindowLookForPictures(const WindowLookForPictures &) = delete;
    WindowLookForPictures &operator=(const WindowLookForPictures &) = delete;

    static void use(Scheme scheme);

private:
    QFont m_font;
};

/// One of our windows in one of its states, with whatever it stands on.
class WindowStage {
public:
    virtual ~WindowStage() = default;
    virtual QWidget &window() = 0;
};

/// Of all of the window unless a part is given, in points.
Picture pictureOf(QWidget &window, double scale, const QRect &part = {});

struct WindowState {
    const char *name;
    std::function<std::unique_ptr<WindowStage>()> make;

    QString fileName(Scheme scheme, int scale) const;
};

/// Of each there are pictures in both schemes, at scales 1 and 2.
const std::vector<WindowState> &windowStates();

} // namespace corvane::test
