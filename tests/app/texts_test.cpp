// Every text of the menu, the windows, the shelf's messages and the bar, read where a user reads it
// and compared with the tables in texts/, which are meant to be read by people too.

#include "app/base/session_texts.h"
#include "app/preferences/preferences_window_controller.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "app/spoken_texts.h"
#include "app/status/status_item_controller.h"
#include "app/text_table.h"
#include "app/updates/update_window_controller.h"
#include "app/welcome/welcome_view.h"
#include "app/welcome/welcome_window_controller.h"
#include "app/widget_hands.h"
#include "fakes/fake_drag_desktop.h"
#include "fakes/fake_status_item.h"
#include "fakes/fake_updater.h"
#include "fakes/fake_window_activation.h"
#include "fakes/lacking_abilities.h"
#include "fakes/preferences_desk.h"
#include "fakes/shelf_model.h"
#include "fakes/user_screens.h"
#include "input/monitored_clicks.h"
#include "shelf/bar/view_all_controller.h"

#include <gtest/gtest.h>

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
        const QString keys = row.keyEquivalent.sequence().toString(QKeySequence::PortableText);
        lines << (row.isSeparator() ? QStringLiteral("—")
                                    : row.title + (keys.isEmpty() ? keys : u" | " + keys));
    }
    return lines;
}

} // namespace

TEST(Texts, OfWhatASessionLacks)
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
    expectTable("limits", table);
}

TEST(Texts, OfTheMenu)
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
    expectTable("menu", table);
}

TEST(Texts, OfThePreferences)
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
                    "set in the desktop")}) {
        desk.hotKeys.firstAnswer = answer;
        desk.binder.bindShelf();
        desk.binder.bindViewAll();
        add(QStringLiteral("General, a shortcut that types, the other one %1")
                .arg(QLatin1String(heading)),
            general, nothing);
    }
    add(QStringLiteral("About"), PreferencesTab::About, nothing);
    deletePending();
    expectTable("preferences", table);
}

TEST(Texts, OfTheGuide)
{
    TextTable table;
    FakeMotionPreference motion;
    motion.reduces = true;
    UserScreens screens;
    {
        SessionAbilities abilities;
        const auto addSteps = [&](const char *heading) {
            WelcomeWindowController controller(motion, screens.locator, abilities);
            controller.window().present();
            for (int step = 1; step <= 3; ++step) {
                table.add(QString::fromLatin1(heading).arg(step), spokenTexts(controller.window()));
                if (step < 3)
                    controller.view().goForward();
            }
        };
        addSteps("Guide, step %1");
        abilities.become(lackingAbilities(Reason::ServerLacksExtensions));
        addSteps("Guide where abilities are lacking, step %1");
    }
    deletePending();
    expectTable("guide", table);
}

