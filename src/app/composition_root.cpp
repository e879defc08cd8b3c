#include "app/composition_root.h"

#include "app/app_info.h"
#include "shelf/phosphor_icon_drawing.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

double logicalDotsPerInch()
{
    constexpr double usual = 96;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? std::round(screen->logicalDotsPerInchY()) : usual;
}

DragWriter makeDragWriter(const Theme &theme)
{
    return {
        theme.palette.secondary,
        [tint = theme.palette.emphasis](QPainter &painter, PhosphorIcon icon, const QRectF &rect) {
            painter.fillPath(phosphor_icon::cgPath(icon, rect), tint);
        }};
}

LinkPreviewService::Product product()
{
    const AppInfo info = AppInfo::builtIn();
    return {info.version(), info.homePage()};
}

} // namespace

CompositionRoot::CompositionRoot(std::function<void()> onServerLost)
    : webClient(mainQueue)
    , screens(mainQueue)
    , thumbnailGenerator(imageCodec, workQueue)
    , connection(std::move(onServerLost))
    , dragDesktop(connection)
    , panelSurface(connection)
    , dragSupport(connection, mainQueue)
    , panel(panelSurface, mainQueue, &dragSupport)
    , viewAllPanel(panelSurface, mainQueue, &dragSupport)
    , dragMonitor(dragDesktop, dragDesktop, dragDesktop, mainQueue)
    , screenLocator(screens, pointer)
    , settings(userDefaults, loginItems)
    , spool(QFile::encodeName(QDir::tempPath()), QCoreApplication::applicationPid())
    , imageConverter(imageCodec, spool)
    , ingest(spool, imageConverter, imageCodec)
    , quickActions(generalPasteboard, feedback)
    , thumbnails(thumbnailGenerator, fileIcons, imageCodec, screens, mainQueue, workQueue)
    , linkPreviews(webClient, imageCodec, mainQueue, workQueue, product())
    , store(settings, spool, thumbnails, linkPreviews, feedback)
    , theme(QGuiApplication::font(), logicalDotsPerInch())
    , dragWriter(makeDragWriter(theme))
    , viewAll({{viewAllPanel, mainQueue, motionPreference, theme, keyboard, dragWriter, spool},
               store,
               quickActions,
               dragDesktop,
               pointer,
               feedback})
    , delegate({dragMonitor,
                settings,
                store,
                spool,
                {{panel, mainQueue, motionPreference, theme, layerAnimator, textMeasurer, keyboard,
                  ingest, dragWriter},
                 store,
                 settings,
                 feedback,
                 screens,
                 screenLocator,
                 quickActions,
                 nullptr,
                 &viewAll}})
{
}

} // namespace corvane
