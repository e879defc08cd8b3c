#include "app/preferences/general_pane.h"

#include "app/base/session_texts.h"
#include "app/look/action_button.h"
#include "app/look/text_label.h"
#include "app/preferences/number_picker.h"
#include "app/preferences/preference_section.h"
#include "app/preferences/setting_row.h"
#include "app/preferences/shortcut_row.h"
#include "app/preferences/switch_button.h"
#include "app/updates/update_notices.h"
#include "app/updates/update_texts.h"
#include "app/updates/updater.h"
#include "core/settings.h"
#include "input/shortcut_binder.h"
#include "platform/desktop/hot_key_service.h"
#include "platform/system/login_items.h"

#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

constexpr double betweenSections = 20;
constexpr double betweenNotices = 8;
constexpr double noticeSize = 12;
constexpr double buttonTextSize = 12;
constexpr QSize buttonSize{88, 26};

} // namespace

GeneralPane::GeneralPane(PreferencesContext context, QWidget *parent)
    : QWidget(parent)
    , m_context(std::move(context))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(m_look.length(betweenSections));
    if (!m_context.settings.areKept())
        layout->addWidget(makeNotice(tr("Your settings folder cannot be written to. Changes work "
                                        "until Corvane quits, and are not kept.")));
    layout->addWidget(makeLimits());
    layout->addWidget(makeShelfSection());
    layout->addWidget(makeBehaviourSection());
    layout->addWidget(makeShortcutsSection());
    layout->addWidget(makeUpdatesSection());
    showAbilities();
    m_abilities = m_context.abilities.observe([this] { showAbilities(); });
}

QWidget *GeneralPane::makeNotice(const QString &text) const
{
    auto *notice = new TextLabel(text, m_look.font(noticeSize), TextLabel::Tone::Secondary);
    notice->setWordWrap(true);
    return notice;
}

QWidget *GeneralPane::makeLimits()
{
    m_limits = new QWidget;
    auto *layout = new QVBoxLayout(m_limits);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(m_look.length(betweenNotices));
    return m_limits;
}

void GeneralPane::showAbilities()
{
    qDeleteAll(m_limits->findChildren<TextLabel *>());
    const QStringList limits = session_texts::limits(m_context.abilities.now());
    for (const QString &limit : limits)
        m_limits->layout()->addWidget(makeNotice(limit));
    m_limits->setVisible(!limits.isEmpty());
    for (ShortcutRow *row : {m_shelfShortcut, m_viewAllShortcut})
        row->setRecordable(m_context.abilities.now().shortcutChoice.isFull());
    // What they are bound to changes with who binds them.
    showOutcomes();
}

PreferenceSection *GeneralPane::makeShelfSection()
{
    auto *section = new PreferenceSection(tr("Shelf"), m_look);
    const QString title = tr("Items in view");
    auto *picker = new NumberPicker(Settings::minimumInViewCount, Settings::maximumInViewCount,
                                    title, m_look);
    picker->setNumber(m_context.settings.inViewCount());
    auto *row = new SettingRow(title, {}, {picker}, m_look);
    const auto describe = [row, picker] {
        const QString detail = inViewDetail(picker->number());
        row->setDetail(detail);
        picker->describe(detail);
    };
    describe();
    connect(picker, &NumberPicker::picked, this, [this, describe](int count) {
        m_context.settings.setInViewCount(count);
        describe();
    });
    section->addRow(row);
    return section;
}

QString GeneralPane::inViewDetail(int count)
{
    if (count == 1)
        return tr("One at a time. Use the arrows to page through the rest.");
    return tr("%n thumbnails at once, with arrows for the rest.", nullptr, count);
}

PreferenceSection *GeneralPane::makeBehaviourSection()
{
    const Settings &settings = m_context.settings;
    auto *section = new PreferenceSection(tr("Behaviour"), m_look);
    section->addRow(
        makeSwitchRow(tr("Launch at login"), tr("Corvane runs in the menu bar with no Dock icon."),
                      m_context.loginItems.isRegistered(), &Settings::setLaunchAtLogin));
    section->addRow(makeSwitchRow(tr("Open the shelf when a drag begins"),
                                  tr("Turn off to summon it only with the shortcut."),
                                  settings.autoShowOnDrag(), &Settings::setAutoShowOnDrag));
    section->addRow(makeSwitchRow(
        tr("Show previews for dropped links"),
        tr("Asks the linked site for its title and image. It is the only time Corvane "
           "uses the network on your behalf, and the site learns you have the link."),
        settings.linkPreviews(), &Settings::setLinkPreviews));
    section->addRow(makeSwitchRow(
        tr("Keep items when Corvane ends"),
        tr("They are back at the next start. Until then, pictures and texts are stored in your "
           "home folder."),
        settings.keepItems(), &Settings::setKeepItems));
    return section;
}

