#include "app/preferences/preferences_tab.h"

#include <QCoreApplication>

namespace corvane::preferences_tab {

namespace {

const char *name(PreferencesTab tab)
{
    return tab == PreferencesTab::General ? QT_TRANSLATE_NOOP("PreferencesTab", "General")
                                          : QT_TRANSLATE_NOOP("PreferencesTab", "About");
}

} // namespace

QString rawValue(PreferencesTab tab)
{
    return QString::fromLatin1(name(tab));
}

std::optional<PreferencesTab> fromRawValue(const QString &rawValue)
{
    for (const PreferencesTab tab : allPreferencesTabs) {
        if (preferences_tab::rawValue(tab) == rawValue)
            return tab;
    }
    return std::nullopt;
}

QString title(PreferencesTab tab)
{
    return QCoreApplication::translate("PreferencesTab", name(tab));
}

} // namespace corvane::preferences_tab
