#pragma once

#include "core/data_uris.h"
#include "core/feedback.h"
#include "core/quick_actions.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "fakes/fake_clipboard.h"
#include "fakes/fake_login_items.h"
#include "fakes/fake_pointer.h"
#include "fakes/fake_screens.h"
#include "fakes/fake_work_queue.h"
#include "fakes/memory_user_defaults.h"
#include "fakes/recording_sources.h"
#include "fakes/shelf_desk.h"
#include "input/pointer_screen_locator.h"
#include "shelf/hud_controller.h"

#include <memory>

namespace corvane::test {

/// A desk with a real model and one screen: everything that a shelf's controller needs.
struct ShelfModel {
    HUDController::Context controllerContext()
    {
        return {desk.context(), store, settings, feedback, screens, locator, quickActions};
    }

    /// Publishes the items without a change.
    void publishItems() { store.setItems(store.items()); }

    ShelfDesk desk;
    MemoryUserDefaults defaults;
    FakeLoginItems loginItems;
    Settings settings{defaults, loginItems};
    Feedback feedback;
    RecordingThumbnails thumbnails;
    RecordingLinkPreviews linkPreviews;
    ShelfStore store{settings, desk.spool, thumbnails, linkPreviews, feedback};
    FakeScreens screens;
    std::shared_ptr<Screen> screen = screens.attach(QRectF(0, 0, 1512, 982));
    FakePointer pointer;
    PointerScreenLocator locator{screens, pointer};
    FakeClipboard clipboard;
    FakeWorkQueue work;
    DataUris dataUris{desk.locality, desk.remoteFiles, work, desk.clock};
    QuickActions quickActions{clipboard, feedback, dataUris, desk.preparation, desk.savedPictures};
};

} // namespace corvane::test
