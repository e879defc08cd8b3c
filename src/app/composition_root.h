#pragma once

#include "app/app_delegate.h"
#include "app/commands/shelf_request_handler.h"
#include "app/sessions/desktop_session.h"
#include "app/shell_windows.h"
#include "app/status/desktop_status_item.h"
#include "app/status/status_item_controller.h"
#include "app/updates/installation_steps.h"
#include "app/updates/update_window_controller.h"
#include "app/updates/updater_controller.h"
#include "core/data_uris.h"
#include "core/drag_writer.h"
#include "core/feedback.h"
#include "core/image_converter.h"
#include "core/item_preparation.h"
#include "core/kept_items.h"
#include "core/pasteboard_ingest.h"
#include "core/picture_items.h"
#include "core/quick_actions.h"
#include "core/remote_descriptions.h"
#include "core/remote_pictures.h"
#include "core/saved_pictures.h"
#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/text_descriptions.h"
#include "input/hot_key_center.h"
#include "input/shortcut_binder.h"
#include "platform/freedesktop/autostart_login_items.h"
#include "platform/freedesktop/decoding/decoder_documents.h"
#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/decoding/decoder_pool.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/mount_table.h"
#include "platform/freedesktop/portal_appearance_preference.h"
#include "platform/freedesktop/portal_motion_preference.h"
#include "platform/freedesktop/proxies/desktop_routes.h"
#include "platform/freedesktop/remote_file_threads.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/sandboxed_thumbnailers.h"
#include "platform/freedesktop/thumbnails/shared_thumbnail_cache.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/base/qt_work_queue.h"
#include "platform/qt/desktop/qt_key_monitors.h"
#include "platform/qt/desktop/qt_panel_window.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/qt/pasteboard/qt_clipboard.h"
#include "platform/qt/pictures/qt_file_icons.h"
#include "platform/qt/pictures/qt_text_measurer.h"
#include "platform/qt/system/qt_desktop_services.h"
#include "platform/qt/system/qt_user_defaults.h"
#include "platform/qt/web/qt_web_client.h"
#include "preview/qt_preview_panel.h"
#include "services/link_preview_service.h"
#include "services/preview_loader.h"
#include "services/quick_look_presenter.h"
#include "services/remote_thumbnails.h"
#include "services/thumbnail_chain.h"
#include "services/thumbnail_service.h"
#include "shelf/bar/view_all_controller.h"
#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/theme.h"
#include "shelf/edge_summoner.h"
#include "shelf/hud_controller.h"
#include "shelf/title_tip.h"

#include <chrono>
#include <functional>
#include <memory>

namespace corvane {

/// All objects that live as long as the program, each after those that it uses. To be made after
/// the application object.
struct CompositionRoot {
    /// `terminate` is called when the user quits, and when the session ends.
    CompositionRoot(SessionKind sessionKind, const std::function<void()> &terminate);
    CompositionRoot(const CompositionRoot &) = delete;
    CompositionRoot &operator=(const CompositionRoot &) = delete;

    /// Has all threads end, and waits for at most `patience`. True if they have ended; the root may
    /// be destroyed only then.
    bool finishWork(std::chrono::milliseconds patience);

    // The system, and what Qt does in every kind of session.
    QtMainQueue mainQueue;
    // Strangers' pictures are decoded in processes of their own.
    Sandbox sandbox;
    DecoderProgram decoderProgram;
    DecoderPool decoders;
    DecoderImageCodec imageCodec;
    // After the objects that its work uses, because its destructor waits for work that is running.
    QtWorkQueue workQueue;
    // Of its own: pictures that take long to decode keep nothing else waiting.
    QtWorkQueue slowWork{1};
    // Of its own: a text that is dropped waits for no disk.
    QtWorkQueue textWork;
    std::shared_ptr<WebRoutes> webRoutes;
    QtWebClient webClient;
    QtScreens screens;
    QtClipboard clipboard;
    QtUserDefaults userDefaults;
    QtDesktopServices desktopServices;
    MountTable mountTable;
    QtFileIcons fileIcons;
    QtTextMeasurer textMeasurer;
    AutostartLoginItems loginItems;
    PortalMotionPreference motionPreference;

    // The session that the program runs in.
    std::unique_ptr<RunningSession> session;
    DesktopSession desktop;
    PortalAppearancePreference appearance;
    QtKeyMonitors keyMonitors;
    QtPanelWindow panel;
    QtPanelWindow viewAllPanel;
    DesktopStatusItem statusItem;

    // Input.
    HotKeyCenter hotKeys;

    // The model, and the services that complete its items.
    Settings settings;
    ShortcutBinder shortcuts;
    Feedback feedback;
    ScratchSpool spool;
    ImageConverter imageConverter;
    // A queue of its own, so that thumbnails and previews do not wait for many conversions.
    QtWorkQueue conversionWork;
    ItemPreparation itemPreparation;
    PictureItems pictureItems;
    RemoteFileThreads remoteFiles;
    RemoteDescriptions remoteDescriptions;
    RemotePictures remotePictures;
    TextDescriptions textDescriptions;
    PasteboardIngest ingest;
    SavedPictures savedPictures;
    DataUris dataUris;
    QuickActions quickActions;
    SharedThumbnailCache thumbnailCache;
    ThumbnailerRegistry thumbnailerRegistry;
    SandboxedThumbnailers thumbnailers;
    // A queue of its own, because thumbnail programs may take long. It comes after the objects that
    // its work uses.
    QtWorkQueue thumbnailWork;
    ThumbnailChain thumbnailChain;
    RemoteThumbnails remoteThumbnails;
    ThumbnailService thumbnails;
    LinkPreviewService linkPreviews;
    ShelfStore store;
    KeptFolder keptFolder{KeptFolder::environmentPath()};
    KeptItems keptItems;

    // The preview.
    DecoderDocuments previewDocuments;
    // A queue of its own, so that previews do not wait for thumbnails. Files whose server may not
    // answer have another one, so that they do not block other previews.
    QtWorkQueue previewWork;
    QtWorkQueue remotePreviewWork{QtWorkQueue::maximumHangingThreads};
    PreviewLoader previewLoader;
    QtPreviewPanel previewPanel;
    QuickLookPresenter presenter;

    // The shelf.
    Theme theme;
    LayerAnimator layerAnimator;
    DragWriter dragWriter;
    TitleTip titleTip;
    ViewAllController viewAll;
    HUDController hud;
    EdgeSummoner edge;

    // Updates, if this build looks for them.
    Installation installation;
    PosixInstallationSteps installationSteps;
    UpdateWindowController updateWindow;
    // A client and a queue of their own, because an update takes minutes, and previews must not
    // wait for it. Neither starts a thread before it is used.
    QtWebClient updateClient;
    QtWorkQueue updateWork;
    UpdaterController updates;

    // The menu, the windows, and what connects everything.
    StatusItemController statusItemController;
    ShellWindows windows;
    AppDelegate delegate;
    ShelfRequestHandler requests;

private:
    std::function<void(double seconds)> letClicksThrough();
    /// Has screen readers say a text by the shelf's panel, as notifications of windows are said
    /// with all that stands in them.
    std::function<void(const QString &text)> announcing();
    void applyAppearance();
    std::unique_ptr<Updater> makeUpdater();
};

} // namespace corvane
