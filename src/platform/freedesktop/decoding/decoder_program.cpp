#include "platform/freedesktop/decoding/decoder_program.h"

#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/system/app_image.h"

#include <QDebug>

#include <unistd.h>

#include <utility>

namespace corvane {

namespace {

QByteArray fileBesideProgram()
{
    const QByteArray executable = app_image::Evidence::ofThisProcess().executable;
    const QByteArray folder = executable.left(executable.lastIndexOf('/') + 1);
    for (const char *place : {"corvane-decoder", CORVANE_DECODER_FROM_PROGRAM}) {
        QByteArray file = app_image::canonical(folder + place);
        if (!file.isEmpty() && ::access(file.constData(), X_OK) == 0)
            return file;
    }
    qWarning("[Corvane] corvane-decoder is missing: there are no thumbnails and no previews.");
    return {};
}

Sandbox::OwnProgram inside(const QByteArray &file)
{
    Sandbox::OwnProgram program;
    program.command = {file};
    const QByteArray folder = qgetenv("APPDIR");
    const bool isInAppImage
        = !app_image::containing(app_image::Evidence::ofThisProcess()).isEmpty();
    if (isInAppImage) {
        program.files << folder;
        // Where it finds its libraries and plug-ins.
        for (const char *name : {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH"}) {
            if (const QByteArray value = qgetenv(name); !value.isEmpty())
                program.environment << name << value;
        }
    } else if (!file.startsWith("/usr/")) {
        program.files << file;
    }
    return program;
}

} // namespace

DecoderProgram::DecoderProgram(const Sandbox &sandbox)
    : DecoderProgram(sandbox, fileBesideProgram())
{
}

DecoderProgram::DecoderProgram(const Sandbox &sandbox, QByteArray file)
    : m_sandbox(sandbox)
    , m_file(std::move(file))
{
}

bool DecoderProgram::isShutIn() const
{
    return m_sandbox.isAvailable();
}

QByteArrayList DecoderProgram::command() const
{
    // In the background of a shell that ends: when the decoder ends by itself, nobody has to wait
    // for it.
    const QByteArrayList start = {"/bin/sh", "-c", R"("$@" >/dev/null 2>&1 </dev/null &)", "sh"};
    return start + (isShutIn() ? m_sandbox.command(inside(m_file)) : QByteArrayList{m_file});
}

} // namespace corvane
