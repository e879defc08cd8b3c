#include "platform/qt/desktop/qt_tray_icon.h"

#include "platform/qt/desktop/lending_menu.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

/// In pixels: the sizes that panels use at the usual scales; a panel takes the nearest one.
constexpr std::array<int, 6> iconSides = {16, 22, 24, 32, 44, 48};

void add(QMenu &menu, const MenuRow &row)
{
    if (row.isSeparator()) {
        menu.addSeparator();
        return;
    }
    QString text = row.title;
    // A single & would underline the letter after it.
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction *action = menu.addAction(text);
    // Panels show the shortcut. It cannot trigger the action, because the menu belongs to no
    // window.
    action->setShortcut(row.keyEquivalent.sequence());
    if (!row.action)
        return;
    // Queued, because the action may change the menu that is being handled, or end the program
    // before the panel has its answer.
    QObject::connect(
        action, &QAction::triggered, &menu, [work = row.action] { work(); }, Qt::QueuedConnection);
}

} // namespace

QtTrayIcon::QtTrayIcon(KeyboardLoan *keyboard)
    : m_keyboard(keyboard)
{
}

QtTrayIcon::~QtTrayIcon() = default;

void QtTrayIcon::appear()
{
    if (m_tray)
        return;
    m_menu = m_keyboard ? std::make_unique<LendingMenu>(*m_keyboard) : std::make_unique<QMenu>();
    QObject::connect(m_menu.get(), &QMenu::aboutToShow, m_menu.get(), [this] { menuChanged(); });
    menuChanged();
    m_tray = std::make_unique<QSystemTrayIcon>();
    QObject::connect(m_tray.get(), &QSystemTrayIcon::activated, m_menu.get(), [this] {
        // In the window system's tray a right click has opened it already.
        if (!m_menu->isVisible())
            m_menu->popup(QCursor::pos());
    });
    m_tray->setContextMenu(m_menu.get());
    m_tray->setToolTip(m_toolTip);
    showIcon();
    m_tray->show();
}

QIcon QtTrayIcon::drawn() const
{
    QIcon icon;
    for (const int side : iconSides)
        icon.addPixmap(QPixmap::fromImage(m_icon(side, m_foreground)));
    return icon;
}

void QtTrayIcon::showIcon()
{
    if (!m_tray || !m_icon)
        return;
    auto found = m_drawn.find(m_shape);
    if (found == m_drawn.end())
        found = m_drawn.emplace(m_shape, drawn()).first;
    m_tray->setIcon(found->second);
}

void QtTrayIcon::setForeground(const QColor &foreground)
{
    if (std::exchange(m_foreground, foreground) == foreground)
        return;
    m_drawn.clear();
    showIcon();
}

void QtTrayIcon::setIcon(int shape, Icon icon)
{
    const bool isTheSame = m_icon && m_shape == shape;
    m_shape = shape;
    m_icon = std::move(icon);
    if (!isTheSame)
        showIcon();
}

void QtTrayIcon::setToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    if (m_tray)
        m_tray->setToolTip(toolTip);
}

void QtTrayIcon::setMenu(Menu menu)
{
    m_build = std::move(menu);
    // Cleared, because rows of another menu may look the same but do something else.
    m_rows.clear();
    menuChanged();
}

void QtTrayIcon::menuChanged()
{
    if (!m_menu)
        return;
    MenuRows rows = m_build ? m_build() : MenuRows();
    // Replacing rows notifies panels of each, so it is done only if a row looks different.
    const bool isTheSame = std::equal(
        rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(),
        [](const MenuRow &one, const MenuRow &other) { return one.showsTheSameAs(other); });
    m_rows = std::move(rows);
    if (isTheSame)
        return;
    m_menu->clear();
    for (const MenuRow &row : std::as_const(m_rows))
        add(*m_menu, row);
}

} // namespace corvane
