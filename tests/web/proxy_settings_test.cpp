#include "platform/qt/web/proxy_settings.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

bool proxied(const char *address, const char *none = "")
{
    return ProxySettings{"http://p:1", "http://p:2", none}.apply(
        QUrl(QString::fromLatin1(address)));
}

} // namespace

TEST(ProxySettings, applyToEverythingButThisMachine)
{
    EXPECT_TRUE(proxied("http://a.test/"));
    EXPECT_TRUE(proxied("http://192.168.1.1/"));
    EXPECT_FALSE(proxied("http://localhost:80/"));
    EXPECT_FALSE(proxied("http://a.localhost/"));
    EXPECT_FALSE(proxied("http://127.0.0.1/"));
    EXPECT_FALSE(proxied("http://[::1]/"));
}

TEST(ProxySettings, leaveOutTheNamedHostsAndAllBelowThem)
{
    EXPECT_FALSE(proxied("http://a.test/", "x.test, a.test"));
    EXPECT_FALSE(proxied("http://b.A.test/", "a.test"));
    EXPECT_FALSE(proxied("http://b.a.test/", ".a.test"));
    EXPECT_TRUE(proxied("http://ba.test/", "a.test"));
    EXPECT_FALSE(proxied("http://a.test/", "*"));
    EXPECT_TRUE(proxied("http://a.test/", " , ,."));
}

TEST(ProxySettings, areOfTheirScheme)
{
    const ProxySettings settings{"", "http://p:1", ""};
    EXPECT_FALSE(settings.apply(QUrl(QStringLiteral("http://a.test/"))));
    EXPECT_TRUE(settings.apply(QUrl(QStringLiteral("https://a.test/"))));
}

TEST(ProxySettings, areReadFromTheEnvironment)
{
    for (const char *name : {"http_proxy", "https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY",
                             "no_proxy", "NO_PROXY"})
        qunsetenv(name);
    EXPECT_TRUE(ProxySettings::fromEnvironment().http.isEmpty());
    qputenv("all_proxy", "socks5://p:3");
    qputenv("https_proxy", "http://p:2");
    qputenv("NO_PROXY", "a.test");
    const ProxySettings settings = ProxySettings::fromEnvironment();
    EXPECT_EQ(settings.http, "socks5://p:3");
    EXPECT_EQ(settings.https, "http://p:2");
    EXPECT_EQ(settings.none, "a.test");
    for (const char *name : {"all_proxy", "https_proxy", "NO_PROXY"})
        qunsetenv(name);
}

} // namespace corvane::test
