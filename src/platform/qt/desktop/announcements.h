#pragma once

#include "platform/base/lifetime.h"

#include <QAccessible>

#include <vector>

class QAccessibleInterface;
class QString;

namespace corvane {

class MainQueue;

/// Texts that screen readers say at once, wherever the keyboard is. Each is for a while a child of
/// the part of a window that owns this, of the kind that they read aloud when it appears. That a
/// name or a description changed is no way to tell people something: screen readers ignore it
/// where the keyboard is not, and with Qt 6.4 everywhere.
///
/// The owner lists them behind its other children. Main thread only.
class Announcements {
public:
    /// In seconds: how long one can be read.
    static constexpr double duration = 2;

    /// `owner` is their parent. The queue is not used after this is destroyed.
    Announcements(MainQueue &queue, QAccessibleInterface &owner);
    ~Announcements();
    Announcements(const Announcements &) = delete;
    Announcements &operator=(const Announcements &) = delete;

    void announce(const QString &text);

    int count() const { return static_cast<int>(m_parts.size()); }
    /// Null where there is none.
    QAccessibleInterface *at(int index) const;
    /// -1 where it is none of them.
    int indexOf(const QAccessibleInterface *part) const;

private:
    void remove(QAccessible::Id part);

    MainQueue &m_queue;
    QAccessibleInterface &m_owner;
    /// Qt's registry owns the parts.
    std::vector<QAccessible::Id> m_parts;
    Lifetime m_lifetime;
};

} // namespace corvane