SettingRow *GeneralPane::makeSwitchRow(const QString &title, const QString &detail, bool on,
                                       void (Settings::*write)(bool))
{
    auto *control = new SwitchButton(title, detail, m_look, m_context.motion);
    control->setChecked(on);
    connect(control, &SwitchButton::toggled, this,
            [&settings = m_context.settings, write](bool value) { (settings.*write)(value); });
    return new SettingRow(title, detail, {control}, m_look);
}

PreferenceSection *GeneralPane::makeShortcutsSection()
{
    Settings &settings = m_context.settings;
    const ShortcutRow::Context listening{m_context.keyMonitors, m_context.hotKeys,
                                         m_context.announce};
    auto *section = new PreferenceSection(tr("Shortcuts"), m_look);

    m_shelfShortcut = new ShortcutRow(tr("Show or hide the shelf"),
                                      tr("Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only."),
                                      listening, m_look);
    m_shelfShortcut->setShortcut(settings.shortcut());
    m_shelfShortcut->onChange = [this](const std::optional<Shortcut> &shortcut) {
        m_context.settings.setShortcut(shortcut);
        shortcutChanged(HotKeyCenter::Binding::Shelf);
    };
    section->addRow(m_shelfShortcut);

    m_viewAllShortcut = new ShortcutRow(tr("Show or hide all items"),
                                        tr("Unset by default. ↓ on the shelf does the same thing."),
                                        listening, m_look);
    m_viewAllShortcut->setShortcut(settings.viewAllShortcut());
    m_viewAllShortcut->onChange = [this](const std::optional<Shortcut> &shortcut) {
        m_context.settings.setViewAllShortcut(shortcut);
        shortcutChanged(HotKeyCenter::Binding::ViewAll);
    };
    section->addRow(m_viewAllShortcut);

    m_context.shortcutBinder.retryRefused();
    showOutcomes();
    m_outcomes = m_context.shortcutBinder.observeOutcomes([this] { showOutcomes(); });
    return section;
}

void GeneralPane::shortcutChanged(HotKeyCenter::Binding changed)
{
    m_context.shortcutBinder.rebind(changed);
    // Also where the outcome is the same: the row shows another shortcut now.
    showOutcomes();
}

void GeneralPane::showOutcomes()
{
    m_shelfShortcut->setOutcome(outcome(HotKeyCenter::Binding::Shelf));
    m_viewAllShortcut->setOutcome(outcome(HotKeyCenter::Binding::ViewAll));
}

/// Where keys are bound to commands the user is told the command, whether or not keys are stored.
ShortcutOutcome GeneralPane::outcome(HotKeyCenter::Binding binding) const
{
    ShortcutOutcome known = m_context.shortcutBinder.outcome(binding);
    if (known.kind != ShortcutOutcome::Kind::Unset)
        return known;
    return m_context.hotKeys.outcomeWithoutKeys(
        {HotKeyCenter::signature, HotKeyCenter::idOf(binding)});
}

ActionButton *GeneralPane::makeCheckButton(Updater *updater, const QString &reason)
{
    auto *checkNow = new ActionButton(tr("Check Now"), buttonTextSize, buttonSize, m_look);
    checkNow->setAccessibleDescription(updater ? tr("Looks for a new version at once") : reason);
    checkNow->setEnabled(updater != nullptr);
    if (updater)
        connect(checkNow, &ActionButton::clicked, this, [updater] { updater->checkForUpdates(); });
    else
        checkNow->setToolTip(reason);
    return checkNow;
}

PreferenceSection *GeneralPane::makeUpdatesSection()
{
    Updater *const updater = m_context.updater;
    auto *section = new PreferenceSection(tr("Updates"), m_look);
    const QString title = tr("Check for updates automatically");
    // Where there is no updater, the row says why its button is disabled.
    const QString reason = m_context.isKeptUpToDateByOthers
        ? tr("Your system's software manager keeps Corvane up to date.")
        : tr("This build does not know where to look.");
    const QString detail = updater ? QString() : reason;
    auto *checkNow = makeCheckButton(updater, detail);
    auto *control = new SwitchButton(title, detail, m_look, m_context.motion);
    control->setChecked(m_context.settings.autoCheckUpdates());
    connect(control, &SwitchButton::toggled, this,
            [updater, &settings = m_context.settings](bool on) {
                settings.setAutoCheckUpdates(on);
                if (updater)
                    updater->setAutomaticallyChecksForUpdates(on);
            });
    auto *row = new SettingRow(title, detail, {checkNow, control}, m_look);
    section->addRow(row);
    if (updater) {
        const auto show = [this, row, control, &notices = updater->notices()] {
            const QString text
                = notices.now() ? UpdateTexts::explanation(*notices.now()) : QString();
            row->setDetail(text);
            control->setAccessibleDescription(text);
            // The keyboard may be anywhere in the window.
            if (isVisible() && !text.isEmpty())
                m_context.announce(text);
        };
        show();
        m_notices = updater->notices().observe(show);
        section->addRow(makeSwitchRow(tr("Offer beta versions too"),
                                      tr("They come earlier, and fewer people have tried them."),
                                      m_context.settings.betaUpdates(), &Settings::setBetaUpdates));
    }
    return section;
}

} // namespace corvane
