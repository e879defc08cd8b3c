#include "platform/freedesktop/proxies/proxy_settings.h"
#include "platform/freedesktop/proxies/proxy_sources.h"

#include <QHash>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Kind = WebRoute::Kind;
using Mode = ProxySettings::Mode;

QUrl url(const char *address)
{
    return QUrl(QString::fromLatin1(address));
}

bool isDirect(const char *address, const QStringList &exceptions)
{
    const ProxySettings settings{
        Mode::Manual, QStringLiteral("http://p:1"), QStringLiteral("http://p:2"), {}, exceptions};
    return settings.routeFor(url(address)).kind == Kind::Direct;
}

WebRoute socks(const char *host, quint16 port)
{
    return {Kind::Proxied, {WebProxy::Kind::Socks5, QString::fromLatin1(host), port}};
}

WebRoute http(const char *host, quint16 port)
{
    return {Kind::Proxied, {WebProxy::Kind::Http, QString::fromLatin1(host), port}};
}

proxy_sources::Environment environment(const QHash<QByteArray, QByteArray> &values)
{
    return [values](const char *name) { return values.value(name); };
}

} // namespace

TEST(ProxyAddress, IsUnderstoodAsPeopleWriteIt)
{
    const auto route
        = [](const char *text) { return proxy_address::route(QString::fromLatin1(text)); };
    EXPECT_EQ(route("http://p.test:3128/"), http("p.test", 3128));
    EXPECT_EQ(route("p.test:3128"), http("p.test", 3128));
    EXPECT_EQ(route("http://p.test"), http("p.test", 80));
    EXPECT_EQ(route("socks5h://127.0.0.1:9050"), socks("127.0.0.1", 9050));
    EXPECT_EQ(route("socks5://p"), socks("p", 1080));
    EXPECT_EQ(route("socks://[::1]:9"), socks("::1", 9));
    EXPECT_EQ(route("direct://"), WebRoute{});
    const WebRoute named = route("http://me:a%20b@p:1");
    EXPECT_EQ(named.proxy.user, QStringLiteral("me"));
    EXPECT_EQ(named.proxy.password, QStringLiteral("a b"));
    for (const char *text :
         {"https://p:1", "socks4://p:1", "ftp://p:1", "://", "http://", "p:0", "quic://p:1"})
        EXPECT_EQ(route(text).kind, Kind::Unusable) << text;
}

TEST(ProxySettings, LeaveOutTheNamedHostsAndAllBelowThem)
{
    EXPECT_TRUE(isDirect("http://a.test/", {QStringLiteral("x.test"), QStringLiteral(" a.test")}));
    EXPECT_TRUE(isDirect("http://b.A.test/", {QStringLiteral("a.test")}));
    EXPECT_TRUE(isDirect("http://b.a.test/", {QStringLiteral(".a.test")}));
    EXPECT_TRUE(isDirect("http://b.a.test/", {QStringLiteral("*.a.test")}));
    EXPECT_TRUE(isDirect("http://a.test./", {QStringLiteral("a.test")}));
    EXPECT_FALSE(isDirect("http://ba.test/", {QStringLiteral("a.test")}));
    EXPECT_TRUE(isDirect("http://a.test/", {QStringLiteral("*")}));
    EXPECT_FALSE(isDirect("http://a.test/", {QString(), QStringLiteral(".")}));
    EXPECT_TRUE(isDirect("http://a.test:81/", {QStringLiteral("a.test:81")}));
    EXPECT_FALSE(isDirect("http://a.test/", {QStringLiteral("a.test:81")}));
    EXPECT_TRUE(isDirect("http://intranet/", {QStringLiteral("<local>")}));
    EXPECT_FALSE(isDirect("http://a.test/", {QStringLiteral("<local>")}));
}

TEST(ProxySettings, LeaveOutAddressesAndBlocksOfThem)
{
    const QStringList block{QStringLiteral("10.0.0.0/8")};
    EXPECT_TRUE(isDirect("http://10.1.2.3/", block));
    EXPECT_FALSE(isDirect("http://11.1.2.3/", block));
    EXPECT_FALSE(isDirect("http://a.10.test/", block));
    EXPECT_TRUE(isDirect("http://192.168.1.1/", {QStringLiteral("192.168.1.1")}));
    EXPECT_FALSE(isDirect("http://192.168.1.10/", {QStringLiteral("192.168.1.1")}));
    EXPECT_TRUE(isDirect("http://[fd00::1]/", {QStringLiteral("fd00::/8")}));
    EXPECT_TRUE(isDirect("http://[fd00::1]/", {QStringLiteral("fd00:0::1")}));
    EXPECT_FALSE(isDirect("http://[fe00::1]/", {QStringLiteral("fd00::/8")}));
    for (const char *odd : {"10.0.0.0/x", "10.0.0.0/99", "/", "x/8", "10.0.0.0/-1"})
        EXPECT_FALSE(isDirect("http://10.0.0.1/", {QString::fromLatin1(odd)})) << odd;
}

