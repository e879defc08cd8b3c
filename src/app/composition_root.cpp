#include "app/composition_root.h"

#include "app/base/app_info.h"
#include "app/look/window_look.h"
#include "app/updates/software_updater.h"
#include "platform/desktop/abilities.h"
#include "platform/qt/desktop/qt_tip_window.h"
#include "platform/system/file_url.h"
#include "platform/system/temporary_folder.h"
#include "shelf/drawing/phosphor_icon_drawing.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

double logicalDotsPerInch()
{
    constexpr double usual = 96;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? std::round(screen->logicalDotsPerInchY()) : usual;
}

Theme makeTheme()
{
    Theme theme(QGuiApplication::font(), logicalDotsPerInch());
    theme.direction = QGuiApplication::layoutDirection();
    return theme;
}

DragWriter makeDragWriter(const Theme &theme, const FileLocality &locality)
{
    return {
        theme.palette.secondary,
        [tint = theme.palette.emphasis](QPainter &painter, PhosphorIcon icon, const QRectF &rect) {
            painter.fillPath(phosphor_icon::cgPath(icon, rect), tint);
        },
        locality};
}

/// The spool, and what is kept, are private folders: thumbnails of their files are not shared with
/// other programs.
SharedThumbnailCache::Places thumbnailPlaces(const ScratchSpool &spool)
{
    return {SharedThumbnailCache::environmentCacheFolder(),
            "corvane-" + QCoreApplication::applicationVersion().toUtf8(),
            {file_url::nativePath(spool.directory()), KeptFolder::environmentPath()}};
}

QList<QUuid> itemsInView(const ShelfStore &store, const ViewAllView &bar)
{
    QList<QUuid> items;
    for (const auto &[index, item] : store.visibleItems())
        items << item.id();
    return items + bar.itemsInView();
}

LinkPreviewService::Product product()
{
    const AppInfo info = AppInfo::builtIn();
    return {info.version(), info.homePage()};
}

WebNetwork networkBy(const std::shared_ptr<WebRoutes> &routes)
{
    WebNetwork network;
    network.routes = routes;
    return network;
}

} // namespace

