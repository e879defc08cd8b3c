// TIFF files, of either order of bytes: what the decoder makes of them, whatever it is asked; and
// as they are presented to the library, of which two bytes may differ from the file's.

#include "decoder/tiff_as_stored.h"
#include "support/decoder_under_test.h"
#include "support/signature.h"

#include <QBuffer>

#include <cstdlib>

namespace {

using namespace std::string_view_literals;

constexpr auto littleEndian = "II*\0"sv;
constexpr auto bigEndian = "MM\0*"sv;

void comparePresented(const QByteArray &contents)
{
    QBuffer file;
    file.setData(contents);
    file.open(QIODevice::ReadOnly);
    corvane::TiffAsStored presented(file);
    const QByteArray whole = presented.readAll();
    if (whole.size() != contents.size())
        std::abort();
    int differing = 0;
    for (qsizetype i = 0; i < whole.size(); ++i)
        differing += whole[i] != contents[i] ? 1 : 0;
    if (differing > 2)
        std::abort();
    // In pieces it is the same.
    presented.seek(0);
    QByteArray pieces;
    for (qint64 length = 1; pieces.size() < whole.size(); length = length % 7 + 1) {
        const QByteArray piece = presented.read(length);
        if (piece.isEmpty())
            std::abort();
        pieces += piece;
    }
    if (pieces != whole)
        std::abort();
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maximum, unsigned int)
{
    const bool isBig = corvane::fuzz::begins(data, size, bigEndian);
    return corvane::fuzz::mutatedBehind(isBig ? bigEndian : littleEndian, data, size, maximum);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    namespace fuzz = corvane::fuzz;
    if (!fuzz::begins(data, size, littleEndian) && !fuzz::begins(data, size, bigEndian))
        return 0;
    comparePresented({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
    fuzz::decode(data, size, fuzz::Origin::DiskAlone);
    return 0;
}
