#include "platform/panel_scene.h"

#include "platform/display.h"
#include "platform/pasteboard/pasteboard.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/desktop/qt_geometry.h"
#include "platform/qt/desktop/qt_panel_window.h"
#include "platform/qt/desktop/qt_screens.h"
#include "platform/recording_content.h"
#include "platform/scenes.h"
#include "platform/x11/base/x11_connection.h"
#include "platform/x11/drags/x11_drag_support.h"
#include "platform/x11/drags/x11_drop_support.h"
#include "platform/x11/windows/x11_panels.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>

namespace corvane::test {

namespace {

/// The most memory that this process ever had, in KiB.
qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).chopped(2).trimmed().toLongLong();
    }
    return 0;
}

bool readText(Pasteboard &pasteboard, qint64 memoryBefore)
{
    const auto text = pasteboard.string();
    const qint64 grown = peakMemory() - memoryBefore;
    if (!text) {
        say("no text");
        return false;
    }
    const QByteArray bytes = text->toUtf8();
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
    say("text " + QByteArray::number(bytes.size()) + ' ' + hash + ' ' + QByteArray::number(grown));
    return true;
}

} // namespace

int playPanel()
{
    QtMainQueue queue;
    QtScreens screens(queue);
    X11Connection connection;
    X11Panels panels(connection, queue);
    X11DropSupport dropSupport(connection, queue);
    X11DragSupport dragSupport(connection, queue);
    RecordingContent content;
    content.onPerform
        = [before = peakMemory()](Pasteboard &pasteboard) { return readText(pasteboard, before); };
    QtPanelWindow panel(panels.desktop(), queue, &dropSupport, &dragSupport);
    panel.setContent(&content);
    const auto placeAt = [&](const QRect &frame) {
        panel.place(placementOn(screens.mainScreen(), qt_geometry::toGlobal(QRectF(frame))));
    };
    if (qEnvironmentVariableIsSet(panelSceneHangs))
        panel.place({screens.mainScreen(), panelSceneFromTop, panelSceneFrame.size()});
    else
        placeAt(panelSceneFrame);
    const QRectF body
        = qt_geometry::flipped(QRectF(panelSceneBody), double{panelSceneFrame.height()});
    QPainterPath outline;
    outline.addRect(body);
    panel.setBody(body, outline);
    content.onUpdate = [&] { panel.window().setTitle(QString::number(content.updates)); };
    panel.orderFrontRegardless();
    if (const int moved = qEnvironmentVariableIntValue(panelSceneMove)) {
        eventually([&] { return panel.window().isExposed(); });
        placeAt(panelSceneFrame.translated(moved, 0));
    }
    say("panel " + QByteArray::number(panel.window().winId()));
    return QCoreApplication::exec();
}

} // namespace corvane::test
