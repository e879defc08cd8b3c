#pragma once

#include "platform/desktop/status_item.h"

#include <QStringList>

#include <algorithm>

namespace corvane::test {

/// A panel with one status item. Its functions are the user's clicks.
class FakeStatusItem : public StatusItem {
public:
    void setIcon(int newShape, Icon newIcon) override
    {
        shape = newShape;
        icon = std::move(newIcon);
        ++iconChanges;
    }
    void setToolTip(const QString &newToolTip) override
    {
        toolTip = newToolTip;
        ++toolTipChanges;
    }
    void setMenu(Menu newMenu) override { menu = std::move(newMenu); }
    void menuChanged() override { ++menuChanges; }

    /// Opens the menu.
    void open() { rows = menu ? menu() : MenuRows(); }
    /// The titles of the menu that was opened last; a separator is a dash.
    QStringList titles() const
    {
        QStringList titles;
        for (const MenuRow &row : rows)
            titles << (row.isSeparator() ? QStringLiteral("—") : row.title);
        return titles;
    }
    /// The first row whose title begins so.
    const MenuRow *row(QStringView title) const
    {
        const auto found = std::find_if(rows.cbegin(), rows.cend(), [title](const MenuRow &row) {
            return !row.isSeparator() && row.title.startsWith(title);
        });
        return found != rows.cend() ? &*found : nullptr;
    }
    /// Chooses that row in the menu that was opened last; false if it is not there.
    bool choose(QStringView title) const
    {
        const MenuRow *chosen = row(title);
        if (!chosen)
            return false;
        if (chosen->action)
            chosen->action();
        return true;
    }

    int shape = -1;
    Icon icon;
    QString toolTip;
    Menu menu;
    MenuRows rows;
    int iconChanges = 0;
    int toolTipChanges = 0;
    int menuChanges = 0;
};

} // namespace corvane::test
