#include "e2e/desktop/nested_kwin.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <cmath>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

// Bare windows that nothing moves but the hand.
constexpr auto settings = R"([org.kde.kdecoration2]
NoPlugin=true
[Windows]
ElectricBorders=0
ElectricBorderMaximize=false
ElectricBorderTiling=false
)";
constexpr auto animations = R"([KDE]
AnimationDurationFactor=0
)";

// Started once there is an X server for X11's programs, if there is to be one.
constexpr auto firstProgram = R"(#!/bin/sh
echo "$DISPLAY" > "$CORVANE_KWIN_DISPLAY.new" && mv "$CORVANE_KWIN_DISPLAY.new" "$CORVANE_KWIN_DISPLAY"
exec swaybg -c "#336699"
)";

// A line for each window that comes or changes, and for each that goes. What KWin 5 called clients
// are windows from KWin 6 on.
constexpr auto teller = R"(
var numbers = {};
var next = 1;
function tell(window) {
    var place = window.frameGeometry;
    print("window " + JSON.stringify({number: numbers[window.internalId], pid: window.pid,
        x: place.x, y: place.y, width: place.width, height: place.height,
        name: String(window.resourceClass)}));
}
function follow(window) {
    numbers[window.internalId] = next++;
    tell(window);
    window.frameGeometryChanged.connect(function() { tell(window); });
}
(workspace.windowList || workspace.clientList)().forEach(follow);
(workspace.windowAdded || workspace.clientAdded).connect(follow);
(workspace.windowRemoved || workspace.clientRemoved).connect(function(window) {
    print("window " + JSON.stringify({number: numbers[window.internalId], gone: true}));
});
print("telling");
)";

// Windows are known here by what they are and where they stand.
constexpr auto mover = R"(
(workspace.windowList || workspace.clientList)().forEach(function(window) {
    var place = window.frameGeometry;
    if (window.pid == %1 && place.x == %2 && place.y == %3)
        window.frameGeometry = {x: %4, y: %5, width: %6, height: %7};
});
)";

} // namespace

