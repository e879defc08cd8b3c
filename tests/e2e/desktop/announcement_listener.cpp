#include "e2e/desktop/announcement_listener.h"

#include <QDBusVariant>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

AnnouncementListener::AnnouncementListener(const QDBusConnection &bus)
    : m_bus(bus)
{
    m_bus.connect(QString(), QString(), u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                  SLOT(stateChanged(QDBusMessage)));
    // Programs tell nothing that nobody has asked for.
    auto wish = QDBusMessage::createMethodCall(u"org.a11y.atspi.Registry"_s,
                                               u"/org/a11y/atspi/registry"_s,
                                               u"org.a11y.atspi.Registry"_s, u"RegisterEvent"_s);
    wish << u"object:state-changed:showing"_s;
    m_bus.call(wish);
}

void AnnouncementListener::stateChanged(const QDBusMessage &signal)
{
    const QVariantList what = signal.arguments();
    if (what.value(0).toString() != u"showing"_s || what.value(1).toInt() != 1)
        return;
    const auto ask
        = [&](const QString &interface, const QString &method, const QVariantList &arguments) {
              auto call = QDBusMessage::createMethodCall(signal.service(), signal.path(), interface,
                                                         method);
              call.setArguments(arguments);
              return m_bus.call(call).arguments().value(0);
          };
    const QString accessible = u"org.a11y.atspi.Accessible"_s;
    if (ask(accessible, u"GetRoleName"_s, {}).toString() != u"notification"_s)
        return;
    m_heard << ask(u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, u"Name"_s})
                   .value<QDBusVariant>()
                   .variant()
                   .toString();
}

} // namespace corvane::e2e
