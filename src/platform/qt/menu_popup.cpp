#include "platform/qt/menu_popup.h"

#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

namespace corvane {

namespace {

QString textOf(const MenuRow &row)
{
    QString text = row.title;
    // A single one would underline the letter after it.
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    const QString keys = row.keyEquivalent.text();
    // Menus draw what follows a tab where shortcuts stand, without making one of it.
    return keys.isEmpty() ? text : text % QLatin1Char('\t') % keys;
}

QPoint placeFor(const QSize &menu, const QRect &anchor)
{
    const QScreen *screen = QGuiApplication::screenAt(anchor.center());
    const QRect room = screen ? screen->geometry() : anchor;
    const bool isInUpperHalf = anchor.center().y() < room.center().y();
    return {anchor.x(), isInUpperHalf ? anchor.y() + anchor.height() : anchor.y() - menu.height()};
}

} // namespace

MenuPopup::MenuPopup() = default;
MenuPopup::~MenuPopup() = default;

void MenuPopup::open(const MenuRows &rows, const QRect &anchor)
{
    // The one before is kept until now: it may still be at work on what was chosen in it.
    m_menu = std::make_unique<QMenu>();
    for (const MenuRow &row : rows) {
        if (row.isSeparator())
            m_menu->addSeparator();
        else if (row.action)
            QObject::connect(m_menu->addAction(textOf(row)), &QAction::triggered, m_menu.get(),
                             [action = row.action] { action(); });
        else
            m_menu->addAction(textOf(row));
    }
    m_menu->popup(placeFor(m_menu->sizeHint(), anchor));
}

} // namespace corvane
