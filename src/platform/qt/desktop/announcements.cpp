#include "platform/qt/desktop/announcements.h"

#include "platform/base/main_queue.h"

#include <QAccessibleInterface>
#include <QRect>
#include <QString>

#include <algorithm>

namespace corvane {

namespace {

class Announcement : public QAccessibleInterface {
public:
    Announcement(QAccessibleInterface &owner, const QString &text)
        : m_owner(owner)
        , m_text(text)
    {
    }
    ~Announcement() override = default;
    Announcement(const Announcement &) = delete;
    Announcement &operator=(const Announcement &) = delete;

    bool isValid() const override { return m_owner.isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_owner.window(); }
    QAccessibleInterface *parent() const override { return &m_owner; }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_text : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override { }
    /// Nothing is drawn of it.
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = m_owner.state().invisible;
        return state;
    }

private:
    QAccessibleInterface &m_owner;
    QString m_text;
};

void tellOf(QAccessible::Id part, QAccessible::Event what)
{
    QAccessibleEvent event(QAccessible::accessibleInterface(part), what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

Announcements::Announcements(MainQueue &queue, QAccessibleInterface &owner)
    : m_queue(queue)
    , m_owner(owner)
{
}

Announcements::~Announcements()
{
    for (const QAccessible::Id part : m_parts)
        QAccessible::deleteAccessibleInterface(part);
}

void Announcements::announce(const QString &text)
{
    const QAccessible::Id part
        = QAccessible::registerAccessibleInterface(new Announcement(m_owner, text));
    m_parts.push_back(part);
    tellOf(part, QAccessible::ObjectCreated);
    tellOf(part, QAccessible::ObjectShow);
    m_queue.asyncAfter(duration, m_lifetime.guard([this, part] { remove(part); }));
}

void Announcements::remove(QAccessible::Id part)
{
    tellOf(part, QAccessible::ObjectDestroyed);
    std::erase(m_parts, part);
    QAccessible::deleteAccessibleInterface(part);
}

QAccessibleInterface *Announcements::at(int index) const
{
    return index >= 0 && index < count()
        ? QAccessible::accessibleInterface(m_parts[static_cast<std::size_t>(index)])
        : nullptr;
}

int Announcements::indexOf(const QAccessibleInterface *part) const
{
    for (int index = 0; index < count(); ++index) {
        if (at(index) == part)
            return index;
    }
    return -1;
}

} // namespace corvane
