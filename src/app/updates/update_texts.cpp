#include "app/updates/update_texts.h"

#include "core/byte_count.h"
#include "core/display_text.h"
#include "platform/web/shown_address.h"

#include <QCoreApplication>
#include <QStringBuilder>
#include <QUrl>

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
    const bool isOfTheWay = report.failure == UpdateFailure::Unreachable
        || report.failure == UpdateFailure::DownloadFailed;
    const QString reason = failureText(report.failure);
    return {title, isOfTheWay ? withRoute(reason, report) : reason, {}, close};
}

} // namespace corvane
