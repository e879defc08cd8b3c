#include "e2e/desktop/screen_reader.h"

#include "e2e/desktop/eventually.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QRegularExpression>

#include <algorithm>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

const auto accessible = u"org.a11y.atspi.Accessible"_s;
const auto actionInterface = u"org.a11y.atspi.Action"_s;
const auto connectionName = u"screen reader"_s;
const auto notification = u"notification"_s;

/// The address of the accessibility bus, which is started when it is first asked for.
QString addressOn(const XDesktop &desktop)
{
    static const QRegularExpression quoted(u"'([^']*)'"_s);
    const auto answer
        = outputOf(u"gdbus"_s,
                   {u"call"_s, u"--session"_s, u"--dest"_s, u"org.a11y.Bus"_s, u"--object-path"_s,
                    u"/org/a11y/bus"_s, u"--method"_s, u"org.a11y.Bus.GetAddress"_s},
                   desktop.environment());
    return quoted.match(QString::fromUtf8(answer.value_or(QByteArray()))).captured(1);
}

} // namespace

ScreenReader::ScreenReader(XDesktop &desktop)
    : m_bus(QDBusConnection::connectToBus(addressOn(desktop), connectionName))
{
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

void ScreenReader::addTo(QProcessEnvironment &environment)
{
    environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
}

QVariantList ScreenReader::ask(const Place &place, const QString &interface, const QString &method,
                               const QVariantList &arguments) const
{
    auto call = QDBusMessage::createMethodCall(place.service, place.path, interface, method);
    call.setArguments(arguments);
    constexpr int limit = 5000;
    const QDBusMessage answer = m_bus.call(call, QDBus::Block, limit);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QVariantList();
}

QString ScreenReader::property(const Place &place, const QString &name) const
{
    const QVariantList answer
        = ask(place, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, name});
    return answer.isEmpty() ? QString()
                            : answer.constFirst().value<QDBusVariant>().variant().toString();
}

QList<ScreenReader::Place> ScreenReader::children(const Place &place) const
{
    const QVariantList answer = ask(place, accessible, u"GetChildren"_s);
    if (answer.isEmpty())
        return {};
    QList<Place> found;
    const auto list = answer.constFirst().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Place child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        found << child;
    }
    list.endArray();
    return found;
}

QRect ScreenReader::frame(const Place &place) const
{
    constexpr uint ofTheScreen = 0;
    const QVariantList answer
        = ask(place, u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {ofTheScreen});
    if (answer.isEmpty())
        return {};
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const auto extents = answer.constFirst().value<QDBusArgument>();
    extents.beginStructure();
    extents >> x >> y >> width >> height;
    extents.endStructure();
    return {x, y, width, height};
}

quint64 ScreenReader::states(const Place &place) const
{
    const QVariantList answer = ask(place, accessible, u"GetState"_s);
    if (answer.isEmpty())
        return 0;
    quint64 all = 0;
    int shift = 0;
    const auto halves = answer.constFirst().value<QDBusArgument>();
    halves.beginArray();
    while (!halves.atEnd()) {
        quint32 half = 0;
        halves >> half;
        all |= quint64(half) << shift;
        shift += 32;
    }
    halves.endArray();
    return all;
}

QStringList ScreenReader::actions(const Element &element) const
{
    const QVariantList answer = ask(element.place, actionInterface, u"GetActions"_s);
    QStringList names;
    if (answer.isEmpty())
        return names;
    const auto list = answer.constFirst().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString name;
        QString description;
        QString keys;
        list.beginStructure();
        list >> name >> description >> keys;
        list.endStructure();
        names << name;
    }
    list.endArray();
    return names;
}

bool ScreenReader::perform(const Element &element, const QString &wanted) const
{
    const qsizetype index = actions(element).indexOf(wanted);
    if (index < 0)
        return false;
    const QVariantList done
        = ask(element.place, actionInterface, u"DoAction"_s, {static_cast<int>(index)});
    return !done.isEmpty() && done.constFirst().toBool();
}

std::optional<ScreenReader::Place> ScreenReader::program(qint64 pid) const
{
    const Place registry{u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s};
    for (const Place &one : children(registry)) {
        const QVariantList owner
            = ask({u"org.freedesktop.DBus"_s, u"/"_s}, u"org.freedesktop.DBus"_s,
                  u"GetConnectionUnixProcessID"_s, {one.service});
        if (!owner.isEmpty() && owner.constFirst().toLongLong() == pid)
            return one;
    }
    return std::nullopt;
}

void ScreenReader::collect(const Place &place, int depth, QList<Element> &found) const
{
    constexpr int deepest = 20;
    if (depth == deepest)
        return;
    const QVariantList role = ask(place, accessible, u"GetRoleName"_s);
    found << Element{property(place, u"Name"_s),
                     property(place, u"Description"_s),
                     role.isEmpty() ? QString() : role.constFirst().toString(),
                     frame(place),
                     states(place),
                     place};
    for (const Place &child : children(place))
        collect(child, depth + 1, found);
}

QList<ScreenReader::Element> ScreenReader::elements(qint64 pid) const
{
    QList<Element> found;
    if (const auto root = program(pid))
        collect(*root, 0, found);
    return found;
}

std::optional<ScreenReader::Element> ScreenReader::control(qint64 pid, const QString &name,
                                                           const QString &description) const
{
    for (const Element &element : elements(pid)) {
        if (element.role != u"label"_s && element.role != u"paragraph"_s
            && element.role != notification && element.name.startsWith(name)
            && (description.isEmpty() || element.description == description))
            return element;
    }
    return std::nullopt;
}

bool ScreenReader::says(qint64 pid, const QString &text) const
{
    const QList<Element> all = elements(pid);
    return std::any_of(all.cbegin(), all.cend(), [&](const Element &element) {
        return element.name == text && element.role != notification;
    });
}

bool ScreenReader::hears(const QString &text) const
{
    return eventually([&] { return heard().contains(text); });
}

int ScreenReader::caret(const Element &text) const
{
    const QVariantList answer = ask(text.place, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                                    {u"org.a11y.atspi.Text"_s, u"CaretOffset"_s});
    return answer.isEmpty() ? -1 : answer.constFirst().value<QDBusVariant>().variant().toInt();
}

} // namespace corvane::e2e
