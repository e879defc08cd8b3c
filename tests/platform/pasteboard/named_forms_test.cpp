#include "platform/pasteboard/named_forms.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

NamedForms textOf(const QByteArray &utf8)
{
    return NamedForms({{u"text/plain;charset=utf-8"_s, utf8, {0}}, {u"text/plain"_s, utf8, {0}}});
}

TEST(NamedForms, aTextHasItsExactNameFirstAndTheOldOnesAfterIt)
{
    const QStringList expected{u"text/plain;charset=utf-8"_s, u"text/plain"_s, u"UTF8_STRING"_s,
                               u"STRING"_s, u"TEXT"_s};
    EXPECT_EQ(textOf("text").names(), expected);
}

TEST(NamedForms, everyNameOfATextButTheLatinOneIsUtf8ByteByByte)
{
    const QByteArray text = "Gr\xc3\xbc\xc3\x9f"
                            "e, \xe4\xbd\xa0\nline";
    const NamedForms forms = textOf(text);
    for (const QString &name : {u"text/plain;charset=utf-8"_s, u"text/plain"_s, u"UTF8_STRING"_s}) {
        const auto answer = forms.answerTo(name);
        ASSERT_TRUE(answer) << name.toStdString();
        EXPECT_EQ(answer->bytes, text);
        EXPECT_EQ(answer->type, name);
        EXPECT_EQ(answer->holds, QList<qsizetype>{0});
    }
}

TEST(NamedForms, ofATextThatIsNotAsciiNoNameIsOfferedThatMayBeReadInTwoWays)
{
    const QStringList expected{u"text/plain;charset=utf-8"_s, u"text/plain"_s, u"UTF8_STRING"_s};
    EXPECT_EQ(textOf("\xe4\xbd\xa0").names(), expected);
    EXPECT_EQ(textOf("Gr\xc3\xbc").names(), expected) << "Latin-1 has all of it";
}

TEST(NamedForms, everyNameThatIsOfferedOfATextGivesTheSameBytes)
{
    for (const QByteArray text : {"plain\r\n", "\x7f~", "\xc2\x80", "Gr\xc3\xbc", "\xe4\xbd\xa0"}) {
        const NamedForms forms = textOf(text);
        ASSERT_FALSE(forms.names().isEmpty());
        for (const QString &name : forms.names()) {
            const auto answer = forms.answerTo(name);
            ASSERT_TRUE(answer) << name.toStdString();
            EXPECT_EQ(answer->bytes, text) << name.toStdString();
        }
    }
}

TEST(NamedForms, aTextThatLosesCharactersIsNotHeld)
{
    const auto answer = textOf("\xe4\xbd\xa0").answerTo(u"STRING"_s);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->bytes, "?");
    EXPECT_EQ(answer->holds, QList<qsizetype>());
}

TEST(NamedForms, whoLeavesTheTypeToUsGetsLatinWhereThatHasAllCharacters)
{
    const auto latin = textOf("Gr\xc3\xbc").answerTo(u"TEXT"_s);
    ASSERT_TRUE(latin);
    EXPECT_EQ(latin->type, u"STRING"_s);
    EXPECT_EQ(latin->bytes, "Gr\xfc");
    const auto other = textOf("\xe4\xbd\xa0").answerTo(u"TEXT"_s);
    ASSERT_TRUE(other);
    EXPECT_EQ(other->type, u"UTF8_STRING"_s);
    EXPECT_EQ(other->bytes, "\xe4\xbd\xa0");
}

TEST(NamedForms, whoLeavesTheTypeToUsLosesNoCharacterOfATextThatHoldsNothingEither)
{
    const NamedForms forms({{u"text/plain"_s, "\xe4\xbd\xa0", {}}});
    const auto answer = forms.answerTo(u"TEXT"_s);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->type, u"UTF8_STRING"_s);
    EXPECT_EQ(answer->bytes, "\xe4\xbd\xa0");
}

TEST(NamedForms, theFirstAddressComesWithATitleForBrowsers)
{
    const NamedForms forms({{u"text/uri-list"_s, "https://a.example/\r\nfile:///b\r\n", {1, 2}}});
    EXPECT_EQ(forms.names(), (QStringList{u"text/uri-list"_s, u"text/x-moz-url"_s}));
    const auto answer = forms.answerTo(u"text/x-moz-url"_s);
    ASSERT_TRUE(answer);
    const QString pair = u"https://a.example/\nhttps://a.example/"_s;
    EXPECT_EQ(answer->bytes,
              QByteArray(reinterpret_cast<const char *>(pair.utf16()), 2 * pair.size()));
    EXPECT_EQ(answer->holds, QList<qsizetype>{1});
}

TEST(NamedForms, whatIsNotOfferedHasNoAnswer)
{
    EXPECT_FALSE(textOf("text").answerTo(u"image/png"_s));
    EXPECT_FALSE(NamedForms().answerTo(u"text/plain"_s));
}

} // namespace
} // namespace corvane::test
