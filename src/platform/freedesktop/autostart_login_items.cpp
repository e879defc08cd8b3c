#include "platform/freedesktop/autostart_login_items.h"

#include "platform/freedesktop/desktop_entry.h"
#include "platform/system/own_command.h"
#include "platform/system/regular_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QSaveFile>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QString entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1String("/autostart/corvane.desktop");
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

/// What desktops show beside the name where they list what they start. In the language of now.
QString comment()
{
    return QCoreApplication::translate("AutostartLoginItems",
                                       "A shelf at the top of the screen for what you drag");
}

/// Whether somebody switched the entry off. Desktops keep it then, and have keys of their own.
bool isSwitchedOff(const QHash<QByteArray, QByteArray> &entry)
{
    const auto says = [&](const char *key, const QByteArrayList &answers) {
        return answers.contains(entry.value(key).toLower());
    };
    const QByteArrayList no = {"false", "0"};
    return says("Hidden", {"true", "1"}) || says("X-GNOME-Autostart-enabled", no)
        || says("X-MATE-Autostart-enabled", no);
}

/// Whether the desktop that runs is one that the entry is for.
bool isForThisDesktop(const QHash<QByteArray, QByteArray> &entry)
{
    const QByteArrayList desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    const auto isNamed = [&](const char *key) {
        const QByteArrayList named = desktop_entry::list(entry.value(key));
        return std::any_of(named.begin(), named.end(),
                           [&](const QByteArray &name) { return desktops.contains(name); });
    };
    return entry.contains("OnlyShowIn") ? isNamed("OnlyShowIn") : !isNamed("NotShowIn");
}

bool canBeStarted(const QByteArray &program)
{
    return !program.isEmpty()
        && !QStandardPaths::findExecutable(QFile::decodeName(program)).isEmpty();
}

/// Whether what the entry starts is there: an AppImage may have been moved since.
bool leadsToProgram(const QHash<QByteArray, QByteArray> &entry)
{
    const QByteArrayList command = desktop_entry::arguments(entry.value("Exec"));
    if (command.isEmpty() || !canBeStarted(QByteArray(command.constFirst()).replace("%%", "%")))
        return false;
    return !entry.contains("TryExec") || canBeStarted(entry.value("TryExec"));
}

/// Removes a link of that name: writing through it would change the file that it leads to.
void removeOtherThanFile(const QString &path)
{
    struct stat about = {};
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &about) == 0 && !S_ISREG(about.st_mode))
        ::unlink(name.constData());
}

} // namespace

AutostartLoginItems::AutostartLoginItems()
    : AutostartLoginItems(own_command::file())
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
    if (!entry)
        return false;
    const auto keys = desktop_entry::group(*entry, "Desktop Entry");
    return !isSwitchedOff(keys) && isForThisDesktop(keys) && leadsToProgram(keys);
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
                                       "Comment=")
        % comment() % QLatin1String("\nIcon=") % QGuiApplication::desktopFileName()
        % QLatin1String("\nExec=") % quoted(m_program)
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
