#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

/// What is written down of the items that are kept until the next start.
namespace corvane::kept_record {

/// A file or folder where it lies. The path is native.
struct File {
    QByteArray path;
    bool operator==(const File &) const = default;
};
/// A file that was on the shelf alone, and is kept with the record under `name`.
struct Saved {
    /// What the line below its name says. The line itself is made at each start, in the language of
    /// that start.
    enum class Line : std::uint8_t {
        /// "PNG · 2 KB"
        KindAndSize,
        /// "640 × 480 · PNG"
        PixelsAndKind,
    };

    QByteArray name;
    qint64 size = 0;
    /// Its file name on the shelf.
    QString title;
    Line line = Line::KindAndSize;
    bool operator==(const Saved &) const = default;
};
struct Text {
    QString string;
    bool operator==(const Text &) const = default;
};
struct Link {
    /// As it is written.
    QByteArray address;
    QString title;
    QString subtitle;
    bool operator==(const Link &) const = default;
};
using Item = std::variant<File, Saved, Text, Link>;

inline constexpr qsizetype mostItems = 100'000;
/// No record is longer, whatever is in it.
inline constexpr qint64 mostBytes = 128LL * 1024 * 1024;

/// How many bytes of a record an item takes, and one without items.
qint64 sizeOf(const Item &item);
qint64 sizeOfEmpty();

QByteArray encode(const QList<Item> &items);
/// None unless it is a whole record. What stands in it is not trusted any further.
std::optional<QList<Item>> decode(const QByteArray &record);
/// Whether it is a record as another version of the program writes it.
bool isOfAnotherVersion(const QByteArray &record);

} // namespace corvane::kept_record
