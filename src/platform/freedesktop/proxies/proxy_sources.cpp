#include "platform/freedesktop/proxies/proxy_sources.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>

namespace corvane::proxy_sources {

namespace {

using Mode = ProxySettings::Mode;

QString firstSet(const Environment &environment, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        if (const QByteArray value = environment(name); !value.isEmpty())
            return QString::fromLocal8Bit(value);
    }
    return {};
}

QStringList entriesOf(QString list)
{
    list.replace(QLatin1Char(' '), QLatin1Char(','));
    list.replace(QLatin1Char(';'), QLatin1Char(','));
    return list.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// The texts between single quotes, of what the desktop's tools print.
QStringList quoted(const QByteArray &value)
{
    QStringList texts;
    for (qsizetype begin = value.indexOf('\''); begin >= 0;) {
        const qsizetype end = value.indexOf('\'', begin + 1);
        if (end < 0)
            break;
        texts << QString::fromUtf8(value.sliced(begin + 1, end - begin - 1));
        begin = value.indexOf('\'', end + 1);
    }
    return texts;
}

class GnomeListing {
public:
    explicit GnomeListing(const QByteArray &text)
    {
        for (const QByteArray &line : text.split('\n')) {
            // "org.gnome.system.proxy.http host 'x'"
            const qsizetype first = line.indexOf(' ');
            const qsizetype second = line.indexOf(' ', first + 1);
            if (first > 0 && second > 0)
                m_values.insert(line.first(second), line.sliced(second + 1));
        }
    }
    QByteArray value(const QByteArray &group, const QByteArray &key) const
    {
        return m_values.value("org.gnome.system.proxy" + group + ' ' + key);
    }
    QString text(const QByteArray &group, const QByteArray &key) const
    {
        return quoted(value(group, key)).value(0);
    }
    /// Empty where there is none.
    QString address(const QByteArray &group, const QString &scheme) const
    {
        const QString host = text(group, "host");
        const int port = value(group, "port").trimmed().toInt();
        if (host.isEmpty() || port <= 0)
            return {};
        QUrl url;
        url.setScheme(scheme);
        url.setHost(host);
        url.setPort(port);
        if (value(".http", "use-authentication").trimmed() == "true" && group == ".http") {
            url.setUserName(text(group, "authentication-user"));
            url.setPassword(text(group, "authentication-password"));
        }
        return url.toString(QUrl::FullyEncoded);
    }

private:
    QHash<QByteArray, QByteArray> m_values;
};

/// "http://host 8080" is how the control centre writes it.
QString kdeAddress(const QByteArray &value)
{
    QString address = QString::fromUtf8(value).trimmed();
    if (const qsizetype blank = address.lastIndexOf(QLatin1Char(' ')); blank > 0)
        address = address.first(blank).trimmed() + QLatin1Char(':') + address.sliced(blank + 1);
    // A host that was left empty.
    return address.endsWith(QLatin1String("://")) ? QString() : address;
}

/// The settings about proxies in KDE's files, of which later ones stand above earlier ones. Behind
/// a name may stand marks: "[$i]" for what nobody above may change, "[$d]" for what is not set
/// after all.
class KdeSettings {
public:
    void read(const QByteArray &file)
    {
        if (m_isFixed)
            return;
        bool isIn = false;
        bool isFixed = false;
        for (const QByteArray &raw : file.split('\n')) {
            const QByteArray line = raw.trimmed();
            if (line.startsWith('[')) {
                isIn = line == "[Proxy Settings]" || line.startsWith("[Proxy Settings][$");
                // A mark alone is that of the whole file.
                isFixed = isFixed || line == "[$i]" || (isIn && hasMark(line, 'i'));
            } else if (isIn) {
                take(line);
            }
        }
        m_isFixed = isFixed;
    }
    QByteArray value(const QByteArray &key) const { return m_values.value(key); }

private:
    static bool hasMark(const QByteArray &name, char mark)
    {
        const qsizetype begin = name.indexOf("[$");
        return begin >= 0 && name.indexOf(mark, begin) >= 0;
    }
    void take(const QByteArray &line)
    {
        const qsizetype equals = line.indexOf('=');
        const QByteArray name = equals < 0 ? line : line.first(equals);
        const QByteArray key = name.split('[').front().trimmed();
        if (m_fixed.contains(key))
            return;
        if (hasMark(name, 'd'))
            m_values.remove(key);
        else if (equals > 0)
            m_values.insert(key, line.sliced(equals + 1).trimmed());
        if (hasMark(name, 'i'))
            m_fixed.insert(key);
    }

    QHash<QByteArray, QByteArray> m_values;
    QSet<QByteArray> m_fixed;
    bool m_isFixed = false;
};

} // namespace

ProxySettings fromEnvironment(const Environment &environment)
{
    ProxySettings settings;
    settings.http = firstSet(environment, {"http_proxy"});
    settings.https = firstSet(environment, {"https_proxy", "HTTPS_PROXY"});
    settings.others = firstSet(environment, {"all_proxy", "ALL_PROXY"});
    settings.exceptions = entriesOf(firstSet(environment, {"no_proxy", "NO_PROXY"}));
    const bool isSet
        = !settings.http.isEmpty() || !settings.https.isEmpty() || !settings.others.isEmpty();
    settings.mode = isSet ? Mode::Manual : Mode::None;
    return settings;
}

ProxySettings fromGnome(const QByteArray &listing)
{
    const GnomeListing values(listing);
    ProxySettings settings;
    const QString mode = values.text({}, "mode");
    if (mode == QLatin1String("auto"))
        settings.mode = Mode::Script;
    else if (mode == QLatin1String("manual"))
        settings.mode = Mode::Manual;
    settings.http = values.address(".http", QStringLiteral("http"));
    settings.https = values.address(".https", QStringLiteral("http"));
    settings.others = values.address(".socks", QStringLiteral("socks5"));
    settings.exceptions = quoted(values.value({}, "ignore-hosts"));
    return settings;
}

QByteArrayList kdePaths(const Environment &environment)
{
    QByteArray system = environment("XDG_CONFIG_DIRS");
    if (system.isEmpty())
        system = "/etc/xdg";
    QByteArray own = environment("XDG_CONFIG_HOME");
    if (own.isEmpty())
        own = environment("HOME") + "/.config";
    QByteArrayList paths{own + "/kioslaverc"};
    for (QByteArray folder : system.split(':')) {
        while (folder.endsWith('/'))
            folder.chop(1);
        // Others are to be ignored.
        if (folder.startsWith('/'))
            paths.prepend(folder + "/kioslaverc");
    }
    return paths;
}

ProxySettings fromKde(const QByteArrayList &files, const Environment &environment)
{
    KdeSettings values;
    for (const QByteArray &file : files)
        values.read(file);
    enum Type { Manual = 1, Script, Discovered, Variables };
    const int type = values.value("ProxyType").toInt();
    ProxySettings settings;
    settings.http = kdeAddress(values.value("httpProxy"));
    settings.https = kdeAddress(values.value("httpsProxy"));
    settings.others = kdeAddress(values.value("socksProxy"));
    settings.exceptions = entriesOf(QString::fromUtf8(values.value("NoProxyFor")));
    settings.isReversed = values.value("ReversedException").toLower() == "true";
    if (type == Script || type == Discovered)
        settings.mode = Mode::Script;
    else if (type == Manual || type == Variables)
        settings.mode = Mode::Manual;
    if (type == Variables) {
        // The names of variables stand there instead of addresses.
        for (QString *address : {&settings.http, &settings.https, &settings.others})
            *address = QString::fromLocal8Bit(environment(address->toLatin1().constData()));
        const QByteArray name = values.value("NoProxyFor");
        settings.exceptions = entriesOf(QString::fromLocal8Bit(environment(name.constData())));
    }
    return settings;
}

std::optional<WebRoute> fromPortal(const QByteArray &reply)
{
    const QStringList addresses = quoted(reply);
    for (const QString &address : addresses) {
        const WebRoute route = proxy_address::route(address);
        if (!route.isWithheld())
            return route;
    }
    return addresses.isEmpty() ? std::nullopt : std::optional(WebRoute{WebRoute::Kind::Unusable});
}

std::optional<WebProxy> listeningTor(const QByteArray &connections, unsigned user)
{
    constexpr unsigned firstOrdinaryUser = 1000;
    constexpr int hexadecimal = 16;
    for (const QByteArray &line : connections.split('\n')) {
        // "0: 0100007F:235A 00000000:0000 0A 00000000:00000000 00:00000000 00000000 1000 ..."
        const QList<QByteArray> fields = line.simplified().split(' ');
        constexpr qsizetype place = 1;
        constexpr qsizetype state = 3;
        constexpr qsizetype owner = 7;
        if (fields.size() <= owner || fields[state] != "0A")
            continue;
        const quint16 port
            = fields[place].mid(fields[place].indexOf(':') + 1).toUShort(nullptr, hexadecimal);
        const WebProxy proxy{WebProxy::Kind::Socks5, QStringLiteral("127.0.0.1"), port};
        const unsigned listener = fields[owner].toUInt();
        // Another person of this machine could listen there too.
        if (proxy_address::isTor(proxy) && (listener == user || listener < firstOrdinaryUser))
            return proxy;
    }
    return std::nullopt;
}

} // namespace corvane::proxy_sources