TEST(ProxySettings, LeaveOutAddressesInBrackets)
{
    EXPECT_TRUE(isDirect("http://[::1]/", {QStringLiteral("[::1]")}));
    EXPECT_TRUE(isDirect("http://[::1]:81/", {QStringLiteral("[::1]")}));
    EXPECT_TRUE(isDirect("http://[::1]:81/", {QStringLiteral("[0::1]:81")}));
    EXPECT_TRUE(isDirect("http://[fd00::1]/", {QStringLiteral("[fd00::]/8")}));
    EXPECT_FALSE(isDirect("http://[::1]/", {QStringLiteral("[::1]:81")}));
    EXPECT_FALSE(isDirect("http://[::2]/", {QStringLiteral("[::1]")}));
    for (const char *odd : {"[", "[]", "]", "[]:80", "[::1", "[::1]81", "[::1]:", "[a.test]"}) {
        EXPECT_FALSE(isDirect("http://[::1]/", {QString::fromLatin1(odd)})) << odd;
        EXPECT_FALSE(isDirect("http://a.test/", {QString::fromLatin1(odd)})) << odd;
    }
}

TEST(ProxySettings, OfTheEnvironmentAreOfTheirScheme)
{
    const auto settings = proxy_sources::fromEnvironment(
        environment({{"https_proxy", "http://p:1"}, {"NO_PROXY", "a.test,b.test"}}));
    EXPECT_EQ(settings.routeFor(url("http://x.test/")).kind, Kind::Direct);
    EXPECT_EQ(settings.routeFor(url("https://x.test/")), http("p", 1));
    EXPECT_EQ(settings.routeFor(url("https://b.test/")).kind, Kind::Direct);
    const auto all = proxy_sources::fromEnvironment(
        environment({{"ALL_PROXY", "socks5h://127.0.0.1:9050"}, {"http_proxy", "http://p:2"}}));
    EXPECT_EQ(all.routeFor(url("http://x.test/")), http("p", 2));
    EXPECT_EQ(all.routeFor(url("https://x.test/")), socks("127.0.0.1", 9050));
    EXPECT_TRUE(all.tor());
    EXPECT_EQ(proxy_sources::fromEnvironment(environment({{"HTTP_PROXY", "http://p:2"}})).mode,
              Mode::None);
}

TEST(ProxySettings, OfGnomeAreReadFromItsListing)
{
    const QByteArray listing
        = "org.gnome.system.proxy autoconfig-url ''\n"
          "org.gnome.system.proxy ignore-hosts ['localhost', '10.0.0.0/8', '*.near.test']\n"
          "org.gnome.system.proxy mode 'manual'\n"
          "org.gnome.system.proxy.http host 'web.test'\n"
          "org.gnome.system.proxy.http port 8080\n"
          "org.gnome.system.proxy.http use-authentication true\n"
          "org.gnome.system.proxy.http authentication-user 'me'\n"
          "org.gnome.system.proxy.http authentication-password 'p w'\n"
          "org.gnome.system.proxy.https host ''\n"
          "org.gnome.system.proxy.https port 0\n"
          "org.gnome.system.proxy.socks host 'sock.test'\n"
          "org.gnome.system.proxy.socks port 1081\n";
    const auto settings = proxy_sources::fromGnome(listing);
    WebRoute own = http("web.test", 8080);
    own.proxy.user = QStringLiteral("me");
    own.proxy.password = QStringLiteral("p w");
    EXPECT_EQ(settings.routeFor(url("http://x.test/")), own);
    EXPECT_EQ(settings.routeFor(url("https://x.test/")), socks("sock.test", 1081));
    EXPECT_EQ(settings.routeFor(url("https://a.near.test/")).kind, Kind::Direct);
    QByteArray other = listing;
    EXPECT_EQ(proxy_sources::fromGnome(other.replace("'manual'", "'auto'"))
                  .routeFor(url("http://x.test/"))
                  .kind,
              Kind::NeedsScript);
    EXPECT_EQ(proxy_sources::fromGnome(other.replace("'auto'", "'none'"))
                  .routeFor(url("http://x.test/"))
                  .kind,
              Kind::Direct);
    EXPECT_EQ(proxy_sources::fromGnome("No such schema").mode, Mode::None);
}

