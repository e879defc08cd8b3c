// Texts pass the shelf as their source wrote them, byte by byte.

#include "e2e/desktop/browser.h"
#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

const QByteArray lines = "first\nsecond line\n\n  last \xc3\xa9 \xe2\x82\xac";

class Texts : public DesktopTest {
protected:
    void drop()
    {
        dropOnShelf();
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }
    /// The one item of the shelf, as another program gets it from the clipboard.
    QByteArray copied(const QByteArray &expected)
    {
        focusShelf(onlyItem());
        hands().key('c', {keys::control});
        return clipboardText(expected);
    }
    void dragOutTo(QPoint place)
    {
        dropOutOn(onlyItem(), place);
        EXPECT_TRUE(corvane().waitUntilHidden());
    }
    QPoint onlyItem() { return corvane().at(38, 22); }
    QRect leftHalf() const { return {60, 300, 560, 400}; }
    QRect rightHalf() const { return {760, 300, 560, 400}; }
};

using Toolkit = TextEditor::Toolkit;

class EditorTexts : public Texts, public testing::WithParamInterface<Toolkit> {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        if (!TextEditor::isInstalled(GetParam()))
            GTEST_SKIP() << "this toolkit is not installed";
    }
};

INSTANTIATE_TEST_SUITE_P(, EditorTexts, testing::Values(Toolkit::Gtk3, Toolkit::Gtk4, Toolkit::Qt),
                         [](const auto &toolkit) {
                             return toolkit.param == Toolkit::Gtk3 ? "gtk3"
                                 : toolkit.param == Toolkit::Gtk4  ? "gtk4"
                                                                   : "qt";
                         });

TEST_P(EditorTexts, keepTheirLineEndsOnTheWayInAndOut)
{
    TextEditor source(m_desktop, lines, leftHalf(), GetParam());
    ASSERT_EQ(source.problem(), QString());
    TextEditor target(m_desktop, "", rightHalf(), GetParam());
    ASSERT_EQ(target.problem(), QString());
    start();
    source.selectAll();
    hands().beginDrag(source.firstWord(), QPoint(756, 0));
    drop();
    EXPECT_EQ(copied(lines), lines);
    EXPECT_EQ(m_desktop.clipboard(u"TEXT"_s), lines);
    dragOutTo(target.middle());
    EXPECT_EQ(target.text(lines), lines);
}

class BrowserTexts : public Texts, public testing::WithParamInterface<Browser::Kind> {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        if (!Browser::isInstalled(GetParam()))
            GTEST_SKIP() << "this browser is not installed";
    }
};

INSTANTIATE_TEST_SUITE_P(, BrowserTexts,
                         testing::Values(Browser::Kind::Chromium, Browser::Kind::Firefox),
                         [](const auto &kind) {
                             return kind.param == Browser::Kind::Chromium ? "chromium" : "firefox";
                         });

TEST_P(BrowserTexts, keepTheirLineEndsOnTheWayInAndOut)
{
    Browser browser(m_desktop, GetParam(), u"http://corvane.example/"_s, {},
                    QRect(60, 200, 700, 600));
    ASSERT_EQ(browser.problem(), QString());
    start();
    browser.selectAllText();
    hands().beginDrag(browser.firstWord(), QPoint(756, 0));
    drop();
    EXPECT_EQ(copied(Browser::initialText()), Browser::initialText());

    browser.selectAllText();
    hands().key(keys::backSpace);
    dragOutTo(browser.belowText());
    EXPECT_EQ(browser.text(Browser::initialText()), Browser::initialText());
}

/// A text that is offered under one name only.
struct Spelling {
    const char *name;
    QByteArray type;
    QByteArray bytes;
    QByteArray expected;
};
void PrintTo(const Spelling &spelling, std::ostream *out)
{
    *out << spelling.name;
}

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

const QString wide = u"é 中 a\nb"_s;

class OddTexts : public Texts, public testing::WithParamInterface<Spelling> { };

INSTANTIATE_TEST_SUITE_P(
    , OddTexts,
    testing::Values(
        Spelling{"latin1_string", "STRING", "caf\xe9\nb", "caf\xc3\xa9\nb"},
        Spelling{"latin1_declared", "text/plain;charset=ISO-8859-1", "caf\xe9\nb",
                 "caf\xc3\xa9\nb"},
        Spelling{"latin1_undeclared", "text/plain", "caf\xe9\nb", "caf\xc3\xa9\nb"},
        Spelling{"latin9_declared", "text/plain;charset=iso-8859-15", "\xa4", "\xe2\x82\xac"},
        Spelling{"utf16_declared", "text/plain;charset=utf-16", utf16(wide), wide.toUtf8()},
        Spelling{"utf16_marked", "text/plain;charset=UTF-16", "\xff\xfe" + utf16(wide),
                 wide.toUtf8()},
        Spelling{"utf16_undeclared", "text/plain", utf16(wide), wide.toUtf8()},
        Spelling{"utf16_unicode", "text/unicode", utf16(wide), wide.toUtf8()},
        Spelling{"utf8_text", "TEXT", wide.toUtf8(), wide.toUtf8()},
        Spelling{"utf8_spaced", "text/plain; charset=UTF-8", "a\r\nb\r\n", "a\r\nb\r\n"}),
    [](const auto &spelling) { return std::string(spelling.param.name); });

TEST_P(OddTexts, areRead)
{
    start();
    ASSERT_TRUE(dropOffers({{GetParam().type, GetParam().bytes}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(copied(GetParam().expected), GetParam().expected);
}

TEST_F(Texts, areTakenUnderTheNameThatChangesThemLeast)
{
    start();
    ASSERT_TRUE(dropOffers({{"text/plain", "one?\r\ntwo\r\n"},
                            {"text/plain;charset=utf-8", "one \xe2\x82\xac\r\ntwo\r\n"},
                            {"UTF8_STRING", "one \xe2\x82\xac\ntwo\n"},
                            {"STRING", "one ?\ntwo\n"}}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(copied("one \xe2\x82\xac\ntwo\n"), "one \xe2\x82\xac\ntwo\n");
}

} // namespace
} // namespace corvane::e2e
