#pragma once

#include <QPoint>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

/// A window of the program beside the shelf: of one size, with a title and a close button, in the
/// middle of the screen until the user moves it. It can be dragged by its ground; Escape and the
/// desktop's keys for closing close it. Closing hides it.
class ShellWindow : public QWidget {
    Q_OBJECT

public:
    /// Deletes a window, also from inside its own closing: it takes no more input then, and what it
    /// was given may go along with its owner.
    struct Deleter {
        void operator()(ShellWindow *window) const;
    };
    template<class Window>
    using Pointer = std::unique_ptr<Window, Deleter>;

    /// The size is in device-independent pixels; a screen that is smaller makes it smaller.
    ShellWindow(QSize size, std::function<void()> onClose);

    /// Another size, fitted likewise.
    void setContentSize(QSize size);

    /// Shows it where it was when it was closed, the first time in the middle of the screen.
    void present();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void letGo();
    QPoint centre() const;

    std::function<void()> m_onClose;
    std::optional<QPoint> m_position;
    std::optional<QPoint> m_pressed;
    bool m_isClosing = false;
};

} // namespace corvane
