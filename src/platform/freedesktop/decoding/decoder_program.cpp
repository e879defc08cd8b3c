#include "platform/freedesktop/decoding/decoder_program.h"

#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/system/app_image.h"

#include <QDebug>

#include <unistd.h>

#include <utility>

namespace corvane {

namespace {

QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/'));
}

QByteArray ownDecoder()
{
    QByteArray file = DecoderProgram::belongingTo(app_image::Evidence::ofThisProcess().executable);
    if (file.isEmpty())
        qWarning("[Corvane] corvane-decoder is missing: there are no thumbnails and no previews.");
    return file;
}

/// The folder that a program lies in together with its libraries, as in an AppImage; empty if its
/// libraries are the system's.
QByteArray bundleOf(const QByteArray &file)
{
    const QByteArray prefix = folderOf(folderOf(file));
    const QByteArray library = prefix + "/lib/libQt6Core.so.6";
    return ::access(library.constData(), R_OK) == 0 ? prefix : QByteArray();
}

Sandbox::OwnProgram inside(const QByteArray &file)
{
    Sandbox::OwnProgram program;
    program.command = {file};
    if (file.startsWith("/usr/"))
        return program;
    const QByteArray bundle = bundleOf(file);
    program.files << (bundle.isEmpty() ? file : bundle);
    if (bundle.isEmpty())
        return program;
    // Where it finds its libraries and plug-ins, if it was told so.
    for (const char *name : {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH"}) {
        if (const QByteArray value = qgetenv(name); !value.isEmpty())
            program.environment << name << value;
    }
    return program;
}

} // namespace

DecoderProgram::DecoderProgram(const Sandbox &sandbox)
    : DecoderProgram(sandbox, ownDecoder())
{
}

DecoderProgram::DecoderProgram(const Sandbox &sandbox, QByteArray file)
    : m_sandbox(sandbox)
    , m_file(std::move(file))
{
}

QByteArray DecoderProgram::belongingTo(const QByteArray &executable)
{
    for (const char *place : {"corvane-decoder", CORVANE_DECODER_FROM_PROGRAM}) {
        QByteArray file = app_image::canonical(folderOf(executable) + '/' + place);
        if (!file.isEmpty() && ::access(file.constData(), X_OK) == 0)
            return file;
    }
    return {};
}

bool DecoderProgram::isShutIn() const
{
    return m_sandbox.isAvailable();
}

QByteArrayList DecoderProgram::command(decoder_protocol::Room room) const
{
    // In the background of a shell that ends: when the decoder ends by itself, nobody has to wait
    // for it.
    const QByteArrayList start = {"/bin/sh", "-c", R"("$@" >/dev/null 2>&1 </dev/null &)", "sh"};
    QByteArrayList decoder
        = isShutIn() ? m_sandbox.command(inside(m_file)) : QByteArrayList{m_file};
    if (room == decoder_protocol::Room::Large)
        decoder << decoder_protocol::largeRoomArgument;
    return start + decoder;
}

} // namespace corvane
