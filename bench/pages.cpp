// Reading what a page of 3 MiB says about itself: an ordinary page beside decoding and counting its
// characters, and pages made to take long beside the ordinary one.

#include "services/page_reader.h"
#include "support/table.h"

namespace corvane::bench {

namespace {

QByteArray filled(QByteArray page, const QByteArray &unit)
{
    page.reserve(page_reader::maximumPageBytes + unit.size());
    while (page.size() < page_reader::maximumPageBytes)
        page += unit;
    return page.first(page_reader::maximumPageBytes);
}

QByteArray ordinaryPage()
{
    QByteArray head
        = "<!DOCTYPE html>\n<html><head>\n<title>An ordinary page &amp; its title</title>\n";
    for (int i = 0; i < 37; ++i)
        head += "<meta name=\"other:" + QByteArray::number(i)
            + "\" content=\"some text of a usual length, as it stands in many pages\">\n";
    head += "<meta property=\"og:title\" content=\"An ordinary page\">\n"
            "<meta property=\"og:description\" content=\"What it is about &lt;in short&gt;\">\n"
            "<meta property=\"og:image\" content=\"/pictures/card.png\">\n</head><body>\n";
    return filled(
        head,
        "<p class=\"text\">Some words, and <a href=\"/another/page\">a link</a>; gr\xc3\xb6"
        "\xc3\x9f"
        "er than most, \xe2\x80\x9cquoted\xe2\x80\x9d, and so on to the end.</p>\n");
}

/// Milliseconds.
double reading(const QByteArray &page)
{
    static const QUrl url(QStringLiteral("https://www.example.org/news/today.html"));
    return cpuTimeOf([&] { page_reader::parse(page_reader::decodePage(page), url); });
}

/// The least that can be done with a page: its bytes become characters, and each is looked at once.
double lookingAt(const QByteArray &page)
{
    return cpuTimeOf([&] {
        volatile qsizetype found = QString::fromUtf8(page).count(QLatin1Char('<'));
        static_cast<void>(found);
    });
}

} // namespace

} // namespace corvane::bench

int main()
{
    using namespace corvane::bench;
    const QByteArray page = ordinaryPage();
    const double ordinary = reading(page);
    print({"reading an ordinary page of 3 MiB", lookingAt(page), ordinary, "ms", 4});
    const auto printHostile = [ordinary](const char *figure, const QByteArray &unit) {
        print({figure, ordinary, reading(filled({}, unit)), "ms", 4});
    };
    printHostile("the same of \"<meta \" without an end", "<meta ");
    printHostile("the same of \"<title\" without an end", "<title");
    printHostile("the same of both, and attributes", "<title <meta property=og:title content='");
    printHostile("the same of complete tags alone", "<meta name=a content=b>\n");
    printHostile("the same of tags that name a key", "<meta og:title>");
    printHostile("the same of one tag again and again",
                 R"(<meta property="og:title" content="x">)");
    printHostile("the same of it without a content", R"(<meta property="og:title" content="">)");
    printHostile("the same of keys as contents", "<meta name=a content=og:title>");
    printHostile("the same of keys that another name precedes",
                 "<meta name=x name=og:title content=y>");
}
