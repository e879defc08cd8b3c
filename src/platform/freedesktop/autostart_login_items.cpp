#include "platform/freedesktop/autostart_login_items.h"

#include "platform/regular_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace corvane {

namespace {

QString entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1String("/autostart/corvane.desktop");
}

QString runningProgram()
{
    const QString appImage = qEnvironmentVariable("APPIMAGE");
    return appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage;
}

/// One argument of an Exec line. Its quoting is undone twice: once as text of the entry, once as a
/// command; and a percent sign begins a field code.
QString quoted(const QString &argument)
{
    QString result;
    for (const QChar character : argument) {
        if (character == QLatin1Char('\\'))
            result += QLatin1String(R"(\\\\)");
        else if (character == QLatin1Char('"') || character == QLatin1Char('`')
                 || character == QLatin1Char('$'))
            result += QLatin1String("\\\\") % character;
        else if (character == QLatin1Char('%'))
            result += QLatin1String("%%");
        else
            result += character;
    }
    return QLatin1Char('"') % result % QLatin1Char('"');
}

bool isHidden(const QByteArray &entry)
{
    for (const QByteArray &line : entry.split('\n')) {
        const auto equals = line.indexOf('=');
        if (equals > 0 && line.first(equals).trimmed() == "Hidden")
            return line.sliced(equals + 1).trimmed() == "true";
    }
    return false;
}

/// Makes way for an entry of our own. What is written through a link lands in a stranger's file.
void removeOtherThanFile(const QString &path)
{
    struct stat about = {};
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &about) == 0 && !S_ISREG(about.st_mode))
        ::unlink(name.constData());
}

} // namespace

AutostartLoginItems::AutostartLoginItems()
    : AutostartLoginItems(runningProgram())
{
}

AutostartLoginItems::AutostartLoginItems(QString program)
    : m_program(std::move(program))
{
}

bool AutostartLoginItems::isRegistered() const
{
    constexpr qint64 longestEntry = 65'536;
    const auto entry = regular_file::beginning(QFile::encodeName(entryPath()), longestEntry);
    return entry && !isHidden(*entry);
}

std::optional<QString> AutostartLoginItems::registerItem()
{
    const QString path = entryPath();
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        return QStringLiteral("The folder %1 could not be created.").arg(folder);
    removeOtherThanFile(path);
    QSaveFile entry(path);
    const QString text = QLatin1String("[Desktop Entry]\n"
                                       "Type=Application\n"
                                       "Name=Corvane\n"
                                       "Exec=")
        % quoted(m_program)
        % QLatin1String("\nTerminal=false\n"
                        "X-GNOME-Autostart-enabled=true\n");
    if (!entry.open(QIODevice::WriteOnly) || entry.write(text.toUtf8()) < 0 || !entry.commit())
        return QStringLiteral("The file %1 could not be written: %2.")
            .arg(path, entry.errorString());
    return std::nullopt;
}

std::optional<QString> AutostartLoginItems::unregisterItem()
{
    QFile entry(entryPath());
    if (entry.remove() || !entry.exists())
        return std::nullopt;
    return QStringLiteral("The file %1 could not be removed: %2.")
        .arg(entry.fileName(), entry.errorString());
}

} // namespace corvane
