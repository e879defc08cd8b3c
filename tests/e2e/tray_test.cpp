// The icon in the panel and its menu, with panels that we did not write.

#include "e2e/desktop_test.h"

#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Tray : public DesktopTest {
protected:
    bool hold(int count)
    {
        QStringList files;
        for (int i = 0; i < count; ++i)
            files << makeFile(u"file %1.txt"_s.arg(i), "x");
        return dropFiles(files);
    }
};

TEST_F(Tray, anX11TrayShowsTheIconAndAClickOpensTheMenu)
{
    X11Tray tray(m_desktop);
    ASSERT_TRUE(tray.waitUntilReady());
    start();
    ASSERT_TRUE(tray.waitForIcon());
    openMenu(tray.icon().center());
    // The first row shows the shelf.
    hands().key(keys::down);
    hands().key(keys::enter);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    EXPECT_TRUE(eventually([this] { return !corvane().popup(); }));
    openMenu(tray.icon().center(), 3);
    hands().key(keys::down);
    hands().key(keys::enter);
    EXPECT_TRUE(corvane().waitUntilHidden()) << "the same row closes it";
}

TEST_F(Tray, quittingFromTheMenuLeavesNothingBehind)
{
    X11Tray tray(m_desktop);
    ASSERT_TRUE(tray.waitUntilReady());
    start();
    ASSERT_TRUE(tray.waitForIcon());
    ASSERT_TRUE(dropOffers({{"text/plain", "some text"}}));
    openMenu(tray.icon().center());
    // The last row.
    hands().key(keys::up);
    hands().key(keys::enter);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(corvane().spool()));
    EXPECT_TRUE(tray.waitUntilEmpty());
}

TEST_F(Tray, theMenusKeysAreOnlyShown)
{
    X11Tray tray(m_desktop);
    ASSERT_TRUE(tray.waitUntilReady());
    start();
    ASSERT_TRUE(tray.waitForIcon());
    // With its menu open no key of a row's does that row's work.
    openMenu(tray.icon().center());
    hands().key('q', {keys::control});
    hands().key(keys::escape);
    EXPECT_TRUE(eventually([this] { return !corvane().popup(); }));
    // Nor in a window of the program's own, once the menu has been there.
    ASSERT_TRUE(hold(1));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(20, 20));
    hands().key('q', {keys::control});
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden()) << "it still runs";
}

TEST_F(Tray, aTrayThatComesLaterAndOneThatComesBackShowTheIcon)
{
    start();
    {
        X11Tray tray(m_desktop);
        ASSERT_TRUE(tray.waitUntilReady());
        EXPECT_TRUE(tray.waitForIcon());
    }
    X11Tray another(m_desktop);
    ASSERT_TRUE(another.waitUntilReady());
    EXPECT_TRUE(another.waitForIcon());
}

TEST_F(Tray, theIconNeedsNoSessionBus)
{
    X11Tray tray(m_desktop);
    ASSERT_TRUE(tray.waitUntilReady());
    auto environment = m_desktop.environment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    m_corvane
        = std::make_unique<CorvaneProgram>(m_desktop, CorvaneProgram::Start{{}, {}, environment});
    EXPECT_TRUE(tray.waitForIcon());
}

class BusTray : public Tray { };

TEST_F(BusTray, aPanelShowsTheItemAndAClickOpensTheMenu)
{
    NotifierPanel panel(m_desktop);
    ASSERT_TRUE(panel.waitUntilReady());
    const QImage empty = m_desktop.pictureAtRest(panel.iconFrame());
    start();
    ASSERT_TRUE(panel.waitForItemOf(corvane().program().pid()));
    const auto popups = [this] {
        int count = 0;
        for (const WindowFacts &window : server().windows())
            count += window.isViewable && window.isOverrideRedirect ? 1 : 0;
        return count;
    };
    const int before = popups();
    // The panel draws the icon a moment after it has been handed in.
    ASSERT_TRUE(eventually([&] { return server().picture(panel.iconFrame()) != empty; }));
    m_desktop.pictureAtRest(panel.iconFrame());
    hands().click(panel.iconFrame().center());
    ASSERT_TRUE(eventually([&] { return popups() > before; }));
    hands().key(keys::down);
    hands().key(keys::enter);
    EXPECT_TRUE(corvane().waitUntilShown());
}

