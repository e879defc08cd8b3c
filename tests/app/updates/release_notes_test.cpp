#include "app/updates/release_notes.h"

#include <gtest/gtest.h>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace corvane::test {

namespace {

QString stripped(const char *html)
{
    return release_notes::shown(release_notes::withoutMarkup(QString::fromUtf8(html)));
}

} // namespace

TEST(ReleaseNotes, MarkupBecomesPlainText)
{
    EXPECT_EQ(stripped("<h2>New</h2><ul><li>One <b>bold</b></li><li>Two &amp; three</li></ul>"),
              QStringLiteral("New\n\n• One bold\n• Two & three"));
    EXPECT_EQ(stripped("A<br/>B"), QStringLiteral("A\nB"));
}

TEST(ReleaseNotes, ScriptsStylesAndCommentsAreNotShown)
{
    EXPECT_EQ(stripped("A<script>alert('<b>')</SCRIPT>B<style>p{}</style>C<!-- <p> > -->D"),
              QStringLiteral("ABCD"));
    EXPECT_EQ(stripped("A<script>without end"), QStringLiteral("A"));
}

TEST(ReleaseNotes, WhatIsNoTagStays)
{
    EXPECT_EQ(stripped("1 < 2 and <unfinished"), QStringLiteral("1 < 2 and <unfinished"));
}

TEST(ReleaseNotes, WhatWasEscapedIsShownAndIsNoTag)
{
    EXPECT_EQ(stripped("&lt;b&gt;"), QStringLiteral("<b>"));
}

TEST(ReleaseNotes, NothingForgesWhatItSays)
{
    EXPECT_EQ(release_notes::shown(QStringLiteral("a\u202Egpj\x1B[0m\r\nb")),
              QStringLiteral("a\uFFFDgpj [0m\nb"));
}

TEST(ReleaseNotes, EmptyLinesDoNotPushTheTextOutOfSight)
{
    EXPECT_EQ(release_notes::shown(QStringLiteral("\n\n a \n\n\n\nb\n\n")),
              QStringLiteral("a\n\nb"));
}

TEST(ReleaseNotes, AMillionOpenTagsTakeLinearTime)
{
    const QString hostile = QStringLiteral("<a").repeated(1'000'000);
    EXPECT_LE(release_notes::shown(release_notes::withoutMarkup(hostile)).size(),
              release_notes::maximumCharacters);
}

TEST(ReleaseNotes, LongLinesAreKept)
{
    const QString line(2000, u'x');
    EXPECT_EQ(release_notes::shown(line), line);
}

} // namespace corvane::test
