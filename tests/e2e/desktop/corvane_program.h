#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QList>
#include <QRect>

#include <memory>
#include <optional>

namespace corvane::e2e {

/// The program under test, looked at from outside only: windows, files, clipboard, exit status.
class CorvaneProgram {
public:
    /// Everything that a test wants different from the start of a user who has changed nothing.
    struct Start {
        /// settings.inViewCount; the program's own default where none is given.
        std::optional<int> inViewCount;
        /// Further lines of the settings file's [General] section.
        QByteArray settings;
        QProcessEnvironment environment;
        /// Whether the guide that welcomes a new user has been shown before.
        bool hasSeenWelcome = true;
        /// Goes on with the settings that an earlier start has left.
        bool keepsSettings = false;
        QStringList arguments = {};
        /// Another build of the program, or one that starts it in its own place.
        QString program = {};
    };

    explicit CorvaneProgram(XDesktop &desktop);
    CorvaneProgram(XDesktop &desktop, const Start &start);

    /// Up, and watching the desktop.
    bool waitUntilReady();
    Program &program() { return *m_program; }

    /// Starts it once more, as a user does who wants to see the shelf; the second one's exit
    /// status.
    std::optional<int> startAgain();

    /// Chooses an action of the desktop's menu for the program, such as "preferences".
    bool activateAction(const QString &action) const;

    /// The window that a window manager looks after, of that size where one is given, while it is
    /// on screen.
    std::optional<WindowFacts> window(QSize size = {});
    /// A window that no window manager looks after and that does not hang from the top edge: a menu
    /// or the view-all bar, of that height where one is given.
    std::optional<WindowFacts> popup(int height = 0);
    /// The panel while it is on screen.
    std::optional<WindowFacts> panel();
    bool isShown() { return panel().has_value(); }
    bool waitUntilShown();
    bool waitUntilHidden();
    /// Waits until the panel is that large, at the middle of the top edge of the screen, and at
    /// rest.
    bool waitForSize(QSize size, const QRect &screen = {});
    /// The same where the width depends on a text.
    bool waitForHeight(int height);
    QSize size();
    /// The part of the panel that takes clicks, in root coordinates.
    QRect body();
    /// A point of the body, from its top left.
    QPoint at(double x, double y);

    /// The settings file's contents.
    QByteArray settings() const;
    QString spool() const;
    QStringList spooled() const;

    static QString path();

    /// The panel's sizes and places as they follow from the numbers of items; in view 2 or more.
    static QSize carousel(int inView, int total);
    static QPoint cell(int inView, int total, int nth);
    static QPoint badge(int inView, int total, int nth);
    static QPoint leftArrow(int inView, int total);
    static QPoint rightArrow(int inView, int total);

    static constexpr QSize empty{292, 56};
    static constexpr int singleHeight = 44;
    static constexpr int carouselHeight = 62;

private:
    QString settingsFolder() const;
    template<class Condition>
    std::optional<WindowFacts> find(Condition condition);
    void writeSettings(const Start &start) const;

    XDesktop &m_desktop;
    QProcessEnvironment m_environment;
    std::unique_ptr<Program> m_program;
};

} // namespace corvane::e2e