CompositionRoot::CompositionRoot(SessionKind sessionKind, const std::function<void()> &terminate)
    : sandbox(ThumbnailerRegistry::environmentProgramFolders())
    , decoderProgram(sandbox)
    , decoders(decoderProgram)
    , imageCodec(decoders)
    , webRoutes(std::make_shared<DesktopRoutes>())
    , webClient(mainQueue, networkBy(webRoutes))
    , screens(mainQueue)
    , fileIcons(mountTable)
    , session(startSession(sessionKind,
                           {.mainQueue = mainQueue, .screens = screens, .terminate = terminate}))
    , desktop(session->desktop())
    , appearance(desktop.textScaleIsInScreens ? PortalAppearancePreference::TextScale::InScreens
                                              : PortalAppearancePreference::TextScale::OfItsOwn)
    , keyMonitors(desktop.keyboardLayout)
    , panel(desktop.panels, mainQueue, desktop.dropSupport, desktop.dragSupport, &textWork)
    , viewAllPanel(desktop.panels, mainQueue, desktop.dropSupport, desktop.dragSupport, &textWork)
    , statusItem(mainQueue, desktop.trayWatch, desktop.menuKeyboard)
    , hotKeys(desktop.hotKeys, mainQueue)
    , settings(userDefaults, loginItems)
    , shortcuts(
          hotKeys, [this] { return settings.shortcut(); },
          [this] { return settings.viewAllShortcut(); })
    , spool(temporaryFolder(), QCoreApplication::applicationPid(), &workQueue)
    , imageConverter(imageCodec)
    , itemPreparation(spool, mainQueue, conversionWork)
    , pictureItems(spool, imageConverter, imageCodec, itemPreparation)
    , remoteFiles(mainQueue)
    , remoteDescriptions(remoteFiles)
    , remotePictures(remoteFiles, pictureItems)
    , textDescriptions(textWork, mainQueue)
    , ingest(spool, pictureItems, mountTable, remoteDescriptions, remotePictures, textDescriptions)
    , savedPictures(spool, itemPreparation)
    , dataUris(mountTable, remoteFiles, workQueue, mainQueue)
    , quickActions(clipboard, feedback, dataUris, itemPreparation, savedPictures)
    , thumbnailCache(imageCodec, thumbnailPlaces(spool))
    , thumbnailerRegistry(ThumbnailerRegistry::environmentDataFolders(),
                          ThumbnailerRegistry::environmentProgramFolders())
    , thumbnailers(thumbnailerRegistry, sandbox)
    , thumbnailChain({.locality = mountTable,
                      .cache = thumbnailCache,
                      .codec = imageCodec,
                      .thumbnailers = thumbnailers,
                      .workQueue = thumbnailWork})
    , remoteThumbnails({.files = remoteFiles,
                        .cache = thumbnailCache,
                        .codec = imageCodec,
                        .mainQueue = mainQueue,
                        .workQueue = thumbnailWork})
    , thumbnails(thumbnailChain, remoteThumbnails, fileIcons, imageCodec, screens, mainQueue,
                 thumbnailWork)
    , linkPreviews(webClient, imageCodec, mainQueue, workQueue, slowWork, product())
    , store(settings, spool, thumbnails, linkPreviews, feedback)
    , keptItems({.settings = settings,
                 .folder = keptFolder,
                 .store = store,
                 .spool = spool,
                 .ingest = ingest,
                 .codec = imageCodec,
                 .preparation = itemPreparation,
                 .workQueue = workQueue})
    , previewDocuments(decoders)
    , previewLoader({.documents = previewDocuments,
                     .locality = mountTable,
                     .mainQueue = mainQueue,
                     .workQueue = previewWork,
                     .remoteWorkQueue = remotePreviewWork})
    , previewPanel({.loading = previewLoader,
                    .icons = fileIcons,
                    .desktop = desktopServices,
                    .activation = desktop.windowActivation,
                    .keyboard = desktop.panels.keyboard,
                    .queue = mainQueue,
                    .shelf = panel})
    , presenter({.panel = previewPanel, .mainQueue = mainQueue, .workQueue = previewWork},
                temporaryFolder())
    , theme(makeTheme())
    , dragWriter(makeDragWriter(theme, mountTable))
    , titleTip({.card = {.queue = mainQueue,
                         .motionPreference = motionPreference,
                         .theme = theme,
                         .measurer = textMeasurer},
                .screens = screens,
                .panels = {&panel, &viewAllPanel},
                .makeWindow = [this] { return std::make_unique<QtTipWindow>(desktop.panels); }})
    , viewAll({.view = {.panel = viewAllPanel,
                        .queue = mainQueue,
                        .motionPreference = motionPreference,
                        .theme = theme,
                        .keyboard = desktop.keyboard,
                        .dragWriter = dragWriter,
                        .pictures = savedPictures,
                        .preparation = itemPreparation,
                        .tip = &titleTip},
               .store = store,
               .quickActions = quickActions,
               .outsideClicks = desktop.outsideClicks,
               .feedback = feedback})
    , hud({.view = {.panel = panel,
                    .queue = mainQueue,
                    .motionPreference = motionPreference,
                    .theme = theme,
                    .animator = layerAnimator,
                    .measurer = textMeasurer,
                    .keyboard = desktop.keyboard,
                    .ingest = ingest,
                    .dragWriter = dragWriter,
                    .pictures = savedPictures,
                    .preparation = itemPreparation,
                    .tip = &titleTip},
           .store = store,
           .settings = settings,
           .feedback = feedback,
           .screens = screens,
           .screenLocator = desktop.screenLocator,
           .quickActions = quickActions,
           .presenter = &presenter,
           .viewAll = &viewAll,
           .outsideClicks = &desktop.outsideClicks,
           .appearance = &appearance})
    , edge({.trigger = desktop.edgeTrigger,
            .outsideClicks = desktop.outsideClicks,
            .screens = screens,
            .store = store,
            .queue = mainQueue,
            .shelfWidth = [this](const ScreenPointer &screen) { return hud.openWidth(screen); },
            .letClicksThrough = letClicksThrough()})
    , installation(Installation::from(Installation::Evidence::ofThisProcess()))
    , updateWindow(desktop.windowActivation, desktop.screenLocator, announcing(),
                   AppInfo::builtIn().version(), installation.kind == Installation::Kind::AppImage)
    , updateClient(mainQueue, networkBy(webRoutes))
    , updates(AppInfo::builtIn(), installation, [this] { return makeUpdater(); })
    , statusItemController({.statusItem = statusItem.item(),
                            .store = store,
                            .settings = settings,
                            .queue = mainQueue,
                            .terminate = terminate,
                            .updater = updates.updater()})
    , windows({.preferences
               = {.settings = settings,
                  .loginItems = loginItems,
                  .shortcutBinder = shortcuts,
                  .keyMonitors = keyMonitors,
                  .hotKeys = desktop.hotKeys,
                  .desktopServices = desktopServices,
                  .motion = motionPreference,
                  .screenLocator = desktop.screenLocator,
                  .abilities = desktop.abilities,
                  .announce = announcing(),
                  .appInfo = AppInfo::builtIn(),
                  .updater = updates.updater(),
                  .isKeptUpToDateByOthers = installation.kind == Installation::Kind::Managed},
               .activation = desktop.windowActivation,
               .queue = mainQueue})
    , delegate({.dragWatch = desktop.dragWatch,
                .hotKeys = hotKeys,
                .shortcuts = shortcuts,
                .settings = settings,
                .store = store,
                .spool = spool,
                .keptItems = keptItems,
                .previewPanel = previewPanel,
                .presenter = presenter,
                .hud = hud,
                .edge = edge,
                .statusItem = statusItemController,
                .windows = windows,
                .updater = updates.updater()})
    , requests({.ingest = ingest,
                .store = store,
                .screenLocator = desktop.screenLocator,
                .preparation = itemPreparation,
                .pictures = savedPictures,
                .workQueue = textWork,
                .mainQueue = mainQueue,
                .perform = [this](const QString &action) { return delegate.perform(action); },
                .terminate = terminate})
{
    remoteDescriptions.onFound
        = [this](const QUuid &item, const QString &description, bool isFolder) {
              store.describeFile(item, description, isFolder);
          };
    textDescriptions.onFound = [this](const QUuid &item, const QString &description) {
        store.describe(item, description);
    };
    itemPreparation.onReady = [this](const DropItem &made) { store.becomeReady(made); };
    store.onLeft = [this](const QUuid &item, bool deletingFiles) {
        savedPictures.itemLeft(item, deletingFiles);
        remotePictures.itemLeft(item);
    };
    remotePictures.isWanted = [this](const QUuid &item) { return store.indexOf(item).has_value(); };
    thumbnails.setItemsInView([this] { return itemsInView(store, viewAll.view()); });
    thumbnails.setEnlargement([this] { return appearance.textScale(); });
    appearance.observeChanges([this] { applyAppearance(); });
}

