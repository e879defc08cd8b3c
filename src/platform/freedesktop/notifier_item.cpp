#include "platform/freedesktop/notifier_item.h"

#include "platform/freedesktop/session_bus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QImage>
#include <QtEndian>

#include <array>
#include <utility>

namespace corvane {

namespace {

const auto watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto itemPath = QStringLiteral("/StatusNotifierItem");
const auto menuObjectPath = QStringLiteral("/StatusNotifierItem/Menu");
const auto busName = QStringLiteral("org.freedesktop.DBus");

/// The panels' sizes at the usual scales; a panel takes the nearest.
constexpr std::array<int, 7> iconSides = {16, 22, 24, 32, 44, 48, 64};

QDBusMessage callToBus(const char *method)
{
    return QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"), busName,
                                          QLatin1String(method));
}

QString ownName()
{
    return QStringLiteral("org.kde.StatusNotifierItem-%1-1")
        .arg(QCoreApplication::applicationPid());
}

NotifierPixmap pixmapOf(const QImage &image)
{
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    NotifierPixmap pixmap{plain.width(), plain.height(), {}};
    pixmap.pixels.reserve(qsizetype{4} * plain.width() * plain.height());
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const quint32 pixel = qToBigEndian(plain.pixel(x, y));
            pixmap.pixels.append(reinterpret_cast<const char *>(&pixel), sizeof pixel);
        }
    }
    return pixmap;
}

} // namespace

NotifierItem::NotifierItem(QString title)
    : m_title(std::move(title))
{
}

NotifierItem::~NotifierItem()
{
    if (!m_isExported)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterObject(menuObjectPath);
    bus.unregisterObject(itemPath);
    auto release = callToBus("ReleaseName");
    release << ownName();
    bus.send(release);
}

void NotifierItem::start(std::function<void(bool)> onAvailability)
{
    m_onAvailability = std::move(onAvailability);
    if (!session_bus::isAvailable()) {
        m_onAvailability(false);
        return;
    }
    const QDBusConnection bus = QDBusConnection::sessionBus();
    m_watcher.setConnection(bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                watcherChanged(!newOwner.isEmpty());
            });
    m_watcher.addWatchedService(watcherName);

    auto question = callToBus("NameHasOwner");
    question << watcherName;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<bool> reply = *answer;
        watcherChanged(!reply.isError() && reply.value());
        answer->deleteLater();
    });
}

void NotifierItem::watcherChanged(bool isThere)
{
    if (isThere) {
        exportObjects();
        handIn();
    }
    m_onAvailability(isThere);
}

void NotifierItem::exportObjects()
{
    if (std::exchange(m_isExported, true))
        return;
    registerNotifierTypes();
    QDBusConnection bus = QDBusConnection::sessionBus();
    constexpr auto what = QDBusConnection::ExportScriptableInvokables
        | QDBusConnection::ExportScriptableSignals | QDBusConnection::ExportNonScriptableProperties
        | QDBusConnection::ExportScriptableProperties;
    bus.registerObject(itemPath, this, what);
    bus.registerObject(menuObjectPath, &m_menu, what);
    auto request = callToBus("RequestName");
    request << ownName() << quint32{0};
    bus.send(request);
}

void NotifierItem::handIn() const
{
    auto call
        = QDBusMessage::createMethodCall(watcherName, QStringLiteral("/StatusNotifierWatcher"),
                                         watcherName, QStringLiteral("RegisterStatusNotifierItem"));
    call << ownName();
    call.setAutoStartService(false);
    QDBusConnection::sessionBus().send(call);
}

void NotifierItem::setForeground(const QColor &foreground)
{
    if (m_foreground == foreground)
        return;
    m_foreground = foreground;
    Q_EMIT NewIcon();
}

void NotifierItem::setIcon(Icon icon)
{
    m_icon = std::move(icon);
    Q_EMIT NewIcon();
}

void NotifierItem::setToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    Q_EMIT NewToolTip();
}

void NotifierItem::setMenu(Menu menu)
{
    m_menu.setBuilder(std::move(menu));
}

void NotifierItem::menuChanged()
{
    m_menu.announceChange();
}

NotifierPixmaps NotifierItem::iconPixmap() const
{
    NotifierPixmaps pixmaps;
    for (const int side : iconSides) {
        if (m_icon)
            pixmaps << pixmapOf(m_icon(side, m_foreground));
    }
    return pixmaps;
}

NotifierToolTip NotifierItem::toolTip() const
{
    return {{}, {}, m_toolTip, {}};
}

QDBusObjectPath NotifierItem::menuPath()
{
    return QDBusObjectPath(menuObjectPath);
}

void NotifierItem::Activate(int, int)
{
    if (m_openMenu)
        m_openMenu();
}

void NotifierItem::ContextMenu(int x, int y)
{
    Activate(x, y);
}

void NotifierItem::SecondaryActivate(int, int) { }

void NotifierItem::Scroll(int, const QString &) { }

} // namespace corvane
