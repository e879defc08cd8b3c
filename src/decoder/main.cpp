#include "decoder/confinement.h"
#include "decoder/decoder_loop.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/system/file_descriptor.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>

#include <cstdlib>
#include <memory>

namespace {

/// Texts of drawings need the fonts of an application object, and that a plug-in, which must not
/// be one of a desktop. Without any such plug-in there are no texts.
const char *platformPlugin(int argc, char *argv[])
{
    // Only with an application object Qt looks for the plug-ins that came along in a bundle.
    const QCoreApplication application(argc, argv);
    const QString folder = QLibraryInfo::path(QLibraryInfo::PluginsPath) + u"/platforms/";
    if (QFileInfo::exists(folder + QStringLiteral("libqminimal.so")))
        return "minimal:fontconfig";
    if (QFileInfo::exists(folder + QStringLiteral("libqoffscreen.so")))
        return "offscreen";
    return nullptr;
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace corvane;
    // The one descriptor that the program hands over.
    constexpr int socketNumber = 3;
    FileDescriptor socket(socketNumber);
    const bool isLarge = argc > 1 && qstrcmp(argv[1], decoder_protocol::largeRoomArgument) == 0;
    const auto room = isLarge ? decoder_protocol::Room::Large : decoder_protocol::Room::Usual;
    confinement::limitResources(room);
    qunsetenv("QT_QPA_PLATFORMTHEME");
    std::unique_ptr<QCoreApplication> application;
    if (const char *const plugin = platformPlugin(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", plugin);
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    return DecoderLoop(std::move(socket), room).run();
}
