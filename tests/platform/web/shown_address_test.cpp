#include "platform/web/shown_address.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// A name as its owner writes it, whatever it would pass for.
QUrl named(const char16_t *host)
{
    QUrl url(QStringLiteral("https://x/"));
    url.setHost(QString::fromUtf16(host));
    return url;
}

struct Homograph {
    const char *passesFor;
    const char16_t *host;
};

/// Names that were registered or shown as attacks, and one for each way of making them.
constexpr Homograph homographs[] = {
    // One script altogether.
    {"apple.com", u"\u0430\u0440\u0440\u04cf\u0435.com"},
    {"epic.com", u"\u0435\u0440\u0456\u0441.com"},
    {"paypa1", u"\u0440\u0430\u0443\u0440\u0430.com"},
    {"scope.com", u"\u0455\u0441\u043e\u0440\u0435.com"},
    {"oo.com", u"\u03bf\u03bf.com"},
    {"wo.com", u"\u0561\u0585.com"},
    {"O.com", u"\u3007.com"},
    // Letters of two.
    {"paypal.com", u"p\u0430ypal.com"},
    {"microsoft.com", u"micr\u043esoft.com"},
    {"google.com", u"g\u03bfogle.com"},
    {"amazon.com", u"am\u0430z\u043en.com"},
    {"wikipedia.org", u"w\u0456kipedia.org"},
    // Of one, where few expect them.
    {"google.com", u"\u0261oogle.com"},
    {"twitter.com", u"tw\u0131tter.com"},
    {"open.com", u"\u1d0fpen.com"},
    // Signs that divide an address, or nearly.
    {"example.com/path", u"example.com\u2044path.test"},
    {"example\\x.com", u"\u4e36\u65e5.com"},
    // In any place of the name.
    {"www.apple.com", u"www.\u0430\u0440\u0440\u04cf\u0435.com"},
    {"apple.x.com", u"\u0430\u0440\u0440\u04cf\u0435.x.com"},
    // No letters.
    {"a heart", u"i\u2764.ws"},
    {"two marks", u"a\u0301\u0301.com"},
};

} // namespace

TEST(ShownHost, OfAHomographIsTheNameThatGoesOverTheWire)
{
    for (const Homograph &homograph : homographs) {
        const QUrl url = named(homograph.host);
        const QString encoded = url.host(QUrl::FullyEncoded);
        const QString shown = shownHost(url);
        EXPECT_EQ(shown, encoded) << homograph.passesFor << ": " << shown.toStdString();
        for (const QChar character : shown)
            EXPECT_LT(character.unicode(), 0x80) << homograph.passesFor;
    }
    EXPECT_EQ(shownHost(named(u"\u0430\u0440\u0440\u04cf\u0435.\u4e2d\u56fd")),
              QStringLiteral("xn--80ak6aa92e.\u4e2d\u56fd"))
        << "below a domain of another script";
    EXPECT_EQ(shownHost(QUrl(QStringLiteral("http://xn--80ak6aa92e.com/"))),
              QStringLiteral("xn--80ak6aa92e.com"));
}

TEST(ShownHost, IsInItsOwnLettersWhereThesePassForNothingElse)
{
    for (const char16_t *host :
         {u"b\u00fccher.de", u"www.m\u00fcnchen.de", u"stra\u00dfe.de", u"caf\u00e9.fr",
          u"\u00e6ble.dk", u"\u0153uvre.fr", u"\u0142\u00f3d\u017a.pl", u"\u00feing.is",
          u"\u043f\u0440\u0438\u043c\u0435\u0440.com", u"\u043e\u0441\u0430.\u0440\u0444",
          u"\u03b5\u03bb\u03bb\u03ac\u03b4\u03b1.gr", u"\u65e5\u672c\u8a9e.jp",
          u"\u4f8b\u5b50.\u4e2d\u56fd", u"\ud55c\uad6d.com", u"\u0645\u062b\u0627\u0644.com",
          u"\u05d3\u05d5\u05d2\u05de\u05d4.com", u"\u0e44\u0e17\u0e22.com", u"l\u00b7l.cat"}) {
        const QString shown = shownHost(named(host));
        EXPECT_EQ(shown, QString::fromUtf16(host)) << shown.toStdString();
    }
}

TEST(ShownHost, DoesNotDependOnWhichDomainsTheToolkitTrusts)
{
    EXPECT_EQ(shownHost(QUrl(QStringLiteral("https://xn--bcher-kva.example/"))),
              QStringLiteral("b\u00fccher.example"));
}

TEST(ShownHost, IsLeftAloneWhereItIsPlainOrNoName)
{
    for (const char *host :
         {"example.com", "EXAMPLE.com", "127.0.0.1", "localhost", "a_b.test", "example.com."}) {
        QUrl url(QStringLiteral("https://x/"));
        url.setHost(QString::fromLatin1(host));
        EXPECT_EQ(shownHost(url), QString::fromLatin1(host).toLower());
    }
    EXPECT_EQ(shownHost(QUrl(QStringLiteral("https://[::1]/"))), QStringLiteral("::1"));
    EXPECT_EQ(shownHost(QUrl(QStringLiteral("file:///a"))), QString());
    // What is no code at all.
    EXPECT_EQ(shownHost(QUrl(QStringLiteral("https://xn--0.com/"))),
              QUrl(QStringLiteral("https://xn--0.com/")).host(QUrl::FullyEncoded));
}

TEST(ShownHost, OfAnAbsurdLengthIsLeftAsItIs)
{
    const QString label = QStringLiteral("xn--bcher-kva.");
    QUrl url;
    url.setScheme(QStringLiteral("https"));
    url.setHost(label.repeated(1000) + QStringLiteral("com"));
    EXPECT_EQ(shownHost(url), url.host(QUrl::FullyEncoded));
}

TEST(ShownAddress, HasItsHostAsItIsShown)
{
    EXPECT_EQ(shownAddress(QUrl(QStringLiteral("https://xn--bcher-kva.de:81/a%20b?q#f"))),
              QStringLiteral("https://b\u00fccher.de:81/a%20b?q#f"));
    EXPECT_EQ(shownAddress(QUrl(QStringLiteral("https://xn--80ak6aa92e.com/"))),
              QStringLiteral("https://xn--80ak6aa92e.com/"));
    EXPECT_EQ(shownAddress(
                  QUrl(QStringLiteral("https://xn--bcher-kva.de:pw@xn--bcher-kva.de/xn--bcher"))),
              QStringLiteral("https://xn--bcher-kva.de:pw@b\u00fccher.de/xn--bcher"));
    EXPECT_EQ(shownAddress(QUrl(QStringLiteral("mailto:a@b.test"))),
              QStringLiteral("mailto:a@b.test"));
}

} // namespace corvane::test
