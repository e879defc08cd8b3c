// What is KWin's alone among Wayland sessions: its service for hot keys.

#include "e2e/desktop_test.h"

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class KWin : public DesktopTest {
protected:
    KWin()
        : DesktopTest({.windowManager = WindowManager::KWin, .compositor = Compositor::None})
    {
    }
    /// The keys of the program's action that shows the shelf, as the service keeps them.
    QByteArray boundKeys()
    {
        return ask(u"org.kde.KGlobalAccel.shortcut"_s,
                   {u"['example.corvane.Corvane', 'toggle', '', '']"_s});
    }
    QByteArray ask(const QString &method, const QStringList &arguments)
    {
        return outputOf(u"gdbus"_s,
                        QStringList{u"call"_s, u"--session"_s, u"--dest"_s,
                                    u"org.kde.kglobalaccel"_s, u"--object-path"_s,
                                    u"/kglobalaccel"_s, u"--method"_s, method}
                            + arguments,
                        m_desktop.environment())
            .value_or(QByteArray());
    }
};

/// Meta, Shift and D as Qt numbers them.
constexpr auto superShiftD = "301989956";

TEST_F(KWin, itsHotKeyShowsAndHidesTheShelf)
{
    start();
    ASSERT_TRUE(eventually([&] { return boundKeys().contains(superShiftD); }));
    hands().key('d', {keys::super, keys::shift});
    EXPECT_TRUE(corvane().waitUntilShown());
    hands().key('d', {keys::super, keys::shift});
    EXPECT_TRUE(corvane().waitUntilHidden());
}

TEST_F(KWin, keysThatTheUserChoseInTheDesktopAreThoseOfTheNextStart)
{
    start();
    ASSERT_TRUE(eventually([&] { return boundKeys().contains(superShiftD); }));
    // Meta and Y.
    ask(u"org.kde.KGlobalAccel.setForeignShortcut"_s,
        {u"['example.corvane.Corvane', 'toggle', '', '']"_s, u"[268435545]"_s});
    m_corvane.reset();
    start();
    // The service says of no keys whether they reach us by now.
    EXPECT_TRUE(eventually([&] {
        if (!corvane().isShown())
            hands().key('y', {keys::super});
        return corvane().waitUntilShown();
    }));
    ask(u"org.kde.KGlobalAccel.setForeignShortcut"_s,
        {u"['example.corvane.Corvane', 'toggle', '', '']"_s,
         u"[%1]"_s.arg(QLatin1String(superShiftD))});
}

} // namespace
} // namespace corvane::e2e
