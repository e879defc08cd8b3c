#include "platform/qt/desktop/qt_tray_icon.h"

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

/// The panels' sizes at the usual scales; a panel takes the nearest.
constexpr std::array<int, 6> iconSides = {16, 22, 24, 32, 44, 48};

void add(QMenu &menu, const MenuRow &row)
{
    if (row.isSeparator()) {
        menu.addSeparator();
        return;
    }
    QString text = row.title;
    // A single one would underline the letter after it.
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction *action = menu.addAction(text);
    // Shown by every kind of panel. It cannot fire: the menu belongs to no window.
    action->setShortcut(row.keyEquivalent.sequence());
    if (!row.action)
        return;
    // Later: the row may change the menu that is at work on it, or end the program before the panel
    // has its answer.
    QObject::connect(
        action, &QAction::triggered, &menu, [work = row.action] { work(); }, Qt::QueuedConnection);
}

} // namespace

QtTrayIcon::QtTrayIcon() = default;
QtTrayIcon::~QtTrayIcon() = default;

void QtTrayIcon::appear()
{
    if (m_tray)
        return;
    m_menu = std::make_unique<QMenu>();
    QObject::connect(m_menu.get(), &QMenu::aboutToShow, m_menu.get(), [this] { menuChanged(); });
    menuChanged();
    m_tray = std::make_unique<QSystemTrayIcon>();
    QObject::connect(m_tray.get(), &QSystemTrayIcon::activated, m_menu.get(), [this] {
        // The window system's tray has opened it by itself for the right button.
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
    // Rows that look the same do another's work.
    m_rows.clear();
    menuChanged();
}

void QtTrayIcon::menuChanged()
{
    if (!m_menu)
        return;
    MenuRows rows = m_build ? m_build() : MenuRows();
    // Every row taken out or put in is told to the panels.
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
