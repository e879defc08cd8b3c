#include "app/composition_root.h"

#include "app/base/app_info.h"
#include "app/updates/software_updater.h"
#include "platform/system/file_url.h"
#include "shelf/drawing/phosphor_icon_drawing.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
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

DragWriter makeDragWriter(const Theme &theme, const FileLocality &locality)
{
    return {
        theme.palette.secondary,
        [tint = theme.palette.emphasis](QPainter &painter, PhosphorIcon icon, const QRectF &rect) {
            painter.fillPath(phosphor_icon::cgPath(icon, rect), tint);
        },
        locality};
}

/// Files of the shelf's own making are private, and gone with it.
SharedThumbnailCache::Places thumbnailPlaces(const ScratchSpool &spool)
{
    return {SharedThumbnailCache::environmentCacheFolder(),
            "corvane-" + QCoreApplication::applicationVersion().toUtf8(),
            {file_url::nativePath(spool.directory())}};
}

QList<QUuid> itemsInView(const ShelfStore &store)
{
    QList<QUuid> items;
    for (const auto &[index, item] : store.visibleItems())
        items << item.id();
    return items;
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

CompositionRoot::CompositionRoot(const std::function<void()> &terminate)
    : webRoutes(std::make_shared<DesktopRoutes>())
    , webClient(mainQueue, networkBy(webRoutes))
    , screens(mainQueue)
    , fileIcons(mountTable)
    , connection(terminate)
    , pingAnswers(connection)
    , pointer(connection, screens)
    , dragDesktop(connection)
    , hotKeyService(connection, mainQueue)
    , keyMonitors(keyboardLayout)
    , panelSurface(connection)
    , windowActivation(connection)
    , pointerBarriers(connection, screens)
    , fullScreenWindows(connection)
    , dropSupport(connection, mainQueue)
    , dragSupport(connection, mainQueue)
    , panel(panelSurface, mainQueue, &dropSupport, &dragSupport, &workQueue)
    , viewAllPanel(panelSurface, mainQueue, &dropSupport, &dragSupport, &workQueue)
    , statusItem(mainQueue, connection)
    , dragMonitor(dragDesktop, dragDesktop, dragDesktop, mainQueue)
    , screenLocator(screens, pointer)
    , hotKeys(hotKeyService, mainQueue)
    , settings(userDefaults, loginItems)
    , shortcuts(
          hotKeys, [this] { return settings.shortcut(); },
          [this] { return settings.viewAllShortcut(); })
    , spool(QFile::encodeName(QDir::tempPath()), QCoreApplication::applicationPid(), &workQueue)
    , imageConverter(imageCodec)
    , itemPreparation(spool, mainQueue, conversionWork)
    , pictureItems(spool, imageConverter, imageCodec, itemPreparation)
    , remoteFiles(mainQueue)
    , remoteDescriptions(remoteFiles)
    , remotePictures(remoteFiles, pictureItems)
    , textDescriptions(workQueue, mainQueue)
    , ingest(spool, pictureItems, mountTable, remoteDescriptions, remotePictures, textDescriptions)
    , savedPictures(spool, itemPreparation)
    , dataUris(mountTable, remoteFiles, workQueue, mainQueue)
    , quickActions(generalPasteboard, feedback, dataUris, itemPreparation, savedPictures)
    , thumbnailCache(imageCodec, thumbnailPlaces(spool))
    , thumbnailerRegistry(ThumbnailerRegistry::environmentDataFolders(),
                          ThumbnailerRegistry::environmentProgramFolders())
    , sandbox(ThumbnailerRegistry::environmentProgramFolders())
    , thumbnailers(thumbnailerRegistry, sandbox)
    , thumbnailChain({mountTable, thumbnailCache, imageCodec, thumbnailers, thumbnailWork})
    , remoteThumbnails({remoteFiles, thumbnailCache, imageCodec, mainQueue, thumbnailWork})
    , thumbnails(thumbnailChain, remoteThumbnails, fileIcons, imageCodec, screens, mainQueue,
                 thumbnailWork)
    , linkPreviews(webClient, imageCodec, mainQueue, workQueue, product())
    , store(settings, spool, thumbnails, linkPreviews, feedback)
    , previewLoader({previewDocuments, mountTable, mainQueue, previewWork, remotePreviewWork})
    , previewPanel({previewLoader, fileIcons, desktopServices, windowActivation, mainQueue, panel})
    , presenter({previewPanel, mainQueue, previewWork}, QFile::encodeName(QDir::tempPath()))
    , theme(QGuiApplication::font(), logicalDotsPerInch())
    , dragWriter(makeDragWriter(theme, mountTable))
    , viewAll({{viewAllPanel, mainQueue, motionPreference, theme, keyboard, dragWriter,
                savedPictures, itemPreparation},
               store,
               quickActions,
               dragDesktop,
               pointer,
               feedback})
    , installation(Installation::from(Installation::Evidence::ofThisProcess()))
    , updateWindow(windowActivation, AppInfo::builtIn().version(),
                   installation.kind == Installation::Kind::AppImage)
    , updateClient(mainQueue, networkBy(webRoutes))
    , updates(AppInfo::builtIn(), installation, [this] { return makeUpdater(); })
    , windows({{settings, loginItems, shortcuts, keyMonitors, hotKeyService, desktopServices,
                motionPreference, AppInfo::builtIn(), updates.updater(),
                installation.kind == Installation::Kind::Managed},
               windowActivation,
               mainQueue})
    , delegate({dragMonitor,
                hotKeys,
                shortcuts,
                settings,
                store,
                spool,
                previewPanel,
                presenter,
                statusItem.item(),
                windows,
                terminate,
                {{panel, mainQueue, motionPreference, theme, layerAnimator, textMeasurer, keyboard,
                  ingest, dragWriter, itemPreparation},
                 store,
                 settings,
                 feedback,
                 screens,
                 screenLocator,
                 quickActions,
                 &presenter,
                 &viewAll},
                {pointerBarriers, fullScreenWindows, dragDesktop, dragDesktop, pointer},
                updates.updater()})
{
    const auto describe = [this](const QUuid &item, const QString &description) {
        store.describe(item, description);
    };
    remoteDescriptions.onFound = describe;
    textDescriptions.onFound = describe;
    itemPreparation.onReady = [this](const DropItem &made) { store.becomeReady(made); };
    store.onLeft = [this](const QUuid &item, bool deletingFiles) {
        savedPictures.itemLeft(item, deletingFiles);
        remotePictures.itemLeft(item);
    };
    remotePictures.isWanted = [this](const QUuid &item) { return store.indexOf(item).has_value(); };
    thumbnails.setItemsInView([this] { return itemsInView(store); });
}

bool CompositionRoot::finishWork(std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    bool haveAllEnded = true;
    const auto finish = [&](auto &threads) {
        const std::chrono::milliseconds rest(std::max<qint64>(deadline.remainingTime(), 0));
        haveAllEnded = threads.finish(rest) && haveAllEnded;
    };
    for (QtWorkQueue *queue : {&workQueue, &conversionWork, &thumbnailWork, &previewWork,
                               &remotePreviewWork, &updateWork})
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
        SoftwareUpdater::Context{updateClient,
                                 {updateClient, mainQueue, updateWork},
                                 updateFiles,
                                 updateWindow,
                                 desktopServices,
                                 UpdateRecordFile(UpdateRecordFile::environmentFolder()),
                                 [] { return QDateTime::currentSecsSinceEpoch(); },
                                 [this] { return settings.autoCheckUpdates(); }},
        SoftwareUpdater::Program{
            info.text(AppInfo::feedAddressKey), info.text(AppInfo::updateKeyKey), info.version(),
            info.build(), UpdateSystem::thisOne(), installation, QFile::encodeName(downloads)});
}

} // namespace corvane
