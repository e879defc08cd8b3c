#include "services/page_reader.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <array>

namespace corvane {
namespace {

using page_reader::decode;
using page_reader::decodePage;
using page_reader::documentTitle;
using page_reader::maximumPageBytes;
using page_reader::parse;
using page_reader::Preview;

const QUrl pageUrl(QStringLiteral("https://www.example.org/news/today.html"));

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

Preview read(const QByteArray &utf8)
{
    return parse(QString::fromUtf8(utf8), pageUrl);
}

QString repeated(const char *utf8, qsizetype bytes)
{
    const QString unit = text(utf8);
    return unit.repeated(bytes / unit.size());
}

TEST(PageDecoding, IsThatOfUtf8)
{
    EXPECT_EQ(decodePage("Gr\xc3\xb6\xc3\x9f"
                         "e \xe2\x82\xac \xf0\x9f\x90\xa6"),
              text("Größe € 🐦"));
    EXPECT_EQ(decodePage(QByteArray()), QString());
}

TEST(PageDecoding, FallsBackToLatin1ForTheWholePage)
{
    EXPECT_EQ(decodePage("\xc3\xb6 and \xf6"), text("Ã¶ and ö"));
    const std::array broken
        = {"\x80", "\xc3", "\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xff"};
    for (const char *bytes : broken)
        EXPECT_EQ(decodePage(bytes), QString::fromLatin1(bytes));
}

TEST(PageDecoding, AsksNoPageForItsEncoding)
{
    EXPECT_EQ(decodePage("<meta charset=windows-1251>\xcf"), text("<meta charset=windows-1251>Ï"));
    EXPECT_EQ(decodePage("<meta charset=latin1>\xc3\xb6"), text("<meta charset=latin1>ö"));
}

TEST(PageDecoding, KeepsAByteOrderMarkAndZeroBytes)
{
    EXPECT_EQ(decodePage(QByteArray("\xef\xbb\xbf"
                                    "a\0b",
                                    6)),
              QString(QChar(0xfeff)) + QStringView(u"a\0b", 3));
}

TEST(PageDecoding, TakesTheFirstThreeMebibytes)
{
    const QByteArray body = QByteArray(maximumPageBytes, 'a') + "\xff tail";
    const QString page = decodePage(body);
    EXPECT_EQ(page.size(), maximumPageBytes);
    EXPECT_EQ(page.back(), QLatin1Char('a'));
}

TEST(PageDecoding, ReadsAPageThatIsCutInsideACharacterAsLatin1)
{
    const QByteArray whole = "\xc3\xb6" + QByteArray(maximumPageBytes - 4, 'a') + "\xc3\xb6";
    ASSERT_EQ(whole.size(), maximumPageBytes);
    EXPECT_EQ(decodePage(whole).front(), QChar(0xf6));
    const QByteArray cut = "\xc3\xb6" + QByteArray(maximumPageBytes - 3, 'a') + "\xc3\xb6";
    EXPECT_EQ(decodePage(cut).left(2), text("Ã¶"));
    EXPECT_EQ(decodePage(cut).size(), maximumPageBytes);
}

TEST(Entities, AreReplacedOnceEachWithTheAmpersandFirst)
{
    EXPECT_EQ(decode(text("&lt;b&gt; &quot;&#39;&apos; a&nbsp;b")), text("<b> \"'' a b"));
    EXPECT_EQ(decode(text("&amp;lt;")), text("<"));
    EXPECT_EQ(decode(text("&amp;amp;")), text("&amp;"));
    EXPECT_EQ(decode(text("&amp;amp;lt;")), text("&amp;lt;"));
    EXPECT_EQ(decode(text("&lt;amp;")), text("<amp;"));
    EXPECT_EQ(decode(text("&am&amp;p;")), text("&am&p;"));
}

TEST(Entities, OtherThanSevenStayAsTheyAre)
{
    const QString others = text("&copy;&#38;&#x27;&#039;&AMP;&Lt;&amp &hellip;");
    EXPECT_EQ(decode(others), others);
}

TEST(Entities, ThatAreBlanksAreTrimmedAsBlanks)
{
    EXPECT_EQ(decode(text("&nbsp; a &nbsp;")), text("a"));
    EXPECT_EQ(decode(text("&nbsp;")), QString());
}

TEST(Entities, AreTrimmedOfAllBlanksAndLineEnds)
{
    EXPECT_EQ(
        decode(text("\t\n\v\f\r \u0085\u00a0\u1680\u2000\u200a\u2028\u2029\u202f\u205f\u3000a b"
                    "\u3000\u2029\r\n")),
        text("a b"));
    EXPECT_EQ(decode(text("\u200b a")), text("\u200b a")) << "a zero-width space is no blank";
}

TEST(Entities, MayBeAsManyAsAPageHolds)
{
    EXPECT_EQ(decode(repeated("&amp;lt;", maximumPageBytes)),
              QString(maximumPageBytes / 8, QLatin1Char('<')));
}

TEST(DocumentTitle, IsDecodedAndTrimmed)
{
    EXPECT_EQ(documentTitle(text("<title>\n  Hello &lt;World&gt;  </title>")),
              text("Hello <World>"));
}

TEST(DocumentTitle, IsTheFirstElementThatIsClosed)
{
    struct Case {
        const char *html;
        const char *title;
    };
    const std::array cases = {
        Case{"<TITLE lang=en\n>a\nb</TiTlE>", "a\nb"},
        Case{"<title>a</title><title>b</title>", "a"},
        Case{"<title>a<title>b</title>c</title>", "a<title>b"},
        Case{"<title <title>a</title>", "a"},
        Case{"<title a='>'>b</title>", "'>b"},
        Case{"<titles>a</title>", "a"},
        Case{"</title><title>a</title>", "a"},
        Case{"<title>a</title >b</title>", "a</title >b"},
        Case{"<title\n</title>a</title>", "a"},
        Case{"<svg><title>icon</title></svg><title>page</title>", "icon"},
        Case{"<!-- <title>a</title> --><title>b</title>", "a"},
        Case{"<t\u0131tle>x</title><title>a \u0130\u017f</title>", "a \u0130\u017f"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(documentTitle(text(c.html)), text(c.title)) << c.html;
}

TEST(DocumentTitle, IsNoneWhenItIsBlankOrOpen)
{
    for (const char *html :
         {"", "<title></title>", "<title> &nbsp;\n</title>", "<title></title><title>second</title>",
          "<title>a", "<title", "<title</title>", "title>a</title>", "< title>a</title>"})
        EXPECT_EQ(documentTitle(text(html)), std::nullopt) << html;
}

TEST(PageReader, TakesTheFirstTagOfAName)
{
    EXPECT_EQ(read("<meta property=\"og:title\" content=\"A\"><p>"
                   "<meta property=\"og:title\" content=\"B\">")
                  .title,
              text("A"));
}

TEST(PageReader, FindsTagsAndNamesInAnyCase)
{
    EXPECT_EQ(read("<META NAME=\"Description\" CONTENT='Hi &amp;lt;3'>").summary, text("Hi <3"));
    EXPECT_EQ(read("<mEtA PROPERTY='OG:Title' cOntent=a>").title, text("a"));
    EXPECT_EQ(read("<META NAME=TWITTER:IMAGE CONTENT=a>").imageURL->fileName(), text("a"));
}

TEST(PageReader, SkipsATagWithoutContent)
{
    const char *const title = "<title>document</title>";
    for (const char *tag :
         {R"(<meta property="og:title" content="">)", "<meta property=\"og:title\" content=''>",
          "<meta property=\"og:title\" content=>", "<meta property=\"og:title\">",
          R"(<meta property="og:title" content="never closed>)"})
        EXPECT_EQ(read(QByteArray(tag) + title).title, text("document")) << tag;
    EXPECT_EQ(read("<meta name=og:title content=''><meta name=og:title content=second>").title,
              text("second"));
}

TEST(PageReader, KeepsABlankTitleAsAnEmptyOne)
{
    const Preview preview = read("<meta property=\"og:title\" content=\"   \">"
                                 "<meta property=\"og:title\" content=\"later\">"
                                 "<meta name=\"twitter:title\" content=\"other\"><title>a</title>");
    EXPECT_EQ(preview.title, QString());
    EXPECT_TRUE(preview.isUseful());
    EXPECT_EQ(read("<meta name=og:title content='&nbsp;'>").title, QString());
}

TEST(PageReader, PrefersTheFirstKeyThatAnythingIsHeldUnder)
{
    EXPECT_EQ(read("<title>c</title><meta name=twitter:title content=b>"
                   "<meta name=og:title content=a>")
                  .title,
              text("a"));
    EXPECT_EQ(read("<title>c</title><meta name=twitter:title content=b>").title, text("b"));
    EXPECT_EQ(read("<title>c</title>").title, text("c"));
    EXPECT_EQ(read("<meta name=description content=c><meta name=twitter:description content=b>"
                   "<meta name=og:description content=a>")
                  .summary,
              text("a"));
    EXPECT_EQ(
        read("<meta name=description content=c><meta name=twitter:description content=b>").summary,
        text("b"));
    EXPECT_EQ(read("<meta name=description content=c>").summary, text("c"));
    EXPECT_EQ(read("<p>nothing").summary, std::nullopt);
    EXPECT_EQ(read("<meta name=twitter:image content=c><meta name=og:image:url content=b>"
                   "<meta name=og:image content=a>")
                  .imageURL->fileName(),
              text("a"));
    EXPECT_EQ(read("<meta name=twitter:image content=c><meta name=og:image:url content=b>")
                  .imageURL->fileName(),
              text("b"));
    EXPECT_EQ(read("<meta name=twitter:image content=c>").imageURL->fileName(), text("c"));
    EXPECT_EQ(read("<p>nothing").imageURL, std::nullopt);
}

TEST(PageReader, FindsAPreferredKeyBehindAnyNumberOfOthers)
{
    const auto many
        = [](const char *tag) -> QString { return repeated(tag, 100'000) + text("<meta>"); };
    const QString page = many("<meta name=twitter:title content=b>")
        + many("<meta name=description content=b>") + many("<meta name=og:title content=''>")
        + many("<meta name=a name=og:title content=b>")
        + text("<meta name=og:title content=a><meta name=twitter:description content=a>");
    EXPECT_EQ(parse(page, pageUrl).title, text("a"));
    EXPECT_EQ(parse(page, pageUrl).summary, text("a"));
    const QString held = text("<meta name=og:title content=a>") + page + page;
    EXPECT_EQ(parse(held, pageUrl).title, text("a"));
    EXPECT_EQ(parse(held, pageUrl).summary, text("a"));
}

TEST(PageReader, PrefersAHeldKeyToALaterOneThatStandsBesideAnother)
{
    EXPECT_EQ(read("<meta name=og:title content=a>"
                   "<meta name=twitter:title data-name=og:image content=b>")
                  .title,
              text("a"));
}

TEST(PageReader, PrefersThePropertyToTheName)
{
    EXPECT_EQ(read("<meta name=og:title property=og:description content=a>").summary, text("a"));
    EXPECT_EQ(read("<meta name=og:title property=other content=a>").title, std::nullopt);
    EXPECT_EQ(read("<meta name=og:title property='' content=a>").title, std::nullopt)
        << "an empty property is one";
    EXPECT_EQ(read("<meta name=og:title property content=a>").title, text("a"))
        << "a property without a value is none";
}

/// What each tag gives the summary.
TEST(PageReader, ReadsAttributesAsTheyAreWritten)
{
    struct Case {
        const char *attributes;
        const char *summary;
    };
    const std::array cases = {
        Case{"content=bare-value name=description", "bare-value"},
        Case{"name = \"description\" content \n=\t \"x\"", "x"},
        Case{"name=description content=a/>", "a/"},
        Case{"name=description content='it is \"so\"'", "it is \"so\""},
        Case{"name=description content=\"it's\"", "it's"},
        Case{"name=description content=a\"b", "a"},
        Case{"name=description content=a'b", "a'b"},
        Case{"name=description content='open", "'open"},
        Case{"name=description content='", "'"},
        Case{"name=description content=\"open content=second", "second"},
        Case{"name=description content content=second", "second"},
        Case{"name=description content=first content=second", "first"},
        Case{"name=description content=\"a\nb\"", "a\nb"},
        Case{"name=description content=\"\u00fc \U0001f426\"", "\u00fc \U0001f426"},
        Case{"name=description content=\"\" content=second", nullptr},
        Case{"name=description content=\"&quot;a&quot;\"", "\"a\""},
        // No boundary before a name, and none before what was read as one.
        Case{"og-property=description content=a", "a"},
        Case{"itemname=description data-content=a", "a"},
        Case{"title='name=description' content=a", nullptr},
        Case{"name=description title='content=a'", "a'"},
        Case{"name=description contents=a", nullptr},
        Case{"name=other content=a", nullptr},
        Case{"name=descriptions content=a", nullptr},
        Case{"name=' description' content=a", nullptr},
        Case{"name=d\u212aescription content=a", nullptr},
        // What names the key may stand before, behind and inside of the content.
        Case{"content=a name=description", "a"},
        Case{"content='a' b name='description'", "a"},
        Case{"content=name=description", "name=description"},
        Case{"content=\"name=description\"", "name=description"},
        Case{"content='name=description '", "name=description"},
        Case{"content=\"x name='description' y\"", "x name='description' y"},
        Case{"content='' name=description", nullptr},
        Case{"content=\"\" content=a name=description", nullptr},
        Case{R"(name="description"content="a")", "a"},
        // Blanks are those of Unicode.
        Case{"name\u00a0=\u2003description\u3000content=a\u2028b", "a"},
        Case{"name=description content=\u200ba", "\u200ba"},
    };
    for (const Case &c : cases) {
        const Preview preview = read(QByteArray("<meta ") + c.attributes + ">");
        const auto expected = c.summary ? std::optional(text(c.summary)) : std::nullopt;
        EXPECT_EQ(preview.summary, expected) << c.attributes;
    }
}

TEST(PageReader, EndsATagAtTheFirstAngle)
{
    EXPECT_EQ(read("<meta name=description content=\"a > b\">").summary, std::nullopt);
    EXPECT_EQ(read("<meta name=description content=a>b").summary, text("a"));
    EXPECT_EQ(read("<meta <meta name=description\ncontent=a>").summary, text("a"));
    EXPECT_EQ(read("<meta name=description content=a").summary, std::nullopt);
}

TEST(PageReader, WantsABlankBehindTheTagsName)
{
    EXPECT_EQ(read("<meta\u3000name=description content=a>").summary, text("a"));
    EXPECT_EQ(read("<meta\nname=description content=a>").summary, text("a"));
    EXPECT_EQ(read("<metaname=description content=a>").summary, std::nullopt);
    EXPECT_EQ(read("<meta/name=description content=a>").summary, std::nullopt);
    EXPECT_EQ(read("< meta name=description content=a>").summary, std::nullopt);
}

TEST(PageReader, ReadsTagsInCommentsAndBodiesToo)
{
    EXPECT_EQ(read("<body><!-- <meta name=description content=a> -->").summary, text("a"));
}

TEST(PageReader, TakesTheHostWhereTheSiteHasNoName)
{
    EXPECT_EQ(read("").siteName, text("www.example.org"));
    EXPECT_EQ(read("<meta property=og:site_name content='The Example'>").siteName,
              text("The Example"));
    EXPECT_EQ(read("<meta property=og:site_name content=' '>").siteName, QString());
    EXPECT_EQ(parse(QString(), QUrl(QStringLiteral("file:///a.html"))).siteName, std::nullopt);
    EXPECT_EQ(parse(QString(), QUrl()).siteName, std::nullopt);
    EXPECT_EQ(parse(QString(), QUrl(QStringLiteral("https://xn--80ak6aa92e.com/"))).siteName,
              QStringLiteral("xn--80ak6aa92e.com"));
}

TEST(PageReader, ResolvesThePictureAgainstThePage)
{
    struct Case {
        const char *content;
        const char *url;
    };
    const std::array cases = {
        Case{"/img/card.png", "https://www.example.org/img/card.png"},
        Case{"card.png", "https://www.example.org/news/card.png"},
        Case{"../card.png?a=b&amp;c=d", "https://www.example.org/card.png?a=b&c=d"},
        Case{"//cdn.example.net/a.png", "https://cdn.example.net/a.png"},
        Case{"http://other.example/a.png", "http://other.example/a.png"},
        Case{"?b", "https://www.example.org/news/today.html?b"},
        Case{" a b.png ", "https://www.example.org/news/a%20b.png"},
        Case{"/\u00fc.png", "https://www.example.org/%C3%BC.png"},
        Case{"data:image/png,x", "data:image/png,x"},
    };
    for (const Case &c : cases) {
        const QByteArray html
            = QByteArray(R"(<meta property="og:image" content=")") + c.content + "\">";
        const Preview preview = read(html);
        ASSERT_TRUE(preview.imageURL.has_value()) << c.content;
        EXPECT_EQ(preview.imageURL->toEncoded(), c.url);
        EXPECT_TRUE(preview.isUseful());
    }
}

TEST(PageReader, HasNoPictureWhereTheFirstKeyHoldsNoAddress)
{
    for (const char *content : {" ", "http://[", "http://a:99999999/", "http://a b/", "::"}) {
        const QByteArray html = QByteArray("<meta name=og:image content=\"") + content
            + R"("><meta name=twitter:image content="http://x/">)";
        EXPECT_EQ(read(html).imageURL, std::nullopt) << content;
        EXPECT_FALSE(read(html).isUseful());
    }
}

TEST(PageReader, HasNoRelativePictureWithoutAPage)
{
    EXPECT_EQ(parse(text("<meta name=og:image content=a.png>"), QUrl()).imageURL, std::nullopt);
}

TEST(PageReader, TakesAnAddressThatNoServerWouldForNone)
{
    const auto page = [](qsizetype length) -> QString {
        return text("<meta name=og:image content=\"/") + QString(length - 1, QLatin1Char('a'))
            + text("\">");
    };
    EXPECT_TRUE(parse(page(page_reader::maximumAddressLength), pageUrl).imageURL.has_value());
    EXPECT_FALSE(parse(page(page_reader::maximumAddressLength + 1), pageUrl).imageURL.has_value());
}

TEST(PageReader, FindsNothingUsefulInNamesAndSummaries)
{
    const Preview preview = read("<meta property=og:site_name content=a>"
                                 "<meta property=og:description content=b>");
    EXPECT_EQ(preview.siteName, text("a"));
    EXPECT_EQ(preview.summary, text("b"));
    EXPECT_FALSE(preview.isUseful());
    EXPECT_FALSE(read("").isUseful());
}

TEST(PageReader, ReadsHugeTagsAndValues)
{
    const QString noise = repeated("content = ' name \" property=' ", maximumPageBytes);
    EXPECT_EQ(parse(text("<meta ") + noise + text(" name=og:title>"), pageUrl).title, std::nullopt);
    const QString value = repeated("\u00fc content='x' ", maximumPageBytes / 2).trimmed();
    EXPECT_EQ(parse(text("<meta name=og:title content=\"") + value + text("\">"), pageUrl).title,
              value);
    EXPECT_EQ(parse(text("<title>") + value + text("</title>"), pageUrl).title, value);
}

/// Each of these takes minutes where a search starts again at every tag.
TEST(PageReader, EndsOnPagesMadeToNeverEnd)
{
    for (const char *unit :
         {"<meta ", "<title", "<title>", "<meta <title>", "<meta property=", "<meta property=\"",
          "<meta content=' ", "<meta >", "<meta name=og:title content=\"\">", "<", "=", " ", "\"",
          "content", "<meta name=og:title content= ", "</title", "&amp;"}) {
        const QString page = repeated(unit, maximumPageBytes);
        EXPECT_FALSE(parse(page, pageUrl).isUseful()) << unit;
        const Preview closed = parse(page + text("\"'><title>a</title>"), pageUrl);
        EXPECT_TRUE(closed.isUseful()) << unit;
        const QString inTag = text("<meta ") + page + text(">");
        EXPECT_EQ(parse(inTag, pageUrl).imageURL, std::nullopt) << unit;
    }
}

TEST(PageReader, ReadsTextThatIsNoUnicode)
{
    const QString page = text("<meta name=og:title content=\"a") + QChar(0xd800) + text("b\">");
    const auto title = parse(page, pageUrl).title;
    ASSERT_TRUE(title.has_value());
    EXPECT_EQ(title->size(), 3);
    EXPECT_EQ(title->front(), QLatin1Char('a'));
    EXPECT_EQ(title->back(), QLatin1Char('b'));
}

} // namespace
} // namespace corvane
