#include "e2e/desktop/tray_panel.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr int panelHeight = 32;
constexpr auto watcher = "org.kde.StatusNotifierWatcher";

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text) == text.size();
}

QByteArray answerOf(XDesktop &desktop, const QStringList &arguments)
{
    return outputOf(u"dbus-send"_s,
                    QStringList{u"--session"_s, u"--print-reply"_s, u"--reply-timeout=5000"_s}
                        + arguments,
                    desktop.environment())
        .value_or(QByteArray());
}

QByteArray handedIn(XDesktop &desktop)
{
    return answerOf(desktop,
                    {u"--dest="_s + QLatin1String(watcher), u"/StatusNotifierWatcher"_s,
                     u"org.freedesktop.DBus.Properties.Get"_s,
                     u"string:"_s + QLatin1String(watcher),
                     u"string:RegisteredStatusNotifierItems"_s});
}

/// The bus name of that process's item; empty while none is registered.
QString serviceOf(XDesktop &desktop, qint64 pid)
{
    static const QRegularExpression item(u"string \"([^\"]+)/StatusNotifierItem\""_s);
    auto matches = item.globalMatch(QString::fromUtf8(handedIn(desktop)));
    while (matches.hasNext()) {
        QString service = matches.next().captured(1);
        const QByteArray owner = answerOf(desktop,
                                          {u"--dest=org.freedesktop.DBus"_s, u"/"_s,
                                           u"org.freedesktop.DBus.GetConnectionUnixProcessID"_s,
                                           u"string:"_s + service});
        if (owner.contains(QByteArray("uint32 " + QByteArray::number(pid) + '\n')))
            return service;
    }
    return {};
}

bool hasWatcher(XDesktop &desktop)
{
    return answerOf(desktop,
                    {u"--dest=org.freedesktop.DBus"_s, u"/"_s,
                     u"org.freedesktop.DBus.NameHasOwner"_s, u"string:"_s + QLatin1String(watcher)})
        .contains("true");
}

} // namespace

X11Tray::X11Tray(XDesktop &desktop)
    : m_desktop(desktop)
{
    const QString configuration = desktop.path(u"home/tint2rc"_s);
    write(configuration,
          "rounded = 0\nborder_width = 0\nbackground_color = #202226 100\npanel_items = S\n"
          "panel_size = 300 32\npanel_position = bottom left horizontal\npanel_background_id = 1\n"
          "panel_dock = 0\nstrut_policy = none\nsystray_padding = 4 4 4\n"
          "systray_icon_size = 24\nsystray_background_id = 0\n");
    m_program = desktop.start(u"tint2"_s, {u"-c"_s, configuration});
}

bool X11Tray::waitUntilReady()
{
    return eventually(
        [this] { return m_desktop.server().selectionOwner("_NET_SYSTEM_TRAY_S0") != noWindow; });
}

QRect X11Tray::icon() const
{
    return {4, m_desktop.server().size().height() - panelHeight + 4, 24, 24};
}

bool X11Tray::isEmpty() const
{
    const QImage picture = m_desktop.server().picture(icon());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > 200)
                return false;
        }
    }
    return true;
}

bool X11Tray::waitForIcon()
{
    return eventually([this] { return !isEmpty(); });
}

bool X11Tray::waitUntilEmpty()
{
    return eventually([this] { return isEmpty(); });
}

NotifierPanel::NotifierPanel(XDesktop &desktop)
    : m_desktop(desktop)
{
    const QString folder = desktop.environment().value(u"XDG_CONFIG_HOME"_s)
        + u"/xfce4/xfconf/xfce-perchannel-xml"_s;
    QDir().mkpath(folder);
    write(folder + u"/xfce4-panel.xml"_s, R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array"><value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="20"/>
      <property name="size" type="uint" value="32"/>
      <property name="disable-struts" type="bool" value="true"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
)");
    // It is a program of X11 in every session.
    QProcessEnvironment environment = desktop.environment();
    environment.insert(u"GDK_BACKEND"_s, u"x11"_s);
    m_program = std::make_unique<Program>(u"xfce4-panel"_s, QStringList{u"--disable-wm-check"_s},
                                          environment, environment.value(u"HOME"_s));
}

