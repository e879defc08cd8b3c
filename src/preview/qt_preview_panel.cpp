#include "preview/qt_preview_panel.h"

#include "platform/base/main_queue.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/desktop/panel_window.h"
#include "platform/desktop/window_activation.h"
#include "platform/pictures/file_icons.h"
#include "platform/qt/pictures/program_icon.h"
#include "platform/system/desktop_services.h"
#include "preview/details_view.h"
#include "preview/preview_geometry.h"
#include "preview/preview_window.h"
#include "preview/text_view.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>

#include <utility>

namespace corvane {

QtPreviewPanel::QtPreviewPanel(const Context &context)
    : m_context(context)
{
}

QtPreviewPanel::~QtPreviewPanel()
{
    QtPreviewPanel::setController(nullptr);
}

void QtPreviewPanel::setController(PreviewPanelController *controller)
{
    if (!controller)
        QtPreviewPanel::orderOut();
    m_controller = controller;
}

void QtPreviewPanel::makeKeyAndOrderFront()
{
    if (m_isVisible) {
        if (m_window)
            m_context.activation.bringToFront(*m_window->windowHandle());
        return;
    }
    if (!m_controller || !m_controller->acceptsPreviewPanelControl(*this))
        return;
    m_isVisible = true;
    m_context.keyboard.windowOpens();
    m_heldKey.watch();
    m_controller->beginPreviewPanelControl(*this);
}

void QtPreviewPanel::reloadData()
{
    if (!m_isVisible || !m_dataSource)
        return;
    const auto url = m_dataSource->numberOfPreviewItems() > 0 ? m_dataSource->previewItemAt(0)
                                                              : std::optional<QUrl>();
    m_content = {};
    m_content.url = url.value_or(QUrl());
    m_content.details = m_context.loading.placeholder(m_content.url);
    m_title = m_dataSource->previewItemTitle(0);
    if (m_title)
        m_content.details.name = *m_title;
    m_content.details.kind = QCoreApplication::translate("PreviewWindow", "Loading…");
    if (url)
        load(*url);
    else
        m_context.loading.cancel();
    if (m_window)
        setContent();
    else if (!url || m_context.loading.mayNeverAnswer(*url))
        open();
    else
        openSoon();
}

void QtPreviewPanel::load(const QUrl &url)
{
    const QScreen *const target = screen();
    const double scale = target ? target->devicePixelRatio() : 1;
    const QSizeF room
        = preview_geometry::pictureRoom(target ? target->availableSize() : QSize(1280, 720));
    m_context.loading.load(url, (room * scale).toSize(),
                           [this](PreviewContent content) { loaded(std::move(content)); });
}

void QtPreviewPanel::openSoon()
{
    m_context.queue.asyncAfter(patience, m_showing.guard([this] {
        if (!m_window)
            open();
    }));
}

void QtPreviewPanel::loaded(PreviewContent content)
{
    m_content = std::move(content);
    if (m_title) {
        m_content.details.name = *m_title;
        m_content.canBeOpened = false;
    }
    if (m_window)
        setContent();
    else
        open();
}

void QtPreviewPanel::open()
{
    m_window = std::make_unique<PreviewWindow>(m_context.loading, m_context.queue);
    m_window->onClose = [this] { orderOut(); };
    m_window->onCloseKey = [this](const QKeyEvent &press) {
        // The key that opened the window may still be held; its repeats must not close it.
        if (!m_heldKey.isRepeat(press)) {
            m_heldKey.swallow(press);
            orderOut();
        }
        return true;
    };
    m_window->onOpen = [this] {
        const QUrl url = m_content.url;
        orderOut();
        m_context.desktop.open(url);
    };
    setContent();
    m_window->show();
    m_context.activation.bringToFront(*m_window->windowHandle());
    // Set later, because making the icon takes longer than the rest of the window.
    m_context.queue.async([window = QPointer<QWidget>(m_window.get())] {
        if (window)
            window->setWindowIcon(programIcon());
    });
}

void QtPreviewPanel::setContent()
{
    const QScreen *const target = screen();
    const double scale = target ? target->devicePixelRatio() : 1;
    constexpr double side = DetailsView::iconSide;
    const Image icon = m_content.isFolder ? m_context.icons.iconForFolder(side, scale)
                                          : m_context.icons.iconForFile(m_content.url, side, scale);
    m_window->setContent(m_content, icon);
    // If the user has moved or resized the window it stays as it is.
    if (!m_window->isVisible() || m_window->geometry() == m_placed)
        place();
}

void QtPreviewPanel::place()
{
    const QScreen *const target = screen();
    if (!target)
        return;
    const QRect room = target->availableGeometry();
    const auto *const text = std::get_if<PreviewContent::Text>(&m_content.body);
    const QFontMetrics font(text ? TextView::fontFor(*text) : m_window->font());
    const QSize size = preview_geometry::windowSize(
        m_content, room.size(), target->devicePixelRatio(),
        {font.lineSpacing(), font.horizontalAdvance(QLatin1Char('0'))});
    m_placed = preview_geometry::centred(size, room);
    m_window->setGeometry(m_placed);
}

const QScreen *QtPreviewPanel::screen() const
{
    const QScreen *const shelfs = m_context.shelf.screen();
    return shelfs ? shelfs : QGuiApplication::primaryScreen();
}

void QtPreviewPanel::orderOut()
{
    if (!std::exchange(m_isVisible, false))
        return;
    m_showing.restart();
    m_context.loading.cancel();
    closeWindow();
    m_content = {};
    m_title.reset();
    if (m_controller)
        m_controller->endPreviewPanelControl(*this);
}

void QtPreviewPanel::closeWindow()
{
    if (!m_window)
        return;
    m_context.keyboard.windowWillHide(WindowNumber{m_window->winId()});
    m_window->hide();
    m_context.keyboard.windowHidden();
    // Ignores clicks that were made together with the one that closed it.
    m_window->setEnabled(false);
    // Later, because this may run inside the handling of one of its events.
    m_window.release()->deleteLater();
}

} // namespace corvane
