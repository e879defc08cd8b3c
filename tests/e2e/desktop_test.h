#pragma once

#include "e2e/desktop/bar.h"
#include "e2e/desktop/corvane_program.h"
#include "e2e/desktop/eventually.h"
#include "e2e/desktop/file_manager.h"
#include "e2e/desktop/tray_panel.h"
#include "e2e/desktop/x_desktop.h"
#include "e2e/desktop/xdnd_peer.h"

#include <QDir>
#include <QString>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

// GoogleTest finds these beside the types and would print lists of characters otherwise.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.left(2000).toStdString() << '"';
}
inline void PrintTo(const QSize &size, std::ostream *out)
{
    *out << size.width() << 'x' << size.height();
}

namespace corvane::e2e {

/// The desktop of that kind. Desktops are kept from test to test: starting one takes longer than
/// most tests.
XDesktop &desktopOf(DesktopKind kind);
void endDesktops();
/// One that is no longer what it was; the next test on that kind has another.
void endDesktop(const XDesktop &desktop);
/// Leaves a picture of the desktop at each failure, in e2e-failures/ of the build folder.
void takePicturesOfFailures();

/// A test on a desktop that others have used before: programs, files and the program under test are
/// its own and go with it.
class DesktopTest : public testing::Test {
protected:
    explicit DesktopTest(DesktopKind kind = {});

    void SetUp() override;
    void TearDown() override;

    XServer &server() { return m_desktop.server(); }
    Hands &hands() { return m_desktop.hands(); }

    /// Starts the program under test and waits until it watches the desktop.
    void start(const CorvaneProgram::Start &how = {});
    /// Starts with an icon in this panel; none where it does not come.
    std::optional<NotifierFacts> startInPanel(NotifierPanel &panel,
                                              const CorvaneProgram::Start &how = {});
    void startWithInView(int count) { start({count, {}, {}}); }
    CorvaneProgram &corvane() { return *m_corvane; }

    QString makeFolder(const QString &name);
    QString makeFile(const QString &name, const QByteArray &contents);

    /// A point of the shelf where a drop is welcome and that leaves its left end to be looked at.
    QPoint dropPoint();
    /// With a drag in the hand: moves over the shelf, waits until it shows that it would take the
    /// drop, and releases.
    void dropOnShelf();
    /// The same, without letting go. The pointer comes from beside the shelf.
    void holdOverShelf();
    /// With a drag in the hand: waits until the shelf is open and as large as what can be dropped
    /// on.
    void awaitDropTarget();
    /// Drags what the shelf or its bar shows at `from`, and lets go of it at `place` once the
    /// target there would take it.
    void dropOutOn(QPoint from, QPoint place);
    /// Drops files by a source of our own, which needs no window to be waited for.
    testing::AssertionResult dropFiles(const QStringList &paths);
    testing::AssertionResult dropOffers(const QList<XdndSource::Offer> &offers);
    static QByteArray uriList(const QStringList &paths);

    /// The clipboard as text, once it says `expected` or time is up.
    QByteArray clipboardText(const QByteArray &expected);
    /// Whether a shelf that shows so many holds these files, in this order, and nothing else.
    testing::AssertionResult holdsExactly(int inView, const QStringList &paths);
    /// Clicks there, and waits until the program's menu has opened.
    void openMenu(QPoint at, uint8_t button = 1);
    /// Presses in the shelf, which gives it the keyboard.
    void focusShelf(QPoint at);

    XDesktop &m_desktop;
    std::unique_ptr<CorvaneProgram> m_corvane;

private:
    QString m_files;
};

/// The same on several kinds of desktop.
class EveryDesktop : public DesktopTest, public testing::WithParamInterface<DesktopKind> {
protected:
    EveryDesktop()
        : DesktopTest(GetParam())
    {
    }
};

std::string nameOf(const testing::TestParamInfo<DesktopKind> &kind);

/// Of X11 and of Wayland.
inline auto everyDesktop()
{
    return testing::Values(DesktopKind{WindowManager::Openbox, Compositor::Picom},
                           DesktopKind{WindowManager::Xfwm4, Compositor::None},
                           DesktopKind{WindowManager::Sway, Compositor::None},
                           DesktopKind{WindowManager::KWin, Compositor::None},
                           DesktopKind{WindowManager::Mutter, Compositor::None});
}

inline auto everyX11Desktop()
{
    return testing::Values(DesktopKind{WindowManager::Openbox, Compositor::Picom},
                           DesktopKind{WindowManager::Openbox, Compositor::None},
                           DesktopKind{WindowManager::Xfwm4, Compositor::Picom},
                           DesktopKind{WindowManager::Xfwm4, Compositor::None});
}

// So that a parameter's bytes are not printed.
inline void PrintTo(const DesktopKind &kind, std::ostream *out)
{
    *out << nameOf({kind, 0});
}

/// Each window manager and each compositor once.
inline auto twoDesktops()
{
    return testing::Values(DesktopKind{WindowManager::Openbox, Compositor::Picom},
                           DesktopKind{WindowManager::Xfwm4, Compositor::None});
}

} // namespace corvane::e2e
