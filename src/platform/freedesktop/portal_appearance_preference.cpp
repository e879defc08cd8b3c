#include "platform/freedesktop/portal_appearance_preference.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

using Key = PortalSettings::Key;

const Key contrast{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("contrast")};
const Key gnomeContrast{QStringLiteral("org.gnome.desktop.a11y.interface"),
                        QStringLiteral("high-contrast")};
const Key gnomeTheme{QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("gtk-theme")};
const Key gnomeTextScale{QStringLiteral("org.gnome.desktop.interface"),
                         QStringLiteral("text-scaling-factor")};
const Key kdeFont{QStringLiteral("org.kde.kdeglobals.General"), QStringLiteral("font")};
const Key kdeScheme{QStringLiteral("org.kde.kdeglobals.General"), QStringLiteral("ColorScheme")};

/// KDE's usual font, in points.
constexpr double usualKdePoints = 10;

/// A number that says nothing, such as one of a broken setting, changes nothing.
double scaleFrom(double value)
{
    return std::isfinite(value) ? std::clamp(value, 1.0, AppearancePreference::largestTextScale)
                                : 1;
}

double scaleOfKdeFont(const QString &description)
{
    QFont font;
    return font.fromString(description) ? scaleFrom(font.pointSizeF() / usualKdePoints) : 1;
}

double scaleOfToolkitFont()
{
    return scaleFrom(QFontInfo(QGuiApplication::font()).pixelSize() / usualFontPixels);
}

bool isForContrast(const QString &theme)
{
    return theme.contains(u"HighContrast", Qt::CaseInsensitive);
}

} // namespace

PortalAppearancePreference::PortalAppearancePreference(TextScale textScale)
    : m_kindOfScale(textScale)
    , m_settings({contrast, gnomeContrast, gnomeTheme, gnomeTextScale, kdeFont, kdeScheme},
                 [this](const Key &key, const QVariant &value) { take(key, value); })
{
    QCoreApplication::instance()->installEventFilter(this);
}

double PortalAppearancePreference::textScale() const
{
    const double ofPortal = m_kindOfScale == TextScale::OfItsOwn ? m_gnomeScale : 1;
    return scaleFrom(std::max(scaleOfToolkitFont(), m_kdeScale) * ofPortal);
}

bool PortalAppearancePreference::wantsMoreContrast() const
{
    return m_contrastWanted || m_gnomeContrast || m_themeHasContrast || m_schemeHasContrast;
}

void PortalAppearancePreference::observeChanges(std::function<void()> callback)
{
    m_observers.add(std::move(callback));
}

bool PortalAppearancePreference::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange && watched == QCoreApplication::instance())
        m_observers.notify();
    return false;
}

void PortalAppearancePreference::take(const Key &key, const QVariant &value)
{
    const double scaleBefore = textScale();
    const bool contrastBefore = wantsMoreContrast();
    if (key == contrast)
        m_contrastWanted = value.toUInt() == 1;
    else if (key == gnomeContrast)
        m_gnomeContrast = value.toBool();
    else if (key == gnomeTheme)
        m_themeHasContrast = isForContrast(value.toString());
    else if (key == gnomeTextScale)
        m_gnomeScale = scaleFrom(value.toDouble());
    else if (key == kdeFont)
        m_kdeScale = scaleOfKdeFont(value.toString());
    else
        m_schemeHasContrast = isForContrast(value.toString());
    if (textScale() != scaleBefore || wantsMoreContrast() != contrastBefore)
        m_observers.notify();
}

} // namespace corvane
