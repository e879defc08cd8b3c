#include "app/look/shell_window.h"

#include "platform/desktop/screen_locator.h"
#include "platform/qt/desktop/qt_geometry.h"
#include "platform/qt/pictures/program_icon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>

#include <utility>

namespace corvane {

namespace {

/// In points: the height that a title bar and a panel take of a small screen.
constexpr int heightOfOthers = 64;

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

ShellWindow::ShellWindow(const ScreenLocator &screenLocator, QSize size,
                         std::function<void()> onClose)
    : QWidget(nullptr,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                  | Qt::WindowCloseButtonHint)
    , m_screenLocator(screenLocator)
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

QSize ShellWindow::fitted(QSize size) const
{
    const ScreenPointer screen = m_screenLocator.activeScreen();
    if (!screen)
        return size;
    const QSize available = qt_geometry::toQt(screen->availableFrame).size();
    return size.boundedTo({available.width(), available.height() - heightOfOthers});
}

QPoint ShellWindow::centre() const
{
    const ScreenPointer screen = m_screenLocator.activeScreen();
    if (!screen)
        return pos();
    return qt_geometry::toQt(screen->availableFrame).center() - QPoint(width(), height()) / 2;
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
