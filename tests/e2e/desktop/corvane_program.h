#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QByteArray>
#include <QList>
#include <QRect>

#include <memory>
#include <optional>

namespace corvane::e2e {

/// The program under test, observed from outside: windows, files, clipboard, exit status.
class CorvaneProgram {
public:
    /// How this start differs from that of a user who has changed no settings.
    struct Start {
        /// settings.inViewCount; the program's own default where none is given.
        std::optional<int> inViewCount;
        /// Further lines of the settings file's [General] section.
        QByteArray settings;
        QProcessEnvironment environment;
        /// Whether the guide that welcomes a new user has been shown before.
        bool hasSeenWelcome = true;
        /// Keeps the settings of an earlier start.
        bool keepsSettings = false;
        QStringList arguments = {};
        /// The path of another build, or of a program that starts it.
        QString program = {};
    };

    explicit CorvaneProgram(XDesktop &desktop);
    CorvaneProgram(XDesktop &desktop, const Start &start);

    /// Waits until the program has started and watches the desktop.
    bool waitUntilReady();
    Program &program() { return *m_program; }

    /// Starts the program again, as a user does to see the shelf; returns the second process's exit
    /// status.
    std::optional<int> startAgain();

    /// Chooses an action of the desktop's menu for the program, such as "preferences".
    bool activateAction(const QString &action) const;

    /// The program's managed window that is on screen, of that size if one is given.
    std::optional<WindowFacts> window(QSize size = {});
    /// An unmanaged window that is not at the top edge: a menu or the view-all bar; of that height
    /// if one is given.
    std::optional<WindowFacts> popup(int height = 0);
    /// In a Wayland session of several outputs: the one whose panel is meant from now on.
    void lookAt(const QRect &output) { m_output = output; }
    /// The shelf's panel if it is on screen; in a Wayland session what is seen of it.
    std::optional<WindowFacts> panel();
    bool isShown() { return panel().has_value(); }
    bool waitUntilShown();
    bool waitUntilHidden();
    /// Waits until the panel has that size, is in the middle of the screen's top edge, and does not
    /// move.
    bool waitForSize(QSize size, const QRect &screen = {});
    /// The same for a panel whose width depends on a text.
    bool waitForHeight(int height);
    QSize size();
    /// The part of the panel that takes clicks, in root coordinates.
    QRect body();
    /// A point of the body, in root coordinates; `x` and `y` from its top left.
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
    std::optional<WindowFacts> panelInPicture();
    XServer &panelServer();
    bool isPanelSurface();
    void writeSettings(const Start &start) const;

    XDesktop &m_desktop;
    QProcessEnvironment m_environment;
    /// Null for the whole screen.
    QRect m_output;
    std::unique_ptr<Program> m_program;
};

} // namespace corvane::e2e
