// Puts a release into a feed, signed, or renews what stands there, and then looks at the outcome as
// the programs that get it will. Nothing is written before that went well.

#include "app/base/app_info.h"
#include "app/updates/app_image_bytes.h"
#include "release_maker.h"
#include "self_check.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <cstdio>

namespace corvane {
namespace {

int refuse(const QString &why)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(why));
    return 1;
}

QCommandLineOption option(const char *name, const char *description, const char *value = "text",
                          const QString &otherwise = {})
{
    return {QString::fromLatin1(name), QString::fromLatin1(description), QString::fromLatin1(value),
            otherwise};
}

/// The contents, empty where none is named; false where it cannot be read.
bool readFile(const QString &path, QByteArray &bytes)
{
    if (path.isEmpty())
        return true;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return false;
    bytes = file.readAll();
    return true;
}

class Command {
public:
    Command()
    {
        m_options.setApplicationDescription(QStringLiteral(
            "Makes the signed statement of a release and puts it into a feed, or, without --file, "
            "renews every statement in it."));
        m_options.addHelpOption();
        m_options.addOptions(
            {option("key", "The private key, as openssl makes it", "file"),
             option("feed", "The feed, which is made where there is none", "file"),
             option("first-key", "The key that is built into programs, in base64", "key",
                    AppInfo::builtIn().text(AppInfo::updateKeyKey)),
             option("application", "The program's id", "id", AppInfo::builtIn().applicationId()),
             option("file", "What is released", "file"),
             option("address", "Where it will be downloaded", "url"),
             option("build", "Its build number", "number"),
             option("short-version", "Its version for people", "version"),
             option("channel", "stable or beta", "name", ReleaseStatement::stable),
             option("architecture", "x86_64 or arm64", "name", QStringLiteral("x86_64")),
             option("kind", "appimage, or another word for what is not run in place", "word",
                    ReleaseStatement::appImage),
             option("minimum", "\"debian 12\"; may be given several times", "system"),
             option("notes", "What is new, as plain text", "file"),
             option("valid-days", "How long the feed is good unless it is renewed", "days",
                    QStringLiteral("90")),
             option("next-key", "The private key that takes over from --key now", "file"),
             {QStringLiteral("public-key"), QStringLiteral("Says the public half of --key")},
             {QStringLiteral("mark"), QStringLiteral("Adds the program's line to --file")}});
    }

    int run()
    {
        m_options.process(*QCoreApplication::instance());
        if (m_options.isSet(QStringLiteral("mark")))
            return mark();
        QString error;
        const auto key = SigningKey::fromFile(value("key"), error);
        if (!key)
            return refuse(error);
        if (m_options.isSet(QStringLiteral("public-key"))) {
            std::printf("%s\n", key->publicHalf().bytes().toBase64().constData());
            return 0;
        }
        return release(*key);
    }

private:
    QString value(const char *name) const { return m_options.value(QString::fromLatin1(name)); }

    int mark() const
    {
        QFile file(value("file"));
        const QByteArray line = app_image_bytes::mark(value("application"));
        if (!file.open(QFile::Append) || file.write(line) != line.size() || !file.flush())
            return refuse(QStringLiteral("The file cannot be written."));
        return 0;
    }

    ReleaseStatement asked() const
    {
        ReleaseStatement statement;
        statement.version = UpdateVersion::fromText(value("build")).value_or(UpdateVersion());
        statement.shortVersion = value("short-version");
        statement.channel = value("channel");
        statement.system = QStringLiteral("linux");
        statement.architecture = value("architecture");
        statement.kind = value("kind");
        statement.address = QUrl(value("address"), QUrl::StrictMode);
        statement.minimumSystems = m_options.values(QStringLiteral("minimum"));
        return statement;
    }

    int release(const SigningKey &key) const
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const int days = value("valid-days").toInt();
        const auto first = value("first-key").isEmpty() ? std::optional(key.publicHalf())
                                                        : UpdateKey::fromBase64(value("first-key"));
        if (!first || days <= 0)
            return refuse(QStringLiteral("The first key is none, or the days are."));
        QString error;
        std::optional<SigningKey> next;
        if (m_options.isSet(QStringLiteral("next-key"))) {
            next = SigningKey::fromFile(value("next-key"), error);
            if (!next)
                return refuse(error);
        }
        QByteArray before;
        QByteArray notes;
        QByteArray file;
        // The first release makes the feed.
        const bool hasFeed = QFile::exists(value("feed"));
        if ((hasFeed && !readFile(value("feed"), before)) || !readFile(value("notes"), notes)
            || !readFile(value("file"), file))
            return refuse(QStringLiteral("A file cannot be read."));

        ReleaseMaker maker(key, *first, value("application"), {now, now.addDays(days)});
        const bool isRelease = m_options.isSet(QStringLiteral("file"));
        if (!maker.open(before, error)
            || (isRelease && !maker.add(asked(), file, QString::fromUtf8(notes).trimmed(), error)))
            return refuse(error);
        maker.sign(next);
        const QByteArray feed = maker.feed();
        const UpdateKey last = next ? next->publicHalf() : key.publicHalf();
        const SelfCheck check{*first, last, value("application"), now};
        error = isRelease ? check.ofRelease(feed, asked(), file) : QString();
        if (error.isEmpty())
            error = check.ofFeed(feed);
        if (!error.isEmpty())
            return refuse(error);
        QSaveFile written(value("feed"));
        if (!written.open(QFile::WriteOnly) || written.write(feed) != feed.size()
            || !written.commit())
            return refuse(QStringLiteral("The feed cannot be written."));
        return 0;
    }

    QCommandLineParser m_options;
};

} // namespace
} // namespace corvane

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return corvane::Command().run();
}
