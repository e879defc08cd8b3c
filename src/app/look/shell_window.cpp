#include "app/look/shell_window.h"

#include "platform/qt/pictures/program_icon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace corvane {

namespace {

/// In points: the height that a title bar and a panel take of a small screen.
constexpr int heightOfOthers = 64;

/// The screen of the pointer, else the primary one.
QScreen *presentScreen()
{
    // Qt rounds the pointer's place to points, so at a screen's last pixels it may be one point
    // outside.
    for (const QPoint beyond : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        if (QScreen *const screen = QGuiApplication::screenAt(QCursor::pos() - beyond))
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

QSize fitted(QSize size)
{
    const QScreen *screen = presentScreen();
    if (!screen)
        return size;
    const QSize available = screen->availableGeometry().size();
    return size.boundedTo({available.width(), available.height() - heightOfOthers});
}

} // namespace

void ShellWindow::Deleter::operator()(ShellWindow *window) const
{
    if (window->m_isClosing)
        window->letGo();
    else
        delete window;
}

void ShellWindow::letGo()
{
    m_onClose = nullptr;
    // Keys and clicks that came together with the one that closed the window are delivered before
    // it is deleted, and must not reach objects that its owner has destroyed.
    setEnabled(false);
    deleteLater();
}

ShellWindow::ShellWindow(QSize size, std::function<void()> onClose)
    : QWidget(nullptr,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                  | Qt::WindowCloseButtonHint)
    , m_onClose(std::move(onClose))
{
    setWindowTitle(QStringLiteral("Corvane"));
    setWindowIcon(programIcon());
    setFixedSize(fitted(size));
}

void ShellWindow::setContentSize(QSize size)
{
    setFixedSize(fitted(size));
}

void ShellWindow::present()
{
    if (!isVisible())
        move(m_position.value_or(centre()));
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
}

QPoint ShellWindow::centre() const
{
    const QScreen *screen = presentScreen();
    if (!screen)
        return pos();
    return screen->availableGeometry().center() - QPoint(width(), height()) / 2;
}

void ShellWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    // A hidden window may get a close event, too: at the end of the program all windows do.
    if (!isVisible())
        return;
    m_position = pos();
    // The owner may let go of the window in `onClose`.
    m_isClosing = true;
    const QPointer<ShellWindow> alive(this);
    const std::function<void()> onClose = m_onClose;
    if (onClose)
        onClose();
    if (alive)
        m_isClosing = false;
}

void ShellWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isClosing = event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close);
    // A held Escape may have been meant for something else, for example the field that records a
    // shortcut.
    if (isClosing && !event->isAutoRepeat())
        close();
    else
        QWidget::keyPressEvent(event);
}

void ShellWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = event->position().toPoint();
}

void ShellWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint way = event->position().toPoint() - *m_pressed;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed.reset();
    windowHandle()->startSystemMove();
}

} // namespace corvane
