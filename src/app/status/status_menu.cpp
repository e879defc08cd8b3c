#include "app/status/status_menu.h"

#include <QCoreApplication>

namespace corvane::status_menu {

namespace {

QString translated(const char *text, int count = -1)
{
    return QCoreApplication::translate("StatusMenu", text, nullptr, count);
}

QString clearTitle(int count)
{
    return count == 1
        ? translated(QT_TRANSLATE_NOOP("StatusMenu", "Clear Shelf (1 item)"))
        : translated(QT_TRANSLATE_N_NOOP("StatusMenu", "Clear Shelf (%n items)"), count);
}

/// The keys of Preferences and Quit, which Linux programs have on Control.
KeyEquivalent withControl(QChar key)
{
    return {QString(key), Modifier::Control};
}

} // namespace

KeyEquivalent keyEquivalent(const std::optional<Shortcut> &shortcut)
{
    return shortcut ? shortcut->keyEquivalent() : KeyEquivalent();
}

QString toolTip(int itemCount)
{
    if (itemCount == 0)
        return translated(QT_TRANSLATE_NOOP("StatusMenu", "Corvane"));
    return itemCount == 1
        ? translated(QT_TRANSLATE_NOOP("StatusMenu", "Corvane — 1 item"))
        : translated(QT_TRANSLATE_N_NOOP("StatusMenu", "Corvane — %n items"), itemCount);
}

MenuRows rows(const StatusMenuState &state)
{
    MenuRows rows;
    const auto add
        = [&rows](StatusMenuRow row, const QString &title, const KeyEquivalent &keys = {}) {
              rows << MenuRow{static_cast<int>(row), title, keys, {}};
          };
    add(StatusMenuRow::ShowShelf, translated(QT_TRANSLATE_NOOP("StatusMenu", "Show Shelf")),
        keyEquivalent(state.shelfShortcut));
    if (state.itemCount >= 2)
        add(StatusMenuRow::ViewAllItems,
            translated(QT_TRANSLATE_NOOP("StatusMenu", "View All Items…")),
            keyEquivalent(state.viewAllShortcut));
    if (state.itemCount >= 1)
        add(StatusMenuRow::ClearShelf, clearTitle(state.itemCount));
    add(StatusMenuRow::FirstSeparator, {});
    add(StatusMenuRow::Preferences, translated(QT_TRANSLATE_NOOP("StatusMenu", "Preferences…")),
        withControl(u','));
    add(StatusMenuRow::HowItWorks, translated(QT_TRANSLATE_NOOP("StatusMenu", "How It Works…")));
    if (!state.updateNotice.isEmpty())
        add(StatusMenuRow::UpdateNotice, state.updateNotice);
    if (state.canCheckForUpdates)
        add(StatusMenuRow::CheckForUpdates,
            translated(QT_TRANSLATE_NOOP("StatusMenu", "Check for Updates…")));
    add(StatusMenuRow::SecondSeparator, {});
    add(StatusMenuRow::Quit, translated(QT_TRANSLATE_NOOP("StatusMenu", "Quit Corvane")),
        withControl(u'q'));
    return rows;
}

} // namespace corvane::status_menu
