#include "e2e/desktop/nested_sway.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

// Windows stand where they are placed, as on other desktops, and bare. An X server that is started
// only when it is wanted ends ten seconds after its last client with newer versions, and the next
// one would know nothing of who was let in.
constexpr auto configuration = R"(
xwayland %1
output * scale %2
output * bg #336699 solid_color
default_border none
default_floating_border none
focus_follows_mouse no
for_window [app_id=".*"] floating enable
for_window [class=".*"] floating enable
exec echo "$DISPLAY" > "$XDG_RUNTIME_DIR/display"
)";

bool isRoot()
{
    return ::getuid() == 0;
}

const passwd *ordinaryUser()
{
    return ::getpwnam("nobody");
}

QRect rectFrom(const QJsonObject &json)
{
    return {json[u"x"].toInt(), json[u"y"].toInt(), json[u"width"].toInt(),
            json[u"height"].toInt()};
}

void collect(const QJsonObject &node, double scale, QList<WindowFacts> &found)
{
    if (node.contains(u"pid")) {
        WindowFacts facts;
        facts.id = static_cast<xcb_window_t>(node[u"id"].toInt());
        facts.frame = scaled(rectFrom(node[u"rect"].toObject()), scale);
        facts.isViewable = node[u"visible"].toBool();
        facts.windowClass = node[u"app_id"].toString().toUtf8();
        facts.pid = node[u"pid"].toInteger();
        found << facts;
    }
    for (const auto &list : {u"nodes", u"floating_nodes"}) {
        for (const auto child : node[list].toArray())
            collect(child.toObject(), scale, found);
    }
}

} // namespace

NestedSway::NestedSway(XServer &screen, const QProcessEnvironment &environment, const Kind &kind)
    : m_environment(environment)
    , m_scale(kind.scale)
{
    for (const auto &folder :
         {u"TMPDIR"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s})
        m_environment.remove(folder);
    m_environment.insert(u"XDG_RUNTIME_DIR"_s, m_home.path());
    m_environment.insert(u"HOME"_s, m_home.path());
    m_environment.insert(u"WLR_BACKENDS"_s, u"x11"_s);
    m_environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
    m_environment.insert(u"LIBSEAT_BACKEND"_s, u"noop"_s);
    writeConfiguration(kind);
    letUserIn(screen);
    // It looks these names up and does not make them.
    screen.atom("WM_PROTOCOLS");
    screen.atom("WM_DELETE_WINDOW");
    m_program = startAsUser(u"sway"_s, {u"-c"_s, m_home.filePath(u"config"_s)});
    const bool isUp = eventually([this] {
        return (QFile::exists(m_home.filePath(u"display"_s)) && !fileLike(u"wayland-?"_s).isEmpty()
                && !fileLike(u"sway-ipc.*"_s).isEmpty())
            || !m_program->isRunning();
    });
    if (!isUp || !m_program->isRunning()) {
        m_problem = u"sway does not start: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    if (!fit(screen, {{}, screen.size()})) {
        m_problem = u"sway does not fill its screen"_s;
        return;
    }
    QFile display(m_home.filePath(u"display"_s));
    if (kind.hasXWayland && display.open(QFile::ReadOnly))
        m_display = QString::fromLatin1(display.readAll().trimmed());
    letRootIn();
}

void NestedSway::writeConfiguration(const Kind &kind)
{
    QFile file(m_home.filePath(u"config"_s));
    if (!file.open(QFile::WriteOnly))
        return;
    file.write(QString::fromLatin1(configuration)
                   .arg(kind.hasXWayland ? u"force"_s : u"disable"_s)
                   .arg(kind.scale)
                   .toUtf8());
}

/// To the folder, and to the X server that it draws on.
void NestedSway::letUserIn(XServer &screen)
{
    const passwd *const user = ordinaryUser();
    if (!isRoot() || !user)
        return;
    if (::chown(QFile::encodeName(m_home.path()).constData(), user->pw_uid, user->pw_gid) != 0)
        m_problem = u"the compositor's folder cannot be given away"_s;
    QByteArray host("localuser\0", 10);
    host += user->pw_name;
    xcb_change_hosts(screen.connection(), XCB_HOST_MODE_INSERT, XCB_FAMILY_SERVER_INTERPRETED,
                     static_cast<uint16_t>(host.size()),
                     reinterpret_cast<const uint8_t *>(host.constData()));
    // Done once an answer to a later question has come.
    screen.focusedWindow();
}

