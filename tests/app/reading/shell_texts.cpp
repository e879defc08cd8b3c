#include "app/base/session_texts.h"
#include "app/commands/command_options.h"
#include "app/commands/command_problem.h"
#include "app/preferences/preferences_window_controller.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "app/reading/all_texts.h"
#include "app/sessions/choose_session.h"
#include "app/spoken_texts.h"
#include "app/status/status_item_controller.h"
#include "app/updates/update_window_controller.h"
#include "app/welcome/welcome_view.h"
#include "app/welcome/welcome_window_controller.h"
#include "app/widget_hands.h"
#include "fakes/fake_status_item.h"
#include "fakes/fake_updater.h"
#include "fakes/fake_window_activation.h"
#include "fakes/lacking_abilities.h"
#include "fakes/preferences_desk.h"
#include "fakes/shelf_model.h"
#include "fakes/user_screens.h"
#include "platform/freedesktop/autostart_login_items.h"

#include <QFile>
#include <QTemporaryDir>

#include <utility>

namespace corvane::test {

namespace {

/// One of each kind that the menu and the preferences tell of.
std::vector<UpdateReport> wrongWithUpdates()
{
    std::vector<UpdateReport> reports;
    for (const UpdateFailure failure :
         {UpdateFailure::WentBack, UpdateFailure::Unverifiable, UpdateFailure::Expired,
          UpdateFailure::RecordDamaged, UpdateFailure::Unreachable}) {
        UpdateReport report{UpdateReport::Stage::Failed};
        report.failure = failure;
        report.renewed = QDate(2026, 11, 1);
        report.route = WebRoute{WebRoute::Kind::NeedsScript};
        reports.push_back(report);
    }
    return reports;
}

QStringList menuLines(const FakeStatusItem &item)
{
    QStringList lines{QStringLiteral("tool tip: ") + item.toolTip};
    for (const MenuRow &row : item.rows) {
        const QString keys = row.keyEquivalent.sequence().toString(QKeySequence::NativeText);
        lines << (row.isSeparator() ? QStringLiteral("—")
                                    : row.title + (keys.isEmpty() ? keys : u" | " + keys));
    }
    return lines;
}

} // namespace

TextTable textsOfWhatASessionLacks()
{
    TextTable table;
    for (const auto &[why, heading] :
         {std::pair(Reason::ServerLacksExtensions, "What the display server lacks extensions for"),
          std::pair(Reason::KeptByDesktop, "What the desktop keeps to itself")}) {
        Abilities lacking = lackingAbilities(why);
        QStringList lines = session_texts::limits(lacking);
        lacking.drags.extent = Drags::AtTheEdge;
        lines << session_texts::limit(lacking.drags);
        table.add(QLatin1String(heading), lines);
    }
    return table;
}

TextTable textsOfTheCommandLine()
{
    TextTable table;
    // One line: a text of several has no other beginning than its first.
    table.add(QStringLiteral("Help"),
              {command_options::help().replace(u'\n', QLatin1String(" / "))});
    QStringList problems;
    for (int i = 0; i < command_problem::count; ++i)
        problems << QString::fromLocal8Bit(
            command_problem::line(static_cast<CommandProblem>(i), {"one", "two"}));
    table.add(QStringLiteral("Problems"), problems);
    QStringList refusals;
    SessionEnvironment lost;
    lost.waylandDisplay = "one";
    CompositorRegistry silent;
    CompositorRegistry plain;
    plain.answers = true;
    CompositorRegistry layers = plain;
    layers.hasLayerShell = true;
    for (const auto &[environment, compositor] :
         {std::pair(SessionEnvironment(), silent), std::pair(lost, silent), std::pair(lost, plain),
          std::pair(lost, layers)})
        refusals << QString::fromLocal8Bit(
            chooseSession(environment, compositor, [] { return false; }).refusal);
    table.add(QStringLiteral("Starts without a display"), refusals);
    QStringList warnings;
    SessionEnvironment unnamed;
    unnamed.display = "two";
    lost.display = "two";
    for (const SessionEnvironment &environment : {unnamed, lost})
        warnings << QString::fromLocal8Bit(
            chooseSession(environment, silent, [] { return true; }).warning);
    table.add(QStringLiteral("Starts in a Wayland session that cannot be found"), warnings);
    return table;
}

TextTable textsOfTheMenu()
{
    ShelfModel model;
    model.settings.setViewAllShortcut(
        Shortcut{KeyPosition{40}, Shortcut::control, QStringLiteral("K")});
    FakeUpdater updates;
    TextTable table;
    for (const bool hasUpdates : {false, true}) {
        FakeStatusItem item;
        StatusItemController controller({item, model.store, model.settings, model.desk.clock, [] {},
                                         hasUpdates ? &updates : nullptr});
        for (const int count : {0, 1, 5}) {
            QList<DropItem> items;
            for (int i = 0; i < count; ++i)
                items << ShelfDesk::textItem(QStringLiteral("a"));
            model.store.setItems(items);
            model.desk.clock.runPending();
            item.open();
            table.add(QStringLiteral("Menu with %1 items%2")
                          .arg(count)
                          .arg(QLatin1String(hasUpdates ? ", updates" : "")),
                      menuLines(item));
        }
    }
    for (const UpdateReport &wrong : wrongWithUpdates()) {
        FakeStatusItem item;
        updates.wrong.set(wrong);
        StatusItemController controller(
            {item, model.store, model.settings, model.desk.clock, [] {}, &updates});
        item.open();
        table.add(QStringLiteral("Menu with a notice"), menuLines(item));
    }
    return table;
}

TextTable textsOfThePreferences()
{
    TextTable table;
    FakeUpdater updates;
    PreferencesDesk desk;
    const auto add = [&](const QString &heading, PreferencesTab tab, const auto &prepare) {
        PreferencesWindowController controller(desk.context());
        controller.selection().setTab(tab);
        controller.window().present();
        prepare(controller.window());
        table.add(heading, spokenTexts(controller.window()));
    };
    const auto nothing = [](QWidget &) {};
    const auto general = PreferencesTab::General;
    add(QStringLiteral("General"), general, nothing);
    desk.settings.setInViewCount(3);
    desk.updater = &updates;
    desk.settings.setViewAllShortcut(
        Shortcut{KeyPosition{40}, Shortcut::control | Shortcut::option, QStringLiteral("K")});
    add(QStringLiteral("General, 3 in view, updates, both shortcuts"), general, nothing);
    updates.wrong.set(wrongWithUpdates().front());
    add(QStringLiteral("General, a notice about updates"), general, nothing);
    desk.updater = nullptr;
    desk.isKeptUpToDateByOthers = true;
    desk.settings.setShortcut(std::nullopt);
    add(QStringLiteral("General, kept up to date by others, no shortcuts, recording"), general,
        [](QWidget &window) { clickInto(*window.findChild<ShortcutRecorderView *>()); });
    desk.defaults.kept = false;
    desk.settings.setShortcut(Shortcut{KeyPosition{0}, Shortcut::control, QStringLiteral("A")});
    desk.hotKeys.takenByOthers = {{KeyPosition::A, Shortcut::control},
                                  {KeyPosition{40}, Shortcut::control | Shortcut::option}};
    desk.binder.bindShelf();
    desk.binder.bindViewAll();
    add(QStringLiteral("General, settings that are not kept, shortcuts that others have"), general,
        nothing);
    desk.abilities.become(lackingAbilities(Reason::ServerLacksExtensions));
    add(QStringLiteral("General, a session that lacks abilities"), general, nothing);
    desk.abilities.become({});
    desk.hotKeys.takenByOthers.clear();
    desk.settings.setViewAllShortcut(Shortcut{KeyPosition{40}, 0, QStringLiteral("K")});
    for (const auto &[answer, heading] :
         {std::pair(ShortcutOutcome::pending(), "pending"),
          std::pair(ShortcutOutcome::bound(QStringLiteral("Meta+A")), "bound by the desktop"),
          std::pair(ShortcutOutcome::setInDesktop(QStringLiteral("corvane --toggle")),
                    "set in the desktop"),
          std::pair(ShortcutOutcome::setInDesktop(QStringLiteral("corvane --toggle"),
                                                  QStringLiteral("bindsym A")),
                    "set by a line")}) {
        desk.hotKeys.firstAnswer = answer;
        desk.binder.bindShelf();
        desk.binder.bindViewAll();
        add(QStringLiteral("General, a shortcut that types, the other one %1")
                .arg(QLatin1String(heading)),
            general, nothing);
    }
    add(QStringLiteral("About"), PreferencesTab::About, nothing);
    deletePending();
    return table;
}

TextTable textsOfTheGuide()
{
    TextTable table;
    {
        PreferencesDesk desk;
        const auto addSteps = [&](const char *heading) {
            WelcomeWindowController controller(
                {desk.motion, desk.abilities, desk.settings, desk.binder, desk.context().announce},
                desk.screens.locator);
            controller.window().present();
            for (int step = 1; step <= 3; ++step) {
                QStringList lines = spokenTexts(controller.window());
                for (const QString &text : std::exchange(desk.announced, {}))
                    lines << QStringLiteral("Announced: ") + text;
                table.add(QString::fromLatin1(heading).arg(step), lines);
                if (step < 3)
                    controller.view().goForward();
            }
        };
        addSteps("Guide, step %1");
        desk.abilities.become(lackingAbilities(Reason::ServerLacksExtensions));
        addSteps("Guide where abilities are lacking, step %1");
        desk.abilities.become({});
        desk.binder.bindShelf();
        addSteps("Guide where keys open the shelf, step %1");
    }
    deletePending();
    return table;
}

/// What desktops show of the entry by which they start Corvane.
TextTable textsOfTheEntryAtLogin()
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    AutostartLoginItems(QStringLiteral("corvane")).registerItem();
    if (before.isNull())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", before);
    QFile file(folder.filePath(QStringLiteral("autostart/corvane.desktop")));
    QStringList said;
    if (file.open(QFile::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (const QString &line : lines) {
            if (line.startsWith(QLatin1String("Comment=")))
                said << line.section(u'=', 1);
        }
    }
    TextTable table;
    table.add(QStringLiteral("Entry at login"), said);
    return table;
}

TextTable textsOfTheUpdates()
{
    using Stage = UpdateReport::Stage;
    TextTable table;
    FakeWindowActivation activation;
    UserScreens screens;
    {
        const auto quietly = [](const QString &) {};
        UpdateWindowController replacing(activation, screens.locator, quietly,
                                         QStringLiteral("1.0"), true);
        UpdateWindowController handing(activation, screens.locator, quietly, QStringLiteral("1.0"),
                                       false);
        const auto add = [&](UpdateWindowController &controller, const QString &heading,
                             const UpdateReport &report) {
            controller.show(report, UpdateAttention::Asked);
            table.add(heading, spokenTexts(*controller.window()));
        };
        UpdateReport report{Stage::Checking, QStringLiteral("1.2"), QStringLiteral("Faster"),
                            500'000, 2'000'000};
        report.fileName = QStringLiteral("Corvane-1.2.AppImage");
        for (const auto &[stage, heading] :
             {std::pair(Stage::Checking, "checking"), std::pair(Stage::UpToDate, "up to date"),
              std::pair(Stage::Available, "available"),
              std::pair(Stage::Downloading, "downloading"),
              std::pair(Stage::Installing, "installing"), std::pair(Stage::Replaced, "replaced"),
              std::pair(Stage::HandedOver, "handed over")}) {
            report.stage = stage;
            add(replacing, QStringLiteral("Update, ") + QLatin1String(heading), report);
        }
        report.stage = Stage::Available;
        add(handing, QStringLiteral("Update, available as a download"), report);
        for (const auto &[kind, heading] :
             {std::pair(WebRoute::Kind::Direct, "asked directly"),
              std::pair(WebRoute::Kind::Proxied, "asked through a proxy"),
              std::pair(WebRoute::Kind::NeedsScript, "not asked for a script"),
              std::pair(WebRoute::Kind::Unusable, "not asked for a strange proxy")}) {
            UpdateReport asked{Stage::Failed};
            asked.route
                = WebRoute{kind, {WebProxy::Kind::Http, QStringLiteral("proxy.test"), 3128}};
            add(replacing, QStringLiteral("Update, ") + QLatin1String(heading), asked);
        }
        report.stage = Stage::Available;
        report.isForDownloads = true;
        add(replacing, QStringLiteral("Update, available for the downloads folder"), report);
        report.stage = Stage::Failed;
        report.renewed = QDate(2026, 11, 1);
        for (int failure = 0; failure <= static_cast<int>(UpdateFailure::RecordDamaged);
             ++failure) {
            report.failure = static_cast<UpdateFailure>(failure);
            add(replacing, QStringLiteral("Update, failure %1").arg(failure), report);
        }
    }
    deletePending();
    return table;
}

} // namespace corvane::test