TEST(ProxySettings, OfKdeAreReadFromItsFile)
{
    const QByteArray file = "[$Version]\nProxyType=2\n[Proxy Settings]\nProxyType=1\n"
                            "httpProxy=http://web.test 8080\nhttpsProxy[$e]=http://safe.test:81\n"
                            "socksProxy=socks://\nNoProxyFor=a.test, b.test\n"
                            "ReversedException=false\n[Other]\nhttpProxy=http://wrong:1\n";
    const auto settings = proxy_sources::fromKde({file}, environment({}));
    EXPECT_EQ(settings.routeFor(url("http://x.test/")), http("web.test", 8080));
    EXPECT_EQ(settings.routeFor(url("https://x.test/")), http("safe.test", 81));
    EXPECT_EQ(settings.routeFor(url("https://b.test/")).kind, Kind::Direct);
    QByteArray reversed = file;
    reversed.replace("Exception=false", "Exception=true");
    const auto only = proxy_sources::fromKde({reversed}, environment({}));
    EXPECT_EQ(only.routeFor(url("http://x.test/")).kind, Kind::Direct);
    EXPECT_EQ(only.routeFor(url("http://a.test/")), http("web.test", 8080));
    for (const char *type : {"ProxyType=2", "ProxyType=3"}) {
        QByteArray script = file;
        script.replace("ProxyType=1", type);
        EXPECT_EQ(proxy_sources::fromKde({script}, environment({})).mode, Mode::Script);
    }
    EXPECT_EQ(proxy_sources::fromKde({}, environment({})).mode, Mode::None);
}

TEST(ProxySettings, OfKdeMayNameTheEnvironment)
{
    const auto settings = proxy_sources::fromKde(
        {"[Proxy Settings]\nProxyType=4\nhttpProxy=MY_PROXY\nNoProxyFor=MY_EXCEPTIONS\n"},
        environment({{"MY_PROXY", "http://p:1"}, {"MY_EXCEPTIONS", "a.test"}}));
    EXPECT_EQ(settings.routeFor(url("http://x.test/")), http("p", 1));
    EXPECT_EQ(settings.routeFor(url("http://a.test/")).kind, Kind::Direct);
}

TEST(ProxySettings, OfKdesLaterFilesCountUnlessTheyAreForbidden)
{
    const auto proxy = [](const QByteArrayList &files) {
        return proxy_sources::fromKde(files, environment({})).routeFor(url("http://x.test/"));
    };
    const QByteArray group = "[Proxy Settings]\n";
    const QByteArray first = "ProxyType=1\nhttpProxy=http://a:1\n";
    const QByteArray own = group + "httpProxy=http://b:2\n";
    EXPECT_EQ(proxy({group + first, own}), http("b", 2));
    EXPECT_EQ(proxy({group + first, {}, "httpProxy=http://b:2\n"}), http("a", 1)) << "no group";
    EXPECT_EQ(proxy({group + first, group + "httpProxy[$d]\nsocksProxy=socks://c:3\n"}),
              socks("c", 3));
    EXPECT_EQ(proxy({group + "ProxyType=1\nhttpProxy[$ei]=http://a:1\n", own}), http("a", 1));
    EXPECT_EQ(proxy({"[Proxy Settings][$i]\n" + first, own}), http("a", 1));
    EXPECT_EQ(proxy({"[$i]\n" + group + first, own}), http("a", 1));
    EXPECT_EQ(proxy({"[Other][$i]\n" + group + first, own}), http("b", 2));
    EXPECT_EQ(proxy({"[$Version]\nupdate_info=a\n" + group + first, own}), http("b", 2));
}

TEST(ProxySettings, OfThePortalAreTheFirstThatCanBeUsed)
{
    using proxy_sources::fromPortal;
    EXPECT_EQ(fromPortal("(['direct://'],)\n"), WebRoute{});
    EXPECT_EQ(fromPortal("(['https://p:1', 'socks://q:2', 'direct://'],)"), socks("q", 2));
    EXPECT_EQ(fromPortal("(['socks4://p:1'],)")->kind, Kind::Unusable);
    EXPECT_FALSE(fromPortal("(@as [],)"));
    EXPECT_FALSE(fromPortal("Error"));
}

TEST(Tor, IsSeenWhereItListens)
{
    using proxy_sources::listeningTor;
    const auto line = [](const QByteArray &port, const QByteArray &state,
                         const QByteArray &user) -> QByteArray {
        return "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid\n"
               "   0: 0100007F:"
            + port + " 00000000:0000 " + state + " 00000000:00000000 00:00000000 00000000  " + user
            + "        0 12345 1\n";
    };
    constexpr unsigned me = 1000;
    ASSERT_TRUE(listeningTor(line("23BE", "0A", "1000"), me));
    EXPECT_EQ(listeningTor(line("23BE", "0A", "1000"), me)->port, 9150);
    EXPECT_EQ(listeningTor(line("235A", "0A", "110"), me)->port, 9050) << "the system's own";
    EXPECT_FALSE(listeningTor(line("235A", "0A", "1001"), me)) << "somebody else's";
    EXPECT_FALSE(listeningTor(line("235A", "01", "1000"), me)) << "a connection, not a listener";
    EXPECT_FALSE(listeningTor(line("1F90", "0A", "1000"), me));
    EXPECT_FALSE(listeningTor("", me));
}

} // namespace corvane::test