std::unique_ptr<Program> NestedSway::startAsUser(const QString &name, const QStringList &arguments)
{
    if (!isRoot())
        return std::make_unique<Program>(name, arguments, m_environment, m_home.path());
    const passwd *const user = ordinaryUser();
    if (!user)
        return std::make_unique<Program>(name, arguments, m_environment, m_home.path());
    const QStringList asUser{u"--reuid=%1"_s.arg(user->pw_uid), u"--regid=%1"_s.arg(user->pw_gid),
                             // A change of user would have it live on after the tests.
                             u"--pdeathsig=TERM"_s, u"--clear-groups"_s, u"--"_s, name};
    return std::make_unique<Program>(u"setpriv"_s, asUser + arguments, m_environment, u"/"_s);
}

QString NestedSway::fileLike(const QString &pattern) const
{
    const QStringList found
        = QDir(m_home.path()).entryList({pattern}, QDir::System | QDir::Files | QDir::Hidden);
    return found.isEmpty() ? QString() : m_home.filePath(found.first());
}

/// An output is as large as its window.
bool NestedSway::fit(XServer &screen, const QRect &frame) const
{
    const auto windows = screen.windows();
    if (windows.isEmpty())
        return false;
    const std::array<uint32_t, 4> place
        = {static_cast<uint32_t>(frame.x()), static_cast<uint32_t>(frame.y()),
           static_cast<uint32_t>(frame.width()), static_cast<uint32_t>(frame.height())};
    xcb_configure_window(screen.connection(), windows.last().id,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH
                             | XCB_CONFIG_WINDOW_HEIGHT,
                         place.data());
    xcb_flush(screen.connection());
    const bool fits = eventually([&] {
        const auto answer = message({u"-r"_s, u"-t"_s, u"get_outputs"_s}).value_or(QByteArray());
        const auto mode
            = QJsonDocument::fromJson(answer).array().last()[u"current_mode"].toObject();
        return QSize(mode[u"width"].toInt(), mode[u"height"].toInt()) == frame.size();
    });
    // The wallpaper comes by another program.
    return fits && showsWallpaper(screen, frame);
}

bool NestedSway::plug(XServer &screen, const QRect &frame) const
{
    const auto before = screen.windows().size();
    message({u"create_output"_s});
    return eventually([&] { return screen.windows().size() > before; }) && fit(screen, frame);
}

void NestedSway::unplug(XServer &screen) const
{
    const auto windows = screen.windows();
    if (!windows.isEmpty())
        NestedCompositor::unplug(screen, windows.last().frame);
}

bool NestedSway::layOutputsOverOneAnother() const
{
    message({u"output"_s, u"*"_s, u"pos"_s, u"0"_s, u"0"_s});
    return eventually([this] {
        const auto answer = message({u"-r"_s, u"-t"_s, u"get_outputs"_s}).value_or(QByteArray());
        const QJsonArray outputs = QJsonDocument::fromJson(answer).array();
        return std::ranges::all_of(outputs, [](const QJsonValue &output) {
            return output[u"rect"_s].toObject()[u"x"].toInt() == 0;
        });
    });
}

void NestedSway::letRootIn()
{
    if (!isRoot() || m_display.isEmpty())
        return;
    m_environment.insert(u"DISPLAY"_s, m_display);
    const auto xhost = startAsUser(u"xhost"_s, {u"+si:localuser:root"_s});
    if (xhost->waitForEnd() != 0)
        m_problem = u"sway's X server cannot be used: "_s + QString::fromUtf8(xhost->output());
}

void NestedSway::addOwnTo(QProcessEnvironment &environment) const
{
    environment.insert(u"SWAYSOCK"_s, fileLike(u"sway-ipc.*"_s));
}

std::optional<QByteArray> NestedSway::message(const QStringList &arguments) const
{
    return outputOf(u"swaymsg"_s, QStringList{u"-s"_s, fileLike(u"sway-ipc.*"_s)} + arguments,
                    m_environment);
}

QList<WindowFacts> NestedSway::windows()
{
    QList<WindowFacts> found;
    const auto tree = message({u"-r"_s, u"-t"_s, u"get_tree"_s});
    collect(QJsonDocument::fromJson(tree.value_or(QByteArray())).object(), m_scale, found);
    return found;
}

void NestedSway::place(xcb_window_t window, const QRect &frame)
{
    const QRect points = scaled(frame, 1 / m_scale);
    const QString which = u"[con_id=%1] "_s.arg(window);
    message(
        {u"--"_s,
         which
             + u"resize set width %1 px height %2 px"_s.arg(points.width()).arg(points.height())});
    message(
        {u"--"_s, which + u"move absolute position %1 px %2 px"_s.arg(points.x()).arg(points.y())});
}

} // namespace corvane::e2e
