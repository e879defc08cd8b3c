#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/appearance_preference.h"
#include "platform/freedesktop/portal_settings.h"

#include <QObject>

namespace corvane {

/// What the desktop's settings portal and the toolkit say of texts and contrast, followed while the
/// program runs.
///
/// Texts are as large as the toolkit's font, or KDE's, is larger than usual, times GNOME's scale of
/// texts. Contrast is wanted where the common key says so, or GNOME's switch, or a theme or colour
/// scheme that is made for it.
class PortalAppearancePreference : public QObject, public AppearancePreference {
public:
    enum class TextScale {
        /// The portal's is to be added.
        OfItsOwn,
        /// The screens' scale has it already.
        InScreens,
    };
    explicit PortalAppearancePreference(TextScale textScale);

    double textScale() const override;
    bool wantsMoreContrast() const override;
    void observeChanges(std::function<void()> callback) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const PortalSettings::Key &key, const QVariant &value);

    TextScale m_kindOfScale;
    double m_gnomeScale = 1;
    double m_kdeScale = 1;
    bool m_contrastWanted = false;
    bool m_gnomeContrast = false;
    bool m_themeHasContrast = false;
    bool m_schemeHasContrast = false;
    CallbackList<> m_observers;
    PortalSettings m_settings;
};

} // namespace corvane
