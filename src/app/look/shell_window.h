#pragma once

#include <QPoint>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class ScreenLocator;

/// An ordinary window of the program, such as the preferences: of a fixed size, with a title and a
/// close button, in the middle of the user's screen until they move it. It can be moved by dragging
/// its background. Escape and the desktop's keys for closing close it, which hides it.
class ShellWindow : public QWidget {
    Q_OBJECT

public:
    /// Deletes a window later, so that its owner may let go of it also inside `onClose`. Until then
    /// it takes no input.
    struct Deleter {
        void operator()(ShellWindow *window) const;
    };
    template<class Window>
    using Pointer = std::unique_ptr<Window, Deleter>;

    /// `size` is in device-independent pixels; on a smaller screen the window is smaller. `onClose`
    /// is called each time the window closes. `screenLocator` must outlive the window.
    ShellWindow(const ScreenLocator &screenLocator, QSize size, std::function<void()> onClose);

    /// Changes the size, which a smaller screen limits as well.
    void setContentSize(QSize size);

    /// Shows the window in its last place, the first time in the middle of the screen.
    void present();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void letGo();
    QSize fitted(QSize size) const;
    QPoint centre() const;

    const ScreenLocator &m_screenLocator;
    std::function<void()> m_onClose;
    std::optional<QPoint> m_position;
    std::optional<QPoint> m_pressed;
    bool m_isClosing = false;
};

} // namespace corvane