void CompositionRoot::applyAppearance()
{
    const bool isMore = appearance.wantsMoreContrast();
    theme.setContrast(isMore ? Theme::Contrast::More : Theme::Contrast::Usual);
    WindowLook::setContrast(isMore ? WindowLook::Contrast::More : WindowLook::Contrast::Usual);
    hud.appearanceChanged();
}

/// Where clicks elsewhere are not heard of, the shelf would stay in the way of one that went
/// through it; and a compositor may not look at who is below the pointer again before it moves.
std::function<void(const QString &)> CompositionRoot::announcing()
{
    return [this](const QString &text) { panel.announce(text); };
}

std::function<void(double)> CompositionRoot::letClicksThrough()
{
    if (!desktop.abilities.now().clicksElsewhere.isFull())
        return {};
    return [this](double seconds) { hud.letClicksThrough(seconds); };
}

bool CompositionRoot::finishWork(std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    // Those who wait for a picture go on at once.
    decoders.finish();
    bool haveAllEnded = true;
    const auto finish = [&](auto &threads) {
        const std::chrono::milliseconds rest(std::max<qint64>(deadline.remainingTime(), 0));
        haveAllEnded = threads.finish(rest) && haveAllEnded;
    };
    for (QtWorkQueue *queue : {&workQueue, &slowWork, &textWork, &conversionWork, &thumbnailWork,
                               &previewWork, &remotePreviewWork, &updateWork})
        finish(*queue);
    finish(webClient);
    finish(updateClient);
    return haveAllEnded;
}

std::unique_ptr<Updater> CompositionRoot::makeUpdater()
{
    const AppInfo info = AppInfo::builtIn();
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return std::make_unique<SoftwareUpdater>(
        SoftwareUpdater::Context{
            .web = updateClient,
            .download = {.web = updateClient, .queue = mainQueue, .work = updateWork},
            .steps = installationSteps,
            .display = updateWindow,
            .desktop = desktopServices,
            .record = UpdateRecordFile(UpdateRecordFile::environmentFolder()),
            .now = [] { return QDateTime::currentSecsSinceEpoch(); },
            .checksAutomatically = [this] { return settings.autoCheckUpdates(); },
            .wantsBetas = [this] { return settings.betaUpdates(); }},
        SoftwareUpdater::Program{.feedAddress = info.text(AppInfo::feedAddressKey),
                                 .publicKey = info.text(AppInfo::updateKeyKey),
                                 .applicationId = info.applicationId(),
                                 .version = info.version(),
                                 .build = info.build(),
                                 .system = UpdateSystem::thisOne(),
                                 .installation = installation,
                                 .downloadsFolder = QFile::encodeName(downloads)});
}

} // namespace corvane
