#include "app/updates/release_statement.h"

#include <QCryptographicHash>
#include <QList>
#include <QStringBuilder>

#include <algorithm>

namespace corvane {

namespace {

constexpr qsizetype digestBytes = 64;
constexpr qsizetype keyBytes = 32;
constexpr qsizetype longestWord = 64;
constexpr qsizetype longestAddress = 1024;
const QString markupFormat = QStringLiteral("html");
const QString plainFormat = QStringLiteral("plain-text");

bool isPrintable(const QByteArray &bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); });
}

bool isWord(const QString &text)
{
    return !text.isEmpty() && text.size() <= longestWord && std::ranges::all_of(text, [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z')
            || c == u'.' || c == u'_' || c == u'-' || c == u'+' || c == u'~';
    });
}

bool isMinimum(const QString &text)
{
    const QStringList words = text.split(u' ');
    return words.size() == 2 && std::ranges::all_of(words, isWord);
}

QDateTime dateFrom(const QString &text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.timeSpec() == Qt::UTC ? date : QDateTime();
}

QByteArray digestFrom(const QString &text)
{
    return QByteArray::fromHex(text.toLatin1());
}

/// Takes a statement's lines one after the other. What is not as it should be is empty, and is
/// refused below.
class Lines {
public:
    explicit Lines(const QByteArray &bytes)
        : m_lines(QString::fromLatin1(bytes).split(u'\n'))
    {
    }

    bool has(const char *name) const
    {
        return m_at < m_lines.size() && m_lines.at(m_at).startsWith(QLatin1String(name) % u' ');
    }
    QString take(const char *name)
    {
        return has(name) ? m_lines.at(m_at++).mid(QLatin1String(name).size() + 1) : QString();
    }
    qint64 takeNumber(const char *name) { return take(name).toLongLong(); }

private:
    QStringList m_lines;
    qsizetype m_at = 1;
};

bool isWhole(const ReleaseStatement &statement)
{
    const bool isOfWords = std::ranges::all_of(
        QStringList{statement.application, statement.shortVersion, statement.channel,
                    statement.system, statement.architecture, statement.kind},
        isWord);
    const QString scheme = statement.address.scheme();
    const bool isAddress = statement.address.isValid() && !statement.address.host().isEmpty()
        && (scheme == QLatin1String("https") || scheme == QLatin1String("http"))
        && statement.address.toEncoded().size() <= longestAddress;
    const bool isDated = statement.date.isValid() && statement.expiry.isValid()
        && statement.date < statement.expiry;
    return isOfWords && isAddress && isDated && statement.number > 0
        && statement.number <= ReleaseStatement::largestNumber && statement.length > 0
        && statement.digest.size() == digestBytes && statement.notesDigest.size() == digestBytes
        && statement.minimumSystems.size() <= ReleaseStatement::mostMinimumSystems
        && std::ranges::all_of(statement.minimumSystems, isMinimum)
        && (statement.nextKey.isEmpty() || statement.nextKey.size() == keyBytes);
}

} // namespace

std::optional<ReleaseStatement> ReleaseStatement::fromBytes(const QByteArray &bytes)
{
    if (bytes.size() > maximumBytes || !isPrintable(bytes))
        return std::nullopt;
    Lines lines(bytes);
    ReleaseStatement statement;
    statement.number = lines.takeNumber("number");
    statement.application = lines.take("application");
    const auto version = UpdateVersion::fromText(lines.take("version"));
    if (!version)
        return std::nullopt;
    statement.version = *version;
    statement.shortVersion = lines.take("short-version");
    statement.channel = lines.take("channel");
    statement.system = lines.take("system");
    statement.architecture = lines.take("architecture");
    statement.kind = lines.take("kind");
    statement.address = QUrl(lines.take("address"), QUrl::StrictMode);
    statement.length = lines.takeNumber("length");
    statement.digest = digestFrom(lines.take("sha512"));
    while (lines.has("minimum-system"))
        statement.minimumSystems << lines.take("minimum-system");
    const QStringList notes = lines.take("notes").split(u' ');
    statement.notesAreMarkup = notes.constFirst() == markupFormat;
    statement.notesDigest = digestFrom(notes.constLast());
    statement.date = dateFrom(lines.take("date"));
    statement.expiry = dateFrom(lines.take("expiry"));
    statement.nextKey = QByteArray::fromBase64(lines.take("next-key").toLatin1());
    // What was passed over or written in another way shows here.
    if (!isWhole(statement) || statement.toBytes() != bytes)
        return std::nullopt;
    return statement;
}

QByteArray ReleaseStatement::toBytes() const
{
    QString text = QLatin1String(firstLine) % u'\n';
    const auto add = [&text](const char *name, const QString &value) {
        text += QLatin1String(name) % u' ' % value % u'\n';
    };
    const auto hexadecimal
        = [](const QByteArray &bytes) { return QString::fromLatin1(bytes.toHex()); };
    add("number", QString::number(number));
    add("application", application);
    add("version", version.text());
    add("short-version", shortVersion);
    add("channel", channel);
    add("system", system);
    add("architecture", architecture);
    add("kind", kind);
    add("address", QString::fromLatin1(address.toEncoded()));
    add("length", QString::number(length));
    add("sha512", hexadecimal(digest));
    for (const QString &minimum : minimumSystems)
        add("minimum-system", minimum);
    add("notes", (notesAreMarkup ? markupFormat : plainFormat) % u' ' % hexadecimal(notesDigest));
    add("date", date.toString(Qt::ISODate));
    add("expiry", expiry.toString(Qt::ISODate));
    if (!nextKey.isEmpty())
        add("next-key", QString::fromLatin1(nextKey.toBase64()));
    return text.toLatin1();
}

QByteArray ReleaseStatement::digestOfNotes(const QString &notes)
{
    return QCryptographicHash::hash(notes.toUtf8(), QCryptographicHash::Sha512);
}

} // namespace corvane
