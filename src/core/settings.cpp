#include "core/settings.h"

#include "platform/system/login_items.h"
#include "platform/system/user_defaults.h"

#include <QtDebug>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QString name(const char *key)
{
    return QString::fromLatin1(key);
}

qint64 clampedInViewCount(qint64 count)
{
    return std::clamp<qint64>(count, Settings::minimumInViewCount, Settings::maximumInViewCount);
}

/// What is stored for a shortcut that the user cleared: not the same as never having set one.
QByteArray stored(const std::optional<Shortcut> &shortcut)
{
    return shortcut ? shortcut->toJson() : QByteArray("");
}

Shortcut defaultShortcut()
{
    return {KeyPosition::D, Shortcut::command | Shortcut::shift, QStringLiteral("D")};
}

} // namespace

Settings::Settings(UserDefaults &defaults, LoginItems &loginItems)
    : m_defaults(defaults)
    , m_loginItems(loginItems)
{
    registerDefaults();
}

void Settings::registerDefaults()
{
    m_defaults.registerDefaults({
        {name(autoShowOnDragKey), true},
        // Nothing reads it yet: the key exists so that it can be set by hand.
        {name(playFeedbackKey), false},
        {name(autoCheckUpdatesKey), true},
        {name(inViewCountKey), 1},
        {name(linkPreviewsKey), true},
    });
}

bool Settings::areKept() const
{
    return m_defaults.areKept();
}

int Settings::inViewCount() const
{
    // Made once: this is asked for each of thousands of items that are removed one by one.
    static const QString key = name(inViewCountKey);
    const qint64 count = m_defaults.integerForKey(key);
    return static_cast<int>(clampedInViewCount(count));
}

void Settings::setInViewCount(qint64 count)
{
    m_defaults.setInteger(clampedInViewCount(count), name(inViewCountKey));
    m_layoutObservers.notify();
}

void Settings::observeLayout(std::function<void()> callback)
{
    m_layoutObservers.add(std::move(callback));
}

bool Settings::autoShowOnDrag() const
{
    return m_defaults.boolForKey(name(autoShowOnDragKey));
}

void Settings::setAutoShowOnDrag(bool on)
{
    m_defaults.setBool(on, name(autoShowOnDragKey));
}

bool Settings::linkPreviews() const
{
    return m_defaults.boolForKey(name(linkPreviewsKey));
}

void Settings::setLinkPreviews(bool on)
{
    m_defaults.setBool(on, name(linkPreviewsKey));
}

bool Settings::autoCheckUpdates() const
{
    return m_defaults.boolForKey(name(autoCheckUpdatesKey));
}

void Settings::setAutoCheckUpdates(bool on)
{
    m_defaults.setBool(on, name(autoCheckUpdatesKey));
}

bool Settings::betaUpdates() const
{
    return m_defaults.boolForKey(name(betaUpdatesKey));
}

void Settings::setBetaUpdates(bool on)
{
    m_defaults.setBool(on, name(betaUpdatesKey));
}

bool Settings::keepItems() const
{
    return m_defaults.boolForKey(name(keepItemsKey));
}

void Settings::setKeepItems(bool on)
{
    m_defaults.setBool(on, name(keepItemsKey));
}

bool Settings::seenWelcome() const
{
    return m_defaults.boolForKey(name(seenWelcomeKey));
}

void Settings::setSeenWelcome(bool seen)
{
    m_defaults.setBool(seen, name(seenWelcomeKey));
}

std::optional<Shortcut> Settings::shortcut() const
{
    const auto data = m_defaults.dataForKey(name(shortcutKey));
    return data ? Shortcut::fromJson(*data) : defaultShortcut();
}

void Settings::setShortcut(const std::optional<Shortcut> &shortcut)
{
    m_defaults.setData(stored(shortcut), name(shortcutKey));
}

std::optional<Shortcut> Settings::viewAllShortcut() const
{
    const auto data = m_defaults.dataForKey(name(viewAllShortcutKey));
    return data ? Shortcut::fromJson(*data) : std::nullopt;
}

void Settings::setViewAllShortcut(const std::optional<Shortcut> &shortcut)
{
    m_defaults.setData(stored(shortcut), name(viewAllShortcutKey));
}

void Settings::setLaunchAtLogin(bool on)
{
    const auto error = on ? m_loginItems.registerItem() : m_loginItems.unregisterItem();
    if (error)
        qWarning().noquote() << QStringLiteral("[Corvane] Launch at login change failed: ")
                + *error;
}

} // namespace corvane
