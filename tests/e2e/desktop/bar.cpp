#include "e2e/desktop/bar.h"

#include "e2e/desktop/eventually.h"

#include <QUrl>

#include <algorithm>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr int tileStep = 90;
/// At either end, for an arrow.
constexpr int sideMargin = 46;

} // namespace

bool Bar::waitForKeyboard()
{
    return eventually([this] {
        const auto now = window();
        return now && m_desktop.server().focusedWindow() == now->id;
    });
}

bool Bar::waitUntilClosed()
{
    return eventually([this] { return !window(); });
}

QPoint Bar::button(int items)
{
    const int width = CorvaneProgram::carousel(m_inView, items).width();
    return m_corvane.at(width - (items > m_inView ? 60 : 32), 31);
}

bool Bar::open(int items)
{
    m_desktop.hands().click(button(items));
    if (!waitForKeyboard())
        return false;
    m_desktop.pictureAtRest(frame());
    return true;
}

int Bar::tilesOnAPage()
{
    return std::max(1, (frame().width() - 2 * sideMargin + 10) / tileStep);
}

QPoint Bar::tile(int nth, int items)
{
    const QRect now = frame();
    const int row = std::min(items, tilesOnAPage()) * tileStep - 10;
    const int left = (now.width() - 2 * sideMargin - row) / 2 + sideMargin;
    return now.topLeft() + QPoint(left + tileStep * nth + 40, 50);
}

QPoint Bar::back()
{
    return frame().topLeft() + QPoint(25, 44);
}

QPoint Bar::forward()
{
    return frame().topRight() + QPoint(-24, 44);
}

QPoint Bar::selectAllBox()
{
    return frame().bottomLeft() + QPoint(22, -19);
}

QPoint Bar::selectAllLabel()
{
    return frame().bottomLeft() + QPoint(60, -19);
}

QPoint Bar::copyButton()
{
    return frame().bottomRight() + QPoint(-53, -19);
}

QPoint Bar::trash()
{
    return frame().bottomRight() + QPoint(-22, -19);
}

void Bar::takeKeyboard(int items)
{
    if (!window()) {
        open(items);
        return;
    }
    // Left of all buttons and tiles.
    m_desktop.hands().click(frame().topLeft() + QPoint(3, height / 2));
    waitForKeyboard();
}

QStringList Bar::copied(int items, bool everything)
{
    const bool wasOpen = window().has_value();
    takeKeyboard(items);
    m_desktop.clearClipboard();
    Hands &hands = m_desktop.hands();
    // Copies the selection; then selects all, or none if all were selected, and copies again.
    hands.key('c', {keys::control});
    if (everything) {
        hands.key('a', {keys::control});
        hands.key('c', {keys::control});
        hands.key('a', {keys::control});
    }
    // When the bar has closed, the keys before have been handled.
    hands.key(keys::escape);
    if (!waitUntilClosed())
        return {};
    QStringList paths;
    const QByteArray list = m_desktop.clipboard(u"text/uri-list"_s).value_or(QByteArray());
    for (const QByteArray &line : list.split('\n')) {
        if (!line.trimmed().isEmpty())
            paths << QUrl::fromEncoded(line.trimmed()).toLocalFile();
    }
    if (wasOpen)
        open(items);
    return paths;
}

QStringList Bar::ticked(int items)
{
    return copied(items, false);
}

QStringList Bar::held(int items)
{
    return copied(items, true);
}

} // namespace corvane::e2e
