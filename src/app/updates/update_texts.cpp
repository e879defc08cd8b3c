#include "app/updates/update_texts.h"

#include "core/byte_count.h"

#include <QCoreApplication>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

QString translated(const char *text)
{
    return QCoreApplication::translate("UpdateTexts", text);
}

QString failureText(UpdateFailure failure)
{
    switch (failure) {
    case UpdateFailure::Unreachable:
        return translated(QT_TRANSLATE_NOOP(
            "UpdateTexts",
            "The place where new versions are announced could not be reached over "
            "a safe connection. Try again later."));
    case UpdateFailure::NotAFeed:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts",
                              "What came from the place where new versions are announced could not "
                              "be read."));
    case UpdateFailure::WentBack:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts",
                              "A newer version was announced before than is now. Somebody may be "
                              "keeping news from you, so nothing was taken."));
    case UpdateFailure::Incomplete:
        return translated(QT_TRANSLATE_NOOP(
            "UpdateTexts", "A new version is announced without what is needed to check it."));
    case UpdateFailure::DownloadFailed:
        return translated(QT_TRANSLATE_NOOP(
            "UpdateTexts", "The new version could not be downloaded. Try again later."));
    case UpdateFailure::WrongLength:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts",
                              "The downloaded file has another length than was announced. It was "
                              "thrown away."));
    case UpdateFailure::WrongSignature:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts",
                              "The downloaded file was not signed by the makers of Corvane. It was "
                              "thrown away."));
    case UpdateFailure::NoRoom:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts", "There is not enough room on the disk."));
    case UpdateFailure::NotWritten:
        break;
    }
    return translated(
        QT_TRANSLATE_NOOP("UpdateTexts", "The new version could not be written to the disk."));
}

} // namespace

UpdateTexts UpdateTexts::of(const UpdateReport &report, const QString &runningVersion,
                            bool replaces)
{
    const QString close = translated(QT_TRANSLATE_NOOP("UpdateTexts", "Close"));
    const QString cancel = translated(QT_TRANSLATE_NOOP("UpdateTexts", "Cancel"));
    switch (report.stage) {
    case Stage::Checking:
        return {
            translated(QT_TRANSLATE_NOOP("UpdateTexts", "Looking for updates…")), {}, {}, cancel};
    case Stage::UpToDate:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane is up to date")),
                translated(QT_TRANSLATE_NOOP("UpdateTexts", "You have version %1, the newest."))
                    .arg(runningVersion),
                {},
                close};
    case Stage::Available:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane %1 is available"))
                    .arg(report.version),
                translated(QT_TRANSLATE_NOOP("UpdateTexts", "You have %1. The download has %2."))
                    .arg(runningVersion, formatByteCount(report.total)),
                replaces ? translated(QT_TRANSLATE_NOOP("UpdateTexts", "Install"))
                         : translated(QT_TRANSLATE_NOOP("UpdateTexts", "Download")),
                translated(QT_TRANSLATE_NOOP("UpdateTexts", "Later"))};
    case Stage::Downloading:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Downloading Corvane %1…"))
                    .arg(report.version),
                translated(QT_TRANSLATE_NOOP("UpdateTexts", "%1 of %2"))
                    .arg(formatByteCount(report.received), formatByteCount(report.total)),
                {},
                cancel};
    case Stage::Installing:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Checking and installing…")),
                {},
                {},
                close};
    case Stage::Replaced:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane %1 is installed"))
                    .arg(report.version),
                translated(
                    QT_TRANSLATE_NOOP("UpdateTexts",
                                      "It is used from the next time that Corvane is started. The "
                                      "one before is kept beside it until then.")),
                {},
                close};
    case Stage::HandedOver:
        return {
            translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane %1 is downloaded"))
                .arg(report.version),
            translated(QT_TRANSLATE_NOOP("UpdateTexts",
                                         "It was signed by the makers of Corvane and is in your "
                                         "downloads folder as %1."))
                .arg(report.fileName),
            translated(QT_TRANSLATE_NOOP("UpdateTexts", "Show")), close};
    case Stage::Failed:
        break;
    }
    const QString title = report.version.isEmpty()
        ? translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane could not check for updates"))
        : translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane was not updated"));
    return {title, failureText(report.failure), {}, close};
}

} // namespace corvane