TEST(Texts, OfTheUpdates)
{
    using Stage = UpdateReport::Stage;
    TextTable table;
    FakeWindowActivation activation;
    UserScreens screens;
    {
        UpdateWindowController replacing(activation, screens.locator, QStringLiteral("1.0"), true);
        UpdateWindowController handing(activation, screens.locator, QStringLiteral("1.0"), false);
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
    expectTable("updates", table);
}

TEST(Texts, OfTheShelfsMessages)
{
    ShelfModel model;
    HUDController shelf(model.controllerContext());
    auto &view = dynamic_cast<ShelfView &>(*model.desk.panel.content);
    QStringList lines;
    const auto flashed = [&](const char *deed, const auto &act) {
        act();
        model.desk.clock.runPending();
        lines << QLatin1String(deed) + QLatin1String(": ") + view.look().flashMessage;
        // As long as one is shown.
        model.desk.clock.advance(3);
    };
    const QString name = QStringLiteral("a");
    const DropItem file = ShelfDesk::fileItem(name);
    const DropItem text = ShelfDesk::textItem(name);
    const DropItem link(DropItem::Link{QUrl(QStringLiteral("https://a.test/"))}, name, {}, false);
    const DropItem image(DropItem::ImageBytes{"x", UTType::png()}, name, {}, false);
    for (const auto &[kind, item] :
         {std::pair("copied file", file), std::pair("copied text", text),
          std::pair("copied link", link), std::pair("copied picture", image)}) {
        model.store.clearAll();
        model.store.accept({item});
        flashed(kind, [&] { view.onCopy(); });
    }
    model.desk.keyboard.modifiers = Modifier::Option;
    flashed("copied picture with Option held", [&] {
        view.onCopy();
        model.work.runAll();
    });
    model.desk.keyboard.modifiers = {};
    model.store.clearAll();
    model.store.accept({text});
    flashed("kept", [&] { view.onEjected(text.id(), true); });
    model.store.accept({link, text});
    flashed("copied three", [&] { model.quickActions.copy({text, link, file}); });

    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks(desktop, desktop.pointer);
    ViewAllController bar(ViewAllController::Context{
        {panel, model.desk.clock, model.desk.motion, model.desk.theme, model.desk.keyboard,
         model.desk.dragWriter, model.desk.savedPictures, model.desk.preparation},
        model.store,
        model.quickActions,
        clicks,
        model.feedback});
    // Drags the first of the items, and the others that are ticked, to where `taken` is taken.
    const auto dragOut
        = [&](const QList<DropItem> &items, const QList<qsizetype> &taken, bool isAlone) {
              model.store.clearAll();
              model.store.accept(items);
              model.store.toggleViewAll();
              if (isAlone)
                  model.store.toggleSelection(items.constFirst());
              bar.render({600, 900, 300, 60}, model.screen);
              const QPointF middle = bar.view().layout().tiles.at(0).root.center();
              panel.content->mouseDown({middle});
              panel.content->mouseDragged({middle + QPointF(9, 0)});
              if (!panel.dragOut)
                  return;
              panel.dragOutEvents.released();
              panel.dragOutEvents.ended({DragOperation::Copy, taken, true});
              panel.dragOut.reset();
          };
    const QList<DropItem> three{ShelfDesk::textItem(name), ShelfDesk::textItem(name),
                                ShelfDesk::textItem(name)};
    flashed("one of one stayed", [&] { dragOut(three, {}, true); });
    flashed("one of three stayed", [&] { dragOut(three, {0, 1}, false); });
    flashed("nothing to drag", [&] { dragOut({file, ShelfDesk::fileItem(name)}, {}, false); });
    TextTable table;
    table.add(QStringLiteral("Messages on the shelf"), lines);
    expectTable("messages", table);
}

TEST(Texts, OfTheBar)
{
    ShelfModel model;
    FakePanelWindow panel;
    FakeDragDesktop desktop;
    MonitoredClicks clicks(desktop, desktop.pointer);
    ViewAllController bar(ViewAllController::Context{
        {panel, model.desk.clock, model.desk.motion, model.desk.theme, model.desk.keyboard,
         model.desk.dragWriter, model.desk.savedPictures, model.desk.preparation},
        model.store,
        model.quickActions,
        clicks,
        model.feedback});
    model.store.accept({ShelfDesk::textItem(QStringLiteral("a")),
                        ShelfDesk::textItem(QStringLiteral("b")),
                        ShelfDesk::textItem(QStringLiteral("c"))});
    model.store.toggleViewAll();
    QStringList lines;
    const auto add = [&](const char *state) {
        bar.render({600, 900, 300, 60}, model.screen);
        lines << QLatin1String(state) + QLatin1String(": ") + bar.view().layout().selectionText;
    };
    add("all of three ticked");
    model.store.toggleSelection(model.store.items()[0]);
    add("two of three ticked");
    model.store.toggleSelection(model.store.items()[1]);
    add("one of three ticked");
    model.store.toggleSelection(model.store.items()[2]);
    add("none of three ticked");
    TextTable table;
    table.add(QStringLiteral("The bar"), lines);
    expectTable("bar", table);
}

} // namespace corvane::test
