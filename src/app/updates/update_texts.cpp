#include "app/updates/update_texts.h"

#include "core/byte_count.h"
#include "core/display_text.h"
#include "platform/web/shown_address.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringBuilder>
#include <QUrl>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

QString translated(const char *text)
{
    return QCoreApplication::translate("UpdateTexts", text);
}

QString shownDate(const QDate &date)
{
    return QLocale().toString(date, QLocale::LongFormat);
}

/// Of what is wrong with what is announced, or with what is remembered of it.
QString announcementText(const UpdateReport &report)
{
    switch (report.failure) {
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
    case UpdateFailure::Unverifiable:
        return translated(QT_TRANSLATE_NOOP(
            "UpdateTexts",
            "What is announced is a release that this build cannot verify, or none at all. Nothing "
            "was taken."));
    case UpdateFailure::Expired:
        return translated(
                   QT_TRANSLATE_NOOP("UpdateTexts",
                                     "What is announced has not been renewed since %1. Somebody "
                                     "may be keeping news from you, or your clock is wrong."))
            .arg(shownDate(report.renewed));
    case UpdateFailure::RecordDamaged:
        return translated(QT_TRANSLATE_NOOP(
            "UpdateTexts",
            "What Corvane remembered of earlier updates was damaged. It was set aside and begins "
            "anew with the next check."));
    default:
        break;
    }
    return translated(
        QT_TRANSLATE_NOOP("UpdateTexts",
                          "The place where new versions are announced could not be reached over "
                          "a safe connection. Try again later."));
}

QString failureText(const UpdateReport &report)
{
    switch (report.failure) {
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
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts", "The new version could not be written to the disk."));
    default:
        return announcementText(report);
    }
}

QString nameOf(const WebProxy &proxy)
{
    // A long host name is cut at its beginning, because its end says whose it is.
    constexpr qsizetype maximumLength = 28;
    QUrl url;
    url.setHost(proxy.host);
    QString host = displayText(shownHost(url));
    if (host.size() > maximumLength)
        host = QChar(0x2026) % host.right(maximumLength);
    return host % QLatin1Char(':') % QString::number(proxy.port);
}

/// Users of a proxy see here whether the request went through it.
QString routeText(const WebRoute &route)
{
    switch (route.kind) {
    case WebRoute::Kind::Direct:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Asked directly, without a proxy."));
    case WebRoute::Kind::Proxied:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Asked through the proxy %1."))
            .arg(nameOf(route.proxy));
    case WebRoute::Kind::NeedsScript:
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts",
                              "Nothing was asked: a script chooses your proxy, and Corvane runs "
                              "none."));
    case WebRoute::Kind::Unusable:
        break;
    }
    return translated(QT_TRANSLATE_NOOP(
        "UpdateTexts", "Nothing was asked: your proxy is of a kind that Corvane cannot use."));
}

/// A request that was withheld because of the proxy has no other reason to be shown.
QString withRoute(const QString &detail, const UpdateReport &report)
{
    if (!report.route)
        return detail;
    const QString route = routeText(*report.route);
    return report.route->isWithheld() ? route : detail % QLatin1Char(' ') % route;
}

QString failureTitle(const UpdateReport &report)
{
    if (report.failure == UpdateFailure::RecordDamaged)
        return translated(
            QT_TRANSLATE_NOOP("UpdateTexts", "Corvane's record of updates was damaged"));
    return report.version.isEmpty()
        ? translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane could not check for updates"))
        : translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane was not updated"));
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
                withRoute(
                    translated(QT_TRANSLATE_NOOP("UpdateTexts", "You have version %1, the newest."))
                        .arg(runningVersion),
                    report),
                {},
                close};
    case Stage::Available:
        return {translated(QT_TRANSLATE_NOOP("UpdateTexts", "Corvane %1 is available"))
                    .arg(report.version),
                withRoute(translated(
                              QT_TRANSLATE_NOOP("UpdateTexts", "You have %1. The download has %2."))
                              .arg(runningVersion, formatByteCount(report.total)),
                          report),
                replaces && !report.isForDownloads
                    ? translated(QT_TRANSLATE_NOOP("UpdateTexts", "Install"))
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
    return {failureTitle(report), explanation(report), {}, close};
}

QString UpdateTexts::explanation(const UpdateReport &report)
{
    const bool isOfTheWay = report.failure == UpdateFailure::Unreachable
        || report.failure == UpdateFailure::DownloadFailed;
    const QString reason = failureText(report);
    return isOfTheWay ? withRoute(reason, report) : reason;
}

QString UpdateTexts::menuTitle(const UpdateReport &report)
{
    switch (report.failure) {
    case UpdateFailure::WentBack:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Updates Go Back in Time…"));
    case UpdateFailure::Unverifiable:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Updates Cannot Be Verified…"));
    case UpdateFailure::Expired:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Updates Have Not Been Renewed…"));
    case UpdateFailure::RecordDamaged:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Record of Updates Was Damaged…"));
    default:
        return translated(QT_TRANSLATE_NOOP("UpdateTexts", "Updates Cannot Use Your Proxy…"));
    }
}

} // namespace corvane
