#include "core/kept_record.h"

#include <QDataStream>
#include <QIODevice>

namespace corvane::kept_record {

namespace {

const QByteArray beginningOfAny = QByteArrayLiteral("Corvane's items, ");
const QByteArray beginning = QByteArrayLiteral("Corvane's items, 1\n");

/// Strings are written unit by unit: a text may hold what is no UTF-8.
void setUp(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_6_0);
}

struct Writer {
    void operator()(const File &file) const { stream << file.path; }
    void operator()(const Saved &saved) const
    {
        stream << saved.name << saved.size << saved.title << static_cast<quint8>(saved.line);
    }
    void operator()(const Text &text) const { stream << text.string; }
    void operator()(const Link &link) const
    {
        stream << link.address << link.title << link.subtitle;
    }

    QDataStream &stream;
};

/// Bytes as the stream writes them: a length of 32 bits, and what it is the length of.
struct Measurer {
    static qint64 of(const QByteArray &bytes) { return qint64{sizeof(quint32)} + bytes.size(); }
    static qint64 of(const QString &string)
    {
        return qint64{sizeof(quint32)} + string.size() * qint64{sizeof(QChar)};
    }
    qint64 operator()(const File &file) const { return of(file.path); }
    qint64 operator()(const Saved &saved) const
    {
        return of(saved.name) + qint64{sizeof saved.size} + of(saved.title)
            + qint64{sizeof(quint8)};
    }
    qint64 operator()(const Text &text) const { return of(text.string); }
    qint64 operator()(const Link &link) const
    {
        return of(link.address) + of(link.title) + of(link.subtitle);
    }
};

/// The kinds are numbered as they stand in `Item`.
Item read(quint8 kind, QDataStream &stream)
{
    switch (kind) {
    case 0: {
        File file;
        stream >> file.path;
        return file;
    }
    case 1: {
        Saved saved;
        quint8 line = 0;
        stream >> saved.name >> saved.size >> saved.title >> line;
        saved.line = static_cast<Saved::Line>(line);
        if (saved.line > Saved::Line::PixelsAndKind)
            stream.setStatus(QDataStream::ReadCorruptData);
        return saved;
    }
    case 2: {
        Text text;
        stream >> text.string;
        return text;
    }
    case 3: {
        Link link;
        stream >> link.address >> link.title >> link.subtitle;
        return link;
    }
    default:
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
}

} // namespace

qint64 sizeOf(const Item &item)
{
    return qint64{sizeof(quint8)} + std::visit(Measurer(), item);
}

qint64 sizeOfEmpty()
{
    return beginning.size() + qint64{sizeof(quint32)};
}

QByteArray encode(const QList<Item> &items)
{
    QByteArray record = beginning;
    QDataStream stream(&record, QIODevice::Append);
    setUp(stream);
    stream << static_cast<quint32>(items.size());
    for (const Item &item : items) {
        stream << static_cast<quint8>(item.index());
        std::visit(Writer{stream}, item);
    }
    return record;
}

std::optional<QList<Item>> decode(const QByteArray &record)
{
    if (record.size() > mostBytes || !record.startsWith(beginning))
        return std::nullopt;
    QDataStream stream(record);
    setUp(stream);
    stream.skipRawData(static_cast<int>(beginning.size()));
    quint32 count = 0;
    stream >> count;
    if (count > mostItems)
        return std::nullopt;
    QList<Item> items;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint8 kind = 0;
        stream >> kind;
        items << read(kind, stream);
    }
    const bool isWhole = stream.status() == QDataStream::Ok && stream.atEnd();
    return isWhole ? std::optional(items) : std::nullopt;
}

bool isOfAnotherVersion(const QByteArray &record)
{
    return record.startsWith(beginningOfAny) && !record.startsWith(beginning);
}

} // namespace corvane::kept_record