NotifierPanel::~NotifierPanel()
{
    m_program.reset();
    // The plug-in that shows the items is a process of its own, which ends a moment later.
    eventually([this] { return !hasWatcher(m_desktop); });
}

bool NotifierPanel::waitUntilReady()
{
    return eventually([this] { return hasWatcher(m_desktop); });
}

bool NotifierPanel::waitForItemOf(qint64 pid)
{
    return eventually([&] { return !serviceOf(m_desktop, pid).isEmpty(); });
}

QRect NotifierPanel::iconFrame()
{
    // To the right of the handle by which the panel can be moved.
    return {16, 4, 24, panelHeight - 8};
}

NotifierFacts::NotifierFacts(XDesktop &desktop, qint64 pid)
    : m_desktop(desktop)
    , m_service(serviceOf(desktop, pid))
{
}

QByteArray NotifierFacts::call(const QString &path, const QString &method,
                               const QStringList &arguments) const
{
    return answerOf(m_desktop, QStringList{u"--dest="_s + m_service, path, method} + arguments);
}

QByteArray NotifierFacts::property(const QString &name) const
{
    return call(u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties.Get"_s,
                {u"string:org.kde.StatusNotifierItem"_s, u"string:"_s + name});
}

QByteArray NotifierFacts::menuLayout() const
{
    const QString path = u"/MenuBar"_s;
    call(path, u"com.canonical.dbusmenu.AboutToShow"_s, {u"int32:0"_s});
    return call(path, u"com.canonical.dbusmenu.GetLayout"_s,
                {u"int32:0"_s, u"int32:-1"_s, u"array:string:label,type,shortcut"_s});
}

QStringList NotifierFacts::menu() const
{
    // The answer has keys and values in turn, in the order of the rows.
    static const QRegularExpression value(
        u"string \"(label|type)\"\\s+variant\\s+string \"([^\"]*)\""_s);
    QStringList labels;
    auto matches = value.globalMatch(QString::fromUtf8(menuLayout()));
    while (matches.hasNext()) {
        const auto match = matches.next();
        labels << (match.captured(1) == u"type" ? u"-"_s : match.captured(2));
    }
    return labels;
}

QString NotifierFacts::keys(const QString &label) const
{
    // The part up to the next row; the keys are in an array within an array.
    static const QRegularExpression string(u"string \"([^\"]*)\""_s);
    const QString layout = QString::fromUtf8(menuLayout());
    for (const QString &row : layout.split(u"int32 "_s)) {
        QStringList strings;
        for (auto matches = string.globalMatch(row); matches.hasNext();)
            strings << matches.next().captured(1);
        const qsizetype at = strings.indexOf(u"shortcut"_s);
        if (strings.contains(label) && at >= 0) {
            const QStringList properties{u"label"_s, label, u"visible"_s};
            QStringList keys;
            for (const QString &one : strings.mid(at + 1)) {
                if (!properties.contains(one))
                    keys << one;
            }
            return keys.join(u'+');
        }
    }
    return {};
}

void NotifierFacts::click() const
{
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem.Activate"_s,
         {u"int32:10"_s, u"int32:10"_s});
}

bool NotifierFacts::choose(const QString &label) const
{
    static const QRegularExpression item(
        u"int32 (\\d+)\\s+array \\[((?:(?!int32).)*?)string \"label\"\\s+variant\\s+string \"([^\"]*)\""_s,
        QRegularExpression::DotMatchesEverythingOption);
    auto matches = item.globalMatch(QString::fromUtf8(menuLayout()));
    while (matches.hasNext()) {
        const auto match = matches.next();
        if (match.captured(3) != label)
            continue;
        call(u"/MenuBar"_s, u"com.canonical.dbusmenu.Event"_s,
             {u"int32:"_s + match.captured(1), u"string:clicked"_s, u"variant:string:"_s,
              u"uint32:0"_s});
        return true;
    }
    return false;
}

} // namespace corvane::e2e
