#pragma once

#include "e2e/desktop/announcement_listener.h"
#include "e2e/desktop/x_desktop.h"

#include <QDBusConnection>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace corvane::e2e {

/// Reads a program's windows through the accessibility bus, as screen readers do.
class ScreenReader {
public:
    struct Place {
        QString service;
        QString path;
    };
    /// Numbers of the accessibility bus.
    enum class State {
        Active = 1,
        Busy = 3,
        Checked = 4,
        Focused = 12,
        Selected = 23,
        Sensitive = 24
    };
    struct Element {
        QString name;
        QString description;
        /// "label", "check box", "push button" and so on.
        QString role;
        /// In root coordinates.
        QRect frame;
        quint64 states = 0;
        Place place = {};

        bool is(State state) const { return (states >> static_cast<int>(state) & 1) != 0; }
    };

    explicit ScreenReader(XDesktop &desktop);
    ~ScreenReader();
    ScreenReader(const ScreenReader &) = delete;
    ScreenReader &operator=(const ScreenReader &) = delete;

    bool isReady() const { return m_bus.isConnected(); }
    /// Adds the variables that a program needs to be read.
    static void addTo(QProcessEnvironment &environment);

    /// All elements of the program's windows, from the outermost to the innermost.
    QList<Element> elements(qint64 pid) const;
    /// The first control (not a text) whose name begins with `name`.
    std::optional<Element> control(qint64 pid, const QString &name,
                                   const QString &description = {}) const;
    /// Has the element do one of its actions, known by its untranslated name. False if it has no
    /// such action.
    bool perform(const Element &element, const QString &action) const;
    QStringList actions(const Element &element) const;
    /// Whether an element has this text that is there to stay.
    bool says(qint64 pid, const QString &text) const;
    /// From now on programs that are started are listened to.
    void listen() { m_listener = std::make_unique<AnnouncementListener>(m_bus); }
    /// Waits until it was told to say this at once.
    bool hears(const QString &text) const;
    /// What it was told to say at once, since `listen`.
    QStringList heard() const { return m_listener->heard(); }
    /// Where the cursor is in a text, in characters.
    int caret(const Element &text) const;

private:
    QVariantList ask(const Place &place, const QString &interface, const QString &method,
                     const QVariantList &arguments = {}) const;
    QString property(const Place &place, const QString &name) const;
    QList<Place> children(const Place &place) const;
    QRect frame(const Place &place) const;
    quint64 states(const Place &place) const;
    std::optional<Place> program(qint64 pid) const;
    void collect(const Place &place, int depth, QList<Element> &found) const;

    QDBusConnection m_bus;
    std::unique_ptr<AnnouncementListener> m_listener;
};

} // namespace corvane::e2e
