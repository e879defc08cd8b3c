#pragma once

#include "platform/pictures/image.h"
#include "platform/preview/preview_content.h"

#include <QWidget>

#include <functional>

class QKeyEvent;
class QPushButton;
class QVBoxLayout;

namespace corvane {

class ElidedLabel;
class MainQueue;
class PictureView;

/// The window of a preview: the content, and a line with details below it. It neither closes nor
/// places itself; its owner does. What is given must outlive it.
class PreviewWindow : public QWidget {
public:
    PreviewWindow(PreviewLoading &loading, MainQueue &queue);
    ~PreviewWindow() override;

    /// Replaces the content. `icon` is shown for files without any other preview; it may be null.
    void setContent(const PreviewContent &content, const Image &icon);

    /// Called for Space, Escape and Ctrl+W; returns whether the key was handled.
    std::function<bool(const QKeyEvent &)> onCloseKey;
    /// The user used the window manager's close button.
    std::function<void()> onClose;
    /// The user clicked the button that opens the file.
    std::function<void()> onOpen;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *makeView(const PreviewContent &content, const Image &icon);
    bool handleKey(const QKeyEvent &key);

    PreviewLoading &m_loading;
    MainQueue &m_queue;
    QVBoxLayout *m_layout;
    QWidget *m_view = nullptr;
    PictureView *m_picture = nullptr;
    QWidget *m_bar;
    ElidedLabel *m_line;
    QPushButton *m_open;
};

} // namespace corvane
