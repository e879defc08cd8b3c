#include "app/unanswered_start.h"

#include "platform/freedesktop/desktop_notification.h"
#include "platform/qt/pictures/program_icon.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <unistd.h>

#include <cstdio>

namespace corvane {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("UnansweredStart", source);
}

void showWindow(const QString &title, const QString &advice)
{
    QMessageBox window(QMessageBox::Warning, QCoreApplication::applicationName(), title,
                       QMessageBox::Close);
    window.setTextFormat(Qt::PlainText);
    window.setInformativeText(advice);
    window.setWindowIcon(programIcon());
    window.exec();
}

} // namespace

void tellOfUnansweredStart(std::optional<qint64> process)
{
    const QString title = text(
        QT_TRANSLATE_NOOP("UnansweredStart", "Corvane is running already, but does not answer."));
    const QString advice = process
        ? text(QT_TRANSLATE_NOOP(
                   "UnansweredStart",
                   "Try again in a moment, or end the process %1 and start Corvane anew."))
              .arg(*process)
        : text(QT_TRANSLATE_NOOP("UnansweredStart",
                                 "Try again in a moment, or end it and start Corvane anew."));
    std::fprintf(stderr, "corvane: %s %s\n", qPrintable(title), qPrintable(advice));
    // Without a terminal the program was started by the desktop, and the user does not see standard
    // error.
    if (::isatty(STDERR_FILENO) == 0 && !desktop_notification::show(title, advice))
        showWindow(title, advice);
}

} // namespace corvane
