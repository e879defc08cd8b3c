#include "e2e/desktop/browser.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

// The page is found in the window's picture by this colour, which nothing else has.
constexpr QRgb pageColour = qRgb(0x33, 0xcc, 0x99);

constexpr auto page = R"(<!doctype html><meta charset="utf-8"><title>page</title>
<style>body { margin: 0; background: #33cc99 } a { display: block; height: 100px; font-size: 60px }
img { display: block; width: 200px; height: 200px }
textarea { position: absolute; left: 220px; top: 100px; width: 300px; height: 300px; font-size: 30px;
border: 0; padding: 8px; background: white; color: black }</style>
<a href="%1">a link to drag</a><img src="picture.png"><textarea autocomplete="off">%2</textarea>
)";

// Switches off what a browser shows and asks on its first run.
constexpr auto firefoxPreferences = R"(
user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("browser.startup.homepage_override.mstone", "ignore");
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("datareporting.policy.firstRunURL", "");
user_pref("toolkit.telemetry.enabled", false);
user_pref("app.update.enabled", false);
user_pref("app.normandy.enabled", false);
user_pref("browser.safebrowsing.downloads.enabled", false);
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
user_pref("extensions.getAddons.cache.enabled", false);
user_pref("browser.tabs.firefox-view", false);
user_pref("browser.toolbars.bookmarks.visibility", "never");
)";

void write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (file.open(QFile::WriteOnly))
        file.write(contents);
}

/// The page's place in a picture of its window; null if it is not visible.
QRect findPage(const QImage &window)
{
    for (int y = 0; y < window.height(); ++y) {
        // Near the right edge of the page there is neither link nor picture.
        if ((window.pixel(window.width() - 40, y) | 0xff000000) == pageColour)
            return {0, y, window.width(), window.height() - y};
    }
    return {};
}

} // namespace

bool Browser::isInstalled(Kind kind)
{
    return e2e::isInstalled(kind == Kind::Chromium ? u"chromium"_s : u"firefox-esr"_s);
}

QStringList Browser::command(XDesktop &desktop, Kind kind, const QString &url, bool isForX11)
{
    const QString profile = desktop.path(u"home/browser"_s);
    QDir(profile).removeRecursively();
    QDir().mkpath(profile);
    if (kind == Kind::Chromium) {
        // Chromium's sandbox does not work for root, as whom tests may run.
        return {u"chromium"_s,
                u"--no-sandbox"_s,
                u"--test-type"_s,
                u"--no-first-run"_s,
                u"--disable-gpu"_s,
                u"--disable-background-networking"_s,
                u"--disable-component-update"_s,
                u"--disable-sync"_s,
                u"--disable-quic"_s,
                u"--disable-dev-shm-usage"_s,
                u"--password-store=basic"_s,
                u"--ozone-platform="_s + (isForX11 || !desktop.nested() ? u"x11"_s : u"wayland"_s),
                u"--user-data-dir="_s + profile,
                u"--app="_s + url};
    }
    write(profile + u"/user.js"_s, firefoxPreferences);
    return {u"firefox-esr"_s, u"--no-remote"_s, u"--profile"_s, profile, url};
}

QString Browser::serve(const QString &folder)
{
    m_server = m_desktop.start(u"python3"_s,
                               {u"-u"_s, u"-m"_s, u"http.server"_s, u"0"_s, u"--bind"_s,
                                u"127.0.0.1"_s, u"--directory"_s, folder});
    // The server picks a free port and prints it.
    QString port;
    eventually([&] {
        static const QRegularExpression told(u"port (\\d+)"_s);
        port = told.match(QString::fromUtf8(m_server->output())).captured(1);
        return !port.isEmpty() || !m_server->isRunning();
    });
    return port.isEmpty() ? QString() : u"http://127.0.0.1:"_s + port;
}

Browser::Browser(XDesktop &desktop, Kind kind, const QString &link, const QByteArray &picture,
                 const QRect &frame)
    : m_desktop(desktop)
{
    const QString folder = site(desktop);
    QDir().mkpath(folder);
    write(folder + u"/picture.png"_s, picture);
    write(folder + u"/page.html"_s,
          QString::fromLatin1(page).arg(link, QString::fromUtf8(initialText())).toUtf8());

    // By HTTP, because a page from a local file offers local files.
    const QString address = serve(folder);
    if (address.isEmpty()) {
        m_problem = u"the page cannot be served: "_s + QString::fromUtf8(m_server->output());
        return;
    }
    QStringList arguments = command(desktop, kind, address + u"/page.html"_s);
    const QString name = arguments.takeFirst();
    m_program = desktop.start(name, arguments);
    const auto window = desktop.waitForWindowOf(*m_program);
    if (!window) {
        m_problem = name + u" shows no window: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    const auto placed = desktop.place(window->id, frame);
    if (!placed) {
        m_problem = name + u"'s window cannot be placed"_s;
        return;
    }
    const bool shown = eventually(
        [&] {
            m_page = findPage(m_desktop.server().picture(placed->frame))
                         .translated(placed->frame.topLeft());
            return !m_page.isEmpty();
        },
        std::chrono::seconds{40});
    if (!shown)
        m_problem = name + u" does not show the page"_s;
    else
        m_desktop.pictureAtRest(QRect(m_page.topLeft(), QSize(400, 300)));
}

void Browser::selectAllText()
{
    m_desktop.hands().click(belowText());
    m_desktop.hands().key('a', {keys::control});
    m_desktop.pictureAtRest(QRect(m_page.topLeft(), QSize(540, 400)));
}

QByteArray Browser::text(const QByteArray &expected)
{
    // What was copied before would pass for what stands in a field that is empty.
    m_desktop.clearClipboard();
    QByteArray text;
    eventually([&] {
        selectAllText();
        m_desktop.hands().key('c', {keys::control});
        m_desktop.pictureAtRest(QRect(m_page.topLeft(), QSize(540, 400)));
        text = m_desktop.clipboard(u"UTF8_STRING"_s).value_or(QByteArray());
        return text == expected;
    });
    return text;
}

} // namespace corvane::e2e
