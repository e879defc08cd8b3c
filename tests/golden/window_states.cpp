// The states of our windows of which pictures are kept: preferences, guide and updates.

#include "app/preferences/preferences_window_controller.h"
#include "app/updates/update_window_controller.h"
#include "app/welcome/welcome_view.h"
#include "app/welcome/welcome_window_controller.h"
#include "fakes/fake_window_activation.h"
#include "fakes/preferences_desk.h"
#include "fakes/user_screens.h"
#include "golden/window_stage.h"

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

namespace corvane::test {

namespace {

class PreferencesStage : public WindowStage {
public:
    PreferencesStage()
    {
        desk.settings.setInViewCount(3);
        desk.settings.setLinkPreviews(false);
    }
    QWidget &window() override { return controller.window(); }

    PreferencesDesk desk;
    PreferencesWindowController controller{desk.context()};
};

class GuideStage : public WindowStage {
public:
    explicit GuideStage(int step)
    {
        m_desk.binder.bindShelf();
        controller.window().present();
        while (controller.view().step() < step)
            controller.view().goForward();
    }
    QWidget &window() override { return controller.window(); }

private:
    PreferencesDesk m_desk;

public:
    WelcomeWindowController controller{{m_desk.motion, m_desk.abilities, m_desk.settings,
                                        m_desk.binder, m_desk.context().announce},
                                       m_desk.screens.locator};
};

class UpdateStage : public WindowStage {
public:
    explicit UpdateStage(UpdateReport::Stage stage)
    {
        const QString notes
            = QStringLiteral("What is new:\n\n• The shelf opens a little faster\n"
                             "• Links show their pictures again after a site moved, "
                             "and ask no more than once when a page answers slowly")
            + QStringLiteral("\n• Another line").repeated(12);
        UpdateReport report = {stage, QStringLiteral("1.2"), notes, 0, 98'300'000};
        report.received = stage == UpdateReport::Stage::Available ? 0 : 34'000'000;
        if (stage == UpdateReport::Stage::Failed)
            report.failure = UpdateFailure::WrongSignature;
        m_controller.show(report, UpdateAttention::Asked);
    }
    QWidget &window() override { return *m_controller.window(); }

private:
    FakeWindowActivation m_activation;
    UserScreens m_screens;
    UpdateWindowController m_controller{m_activation, m_screens.locator, [](const QString &) {},
                                        QStringLiteral("1.0"), true};
};

std::unique_ptr<WindowStage> generalPane()
{
    auto stage = std::make_unique<PreferencesStage>();
    stage->controller.window().present();
    return stage;
}

std::unique_ptr<WindowStage> endOfGeneralPane()
{
    auto stage = std::make_unique<PreferencesStage>();
    stage->desk.settings.setInViewCount(1);
    stage->desk.settings.setLinkPreviews(true);
    stage->controller.window().present();
    QCoreApplication::processEvents();
    auto *bar = stage->window().findChild<QScrollArea *>()->verticalScrollBar();
    bar->setValue(bar->maximum());
    return stage;
}

std::unique_ptr<WindowStage> aboutPane()
{
    auto stage = std::make_unique<PreferencesStage>();
    stage->controller.selection().setTab(PreferencesTab::About);
    stage->controller.window().present();
    return stage;
}

std::function<std::unique_ptr<WindowStage>()> guide(int step)
{
    return [step] { return std::make_unique<GuideStage>(step); };
}

std::function<std::unique_ptr<WindowStage>()> update(UpdateReport::Stage stage)
{
    return [stage] { return std::make_unique<UpdateStage>(stage); };
}

} // namespace

const std::vector<WindowState> &windowStates()
{
    static const std::vector<WindowState> states{
        {"preferences-general", generalPane},
        {"preferences-general-end", endOfGeneralPane},
        {"preferences-about", aboutPane},
        {"welcome-1", guide(0)},
        {"welcome-2", guide(1)},
        {"welcome-3", guide(2)},
        {"update-available", update(UpdateReport::Stage::Available)},
        {"update-downloading", update(UpdateReport::Stage::Downloading)},
        {"update-failed", update(UpdateReport::Stage::Failed)},
    };
    return states;
}

} // namespace corvane::test