TEST_F(BusTray, theMenuAndTheToolTipFollowTheShelf)
{
    NotifierPanel panel(m_desktop);
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    const QStringList end{u"-"_s, u"Preferences…"_s, u"How It Works…"_s, u"-"_s, u"Quit Corvane"_s};
    EXPECT_EQ(item->menu(), QStringList{u"Show Shelf"_s} + end);
    EXPECT_TRUE(item->property(u"ToolTip"_s).contains("\"Corvane\""));
    const QByteArray emptyIcon = item->property(u"IconPixmap"_s);

    ASSERT_TRUE(hold(1));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_EQ(item->menu(), (QStringList{u"Show Shelf"_s, u"Clear Shelf (1 item)"_s} + end));
    EXPECT_TRUE(item->property(u"ToolTip"_s).contains("Corvane — 1 item"));
    EXPECT_NE(item->property(u"IconPixmap"_s), emptyIcon);

    ASSERT_TRUE(hold(4));
    EXPECT_TRUE(eventually([&] {
        return item->menu()
            == QStringList{u"Show Shelf"_s, u"View All Items…"_s, u"Clear Shelf (5 items)"_s} + end;
    }));
    EXPECT_TRUE(item->property(u"ToolTip"_s).contains("Corvane — 5 items"));

    EXPECT_TRUE(item->choose(u"Clear Shelf (5 items)"_s));
    EXPECT_TRUE(eventually([&] { return item->menu() == QStringList{u"Show Shelf"_s} + end; }));
}

TEST_F(BusTray, aChangedShortcutShowsTheNextTimeTheMenuOpens)
{
    NotifierPanel panel(m_desktop);
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->keys(u"Show Shelf"_s), u"Super+Shift+D"_s);
    ASSERT_TRUE(item->choose(u"Preferences…"_s));
    ASSERT_TRUE(eventually([this] {
        const auto window = corvane().window();
        return window && window->id == server().activeWindow();
    }));
    // By keyboard past the tabs, the numbers and four switches to the field of the shortcut.
    constexpr int stops = 7;
    for (int i = 0; i < stops; ++i)
        hands().key(keys::tab);
    hands().key(keys::space);
    hands().key('j', {keys::super, keys::alt});
    EXPECT_TRUE(eventually([&] { return item->keys(u"Show Shelf"_s) == u"Super+Alt+J"_s; }))
        << item->keys(u"Show Shelf"_s).toStdString();
    EXPECT_EQ(item->keys(u"Quit Corvane"_s), u"Control+Q"_s);
}

TEST_F(BusTray, quittingFromTheMenuEndsTheProgram)
{
    NotifierPanel panel(m_desktop);
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    EXPECT_TRUE(item->choose(u"Quit Corvane"_s));
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(corvane().spool()));
}

TEST_F(BusTray, aPanelThatComesLaterAndOneThatComesBackShowTheItem)
{
    start();
    {
        NotifierPanel panel(m_desktop);
        EXPECT_TRUE(panel.waitForItemOf(corvane().program().pid()));
    }
    NotifierPanel another(m_desktop);
    EXPECT_TRUE(another.waitForItemOf(corvane().program().pid()));
}

TEST(Packaging, theDesktopEntryAndTheDescriptionAreValid)
{
    const QString folder = QCoreApplication::applicationDirPath() + u"/../packaging/"_s;
    const QString name = u"example.corvane.Corvane"_s;
    const auto environment = QProcessEnvironment::systemEnvironment();
    EXPECT_TRUE(outputOf(u"desktop-file-validate"_s, {folder + name + u".desktop"_s}, environment));
    EXPECT_TRUE(outputOf(u"appstreamcli"_s,
                         {u"validate"_s, u"--no-net"_s, folder + name + u".metainfo.xml"_s},
                         environment));
}

TEST_F(Tray, startedByTheBusItTakesTheFirstCallForItsLaunch)
{
    CorvaneProgram::Start how{{}, {}, m_desktop.environment()};
    how.arguments = QStringList{u"--started-by-bus"_s};
    start(how);
    MapLog log(m_desktop.environment().value(u"DISPLAY"_s).toLatin1());
    ASSERT_EQ(corvane().startAgain(), 0);
    ASSERT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    ASSERT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(log.panelsShown(corvane().program().pid()), 1);
}

} // namespace
} // namespace corvane::e2e
