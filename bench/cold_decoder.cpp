// From nothing to the first picture of a decoder, beside one that runs already.

#include "platform/freedesktop/decoding/decoder_image_codec.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "support/mixed_files.h"
#include "support/table.h"

#include <QCoreApplication>

#include <memory>
#include <stdexcept>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int repetitions = 21;
constexpr int thumbnailPixels = 60;

std::unique_ptr<Sandbox> newSandbox()
{
    return std::make_unique<Sandbox>(ThumbnailerRegistry::environmentProgramFolders());
}

double thumbnail(DecoderPool &pool, const QByteArray &picture)
{
    const double start = now();
    if (!DecoderImageCodec(pool).thumbnail(picture, thumbnailPixels))
        throw std::runtime_error("no picture comes");
    return now() - start;
}

/// Each time by another pool, and if so also by a sandbox that nobody has tried yet.
double cold(const QByteArray &picture, bool isFirstOfProgram)
{
    std::unique_ptr<Sandbox> sandbox = newSandbox();
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        if (isFirstOfProgram)
            sandbox = newSandbox();
        else
            sandbox->isAvailable();
        const DecoderProgram program(*sandbox);
        DecoderPool pool(program);
        times.push_back(thumbnail(pool, picture));
    }
    return median(times);
}

double warm(const QByteArray &picture)
{
    const std::unique_ptr<Sandbox> sandbox = newSandbox();
    const DecoderProgram program(*sandbox);
    DecoderPool pool(program);
    thumbnail(pool, picture);
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i)
        times.push_back(thumbnail(pool, picture));
    return median(times);
}

void run()
{
    const QByteArray picture = makePicture("jpg");
    const double floor = warm(picture);
    constexpr auto value = Row::Bound::Value;
    print({"first picture of a cold decoder", floor, cold(picture, false), "ms", 60, value});
    print({"the same, with the first try of the sandbox", floor, cold(picture, true), "ms", 60,
           value});
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    corvane::bench::run();
}