NestedKwin::NestedKwin(XServer &screen, const QProcessEnvironment &environment, const Kind &kind)
    : m_environment(environment)
    , m_scale(kind.scale)
{
    const QString display = m_environment.value(u"DISPLAY"_s);
    for (const auto &name : {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"XDG_SESSION_TYPE"_s})
        m_environment.remove(name);
    // It is painted without a graphics card, and what its scripts print is shown.
    m_environment.insert(u"KWIN_COMPOSE"_s, u"Q"_s);
    m_environment.insert(u"QT_LOGGING_RULES"_s, u"js.debug=true;kwin_scripting.debug=true"_s);
    m_environment.insert(u"CORVANE_KWIN_DISPLAY"_s, m_folder.filePath(u"display"_s));
    if (!prepare(screen)) {
        m_problem = u"kwin_wayland cannot be copied, or its settings cannot be written"_s;
        return;
    }
    // Asked for in points.
    const QSize output(screen.size().width() / kind.outputs, screen.size().height());
    const QSizeF size = QSizeF(output) / kind.scale;
    QStringList arguments{u"--no-lockscreen"_s,
                          u"--x11-display"_s,
                          display,
                          u"--socket"_s,
                          NestedKwin::socket(),
                          u"--width"_s,
                          QString::number(std::round(size.width())),
                          u"--height"_s,
                          QString::number(std::round(size.height())),
                          u"--scale"_s,
                          QString::number(kind.scale),
                          u"--output-count"_s,
                          QString::number(kind.outputs)};
    if (kind.hasXWayland)
        arguments << u"--xwayland"_s;
    arguments << m_folder.filePath(u"first-program"_s);
    m_program = std::make_unique<Program>(m_folder.filePath(u"kwin_wayland"_s), arguments,
                                          m_environment, m_folder.path());
    const bool isUp = eventually([this] {
        return QFile::exists(m_folder.filePath(u"display"_s)) || !m_program->isRunning();
    });
    placeOutputs(screen, output);
    if (!isUp || !m_program->isRunning() || !showsWallpaper(screen, {{}, screen.size()})
        || !run(teller)
        || !eventually([this] { return m_program->output().contains("telling"); })) {
        m_problem = u"kwin_wayland does not start: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    QFile file(m_folder.filePath(u"display"_s));
    if (kind.hasXWayland && file.open(QFile::ReadOnly))
        m_display = QString::fromLatin1(file.readAll().trimmed());
}

/// Each is a window of the X server.
void NestedKwin::placeOutputs(XServer &screen, QSize size)
{
    uint32_t x = 0;
    for (const WindowFacts &window : screen.windows()) {
        if (window.frame.size() != size)
            continue;
        xcb_configure_window(screen.connection(), window.id, XCB_CONFIG_WINDOW_X, &x);
        x += static_cast<uint32_t>(size.width());
    }
    xcb_flush(screen.connection());
}

bool NestedKwin::prepare(XServer &screen)
{
    // Keyboards repeat no keys by themselves; the X server's does.
    const uint32_t off = XCB_AUTO_REPEAT_MODE_OFF;
    xcb_change_keyboard_control(screen.connection(), XCB_KB_AUTO_REPEAT_MODE, &off);
    xcb_flush(screen.connection());
    const QString configuration = m_environment.value(u"XDG_CONFIG_HOME"_s);
    const QString program = QStandardPaths::findExecutable(u"kwin_wayland"_s);
    const QString starter = m_folder.filePath(u"first-program"_s);
    return writeFile(configuration + u"/kwinrc"_s, settings)
        && writeFile(configuration + u"/kdeglobals"_s, animations)
        && writeFile(starter, firstProgram)
        && QFile::setPermissions(starter, QFile::ReadOwner | QFile::ExeOwner)
        && QFile::copy(program, m_folder.filePath(u"kwin_wayland"_s));
}

bool NestedKwin::writeFile(const QString &name, const QByteArray &contents) const
{
    QFile file(name);
    return file.open(QFile::WriteOnly) && file.write(contents) == contents.size();
}

bool NestedKwin::run(const QByteArray &script)
{
    // One that it knows already it would not read again.
    const QString name = u"script-%1"_s.arg(++m_scripts);
    const QString file = m_folder.filePath(name);
    const auto call = [this](const QStringList &what) {
        return outputOf(u"gdbus"_s,
                        QStringList{u"call"_s, u"--session"_s, u"--dest"_s, u"org.kde.KWin"_s,
                                    u"--object-path"_s, u"/Scripting"_s, u"--method"_s}
                            + what,
                        m_environment)
            .has_value();
    };
    return writeFile(file, script) && call({u"org.kde.kwin.Scripting.loadScript"_s, file, name})
        && call({u"org.kde.kwin.Scripting.start"_s});
}

QList<WindowFacts> NestedKwin::windows()
{
    std::map<int, WindowFacts> found;
    for (const QByteArray &line : m_program->output().split('\n')) {
        const QByteArray mark = "window ";
        const qsizetype at = line.indexOf(mark);
        const QJsonObject window
            = at < 0 ? QJsonObject() : QJsonDocument::fromJson(line.mid(at + mark.size())).object();
        const int number = window[u"number"].toInt();
        if (number == 0)
            continue;
        if (window[u"gone"].toBool()) {
            found.erase(number);
            continue;
        }
        WindowFacts &facts = found[number];
        facts.id = static_cast<xcb_window_t>(number);
        facts.frame = scaled({window[u"x"].toInt(), window[u"y"].toInt(), window[u"width"].toInt(),
                              window[u"height"].toInt()},
                             m_scale);
        facts.isViewable = true;
        facts.windowClass = window[u"name"].toString().toUtf8();
        facts.pid = window[u"pid"].toInteger();
    }
    QList<WindowFacts> all;
    for (const auto &[number, facts] : found)
        all << facts;
    return all;
}

void NestedKwin::place(xcb_window_t window, const QRect &frame)
{
    for (const WindowFacts &facts : windows()) {
        if (facts.id != window)
            continue;
        const QRect from = scaled(facts.frame, 1 / m_scale);
        const QRect to = scaled(frame, 1 / m_scale);
        run(QString::fromLatin1(mover)
                .arg(facts.pid)
                .arg(from.x())
                .arg(from.y())
                .arg(to.x())
                .arg(to.y())
                .arg(to.width())
                .arg(to.height())
                .toUtf8());
    }
}

} // namespace corvane::e2e
