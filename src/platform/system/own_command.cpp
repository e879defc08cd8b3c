#include "platform/system/own_command.h"

#include "platform/system/app_image.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringBuilder>

namespace corvane::own_command {

QString file()
{
    const QByteArray appImage = app_image::containing(app_image::Evidence::ofThisProcess());
    return appImage.isEmpty() ? QCoreApplication::applicationFilePath()
                              : QFile::decodeName(appImage);
}

QString inShell()
{
    return inShell(file(), qEnvironmentVariable("PATH").split(QLatin1Char(':')));
}

QString inShell(const QString &file, const QStringList &folders)
{
    const QString name = QFileInfo(file).fileName();
    const QString found = QStandardPaths::findExecutable(name, folders);
    const bool isFound = !found.isEmpty()
        && QFileInfo(found).canonicalFilePath() == QFileInfo(file).canonicalFilePath();
    QString command = isFound ? name : file;
    static const QRegularExpression plain(QStringLiteral("^[\\w@%+=:,./-]+$"));
    if (plain.match(command).hasMatch())
        return command;
    QString quoted = command;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') % quoted % QLatin1Char('\'');
}

} // namespace corvane::own_command
